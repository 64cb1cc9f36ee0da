#include "libraries/calendar/gregorian.h"

#include <algorithm>

namespace calendar {
namespace {

constexpr int32_t kMonthDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Counted from 1 March the months' lengths run 31 30 31 30 31 and repeat, so month m (March = 0) begins on day
// (153 m + 2) / 5 of its year, and the leap day comes last (H. Hinnant,
// "chrono-Compatible Low-Level Date Algorithms").
constexpr int32_t DaysBeforeMonth(int32_t monthFromMarch) {
  return (153 * monthFromMarch + 2) / 5;
}

// The years that begin in March, year 0 among them: its days since 1 March of year 0.
constexpr int32_t DaysBeforeMarchYear(int32_t year) {
  return 365 * year + year / 4 - year / 100 + year / 400;
}

// Rata Die of 1 March of year 0: 306 days before 1 January of year 1.
constexpr int32_t kMarchEpoch = -305;

constexpr int32_t kDaysInCycle = 146097;  // 400 years

int32_t AbsoluteOfValid(const Date& date) {
  const int32_t marchYear = date.month > 2 ? date.year : date.year - 1;
  return kMarchEpoch + DaysBeforeMarchYear(marchYear) + DaysBeforeMonth((date.month + 9) % 12) + date.day - 1;
}

}  // namespace

bool IsGregorianLeapYear(int32_t year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int32_t DaysInGregorianMonth(int32_t month, int32_t year) {
  if (month < 1 || month > 12) return 0;
  return month == 2 && IsGregorianLeapYear(year) ? 29 : kMonthDays[month - 1];
}

int32_t AbsoluteFromGregorian(const Date& date) {
  Date valid;
  valid.year = std::clamp(date.year, kFirstYear, kLastYear);
  valid.month = std::clamp(date.month, 1, 12);
  valid.day = std::clamp(date.day, 1, DaysInGregorianMonth(valid.month, valid.year));
  return AbsoluteOfValid(valid);
}

Date GregorianFromAbsolute(int32_t absoluteDay) {
  static constexpr int32_t kLastDay = kMarchEpoch + DaysBeforeMarchYear(kLastYear) + 305;  // 31 December
  const int32_t day = std::clamp(absoluteDay, 1, kLastDay) - kMarchEpoch;
  const int32_t inCycle = day % kDaysInCycle;
  // Leap days before this one of the cycle are taken out; what is left are years of 365 days.
  const int32_t yearOfCycle = (inCycle - inCycle / 1460 + inCycle / 36524 - inCycle / (kDaysInCycle - 1)) / 365;
  const int32_t marchYear = day / kDaysInCycle * 400 + yearOfCycle;
  const int32_t dayOfYear = day - DaysBeforeMarchYear(marchYear);
  const int32_t monthFromMarch = (5 * dayOfYear + 2) / 153;
  const int32_t month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  return {dayOfYear - DaysBeforeMonth(monthFromMarch) + 1, month, month > 2 ? marchYear : marchYear + 1};
}

int32_t GregorianEaster(int32_t year) {
  // The Sunday after the ecclesiastical full moon (paschal moon) on or after 21 March. Its epact is corrected for the
  // leap days left out since Julius Caesar and for the moon's slow gain of 8 days in 25 centuries (C. Clavius, 1603).
  const int32_t century = year / 100 + 1;
  const int32_t epact = (14 + 11 * (year % 19) - 3 * century / 4 + (5 + 8 * century) / 25) % 30;
  const int32_t positiveEpact = (epact + 30) % 30;
  const bool lateMoon = positiveEpact == 0 || (positiveEpact == 1 && year % 19 > 10);
  const int32_t paschalMoon = AbsoluteFromGregorian({19, 4, year}) - positiveEpact - (lateMoon ? 1 : 0);
  return paschalMoon + 7 - static_cast<int32_t>(WeekdayOf(paschalMoon));
}

}  // namespace calendar
