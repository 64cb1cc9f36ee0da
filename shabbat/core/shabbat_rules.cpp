#include "shabbat/core/shabbat_rules.h"

namespace {

ClockTime Narrow(int64_t hour, int64_t minute) {
  return {static_cast<int32_t>(hour), static_cast<int32_t>(minute)};
}

}  // namespace

FridayCount CountFridays(int32_t firstDay, int32_t lastDay) {
  FridayCount fridays{0, lastDay, false};
  for (int64_t day = firstDay; day <= lastDay; ++day) {
    if (!IsFriday(day)) continue;
    if (++fridays.count > kMostFridays) {
      fridays.lastDay = static_cast<int32_t>(day);
      fridays.tooMany = true;
      break;
    }
  }
  return fridays;
}

ClockTime CandleLightingTime(ClockTime sunset, int32_t minutesBefore) {
  int64_t hour = sunset.hour;
  int64_t minute = int64_t{sunset.minute} - minutesBefore;
  if (minute < 0) {
    const int64_t borrowed = (-minute + kMinutesPerHour - 1) / kMinutesPerHour;
    minute += borrowed * kMinutesPerHour;
    hour -= borrowed;
    if (hour < 0) hour = (hour % kHoursPerDay + kHoursPerDay) % kHoursPerDay;
  }
  return Narrow(hour, minute);
}

ClockTime EndOfShabbatTime(ClockTime sunset, int32_t minutesAfter) {
  return MinutesAfter(sunset, minutesAfter);
}

ClockTime AddTwilightInterval(ClockTime sunset, ClockTime interval) {
  int64_t hour = int64_t{sunset.hour} + interval.hour;
  int64_t minute = int64_t{sunset.minute} + interval.minute;
  if (minute >= kMinutesPerHour) {
    hour += minute / kMinutesPerHour;
    minute %= kMinutesPerHour;
  }
  return Narrow(hour, minute);
}
