#include "zmanim/core/builtin_zmanim.h"

#include <cmath>

namespace {

constexpr double kHoursOfTheDay = 12;  // from sunrise to sunset

int64_t MinutesOf(ClockTime time) {
  return int64_t{time.hour} * kMinutesPerHour + time.minute;
}

// Truncated towards zero.
ClockTime TimeOf(int64_t minutes) {
  return {static_cast<int32_t>(minutes / kMinutesPerHour), static_cast<int32_t>(minutes % kMinutesPerHour)};
}

double UnsignedMinutesOf(ClockTime time) {
  return static_cast<double>(static_cast<uint32_t>(time.hour)) * kMinutesPerHour + static_cast<uint32_t>(time.minute);
}

int32_t Truncated(double number) {
  return static_cast<int32_t>(static_cast<int64_t>(number));
}

}  // namespace

ClockTime MinutesBeforeSunrise(ClockTime sunrise, uint32_t minutes) {
  constexpr uint32_t kPerHour = kMinutesPerHour;
  const uint32_t time =
      static_cast<uint32_t>(sunrise.hour) * kPerHour + static_cast<uint32_t>(sunrise.minute) - minutes;
  return {static_cast<int32_t>(time / kPerHour), static_cast<int32_t>(time % kPerHour)};
}

ClockTime IntervalBeforeSunrise(ClockTime sunrise, ClockTime interval) {
  return TimeOf(MinutesOf(sunrise) - MinutesOf(interval));
}

ClockTime IntervalAfterSunset(ClockTime sunset, ClockTime interval) {
  return TimeOf(MinutesOf(sunset) + MinutesOf(interval));
}

ClockTime ProportionalHours(const DaySun& sun, double hours, int32_t minutesOff) {
  const double sunrise = UnsignedMinutesOf(sun.sunrise);
  const double sunset = UnsignedMinutesOf(sun.sunset);
  const double minutes = sunrise + hours * ((sunset - sunrise) / kHoursOfTheDay) + minutesOff;
  return {Truncated(minutes / kMinutesPerHour), Truncated(std::fmod(minutes, kMinutesPerHour))};
}

ClockTime BuiltInZmanTime(const BuiltInZman& zman, const DaySun& sun, const TwilightQuestion& twilight) {
  switch (zman.rule) {
    case BuiltInRule::kMinutesBeforeSunrise:
      return MinutesBeforeSunrise(sun.sunrise, static_cast<uint32_t>(zman.amount));
    case BuiltInRule::kMinutesAfterSunset: return MinutesAfter(sun.sunset, static_cast<int32_t>(zman.amount));
    case BuiltInRule::kDegreesBeforeSunrise: return IntervalBeforeSunrise(sun.sunrise, twilight(zman.amount));
    case BuiltInRule::kDegreesAfterSunset: return IntervalAfterSunset(sun.sunset, twilight(zman.amount));
    case BuiltInRule::kProportionalHours: return ProportionalHours(sun, zman.amount, zman.minutesOff);
  }
  return {};
}
