#include <cmath>
#include <cstdlib>

#include "libraries/calendar/jewish.h"
#include "libraries/calendar/molad.h"
#include "libraries/calendar/tekufa.h"
#include "libraries/occasions/occasion_texts.h"
#include "libraries/occasions/sky.h"

namespace occasions {
namespace {

constexpr int32_t kHoursPerDay = 24;
constexpr int32_t kPartsPerMinute = static_cast<int32_t>(calendar::kPartsPerHour / 60);

std::string Counted(int64_t count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Joined(const std::string& first, const std::string& second, const char* between = "; ") {
  if (first.empty() || second.empty()) return first + second;
  return first + between + second;
}

// "18 minutes before sunset"; a negative number is on the sunset's other side.
std::string AroundSunset(int32_t minutes, bool isBefore) {
  if (minutes == 0) return "at sunset";
  const bool staysBefore = isBefore == (minutes > 0);
  return Counted(std::llabs(minutes), "minute") + (staysBefore ? " before sunset" : " after sunset");
}

// At most three digits after the point, none of them a needless zero.
std::string Degrees(double degrees) {
  std::string text = std::to_string(std::round(degrees * 1000) / 1000);
  text.resize(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text + "°";
}

std::string EndByDegrees(const candles::ShabbatRule& rule) {
  const std::string degrees = "sun " + Degrees(rule.endDegrees) + " below the horizon";
  if (rule.minutesAfterDegrees == 0) return degrees;
  return degrees + (rule.minutesAfterDegrees > 0 ? " and " : " less ") +
         Counted(std::llabs(rule.minutesAfterDegrees), "minute");
}

// "after 3 at night" of the hours 0 to 23.
std::string HourInWords(int32_t hour) {
  constexpr int32_t kHalfDay = 12;
  const int32_t shown = hour % kHalfDay == 0 ? kHalfDay : hour % kHalfDay;
  const char* const part = hour < 6          ? " at night"
                           : hour < kHalfDay ? " in the morning"
                           : hour < 18       ? " in the afternoon"
                                             : " in the evening";
  return std::to_string(shown) + part;
}

// "Thursday, 35 minutes and 14 chalakim after 11 in the morning": a time of Jerusalem's mean clock as it is announced.
std::string Announced(int32_t day, int32_t hour, int32_t minutes, int32_t chalakim) {
  std::string past;
  if (minutes > 0) past = Counted(minutes, "minute");
  if (chalakim > 0) past = Joined(past, std::to_string(chalakim) + (chalakim == 1 ? " chelek" : " chalakim"), " and ");
  const std::string after = past.empty() ? "" : past + " after ";
  return WeekdayName(day, Language::kEnglish) + ", " + after + HourInWords(hour);
}

// Of a row that is at most ten days before the month of its number begins, or in its first days.
std::string MoladInWords(const Row& row) {
  const int32_t year = calendar::JewishFromAbsolute(row.day + 10).year;
  const int32_t month = row.number == kAdarOfCommonYear ? calendar::kAdar : row.number;
  const int64_t parts = calendar::MoladParts(month, year) - calendar::Parts(kHoursPerDay / 4, 0);  // from midnight
  const auto ofHour = static_cast<int32_t>(parts % calendar::kPartsPerHour);
  return Announced(static_cast<int32_t>(parts / calendar::kPartsPerDay),
                   static_cast<int32_t>(parts / calendar::kPartsPerHour % kHoursPerDay), ofHour / kPartsPerMinute,
                   ofHour % kPartsPerMinute);
}

std::string RoshChodeshInWords(const Row& row) {
  const int32_t year = calendar::JewishFromAbsolute(row.day + 10).year;
  const int32_t month = row.number == kAdarOfCommonYear ? calendar::kAdar : row.number;
  const int32_t day = calendar::AbsoluteFromJewish({1, month, year});
  const std::string last = WeekdayName(day, Language::kEnglish);
  if (calendar::JewishFromAbsolute(day - 1).day != 30) return last;
  return WeekdayName(day - 1, Language::kEnglish) + " and " + last;
}

std::string TekufaInWords(const Row& row) {
  using calendar::Tekufa;
  const int32_t year = calendar::JewishFromAbsolute(row.day).year;
  // Near the turn of the year the season of Tishri may be of the year before or after.
  for (int32_t nearYear = year - 1; nearYear <= year + 1; ++nearYear) {
    for (const Tekufa tekufa : {Tekufa::kTishri, Tekufa::kTevet, Tekufa::kNisan, Tekufa::kTammuz}) {
      const int64_t minute = calendar::TekufaMinute(tekufa, nearYear);
      const auto day = static_cast<int32_t>(minute / kMinutesPerDay);
      if (std::abs(day - row.day) > 1) continue;
      const auto ofDay = static_cast<int32_t>(minute % kMinutesPerDay);
      return Announced(day, ofDay / 60, ofDay % 60, 0);
    }
  }
  return "";
}

std::string LevanaInWords(const Question& question, const Row& row) {
  const Customs& customs = question.customs;
  if (row.moment == Moment::kFrom) return std::to_string(customs.kiddushLevanaFromDays) + " days after the molad";
  return customs.kiddushLevanaUntilHalfMonth ? "half a month after the molad" : "15 days after the molad";
}

std::string ChametzInWords(const Question& question, const Row& row) {
  const char* const hour = row.moment == Moment::kEatingEnds ? "end of the 4th" : "end of the 5th";
  return std::string(hour) + " proportional hour, " + OpinionOfChametz(question.customs);
}

std::string RuleInWords(const Question& question, const Row& row) {
  const candles::ShabbatRule& shabbat = question.shabbat;
  const Customs& customs = question.customs;
  switch (row.rule) {
    case Rule::kNone: return "";
    case Rule::kCandleMinutes: return AroundSunset(shabbat.candleMinutes, true);
    case Rule::kJerusalem: return AroundSunset(candles::kJerusalemMinutes, true) + ", the custom of Jerusalem";
    case Rule::kOwnTime: return "your own time for this Shabbat";
    case Rule::kFromFlame: return "from a burning flame, when the day before has ended";
    case Rule::kEndMinutes: return AroundSunset(shabbat.endMinutes, false);
    case Rule::kEndDegrees: return EndByDegrees(shabbat);
    case Rule::kSunset: return "at sunset";
    case Rule::kChanukahMinutes: return AroundSunset(customs.chanukahMinutes, false);
    case Rule::kHalfTwilight: return "13.5 minutes before the sun is 7.083° below the horizon";
    case Rule::kSunrise: return "at sunrise";
    case Rule::kDawn: return TextOfZman(customs.dawn);
    case Rule::kNightfall: return TextOfZman(customs.nightfall);
    case Rule::kNightfallOfAv:
      return TextOfZman(customs.nightfallOfAv.empty() ? customs.nightfall : customs.nightfallOfAv);
    case Rule::kChametzZman: return ChametzInWords(question, row);
    case Rule::kWithCandles:
      return row.occasion == Occasion::kEruvTavshilin ? "before candle lighting" : "with candle lighting";
    case Rule::kWithEnd: return "with the end of the day";
    case Rule::kBeforeCandles: return "before the Shabbat candles";
    case Rule::kAfterShabbat: return "when Shabbat has ended";
    case Rule::kMolad: return MoladInWords(row) + " in Jerusalem's mean time";
    case Rule::kSinceMolad: return LevanaInWords(question, row);
    case Rule::kFirstNight: return LevanaInWords(question, row) + ", which is by day: from nightfall";
    case Rule::kLastNight: return LevanaInWords(question, row) + ", which is by day: until dawn";
    case Rule::kTekufa: return TekufaInWords(row) + " in Jerusalem's mean time, by Shmuel";
    case Rule::kMidnight: return "the night after Shabbat, from midnight";
  }
  return "";
}

std::string ThirdOfBehab(const Row& row) {
  const calendar::Date date = calendar::JewishFromAbsolute(row.day);
  const bool isPesachSheni = date.month == calendar::kIyar && date.day == 14;
  return isPesachSheni ? "Pesach Sheni: some fast on Thursday, 17 Iyar" : "";
}

// What there is to know of an occasion beside its moments.
std::string AboutOccasion(const Question& question, const Row& row) {
  switch (row.occasion) {
    case Occasion::kShabbatMevarchim:
      return "Rosh Chodesh on " + RoshChodeshInWords(row) + "; molad " + MoladInWords(row);
    case Occasion::kShushanPurim:
      return (row.notes & kOnShabbat) != 0 ? "walled cities: scroll on Friday, prayers today, meal on Sunday"
                                           : "Purim of walled cities";
    case Occasion::kPurimMeshulash: return "walled cities: meal, gifts of food";
    case Occasion::kTalUmatar:
      return (row.notes & kOnFriday) != 0 ? "from the evening on; first said on Saturday night, after Shabbat"
                                          : "from the evening prayer on";
    case Occasion::kSelichot:
      return question.customs.selichot == SelichotCustom::kSephardi ? "before dawn, until Yom Kippur" : "";
    case Occasion::kFastOfFirstborn:
      return (row.notes & kFromShabbatToThursday) == 0 ? "until a meal of a commandment, at the latest the Seder" : "";
    case Occasion::kBehab: return ThirdOfBehab(row);
    default: return "";
  }
}

std::string MovedInWords(const Row& row) {
  if (row.notes & kFromShabbatToSunday) return "its date is a Shabbat: kept on Sunday";
  if (row.notes & kFromShabbatToThursday) return "its date is a Shabbat: kept on Thursday";
  if (row.notes & kMovedByLaw) return "moved from its date by law";
  if (row.occasion == Occasion::kTenthOfTevet && row.moment == Moment::kFastEnds && (row.notes & kOnFriday)) {
    return "at nightfall, in Shabbat";
  }
  if (row.occasion == Occasion::kSearchForChametz && (row.notes & kOnShabbat)) {
    return "on Thursday night: the eve of Pesach is a Shabbat";
  }
  if (row.occasion == Occasion::kChametz && (row.notes & kOnFriday)) return "on Friday: the eve of Pesach is a Shabbat";
  return "";
}

std::string SunInWords(const Row& row) {
  if (row.notes & kNotReached) return "no time: the sun does not get that low then";
  if (row.notes & kSunDoesNotSet) return "the sun does not set or rise then: its lowest or highest point counts";
  if (row.notes & kLowestPoint) return "the sun does not get that low then: its lowest point counts";
  return "";
}

}  // namespace

std::string RemarkOf(const Question& question, const Row& row) {
  const std::string remark = Joined(RuleInWords(question, row), AboutOccasion(question, row));
  return Joined(Joined(remark, MovedInWords(row)), SunInWords(row));
}

}  // namespace occasions
