// The arithmetic of Shabbat times on clock times: which days are Fridays, candle lighting before sunset, the end of
// Shabbat after it.
#pragma once

#include <cstdint>

#include "engine/core/clock_time.h"

// More Fridays than this in one range are too many; the one that exceeds it is still kept.
inline constexpr uint32_t kMostFridays = 32000;

// Rata Die day n is a Friday when n mod 7 is 5. Days before day 1 have a negative remainder and are never Fridays.
constexpr bool IsFriday(int64_t absoluteDay) {
  return absoluteDay % 7 == 5;
}

struct FridayCount {
  uint32_t count;
  int32_t lastDay;  // the range's last day, or the day of the Friday that was one too many
  bool tooMany;
};

// The Fridays among the absolute days firstDay to lastDay, both included; none when lastDay lies before firstDay.
FridayCount CountFridays(int32_t firstDay, int32_t lastDay);

// minutesBefore sunset, back over midnight if need be. A negative number moves the time forward without carry into the
// hour.
ClockTime CandleLightingTime(ClockTime sunset, int32_t minutesBefore);

// minutesAfter sunset, over midnight if need be. A negative number moves the time back without borrowing an hour.
// Deliberate: an hour of 24 and more is only brought under 24 when a carry from the minutes occurs, so the degrees
// method can leave such an hour when nothing is carried.
ClockTime EndOfShabbatTime(ClockTime sunset, int32_t minutesAfter);

// sunset plus the interval to a solar depression. The minutes are carried into the hour; the hour is not wrapped.
ClockTime AddTwilightInterval(ClockTime sunset, ClockTime interval);
