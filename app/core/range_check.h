// The range of dates as the user types it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/core/records.h"

// Years that ranges and the sunset of a day may have.
inline constexpr uint32_t kFirstYear = 1583;
inline constexpr uint32_t kLastYear = 3000;

// day.month.year: digits, a point, digits, a point, digits, and nothing else. An empty run of digits is 0, a number
// beyond 32 bits the largest that fits.
std::optional<CalendarDate> ParseDate(std::string_view text);

// What the check asks the calendar.
struct DateRules {
  uint32_t (*lastDayOfMonth)(uint32_t month, uint32_t year);
  int32_t (*absoluteFromDate)(const CalendarDate& date);
};

enum class RangeField { kStart, kEnd };

struct RangeFault {
  std::string message;
  RangeField field;  // the one to mend
};

struct RangeCheck {
  DateRange range;
  std::optional<RangeFault> fault;  // the first that was found
};

// Deliberate: a range of one day is accepted, though the message speaks of a later end.
RangeCheck CheckRange(std::string_view startText, std::string_view endText, const DateRules& rules);
