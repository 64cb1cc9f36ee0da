#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/holiday.h"

namespace calendar {
namespace {

// A mark in place of a month: day counts from Easter Sunday.
constexpr int32_t kEaster = 20;

// Easter by these tables begins with the calendar's reform.
constexpr int32_t kReform = 1583;

constexpr WeekdayShift kSunday = OnOrAfter(Weekday::kSunday);
constexpr WeekdayShift kMonday = OnOrAfter(Weekday::kMonday);
constexpr WeekdayShift kThursday = OnOrAfter(Weekday::kThursday);
constexpr WeekdayShift kSundayToSaturday = {-1, 0, 0, 0, 0, 0, 0};

// Civil holidays of wide use. The nth weekday of a month is that weekday on or after the month's day 7 n - 6, the last
// of May that on or after the 25th. Those of the United States stand in 5 U.S.C. 6103 (the Uniform Monday Holiday Act
// in force from 1971), Thanksgiving of 1939 to 1941 in the presidential proclamations of those years.
constexpr Holiday kHolidays[] = {
    {"New Year's Day", {{{1, 1, 1}}}},
    {"Martin Luther King Jr. Day (US)", {{{1986, 1, 15, kMonday}}}},
    {"Australia Day", {{{1935, 1, 26}}}},
    {"International Holocaust Remembrance Day", {{{2006, 1, 27}}}},
    {"Valentine's Day", {{{1, 2, 14}}}},
    {"Washington's Birthday (US)", {{{1879, 2, 22}, {1971, 2, 15, kMonday}}}},
    {"International Women's Day", {{{1914, 3, 8}}}},
    {"St. Patrick's Day", {{{1, 3, 17}}}},
    {"Good Friday", {{{kReform, kEaster, -2}}}},
    {"Easter Sunday", {{{kReform, kEaster, 0}}}},
    {"Easter Monday", {{{kReform, kEaster, 1}}}},
    {"Earth Day", {{{1970, 4, 22}}}},
    {"Anzac Day (Australia, New Zealand)", {{{1916, 4, 25}}}},
    {"King's Day (Netherlands)", {{{2014, 4, 27, kSundayToSaturday}}}},
    {"May Day", {{{1890, 5, 1}}}},
    {"Victory in Europe Day", {{{1945, 5, 8}}}},
    {"Europe Day", {{{1985, 5, 9}}}},
    {"Mother's Day", {{{1914, 5, 8, kSunday}}}},
    {"Victoria Day (Canada)", {{{1953, 5, 18, kMonday}}}},
    {"Memorial Day (US)", {{{1868, 5, 30}, {1971, 5, 25, kMonday}}}},
    {"Ascension Day", {{{kReform, kEaster, 39}}}},
    {"Whit Sunday", {{{kReform, kEaster, 49}}}},
    {"Whit Monday", {{{kReform, kEaster, 50}}}},
    {"Flag Day (US)", {{{1916, 6, 14}}}},
    {"Father's Day", {{{1910, 6, 15, kSunday}}}},
    {"Juneteenth (US)", {{{2021, 6, 19}}}},
    {"Canada Day", {{{1868, 7, 1}}}},
    {"Independence Day (US)", {{{1777, 7, 4}}}},
    {"Bastille Day (France)", {{{1880, 7, 14}}}},
    {"Swiss National Day", {{{1891, 8, 1}}}},
    {"Labor Day (US, Canada)", {{{1894, 9, 1, kMonday}}}},
    {"Day of German Unity", {{{1990, 10, 3}}}},
    {"Columbus Day (US)", {{{1937, 10, 12}, {1971, 10, 8, kMonday}}}},
    {"Thanksgiving (Canada)", {{{1957, 10, 8, kMonday}}}},
    {"United Nations Day", {{{1948, 10, 24}}}},
    {"Halloween", {{{1, 10, 31}}}},
    {"Remembrance Day", {{{1919, 11, 11}}}},
    {"Veterans Day (US)", {{{1938, 11, 11}, {1971, 10, 22, kMonday}, {1978, 11, 11}}}},
    {"Thanksgiving (US)", {{{1863, 11, 24, kThursday}, {1939, 11, 17, kThursday}, {1942, 11, 22, kThursday}}}},
    {"Human Rights Day", {{{1950, 12, 10}}}},
    {"Christmas Eve", {{{1, 12, 24}}}},
    {"Christmas Day", {{{1, 12, 25}}}},
    {"Boxing Day", {{{1871, 12, 26}}}},
    {"New Year's Eve", {{{1, 12, 31}}}},
};

}  // namespace

std::span<const Holiday> GregorianHolidays() {
  return kHolidays;
}

std::optional<int32_t> GregorianBaseDay(const HolidayRule& rule, int32_t year) {
  if (rule.month == kEaster) return GregorianEaster(year) + rule.day;
  return AbsoluteFromGregorian({rule.day, rule.month, year});
}

}  // namespace calendar
