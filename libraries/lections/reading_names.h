// What portions, occasions and dates are called, in UTF-8.
#pragma once

#include <cstdint>
#include <string>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/day_readings.h"
#include "libraries/lections/language.h"

namespace lections {

// "Noach", or "Matot-Masei" where two are read as one.
std::string NameOf(const calendar::WeeklyPortion& read, const Language& language);

// "Sukkot, day 3", "Rosh Chodesh Adar I"; in a leap year the month Adar is Adar I.
std::string NameOf(const NumberedOccasion& occasion, bool isLeapYear, const Language& language);

// "28.11.2026" of an absolute day, as the program's lists have it.
std::string CivilDateText(int32_t day);

}  // namespace lections
