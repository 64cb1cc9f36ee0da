// The days that a text of the user's own is for: those of a portion, of an occasion, or a date.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/date.h"
#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/day_readings.h"
#include "libraries/lections/language.h"

namespace lections {

enum class WhenKind : uint8_t { kPortion, kOccasion, kDate };

// Months here are those that texts are for: Adar is the one of Purim, Adar II in a leap year, and Adar I, 0, is in leap
// years alone; the others as calendar::JewishMonth.
constexpr int32_t kAdarIOfLeapYears = 0;

struct When {
  WhenKind kind = WhenKind::kPortion;
  int32_t what = 0;    // a portion, an Occasion, or a month
  int32_t number = 0;  // 1 for a portion joined with the next; of an occasion as in NumberedOccasion; the day of a date
  // 1 for an occasion on a Shabbat that can be on a weekday too; the year of a date, 0 for every year.
  int32_t more = 0;

  auto operator<=>(const When&) const = default;
};

When WhenOf(const calendar::WeeklyPortion& portion);
When WhenOfDate(int32_t day, int32_t month, int32_t year = 0);

// Whether it is a date in a year that has it: such dates are not among EveryWhen().
bool IsOfOneYear(const When& when);
calendar::Date DateOfOneYear(const When& when);

// The kinds of days that a day is, from the most general to the most particular: its portion, its occasions, the last
// first, the date of every year, the date of its year. readings: that of the date.
using Whens = ShortList<When, 8>;
Whens WhensOn(const calendar::Date& date, const DayReadings& readings);

// All portions, alone and joined, and all occasions that any year has in either land, then the dates of the year from
// Tishri on. Worked out at the first call, in some milliseconds.
const std::vector<When>& EveryWhen();

// "Matot-Masei"; "Sukkot, day 1, Shabbat"; "15 Av"; "15 Av 5787". In UTF-8.
std::string NameOf(const When& when, const Language& language);

// A name for files: the English one with its kind before it, "portion Matot-Masei". None for a text that is no such
// name.
std::string KeyOf(const When& when);
std::optional<When> WhenIn(std::string_view key);

}  // namespace lections
