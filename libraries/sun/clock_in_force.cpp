#include "libraries/sun/clock_in_force.h"

#include <cmath>

#include "libraries/sun/clock_rules.h"

namespace sun {

int32_t ClockOffsetSeconds(const PlaceClock& clock, double utcSeconds) {
  if (clock.zoneId[0] == '\0') return clock.standardOffsetSeconds;
  const auto unixSeconds = static_cast<int64_t>(std::floor(utcSeconds));
  return UtcOffsetSeconds(clock.zoneId.data(), unixSeconds).value_or(clock.standardOffsetSeconds);
}

int32_t ClockOffsetShowing(const PlaceClock& clock, int64_t clockSeconds) {
  // No clock changes twice within two days and a half, and none is a day or more from UTC.
  constexpr int64_t kDay = 24 * 60 * 60;
  const int32_t before = ClockOffsetSeconds(clock, static_cast<double>(clockSeconds - kDay));
  const int32_t after = ClockOffsetSeconds(clock, static_cast<double>(clockSeconds + kDay));
  for (const int32_t offset : {before, after}) {
    if (ClockOffsetSeconds(clock, static_cast<double>(clockSeconds - offset)) == offset) return offset;
  }
  return before;
}

int64_t NearestMinute(double utcSeconds, int32_t offsetSeconds) {
  return static_cast<int64_t>(std::floor((utcSeconds + offsetSeconds) / 60 + 0.5));
}

int64_t MinuteNotBefore(double utcSeconds, int32_t offsetSeconds) {
  return static_cast<int64_t>(std::ceil((utcSeconds + offsetSeconds) / 60));
}

HourAndMinute TimeOfDay(int64_t minutes) {
  constexpr int64_t kMinutesPerDay = 24 * 60;
  const int64_t ofDay = ((minutes % kMinutesPerDay) + kMinutesPerDay) % kMinutesPerDay;
  return {static_cast<int32_t>(ofDay / 60), static_cast<int32_t>(ofDay % 60)};
}

}  // namespace sun
