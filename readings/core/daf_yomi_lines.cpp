#include "readings/core/daf_yomi_lines.h"

#include <tuple>
#include <utility>

#include "output/date_text.h"

namespace {

bool IsSameDate(const CalendarDate& a, const CalendarDate& b) {
  return std::tie(a.uDay, a.uMonth, a.uYear) == std::tie(b.uDay, b.uMonth, b.uYear);
}

CalendarDate NextDay(CalendarDate date, const DafYomiSource& source) {
  constexpr uint32_t kMonths = 12;
  if (++date.uDay <= source.lastDayOfMonth(date.uMonth, date.uYear)) return date;
  date.uDay = 1;
  if (++date.uMonth <= kMonths) return date;
  return {1, 1, date.uYear + 1};
}

std::string LineOf(const CalendarDate& date, int32_t absoluteDay, const DafYomiSource& source) {
  const CalendarDate jewish = source.jewishDate(absoluteDay);
  return DateText(date) + " (" + std::to_string(jewish.uDay) + ' ' + source.monthName(jewish) + ' ' +
         std::to_string(jewish.uYear) + "): " + source.page(date);
}

}  // namespace

void ForEachDafYomiLine(const DateRange& range, const DafYomiSource& source,
                        const std::function<void(const std::string& line)>& take) {
  DateRange inOrder = range;
  if (source.absoluteDay(range.start) > source.absoluteDay(range.end)) std::swap(inOrder.start, inOrder.end);
  const int32_t lastDay = source.absoluteDay(inOrder.end);
  for (CalendarDate date = inOrder.start;; date = NextDay(date, source)) {
    const int32_t day = source.absoluteDay(date);
    if (day > lastDay) return;  // an end that does not exist is never met
    take(LineOf(date, day, source));
    if (IsSameDate(date, inOrder.end)) return;
  }
}
