// A date of which day, month and year have a field each.
#pragma once

#include <cstdint>
#include <optional>

#include "companion/calendar_date.h"

// The number in each field, or nothing where it holds none.
struct TypedDate {
  std::optional<uint32_t> day;
  std::optional<uint32_t> month;
  std::optional<uint32_t> year;
};

// The date that the fields make, or nothing while they make none: a field without a number, a day that its month does
// not have, a month outside 1 to 12, a year outside 1583 to 3000.
std::optional<CalendarDate> DateOf(const TypedDate& typed, uint32_t (*lastDayOfMonth)(uint32_t month, uint32_t year));
