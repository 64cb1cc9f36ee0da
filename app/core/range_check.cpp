#include "app/core/range_check.h"

#include <limits>

namespace {

constexpr std::size_t kStart = 0;
constexpr std::size_t kEnd = 1;

struct Side {
  const char* name;  // at the start of its messages
  RangeField field;
};

constexpr Side kSides[] = {{"Start", RangeField::kStart}, {"End", RangeField::kEnd}};

uint32_t TakeNumber(std::string_view& text) {
  constexpr uint64_t kMost = std::numeric_limits<uint32_t>::max();
  uint64_t number = 0;
  while (!text.empty() && text.front() >= '0' && text.front() <= '9') {
    number = std::min(number * 10 + static_cast<uint64_t>(text.front() - '0'), kMost);
    text.remove_prefix(1);
  }
  return static_cast<uint32_t>(number);
}

bool TakePoint(std::string_view& text) {
  if (text.empty() || text.front() != '.') return false;
  text.remove_prefix(1);
  return true;
}

// One kind of check, made for the start and then for the end: what follows the side's name in the message, or nothing
// when the date passes.
using DateCheck = std::optional<std::string> (*)(const CalendarDate& date, const DateRules& rules);

std::optional<std::string> CheckMonth(const CalendarDate& date, const DateRules&) {
  if (date.uMonth >= 1 && date.uMonth <= 12) return std::nullopt;
  return " month must be in the range 1-12";
}

std::optional<std::string> CheckYear(const CalendarDate& date, const DateRules&) {
  if (date.uYear >= kFirstYear && date.uYear <= kLastYear) return std::nullopt;
  return " year must be in the range " + std::to_string(kFirstYear) + "-" + std::to_string(kLastYear);
}

std::optional<std::string> CheckDay(const CalendarDate& date, const DateRules& rules) {
  const uint32_t lastDay = rules.lastDayOfMonth(date.uMonth, date.uYear);
  if (date.uDay >= 1 && date.uDay <= lastDay) return std::nullopt;
  return " day must be in the range 1-" + std::to_string(lastDay);
}

constexpr DateCheck kDateChecks[] = {CheckMonth, CheckYear, CheckDay};

}  // namespace

std::optional<CalendarDate> ParseDate(std::string_view text) {
  CalendarDate date{};
  date.uDay = TakeNumber(text);
  if (!TakePoint(text)) return std::nullopt;
  date.uMonth = TakeNumber(text);
  if (!TakePoint(text)) return std::nullopt;
  date.uYear = TakeNumber(text);
  if (!text.empty()) return std::nullopt;
  return date;
}

RangeCheck CheckRange(std::string_view startText, std::string_view endText, const DateRules& rules) {
  const std::optional<CalendarDate> typed[] = {ParseDate(startText), ParseDate(endText)};
  for (const std::size_t side : {kStart, kEnd}) {
    if (!typed[side])
      return {{}, RangeFault{kSides[side].name + std::string(" date is not a valid date"), kSides[side].field}};
  }
  for (const DateCheck check : kDateChecks) {
    for (const std::size_t side : {kStart, kEnd}) {
      if (const auto message = check(*typed[side], rules)) {
        return {{}, RangeFault{kSides[side].name + *message, kSides[side].field}};
      }
    }
  }
  const DateRange range{*typed[kStart], *typed[kEnd]};
  if (rules.absoluteFromDate(range.end) < rules.absoluteFromDate(range.start)) {
    return {{}, RangeFault{"The end date must be later than the start date", RangeField::kStart}};
  }
  return {range, std::nullopt};
}
