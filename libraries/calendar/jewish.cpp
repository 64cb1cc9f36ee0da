#include "libraries/calendar/jewish.h"

#include <algorithm>
#include <array>

#include "libraries/calendar/molad.h"

namespace calendar {
namespace {

constexpr bool IsLeap(int64_t year) {
  return (7 * year + 1) % 19 < 7;
}

// 1 Tishri by the molad and the four postponements (dechiyot; Maimonides, Kiddush haChodesh 6-8). No clamping: the year
// after the last is needed too.
constexpr int32_t NewYear(int64_t year) {
  const int64_t molad = kBaharad + MonthsBefore(year) * kPartsPerMonth;
  const int64_t time = molad % kPartsPerDay;
  int32_t day = kEpoch + static_cast<int32_t>(molad / kPartsPerDay);
  const Weekday moladDay = WeekdayOf(day);
  const bool moladZaken = time >= Parts(18, 0);
  const bool gatarad = moladDay == Weekday::kTuesday && time >= Parts(9, 204) && !IsLeap(year);
  const bool betutakpat = moladDay == Weekday::kMonday && time >= Parts(15, 589) && IsLeap(year - 1);
  if (moladZaken || gatarad || betutakpat) ++day;
  const Weekday weekday = WeekdayOf(day);
  const bool loAdu = weekday == Weekday::kSunday || weekday == Weekday::kWednesday || weekday == Weekday::kFriday;
  return loAdu ? day + 1 : day;
}

constexpr int32_t kFirstDay = NewYear(kFirstYear);
constexpr int32_t kLastDay = NewYear(kLastYear + 1) - 1;

// A year as the arithmetic needs it: found once per conversion.
struct Year {
  int32_t newYear;
  int32_t days;
  bool leap;

  YearLength Length() const { return static_cast<YearLength>(days - (leap ? 383 : 353)); }
  int32_t LastMonth() const { return leap ? kAdarII : kAdar; }
};

Year YearOf(int32_t year) {
  const int32_t newYear = NewYear(year);
  return {newYear, NewYear(year + 1) - newYear, IsLeap(year)};
}

constexpr int32_t MonthDays(int32_t month, YearLength length, bool leap) {
  switch (month) {
    case kIyar:
    case kTammuz:
    case kElul:
    case kTevet:
    case kAdarII: return 29;
    case kCheshvan: return length == YearLength::kFull ? 30 : 29;
    case kKislev: return length == YearLength::kShort ? 29 : 30;
    case kAdar: return leap ? 30 : 29;
    default: return 30;
  }
}

// The days from 1 Tishri to the first of each month, by month number; one row for each of the six lengths of a year.
using MonthStarts = std::array<int32_t, kAdarII + 1>;

constexpr MonthStarts StartsOf(YearLength length, bool leap) {
  MonthStarts starts{};
  int32_t days = 0;
  const auto lay = [&](int32_t first, int32_t last) {
    for (int32_t month = first; month <= last; ++month) {
      starts[static_cast<size_t>(month)] = days;
      days += MonthDays(month, length, leap);
    }
  };
  lay(kTishri, leap ? kAdarII : kAdar);
  lay(kNisan, kElul);
  return starts;
}

constexpr std::array<MonthStarts, 6> kMonthStarts = {
    StartsOf(YearLength::kShort, false), StartsOf(YearLength::kRegular, false), StartsOf(YearLength::kFull, false),
    StartsOf(YearLength::kShort, true),  StartsOf(YearLength::kRegular, true),  StartsOf(YearLength::kFull, true)};

const MonthStarts& StartsOf(const Year& year) {
  return kMonthStarts[static_cast<size_t>(year.Length()) + (year.leap ? 3 : 0)];
}

int32_t ClampYear(int32_t year) {
  return std::clamp(year, kFirstYear, kLastYear);
}

// The year of a day between kFirstDay and kLastDay: guessed by the mean year, which is off by one at most.
int32_t YearOfDay(int32_t absoluteDay) {
  // 19 years are 235 months of 765 433 parts.
  constexpr int64_t kPartsPerCycle = 235 * kPartsPerMonth;
  const int64_t elapsed = (int64_t{absoluteDay} - kEpoch) * kPartsPerDay * 19;
  auto year = static_cast<int32_t>(elapsed / kPartsPerCycle + 1);
  if (NewYear(year) > absoluteDay) return year - 1;
  if (NewYear(year + 1) <= absoluteDay) return year + 1;
  return year;
}

}  // namespace

YearType YearTypeOf(int32_t year) {
  const Year found = YearOf(ClampYear(year));
  return {WeekdayOf(found.newYear), found.Length(), found.leap};
}

bool IsJewishLeapYear(int32_t year) {
  return IsLeap(ClampYear(year));
}

int32_t MonthsInJewishYear(int32_t year) {
  return IsJewishLeapYear(year) ? 13 : 12;
}

int32_t DaysInJewishYear(int32_t year) {
  return YearOf(ClampYear(year)).days;
}

int32_t DaysInJewishMonth(int32_t month, int32_t year) {
  const Year found = YearOf(ClampYear(year));
  if (month < kNisan || month > found.LastMonth()) return 0;
  return MonthDays(month, found.Length(), found.leap);
}

int32_t JewishNewYear(int32_t year) {
  return NewYear(ClampYear(year));
}

int32_t AbsoluteFromJewish(const Date& date) {
  const Year year = YearOf(ClampYear(date.year));
  const int32_t month = std::clamp<int32_t>(date.month, kNisan, year.LastMonth());
  const int32_t day = std::clamp(date.day, 1, MonthDays(month, year.Length(), year.leap));
  return year.newYear + StartsOf(year)[static_cast<size_t>(month)] + day - 1;
}

Date JewishFromAbsolute(int32_t absoluteDay) {
  const int32_t absolute = std::clamp(absoluteDay, kFirstDay, kLastDay);
  const int32_t yearNumber = YearOfDay(absolute);
  const Year year = YearOf(yearNumber);
  const MonthStarts& starts = StartsOf(year);
  const int32_t dayOfYear = absolute - year.newYear;
  const bool sinceNisan = dayOfYear >= starts[kNisan];
  int32_t month = sinceNisan ? kElul : year.LastMonth();
  while (starts[static_cast<size_t>(month)] > dayOfYear) --month;
  return {dayOfYear - starts[static_cast<size_t>(month)] + 1, month, yearNumber};
}

}  // namespace calendar
