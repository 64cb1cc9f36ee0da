#include "libraries/occasions/occasions_core.h"

#include <algorithm>
#include <tuple>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/occasions/year_rows.h"

namespace occasions {

std::vector<Row> RowCollector::Take() {
  // A moment that does not occur stands after those of its day, unless it is one that begins.
  const auto minuteOf = [](const Row& row) {
    const bool isLast = row.moment != Moment::kWholeDay && row.moment != Moment::kFastBegins;
    return row.minute.value_or(isLast ? static_cast<int32_t>(kMinutesPerDay) : -1);
  };
  const auto order = [&](const Row& row) {
    const bool isAfterCandles = row.rule != Rule::kBeforeCandles && row.occasion != Occasion::kEruvTavshilin;
    return std::tuple(row.day, minuteOf(row), isAfterCandles, row.occasion, row.moment, row.number);
  };
  std::sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) { return order(a) < order(b); });
  return std::move(rows_);
}

std::vector<Row> RowsBetween(const Question& question, int32_t firstDay, int32_t lastDay) {
  const int32_t first = std::max(firstDay, calendar::AbsoluteFromGregorian({1, 1, kFirstYear}));
  const int32_t last = std::min(lastDay, calendar::AbsoluteFromGregorian({31, 12, kLastYear}));
  RowCollector rows(question.customs, first, last);
  if (first > last) return {};
  Sky sky(question);
  HolyTimes times(question, sky);
  const YearSources sources = {question, sky, times, rows};
  AddHolyDays(question, sky, first, last, rows);
  // What a year brings may stand some days before it.
  const int32_t lastYear = calendar::JewishFromAbsolute(last).year + 1;
  for (int32_t year = calendar::JewishFromAbsolute(first).year; year <= lastYear; ++year) {
    AddNamedDays(sources, year);
    AddFasts(sources, year);
    AddChametz(sources, year);
    AddLights(sources, year);
    AddOmer(sources, year);
    AddMonths(sources, year);
    AddSeasons(sources, year);
    AddSelichot(sources, year);
  }
  return rows.Take();
}

}  // namespace occasions
