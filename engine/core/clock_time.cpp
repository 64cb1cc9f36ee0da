#include "engine/core/clock_time.h"

ClockTime MinutesAfter(ClockTime time, int32_t minutes) {
  int64_t hour = time.hour;
  int64_t minute = int64_t{time.minute} + minutes;
  // Every carry takes at most one day off; under 24 the remaining carries can be counted at once.
  while (minute >= kMinutesPerHour && hour >= kHoursPerDay) {
    minute -= kMinutesPerHour;
    hour += 1 - kHoursPerDay;
  }
  if (minute >= kMinutesPerHour) {
    hour = (hour + minute / kMinutesPerHour) % kHoursPerDay;
    minute %= kMinutesPerHour;
  }
  return {static_cast<int32_t>(hour), static_cast<int32_t>(minute)};
}
