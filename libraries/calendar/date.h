// What the two calendars share: the date record, the weekday, and the range of years.
//
// Absolute day numbers are Rata Die: day 1 is Monday, 1 January of year 1 of the proleptic Gregorian calendar (E. M.
// Reingold, N. Dershowitz, "Calendrical Calculations").
#pragma once

#include <cstdint>

namespace calendar {

// Both calendars reach over these years of their own.
constexpr int32_t kFirstYear = 1;
constexpr int32_t kLastYear = 9999;

// Months count from 1, in the Jewish calendar from Nisan although its year changes at Tishri.
struct Date {
  int32_t day;
  int32_t month;
  int32_t year;

  friend bool operator==(const Date&, const Date&) = default;
};

enum class Weekday : int32_t { kSunday, kMonday, kTuesday, kWednesday, kThursday, kFriday, kSaturday };

constexpr int32_t kAbsoluteDayOfUnixDay0 = 719163;  // Rata Die of 1970-01-01

constexpr Weekday WeekdayOf(int32_t absoluteDay) {
  const int32_t remainder = absoluteDay % 7;
  return static_cast<Weekday>(remainder < 0 ? remainder + 7 : remainder);
}

}  // namespace calendar
