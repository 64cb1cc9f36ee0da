#include "libraries/calendar/gregorian.h"

#include <algorithm>
#include <chrono>

namespace calendar {
namespace {

using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr int32_t AbsoluteOf(const year_month_day& date) {
  return static_cast<int32_t>(sys_days{date}.time_since_epoch().count()) + kAbsoluteDayOfUnixDay0;
}

// A year of the same leap days that std::chrono has, whatever the number: they repeat after 400 years.
constexpr year LikeYear(int32_t number) {
  return year{number % 400};
}

}  // namespace

bool IsGregorianLeapYear(int32_t number) {
  return LikeYear(number).is_leap();
}

int32_t DaysInGregorianMonth(int32_t number, int32_t ofYear) {
  if (number < 1 || number > 12) return 0;
  const auto last = LikeYear(ofYear) / number / std::chrono::last;
  return static_cast<int32_t>(static_cast<unsigned>(last.day()));
}

bool IsGregorianDate(uint32_t dayNumber, uint32_t monthNumber, uint32_t yearNumber) {
  constexpr uint32_t kMostMonths = 12;
  if (yearNumber < uint32_t{kFirstYear} || yearNumber > uint32_t{kLastYear} || monthNumber > kMostMonths) return false;
  const int32_t days = DaysInGregorianMonth(static_cast<int32_t>(monthNumber), static_cast<int32_t>(yearNumber));
  return dayNumber >= 1 && dayNumber <= static_cast<uint32_t>(days);
}

int32_t AbsoluteFromGregorian(const Date& date) {
  const int32_t validYear = std::clamp(date.year, kFirstYear, kLastYear);
  const int32_t validMonth = std::clamp(date.month, 1, 12);
  const int32_t validDay = std::clamp(date.day, 1, DaysInGregorianMonth(validMonth, validYear));
  return AbsoluteOf(year{validYear} / validMonth / validDay);
}

Date GregorianFromAbsolute(int32_t absoluteDay) {
  constexpr int32_t kLastDay = AbsoluteOf(year{kLastYear} / 12 / 31);
  const int32_t unixDay = std::clamp(absoluteDay, 1, kLastDay) - kAbsoluteDayOfUnixDay0;
  const year_month_day date = sys_days{std::chrono::days{unixDay}};
  return {static_cast<int32_t>(static_cast<unsigned>(date.day())),
          static_cast<int32_t>(static_cast<unsigned>(date.month())), static_cast<int32_t>(date.year())};
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
