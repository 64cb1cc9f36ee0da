#include "libraries/calendar/holiday.h"

namespace calendar {

std::optional<int32_t> DayOfHoliday(const Holiday& holiday, int32_t year, BaseDay baseDay) {
  const HolidayRule* inForce = nullptr;
  for (const HolidayRule& rule : holiday.rules) {
    if (rule.fromYear != 0 && rule.fromYear <= year) inForce = &rule;
  }
  if (inForce == nullptr || year > kLastYear) return std::nullopt;
  const std::optional<int32_t> base = baseDay(*inForce, year);
  if (!base) return std::nullopt;
  const int8_t shift = inForce->shift[static_cast<size_t>(WeekdayOf(*base))];
  if (shift == kNotKept) return std::nullopt;
  return *base + shift + inForce->daysAfter;
}

}  // namespace calendar
