#include "libraries/occasions/shown_days.h"

#include <algorithm>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/occasions/occasions_core.h"

namespace occasions {
namespace {

constexpr int32_t kDecember = 12;

// 5344 begins in 1583, 6760 ends in 3000.
constexpr YearLimits kJewishYears = {5344, 6760};
constexpr YearLimits kCivilYears = {kFirstYear, kLastYear};

}  // namespace

YearLimits YearLimitsOf(Span span) {
  return span == Span::kJewishYear ? kJewishYears : kCivilYears;
}

Days DaysOfYear(Span span, int32_t year) {
  if (span == Span::kJewishYear) return {calendar::JewishNewYear(year) - 1, calendar::JewishNewYear(year + 1) - 1};
  return {calendar::AbsoluteFromGregorian({1, 1, year}), calendar::AbsoluteFromGregorian({31, kDecember, year})};
}

int32_t YearOfDay(Span span, int32_t day) {
  const int32_t year =
      span == Span::kJewishYear ? calendar::JewishFromAbsolute(day).year : calendar::GregorianFromAbsolute(day).year;
  const YearLimits limits = YearLimitsOf(span);
  return std::clamp(year, limits.first, limits.last);
}

bool IsToCome(const Row& row, const ClockMoment& now) {
  if (row.moment != Moment::kWholeDay && !row.minute) return false;
  if (row.day != now.day) return row.day > now.day;
  return !row.minute || *row.minute >= now.minute;
}

}  // namespace occasions
