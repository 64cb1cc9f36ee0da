// The fixed Jewish calendar (attributed to Hillel II), years 1 to 9999 of the world's creation.
//
// Months are numbered Nisan = 1 ... Tishri = 7 ... Adar (Adar I in a leap year) = 12, Adar II = 13; the year changes at
// Tishri.
#pragma once

#include <cstdint>

#include "libraries/calendar/date.h"

namespace calendar {

enum JewishMonth : int32_t {
  kNisan = 1,
  kIyar,
  kSivan,
  kTammuz,
  kAv,
  kElul,
  kTishri,
  kCheshvan,
  kKislev,
  kTevet,
  kShevat,
  kAdar,
  kAdarII,
};

// Short (chaserah): Cheshvan and Kislev have 29 days, 353 or 383 in all. Regular (kesidrah): Kislev has 30. Full
// (shelemah): both have 30, 355 or 385 in all.
enum class YearLength : int32_t { kShort, kRegular, kFull };

// The sign of a year (keviyah), of which there are fourteen; it fixes the weekday of every date of the year.
struct YearType {
  Weekday newYear;
  YearLength length;
  bool leap;

  friend bool operator==(const YearType&, const YearType&) = default;
};

// Years outside 1 to 9999 are clamped into them by each of these.

YearType YearTypeOf(int32_t year);

// Of the 19 years of a cycle the 3rd, 6th, 8th, 11th, 14th, 17th and 19th have a thirteenth month.
bool IsJewishLeapYear(int32_t year);

// 12 or 13, which is also the highest month number.
int32_t MonthsInJewishYear(int32_t year);

// 353 to 355 or 383 to 385.
int32_t DaysInJewishYear(int32_t year);

// 29 or 30; 0 for a month that the year does not have.
int32_t DaysInJewishMonth(int32_t month, int32_t year);

// The absolute day of 1 Tishri.
int32_t JewishNewYear(int32_t year);

// A year, month or day outside its range is clamped into it, in this order: Adar II of a common year is Adar.
int32_t AbsoluteFromJewish(const Date& date);

// A day outside the calendar's years answers their first or last day.
Date JewishFromAbsolute(int32_t absoluteDay);

}  // namespace calendar
