#include "libraries/sun/clock_in_force.h"

#include <cmath>

#include "libraries/sun/clock_rules.h"

namespace sun {

int32_t ClockOffsetSeconds(const PlaceClock& clock, double utcSeconds) {
  if (clock.zoneId[0] == '\0') return clock.standardOffsetSeconds;
  const auto unixSeconds = static_cast<int64_t>(std::floor(utcSeconds));
  return UtcOffsetSeconds(clock.zoneId.data(), unixSeconds).value_or(clock.standardOffsetSeconds);
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
