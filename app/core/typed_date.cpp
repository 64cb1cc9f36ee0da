#include "app/core/typed_date.h"

#include "app/core/range_check.h"

std::optional<CalendarDate> DateOf(const TypedDate& typed, uint32_t (*lastDayOfMonth)(uint32_t month, uint32_t year)) {
  if (!typed.day || !typed.month || !typed.year) return std::nullopt;
  const CalendarDate date{*typed.day, *typed.month, *typed.year};
  if (date.uMonth < 1 || date.uMonth > 12) return std::nullopt;  // before the calendar is asked for its last day
  if (date.uYear < kFirstYear || date.uYear > kLastYear) return std::nullopt;
  if (date.uDay < 1 || date.uDay > lastDayOfMonth(date.uMonth, date.uYear)) return std::nullopt;
  return date;
}
