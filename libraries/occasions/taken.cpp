#include "libraries/occasions/taken.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include "publishing/core/hebrew_numeral.h"

namespace occasions {
namespace {

// A text with %1 and %2, which are replaced.
std::string Filled(std::string text, const std::string& first, const std::string& second = "") {
  for (const auto& [mark, filling] : {std::pair<const char*, const std::string&>("%1", first), {"%2", second}}) {
    const size_t at = text.find(mark);
    if (at != text.npos) text.replace(at, 2, filling);
  }
  return text;
}

struct SpanTitle {
  const char* english;
  const char* hebrew;
};

// In the order of Span.
constexpr SpanTitle kListTitles[kSpans] = {{"Occasions from %1 to %2", "מועדים מיום %1 עד יום %2"},
                                           {"Occasions of the Jewish year %1", "מועדי השנה העברית %1"},
                                           {"Occasions of the year %1", "מועדי השנה האזרחית %1"}};
constexpr SpanTitle kCandleTitles[kSpans] = {
    {"Candle lighting and end from %1 to %2", "הדלקת נרות ויציאה מיום %1 עד יום %2"},
    {"Candle lighting and end in the Jewish year %1", "הדלקת נרות ויציאה בשנה העברית %1"},
    {"Candle lighting and end in the year %1", "הדלקת נרות ויציאה בשנה האזרחית %1"}};

// In Hebrew a Jewish year is written without its thousands.
std::string YearText(const Taken& taken) {
  constexpr int32_t kThousand = 1000;
  const bool inLetters = taken.span == Span::kJewishYear && taken.wording.language == Language::kHebrew;
  if (!inLetters || taken.year % kThousand == 0) return std::to_string(taken.year);
  return publishing::HebrewNumeral(static_cast<uint32_t>(taken.year % kThousand));
}

std::string Degrees(double degrees) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", degrees);
  return text;
}

// So many minutes before or after sunset; a number below zero is on the other side of it.
std::string MinutesText(int32_t minutes, bool before, Language language) {
  const bool isBefore = minutes < 0 ? !before : before;
  const std::string number = std::to_string(std::abs(static_cast<long>(minutes)));
  if (language == Language::kHebrew) return number + (isBefore ? " דקות לפני השקיעה" : " דקות אחרי השקיעה");
  return number + (isBefore ? " minutes before sunset" : " minutes after sunset");
}

std::string EndText(const candles::ShabbatRule& rule, Language language) {
  if (rule.endsByMinutes) return MinutesText(rule.endMinutes, false, language);
  const std::string degrees = Degrees(rule.endDegrees);
  const std::string more = std::to_string(rule.minutesAfterDegrees);
  if (language == Language::kHebrew) {
    const std::string text = "כשהחמה " + degrees + " מעלות מתחת לאופק";
    return rule.minutesAfterDegrees == 0 ? text : text + " ועוד " + more + " דקות";
  }
  const std::string text = "when the sun is " + degrees + " degrees below the horizon";
  return rule.minutesAfterDegrees == 0 ? text : text + " and " + more + " minutes later";
}

const char* LandText(calendar::Land land, Language language) {
  const bool isIsrael = land == calendar::Land::kIsrael;
  if (language == Language::kHebrew) return isIsrael ? "הימים כמנהג ארץ ישראל" : "הימים כמנהג חוץ לארץ";
  return isIsrael ? "Days as kept in Israel" : "Days as kept in the diaspora";
}

}  // namespace

std::string TitleText(const Taken& taken) {
  const SpanTitle& title = (taken.candlesAlone ? kCandleTitles : kListTitles)[static_cast<int>(taken.span)];
  const char* const text = taken.wording.language == Language::kHebrew ? title.hebrew : title.english;
  if (taken.span == Span::kRange) return Filled(text, DateText(taken.days.first), DateText(taken.days.last));
  return Filled(text, YearText(taken));
}

std::string CandleRuleText(const candles::ShabbatRule& rule, Language language) {
  const int32_t minutes = rule.isJerusalem ? candles::kJerusalemMinutes : rule.candleMinutes;
  const std::string lighting = MinutesText(minutes, true, language);
  const std::string end = EndText(rule, language);
  if (language == Language::kHebrew) return "הדלקת נרות " + lighting + ", יציאה " + end + ", אלא אם נקבע זמן אחר";
  return "Candle lighting " + lighting + ", end " + end + ", unless set by hand";
}

std::vector<std::string> RemarksOf(const Taken& taken) {
  const Language language = taken.wording.language;
  const bool isHebrew = language == Language::kHebrew;
  std::vector<std::string> remarks;
  // A Hebrew page has its lines begin at the right, which a name in Latin letters alone would not.
  if (!taken.place.empty()) remarks.push_back((isHebrew ? "המקום: " : "") + taken.place);
  remarks.emplace_back(LandText(taken.question.land, language));
  remarks.push_back(CandleRuleText(taken.question.shabbat, language));
  if (taken.candlesAlone) return remarks;
  if (taken.kind) remarks.push_back(Filled(isHebrew ? "רק: %1" : "Only: %1", KindName(*taken.kind, language)));
  if (!taken.searched.empty()) {
    remarks.push_back(Filled(isHebrew ? "רק מה שיש בו: %1" : "Only what has: %1", taken.searched));
  }
  return remarks;
}

}  // namespace occasions
