#include "libraries/occasions/announcement.h"

#include <cstdlib>
#include <iterator>

#include "libraries/calendar/jewish.h"
#include "libraries/calendar/molad.h"
#include "libraries/calendar/tekufa.h"
#include "libraries/occasions/words.h"

namespace occasions {
namespace {

constexpr int32_t kHoursPerDay = 24;
constexpr int32_t kHalfDay = 12;
constexpr int32_t kMinutesPerHour = 60;
constexpr int32_t kPartsPerMinute = static_cast<int32_t>(calendar::kPartsPerHour / kMinutesPerHour);

struct JerusalemTime {
  int32_t day;  // Rata Die
  int32_t hour;
  int32_t minutes;
  int32_t chalakim;
};

// From an hour on, until the next one's. Evenings are called by the civil day that they end.
struct PartOfDay {
  int32_t fromHour;
  Words words;  // %1 is the hour of a clock of twelve
};
constexpr PartOfDay kPartsOfDay[] = {{0, {"midnight", "חצות הלילה"}},
                                     {1, {"%1 in the morning", "%1 לפנות בוקר"}},
                                     {6, {"%1 in the morning", "%1 בבוקר"}},
                                     {12, {"noon", "12 בצהריים"}},
                                     {13, {"%1 in the afternoon", "%1 אחר הצהריים"}},
                                     {18, {"%1", "%1 בערב"}}};
constexpr int32_t kEvening = 18;
constexpr Words kSaturdayNight = {"Saturday night", "מוצאי שבת"};
constexpr Words kNightOf = {"%1 night", "%1"};
constexpr Words kMinute = {"1 minute", "דקה אחת"};
constexpr Words kMinutes = {"%1 minutes", "%1 דקות"};
constexpr Words kChelek = {"1 chelek", "חלק אחד"};
constexpr Words kChalakim = {"%1 chalakim", "%1 חלקים"};
constexpr Words kAnd = {" and %1", " ו%1"};

std::string Counted(int32_t count, const Words& one, const Words& many, Language language) {
  return count == 1 ? one.In(language) : many.In(language, std::to_string(count));
}

std::string HourInWords(int32_t hour, Language language) {
  const int32_t shown = hour % kHalfDay == 0 ? kHalfDay : hour % kHalfDay;
  const PartOfDay* part = std::begin(kPartsOfDay);
  while (part + 1 != std::end(kPartsOfDay) && hour >= (part + 1)->fromHour) ++part;
  return part->words.In(language, std::to_string(shown));
}

std::string WeekdayInWords(const JerusalemTime& time, Language language) {
  const std::string name = WeekdayName(time.day, language);
  if (time.hour < kEvening) return name;
  const bool isShabbat = calendar::WeekdayOf(time.day) == calendar::Weekday::kSaturday;
  return isShabbat ? kSaturdayNight.In(language) : kNightOf.In(language, name);
}

// In Hebrew the hour comes first: "יום חמישי, 3 בלילה ו-21 דקות ו-13 חלקים".
std::string Announced(const JerusalemTime& time, Language language) {
  const bool isHebrew = language == Language::kHebrew;
  std::string past;
  const auto add = [&](const std::string& text) { past += past.empty() && !isHebrew ? text : kAnd.In(language, text); };
  const auto hyphened = [&](int32_t count, std::string text) { return isHebrew && count > 1 ? "-" + text : text; };
  if (time.minutes > 0) add(hyphened(time.minutes, Counted(time.minutes, kMinute, kMinutes, language)));
  if (time.chalakim > 0) add(hyphened(time.chalakim, Counted(time.chalakim, kChelek, kChalakim, language)));
  const std::string hour = HourInWords(time.hour, language);
  const std::string weekday = WeekdayInWords(time, language) + ", ";
  if (isHebrew) return weekday + hour + past;
  return weekday + (past.empty() ? "" : past + " after ") + hour;
}

struct Month {
  int32_t month;
  int32_t year;
};

Month MonthOf(const Row& row) {
  constexpr int32_t kMostDaysBefore = 10;
  const int32_t month = row.number == kAdarOfCommonYear ? static_cast<int32_t>(calendar::kAdar) : row.number;
  return {month, calendar::JewishFromAbsolute(row.day + kMostDaysBefore).year};
}

}  // namespace

std::string MoladInWords(const Row& row, Language language) {
  const Month month = MonthOf(row);
  // The parts are counted from 18:00.
  const int64_t parts = calendar::MoladParts(month.month, month.year) - calendar::Parts(kHoursPerDay / 4, 0);
  const auto ofHour = static_cast<int32_t>(parts % calendar::kPartsPerHour);
  return Announced({static_cast<int32_t>(parts / calendar::kPartsPerDay),
                    static_cast<int32_t>(parts / calendar::kPartsPerHour % kHoursPerDay), ofHour / kPartsPerMinute,
                    ofHour % kPartsPerMinute},
                   language);
}

std::string RoshChodeshInWords(const Row& row, Language language) {
  const Month month = MonthOf(row);
  const int32_t day = calendar::AbsoluteFromJewish({1, month.month, month.year});
  const std::string last = WeekdayName(day, language);
  if (calendar::JewishFromAbsolute(day - 1).day != 30) return last;
  return WeekdayName(day - 1, language) + kAnd.In(language, last);
}

std::string TekufaInWords(const Row& row, Language language) {
  using calendar::Tekufa;
  const int32_t year = calendar::JewishFromAbsolute(row.day).year;
  // Near the turn of the year the season of Tishri may be of the year before or after.
  for (int32_t nearYear = year - 1; nearYear <= year + 1; ++nearYear) {
    for (const Tekufa tekufa : {Tekufa::kTishri, Tekufa::kTevet, Tekufa::kNisan, Tekufa::kTammuz}) {
      const int64_t minute = calendar::TekufaMinute(tekufa, nearYear);
      const auto day = static_cast<int32_t>(minute / calendar::kMinutesPerDay);
      if (std::abs(day - row.day) > 1) continue;
      const auto ofDay = static_cast<int32_t>(minute % calendar::kMinutesPerDay);
      return Announced({day, ofDay / kMinutesPerHour, ofDay % kMinutesPerHour, 0}, language);
    }
  }
  return "";
}

}  // namespace occasions
