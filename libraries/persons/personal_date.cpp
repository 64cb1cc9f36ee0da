#include "libraries/persons/personal_date.h"

#include <algorithm>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"

namespace persons {
namespace {

using calendar::Date;

// The most days that a month has in any year, by its number.
constexpr std::array<int32_t, 14> kMostDays = {0, 30, 29, 30, 29, 30, 29, 30, 30, 30, 29, 30, 30, 29};

// 1 January of a Gregorian year lies in the Jewish year with this added, and its 31 December in the next one.
constexpr int32_t kJewishYearOfJanuary = 3760;

bool IsJewishEvent(const Date& date) {
  if (date.year == kUnknownYear) {
    return date.month >= calendar::kNisan && date.month <= calendar::kAdarII && date.day >= 1 &&
           date.day <= kMostDays[static_cast<size_t>(date.month)];
  }
  return date.year >= kFirstJewishYear && date.year <= kLastJewishYear && date.day >= 1 &&
         date.day <= calendar::DaysInJewishMonth(date.month, date.year);
}

bool IsGregorianEvent(const Date& date) {
  return date.year >= kFirstGregorianYear && date.year <= kLastGregorianYear && date.day >= 1 &&
         date.day <= calendar::DaysInGregorianMonth(date.month, date.year);
}

// The Jewish day whose daytime follows an event after sunset.
int32_t DaytimeOf(const EventDate& event) {
  return event.calendar == Calendar::kJewish
             ? calendar::AbsoluteFromJewish(event.date)
             : calendar::AbsoluteFromGregorian(event.date) + (event.afterSunset ? 1 : 0);
}

// A month that a year may lack the 30th of.
bool MayLack30(int32_t month) {
  return month == calendar::kCheshvan || month == calendar::kKislev;
}

// The 30th of a month, in a year that lacks it. Yahrzeit of the last day of Cheshvan or Kislev stays on the last day
// when the first anniversary had to: then the day was never kept on the first of the next month. What is not known of
// the year counts as if the first anniversary had its 30th.
Date InsteadOf30(const Date& jewish, Kind kind, int32_t year) {
  const bool isYahrzeit = kind == Kind::kYahrzeit;
  if (jewish.month == calendar::kAdar) {
    return isYahrzeit ? Date{30, calendar::kShevat, year} : Date{1, calendar::kNisan, year};
  }
  const bool isYearKnown = jewish.year != kUnknownYear;
  if (isYahrzeit && isYearKnown && calendar::DaysInJewishMonth(jewish.month, jewish.year + 1) < 30) {
    return {29, jewish.month, year};
  }
  return {1, jewish.month + 1, year};
}

// Where a date is kept in a year, the custom of Adar aside.
Date KeptOn(const Date& jewish, Kind kind, int32_t year) {
  const int32_t month = std::min(jewish.month, calendar::MonthsInJewishYear(year));
  const bool mayBeLacking = MayLack30(jewish.month) || jewish.month == calendar::kAdar;
  if (jewish.day == 30 && mayBeLacking && calendar::DaysInJewishMonth(month, year) < 30) {
    return InsteadOf30(jewish, kind, year);
  }
  return {jewish.day, month, year};
}

std::optional<int32_t> YearsSince(const Date& jewish, int32_t year) {
  if (jewish.year == kUnknownYear) return std::nullopt;
  return year - jewish.year;
}

}  // namespace

bool IsDate(const EventDate& event) {
  return event.calendar == Calendar::kJewish ? IsJewishEvent(event.date) : IsGregorianEvent(event.date);
}

Date JewishDateOf(const EventDate& event) {
  if (event.calendar == Calendar::kJewish) return event.date;
  return calendar::JewishFromAbsolute(DaytimeOf(event));
}

std::optional<Date> GregorianDateOf(const EventDate& event) {
  if (event.calendar == Calendar::kGregorian) return event.date;
  if (event.date.year == kUnknownYear) return std::nullopt;
  const int32_t day = DaytimeOf(event) - (event.afterSunset ? 1 : 0);
  if (day < calendar::AbsoluteFromGregorian({1, 1, kFirstGregorianYear})) return std::nullopt;
  const Date date = calendar::GregorianFromAbsolute(day);
  if (date.year > kLastGregorianYear) return std::nullopt;
  return date;
}

Observances KeptInJewishYear(const Date& jewish, Kind kind, AdarCustom adar, int32_t jewishYear) {
  Observances kept;
  const auto add = [&](const Date& date) {
    kept.Add({calendar::AbsoluteFromJewish(date), YearsSince(jewish, jewishYear)});
  };
  if (jewishYear < jewish.year) return kept;
  if (jewishYear == jewish.year) {
    add(jewish);
  } else if (IsAdarByCustom(jewish) && calendar::IsJewishLeapYear(jewishYear)) {
    if (adar != AdarCustom::kAdarII) add({jewish.day, calendar::kAdar, jewishYear});
    if (adar != AdarCustom::kAdarI) add({jewish.day, calendar::kAdarII, jewishYear});
  } else {
    add(KeptOn(jewish, kind, jewishYear));
  }
  return kept;
}

Observances KeptInGregorianYear(const Date& jewish, Kind kind, AdarCustom adar, int32_t gregorianYear) {
  const int32_t first = calendar::AbsoluteFromGregorian({1, 1, gregorianYear});
  const int32_t last = calendar::AbsoluteFromGregorian({31, 12, gregorianYear});
  Observances kept;
  for (const int32_t year : {gregorianYear + kJewishYearOfJanuary, gregorianYear + kJewishYearOfJanuary + 1}) {
    for (const Observance& day : KeptInJewishYear(jewish, kind, adar, year)) {
      if (day.absoluteDay >= first && day.absoluteDay <= last) kept.Add(day);
    }
  }
  return kept;
}

std::optional<Observance> NextKept(const Date& jewish, Kind kind, AdarCustom adar, int32_t fromAbsoluteDay) {
  const int32_t first = std::max(calendar::JewishFromAbsolute(fromAbsoluteDay).year, jewish.year);
  for (int32_t year = first; year <= std::min(first + 1, kLastJewishYear); ++year) {
    for (const Observance& day : KeptInJewishYear(jewish, kind, adar, year)) {
      if (day.absoluteDay >= fromAbsoluteDay) return day;
    }
  }
  return std::nullopt;
}

bool IsAdarByCustom(const Date& jewish) {
  if (jewish.month != calendar::kAdar || jewish.day > 29) return false;
  return jewish.year == kUnknownYear || !calendar::IsJewishLeapYear(jewish.year);
}

AdarCustom CustomOf(Kind kind, const std::optional<AdarCustom>& own, AdarCustom ofYahrzeit) {
  if (own) return *own;
  return kind == Kind::kYahrzeit ? ofYahrzeit : AdarCustom::kAdarII;
}

std::optional<int32_t> ComesOfAge(const Date& jewishBirth, int32_t years) {
  const int32_t year = jewishBirth.year + years;
  if (jewishBirth.year == kUnknownYear || year > kLastJewishYear) return std::nullopt;
  return KeptInJewishYear(jewishBirth, Kind::kBirthday, AdarCustom::kAdarII, year)[0].absoluteDay;
}

}  // namespace persons
