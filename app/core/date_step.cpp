#include "app/core/date_step.h"

#include <algorithm>

#include "app/core/range_check.h"

namespace {

constexpr uint32_t kMonths = 12;

void NextMonth(CalendarDate& date) {
  if (date.uMonth < kMonths) {
    ++date.uMonth;
  } else {
    date.uMonth = 1;
    ++date.uYear;
  }
}

void PreviousMonth(CalendarDate& date) {
  if (date.uMonth > 1) {
    --date.uMonth;
  } else {
    date.uMonth = kMonths;
    --date.uYear;
  }
}

}  // namespace

CalendarDate StepDate(const CalendarDate& date, DateField field, bool up,
                      uint32_t (*lastDayOfMonth)(uint32_t month, uint32_t year)) {
  CalendarDate next = date;
  switch (field) {
    case DateField::kDay:
      if (up && next.uDay >= lastDayOfMonth(next.uMonth, next.uYear)) {
        NextMonth(next);
        next.uDay = 1;
      } else if (up) {
        ++next.uDay;
      } else if (next.uDay > 1) {
        --next.uDay;
      } else {
        PreviousMonth(next);
        next.uDay = lastDayOfMonth(next.uMonth, next.uYear);
      }
      break;
    case DateField::kMonth: up ? NextMonth(next) : PreviousMonth(next); break;
    case DateField::kYear: next.uYear += up ? 1u : ~0u; break;
  }
  if (next.uYear < kFirstYear || next.uYear > kLastYear) return date;
  if (field != DateField::kDay) next.uDay = std::min(next.uDay, lastDayOfMonth(next.uMonth, next.uYear));
  return next;
}
