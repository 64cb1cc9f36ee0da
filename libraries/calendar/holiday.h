// Holidays as data, alike for both calendars: a date of the calendar, moved by the weekday on which it falls.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "libraries/calendar/date.h"

namespace calendar {

// The days to move by when the date is a Sunday, Monday ... Saturday; kNotKept when it is not kept at all then.
using WeekdayShift = std::array<int8_t, 7>;
constexpr int8_t kNotKept = 127;

constexpr WeekdayShift kAsItFalls = {0, 0, 0, 0, 0, 0, 0};

constexpr WeekdayShift OnOrAfter(Weekday weekday) {
  WeekdayShift shift{};
  for (int32_t i = 0; i < 7; ++i) {
    shift[static_cast<size_t>(i)] = static_cast<int8_t>((static_cast<int32_t>(weekday) - i + 7) % 7);
  }
  return shift;
}

constexpr WeekdayShift OnOrBefore(Weekday weekday) {
  WeekdayShift shift = OnOrAfter(weekday);
  for (int8_t& days : shift) days = static_cast<int8_t>(days == 0 ? 0 : days - 7);
  return shift;
}

// How a holiday is dated from a year on. A table may name, beside the months of its calendar, marks of its own, which
// its BaseDay understands. The days after are added to whatever the shift led to.
struct HolidayRule {
  int32_t fromYear;
  int32_t month;
  int32_t day;
  WeekdayShift shift = kAsItFalls;
  int32_t daysAfter = 0;
};

// A holiday with its rules in order of years; unused ones begin in year 0. The first rule's year is the first in which
// it was kept, 1 for what has been kept from of old.
struct Holiday {
  const char* name;
  std::array<HolidayRule, 3> rules;
};

// The absolute day that a rule counts from in a year: nothing when the year does not have it.
using BaseDay = std::optional<int32_t> (*)(const HolidayRule& rule, int32_t year);

// The absolute day of a holiday in a year, nothing when it is not kept in it.
std::optional<int32_t> DayOfHoliday(const Holiday& holiday, int32_t year, BaseDay baseDay);

// The holidays of each calendar and their base days.
std::span<const Holiday> GregorianHolidays();
std::optional<int32_t> GregorianBaseDay(const HolidayRule& rule, int32_t year);
std::span<const Holiday> JewishHolidays();
const Holiday& JewishHolidayNamed(std::string_view name);  // there has to be one
std::optional<int32_t> JewishBaseDay(const HolidayRule& rule, int32_t year);

}  // namespace calendar
