#include "libraries/lections/when.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/numerals.h"
#include "libraries/lections/reading_names.h"

namespace lections {
namespace {

using namespace calendar;

constexpr const char* kKinds[] = {"portion ", "occasion ", "date "};  // in the order of WhenKind

// The months as a year has them, from Tishri on.
constexpr int32_t kMonths[] = {kTishri, kCheshvan, kKislev, kTevet, kShevat, kAdarIOfLeapYears, kAdar, kNisan,
                               kIyar,   kSivan,    kTammuz, kAv,    kElul};
constexpr int32_t kLongestMonth = 30;

// The first year from 5700 on that is of each of the fourteen types; all have come up by 5750.
constexpr int32_t kFirstSampleYear = 5700;
constexpr size_t kYearTypes = 14;

// The month that texts are for, of a month of the calendar, and the other way round.
int32_t MonthForTexts(int32_t month, bool isLeapYear) {
  if (month == kAdarII) return kAdar;
  return month == kAdar && isLeapYear ? kAdarIOfLeapYears : month;
}

// Elul, Tevet, Iyar, Tammuz and Adar never have a thirtieth day.
bool CanHave(int32_t month, int32_t day) {
  constexpr int32_t kShortMonths[] = {kElul, kTevet, kIyar, kTammuz, kAdar};
  return day >= 1 && day <= kLongestMonth - (std::ranges::count(kShortMonths, month) != 0 ? 1 : 0);
}

bool IsInYear(const When& when) {
  const bool isLeap = IsJewishLeapYear(when.more);
  if (when.what == kAdarIOfLeapYears && !isLeap) return false;
  const Date date = DateOfOneYear(when);
  return date.day <= DaysInJewishMonth(date.month, date.year);
}

// What never falls on a weekday.
constexpr Occasion kOfShabbat[] = {Occasion::kShabbatShuva,   Occasion::kShabbatShira,     Occasion::kShabbatShekalim,
                                   Occasion::kShabbatZachor,  Occasion::kShabbatParah,     Occasion::kShabbatHaChodesh,
                                   Occasion::kShabbatHaGadol, Occasion::kShabbatChazon,    Occasion::kShabbatNachamu,
                                   Occasion::kMacharChodesh,  Occasion::kShabbatCholHaMoed};

// A day of a festival on a Shabbat is told from the same on a weekday; that a Shabbat it is, is no occasion beside it.
When WhenOf(const NumberedOccasion& occasion, bool isLeapYear, bool isShabbat) {
  const bool isMonth = occasion.occasion == Occasion::kRoshChodesh;
  const bool isTold = isShabbat && std::ranges::find(kOfShabbat, occasion.occasion) == std::end(kOfShabbat);
  return {WhenKind::kOccasion, static_cast<int32_t>(occasion.occasion),
          isMonth ? MonthForTexts(occasion.number, isLeapYear) : occasion.number, isTold ? 1 : 0};
}

bool IsShabbat(const Date& date) {
  return WeekdayOf(AbsoluteFromJewish(date)) == Weekday::kSaturday;
}

void AddOccasionsOf(int32_t year, Land land, std::set<When>& found) {
  for (int32_t day = JewishNewYear(year); day < JewishNewYear(year + 1); ++day) {
    const Date date = JewishFromAbsolute(day);
    for (const When& when : WhensOn(date, ReadingsOn(date, land, Custom::kAshkenazi, {}))) {
      if (when.kind != WhenKind::kDate) found.insert(when);
    }
  }
}

std::vector<When> Enumerated() {
  std::set<When> found;
  std::vector<YearType> types;
  for (int32_t year = kFirstSampleYear; types.size() < kYearTypes; ++year) {
    if (std::ranges::find(types, YearTypeOf(year)) != types.end()) continue;
    types.push_back(YearTypeOf(year));
    for (const Land land : {Land::kIsrael, Land::kDiaspora}) AddOccasionsOf(year, land, found);
  }
  std::vector<When> all(found.begin(), found.end());
  for (const int32_t month : kMonths) {
    for (int32_t day = 1; CanHave(month, day); ++day) all.push_back(WhenOfDate(day, month));
  }
  return all;
}

const std::map<std::string, When, std::less<>>& ByKey() {
  static const std::map<std::string, When, std::less<>> byKey = [] {
    std::map<std::string, When, std::less<>> whens;
    for (const When& when : EveryWhen()) whens.emplace(KeyOf(when), when);
    return whens;
  }();
  return byKey;
}

std::string NameOfDate(const When& date, const Language& language) {
  const std::string name =
      Number(date.number, language.notation.numerals) + " " + language.months[static_cast<size_t>(date.what)];
  return date.more == 0 ? name : name + " " + std::to_string(date.more);
}

}  // namespace

When WhenOf(const WeeklyPortion& portion) {
  return {WhenKind::kPortion, portion.portion, portion.joinedWithNext ? 1 : 0, 0};
}

When WhenOfDate(int32_t day, int32_t month, int32_t year) {
  return {WhenKind::kDate, month, day, year};
}

bool IsOfOneYear(const When& when) {
  return when.kind == WhenKind::kDate && when.more != 0;
}

Date DateOfOneYear(const When& when) {
  if (when.what == kAdarIOfLeapYears) return {when.number, kAdar, when.more};
  return {when.number, when.what == kAdar && IsJewishLeapYear(when.more) ? kAdarII : when.what, when.more};
}

Whens WhensOn(const Date& date, const DayReadings& readings) {
  Whens whens;
  const bool isShabbat = IsShabbat(date);
  const bool isLeap = IsJewishLeapYear(date.year);
  // A weekday that only reads its portion's beginning is none of the portion's days.
  if (readings.portion && (isShabbat || !readings.occasions.empty())) whens.Add(WhenOf(*readings.portion));
  for (size_t i = readings.occasions.size(); i-- > 0;) {
    const NumberedOccasion& occasion = readings.occasions[i];
    if (occasion.occasion != Occasion::kShabbat) whens.Add(WhenOf(occasion, isLeap, isShabbat));
  }
  const int32_t month = MonthForTexts(date.month, isLeap);
  whens.Add(WhenOfDate(date.day, month));
  whens.Add(WhenOfDate(date.day, month, date.year));
  return whens;
}

const std::vector<When>& EveryWhen() {
  static const std::vector<When> all = Enumerated();
  return all;
}

std::string NameOf(const When& when, const Language& language) {
  if (when.kind == WhenKind::kDate) return NameOfDate(when, language);
  if (when.kind == WhenKind::kPortion) {
    return NameOf(WeeklyPortion{static_cast<Portion>(when.what), when.number != 0}, language);
  }
  const auto occasion = static_cast<Occasion>(when.what);
  const bool isAdarI = occasion == Occasion::kRoshChodesh && when.number == kAdarIOfLeapYears;
  const std::string name = NameOf(NumberedOccasion{occasion, isAdarI ? kAdar : when.number}, isAdarI, language);
  return when.more == 0 ? name : name + ", " + OccasionName(language, Occasion::kShabbat);
}

std::string KeyOf(const When& when) {
  return kKinds[static_cast<size_t>(when.kind)] + NameOf(when, kEnglish);
}

std::optional<When> WhenIn(std::string_view key) {
  if (const auto found = ByKey().find(key); found != ByKey().end()) return found->second;
  const size_t blank = key.rfind(' ');
  if (blank == std::string_view::npos) return std::nullopt;
  int32_t year = 0;
  const char* const end = key.data() + key.size();
  const auto [stop, error] = std::from_chars(key.data() + blank + 1, end, year);
  const auto every = ByKey().find(key.substr(0, blank));
  const bool isYear = error == std::errc() && stop == end && year >= 1 && year <= kLastYear;
  if (!isYear || every == ByKey().end() || every->second.kind != WhenKind::kDate) return std::nullopt;
  When when = every->second;
  when.more = year;
  return IsInYear(when) && KeyOf(when) == key ? std::optional(when) : std::nullopt;
}

}  // namespace lections
