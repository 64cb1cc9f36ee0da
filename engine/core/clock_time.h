// Times of day as hour and minute, and sums of them that stay within the day.
#pragma once

#include <cstdint>

struct ClockTime {
  int32_t hour;
  int32_t minute;
  bool operator==(const ClockTime&) const = default;
};
static_assert(sizeof(ClockTime) == 8);

inline constexpr int32_t kMinutesPerHour = 60;
inline constexpr int32_t kHoursPerDay = 24;

// minutes after a time, over midnight if need be. A negative number moves the time back without borrowing an hour.
// Deliberate: an hour of 24 and more is only brought under 24 when a carry from the minutes occurs.
ClockTime MinutesAfter(ClockTime time, int32_t minutes);
