// Occasions in words. Names are those of printed calendars; remarks follow from the rules that they name, moladot and
// tekufot are computed by hand.
#include "libraries/occasions/occasion_texts.h"

#include <gtest/gtest.h>

#include <set>

#include "libraries/calendar/gregorian.h"

namespace occasions {
namespace {

int32_t Day(int32_t day, int32_t month, int32_t year) {
  return calendar::AbsoluteFromGregorian({day, month, year});
}

std::string English(const Row& row) {
  return TitleOf(row, Language::kEnglish);
}
std::string Hebrew(const Row& row) {
  return TitleOf(row, Language::kHebrew);
}

TEST(OccasionTexts, TitlesNameTheOccasionThenTheMoment) {
  const Row candles = {.occasion = Occasion::kPesach, .moment = Moment::kCandles, .number = 1};
  EXPECT_EQ(English(candles), "Pesach, first day: candle lighting");
  EXPECT_EQ(Hebrew(candles), "פסח, היום הראשון: הדלקת נרות");
  EXPECT_EQ(NameOf(candles, Language::kEnglish), "Pesach, first day");
  EXPECT_EQ(English({.occasion = Occasion::kCholHamoedPesach, .number = 3}), "Pesach, third day (Chol HaMoed)");
  EXPECT_EQ(English({.occasion = Occasion::kTishaBeAv, .moment = Moment::kFastBegins}), "Fast of Tisha BeAv: begins");
}

TEST(OccasionTexts, InIsraelSheminiAtzeretIsSimchatTorahToo) {
  EXPECT_EQ(English({.occasion = Occasion::kSheminiAtzeret, .number = 1}), "Shemini Atzeret and Simchat Torah");
  EXPECT_EQ(English({.occasion = Occasion::kSheminiAtzeret}), "Shemini Atzeret");
}

TEST(OccasionTexts, EndOfAYomTovOnShabbatIsTheEndOfShabbat) {
  EXPECT_EQ(Hebrew({.occasion = Occasion::kSukkot, .moment = Moment::kEnd, .number = 1}),
            "סוכות, היום הראשון: צאת החג");
  EXPECT_EQ(Hebrew({.occasion = Occasion::kSukkot, .moment = Moment::kEnd, .notes = kOnShabbat, .number = 1}),
            "סוכות, היום הראשון: צאת השבת");
}

TEST(OccasionTexts, OmerIsCountedInDaysAndWeeks) {
  const auto count = [](int32_t day) {
    return English({.occasion = Occasion::kOmer, .moment = Moment::kCount, .number = day});
  };
  EXPECT_EQ(count(1), "Omer: 1 day");
  EXPECT_EQ(count(6), "Omer: 6 days");
  EXPECT_EQ(count(7), "Omer: 7 days, that is 1 week");
  EXPECT_EQ(count(8), "Omer: 8 days, that is 1 week and 1 day");
  EXPECT_EQ(count(49), "Omer: 49 days, that is 7 weeks");
  EXPECT_EQ(Hebrew({.occasion = Occasion::kOmer, .moment = Moment::kCount, .number = 13}),
            "ספירת העומר: 13 ימים, שהם שבוע אחד ו-6 ימים");
}

TEST(OccasionTexts, MonthOfTheOneAdarIsCalledAdar) {
  EXPECT_EQ(English({.occasion = Occasion::kRoshChodesh, .number = kAdarOfCommonYear}), "Rosh Chodesh Adar");
  EXPECT_EQ(English({.occasion = Occasion::kRoshChodesh, .number = 12}), "Rosh Chodesh Adar I");
  EXPECT_EQ(English({.occasion = Occasion::kRoshChodesh, .number = 13}), "Rosh Chodesh Adar II");
  EXPECT_EQ(Hebrew({.occasion = Occasion::kRoshChodesh, .number = 9}), "ראש חודש כסלו");
}

TEST(OccasionTexts, EveryOccasionHasItsOwnNameInEitherLanguage) {
  std::set<std::string> english;
  std::set<std::string> hebrew;
  for (int occasion = 0; occasion < kOccasions; ++occasion) {
    const Row row = {.occasion = static_cast<Occasion>(occasion), .number = 1};
    english.insert(NameOf(row, Language::kEnglish));
    hebrew.insert(NameOf(row, Language::kHebrew));
  }
  EXPECT_EQ(english.size(), static_cast<size_t>(kOccasions));
  EXPECT_EQ(hebrew.size(), static_cast<size_t>(kOccasions));
}

TEST(OccasionTexts, IdsAreDifferent) {
  std::set<std::string> ids;
  for (int i = 0; i < kOccasions; ++i) ids.insert(IdOf(static_cast<Occasion>(i)));
  EXPECT_EQ(ids.size(), static_cast<size_t>(kOccasions));
  ids.clear();
  for (int i = 0; i < kMoments; ++i) ids.insert(IdOf(static_cast<Moment>(i)));
  EXPECT_EQ(ids.size(), static_cast<size_t>(kMoments));
  ids.clear();
  for (int i = 0; i < kKinds; ++i) ids.insert(IdOf(static_cast<Kind>(i)));
  EXPECT_EQ(ids.size(), static_cast<size_t>(kKinds));
}

TEST(OccasionTexts, JewishDateIsWrittenAsTheLanguageDoes) {
  // 22 November 2026 is 12 Kislev 5787 (printed calendars).
  EXPECT_EQ(JewishDateText(Day(22, 11, 2026), Language::kEnglish), "12 Kislev 5787");
  EXPECT_EQ(JewishDateText(Day(22, 11, 2026), Language::kHebrew), "י״ב בכסלו תשפ״ז");
  EXPECT_EQ(WeekdayName(Day(22, 11, 2026), Language::kEnglish), "Sunday");
  EXPECT_EQ(WeekdayName(Day(28, 11, 2026), Language::kHebrew), "שבת");
}

TEST(OccasionRemarks, SayByWhichRuleAMomentCame) {
  Question question;
  const auto remark = [&](Rule rule) {
    return RemarkOf(question, {.moment = Moment::kCandles, .rule = rule}, Language::kEnglish);
  };
  EXPECT_EQ(remark(Rule::kCandleMinutes), "18 minutes before sunset");
  EXPECT_EQ(remark(Rule::kJerusalem), "40 minutes before sunset, the custom of Jerusalem");
  EXPECT_EQ(remark(Rule::kEndMinutes), "45 minutes after sunset");
  EXPECT_EQ(remark(Rule::kEndDegrees), "sun 8° below the horizon");
  question.shabbat = {.candleMinutes = 1, .endDegrees = 8.5, .minutesAfterDegrees = 2};
  EXPECT_EQ(remark(Rule::kCandleMinutes), "1 minute before sunset");
  EXPECT_EQ(remark(Rule::kEndDegrees), "sun 8.5° below the horizon and 2 min");
  question.shabbat = {.candleMinutes = -3, .endMinutes = 0, .endDegrees = 7.0833, .minutesAfterDegrees = -1};
  EXPECT_EQ(remark(Rule::kCandleMinutes), "3 minutes after sunset");
  EXPECT_EQ(remark(Rule::kEndMinutes), "at sunset");
  EXPECT_EQ(remark(Rule::kEndDegrees), "sun 7.083° below the horizon less 1 min");
}

TEST(OccasionRemarks, AreInHebrewToo) {
  Question question;
  question.customs.nightfall = "minutes-27";
  const auto remark = [&](const Row& row) { return RemarkOf(question, row, Language::kHebrew); };
  EXPECT_EQ(remark({.moment = Moment::kCandles, .rule = Rule::kCandleMinutes}), "18 דקות לפני השקיעה");
  EXPECT_EQ(remark({.moment = Moment::kFastEnds, .rule = Rule::kNightfall}), "27 דקות אחרי השקיעה");
  EXPECT_EQ(remark({.moment = Moment::kFastBegins, .rule = Rule::kDawn, .notes = kFromShabbatToSunday}),
            "עלות השחר (16.1 מעלות); חל בשבת: נדחה ליום ראשון");
  EXPECT_EQ(remark({.occasion = Occasion::kChametz, .moment = Moment::kEatingEnds, .rule = Rule::kChametzZman}),
            "סוף השעה הזמנית הרביעית, גר\"א");
  EXPECT_EQ(remark({.day = Day(30, 11, 2024), .occasion = Occasion::kShabbatMevarchim, .number = 9}),
            "ראש חודש: יום ראשון ויום שני; המולד: יום ראשון, 4 לפנות בוקר ו-49 דקות ו-15 חלקים");
}

// The molad of Elul 5785 is on Saturday night, 23 August 2025.
TEST(OccasionRemarks, EveningOfAMoladIsCalledByTheDayBefore) {
  const Row elul = {.day = Day(23, 8, 2025), .occasion = Occasion::kMolad, .rule = Rule::kMolad, .number = 6};
  EXPECT_EQ(RemarkOf({}, elul, Language::kEnglish),
            "Saturday night, 26 minutes and 6 chalakim after 11 in Jerusalem's mean time");
  EXPECT_EQ(RemarkOf({}, elul, Language::kHebrew), "מוצאי שבת, 11 בערב ו-26 דקות ו-6 חלקים לפי הזמן הממוצע של ירושלים");
}

TEST(OccasionRemarks, EveryRuleHasWords) {
  const Row molad = {.day = Day(1, 12, 2024), .occasion = Occasion::kMolad, .number = 9};
  for (int rule = 1; rule <= static_cast<int>(Rule::kMidnight); ++rule) {
    Row row = molad;
    row.rule = static_cast<Rule>(rule);
    for (const Language language : {Language::kEnglish, Language::kHebrew}) {
      EXPECT_FALSE(RemarkOf({}, row, language).empty()) << rule;
    }
  }
}

TEST(OccasionRemarks, MoladIsToldAsItIsAnnounced) {
  // Kislev 5785: Sunday, 1 December 2024, 4 hours 49 minutes 15 chalakim.
  const Row row = {.day = Day(30, 11, 2024), .occasion = Occasion::kShabbatMevarchim, .number = 9};
  EXPECT_EQ(RemarkOf({}, row, Language::kEnglish),
            "Rosh Chodesh on Sunday and Monday; molad Sunday, 49 minutes and 15 chalakim after 4 in the morning");
  const Row adar = {.day = Day(22, 2, 2025), .occasion = Occasion::kShabbatMevarchim, .number = kAdarOfCommonYear};
  EXPECT_EQ(RemarkOf({}, adar, Language::kEnglish),
            "Rosh Chodesh on Friday and Shabbat; molad Thursday night, 2 minutes after 7");
}

TEST(OccasionRemarks, TekufaIsToldInJerusalemsMeanTime) {
  const Row row = {.day = Day(7, 10, 2009), .occasion = Occasion::kTekufa, .rule = Rule::kTekufa, .number = 7};
  EXPECT_EQ(RemarkOf({}, row, Language::kEnglish), "Wednesday, 9 in the morning in Jerusalem's mean time, by Shmuel");
}

TEST(OccasionRemarks, ExplainWhereTheSunDoesNotSet) {
  const Row row = {.moment = Moment::kCandles, .rule = Rule::kCandleMinutes, .notes = kSunDoesNotSet};
  EXPECT_EQ(RemarkOf({}, row, Language::kEnglish),
            "18 minutes before sunset; the sun does not set then: its lowest point counts");
  const Row missing = {.occasion = Occasion::kFastOfGedaliah,
                       .moment = Moment::kFastEnds,
                       .rule = Rule::kNightfall,
                       .notes = kNeverSoLow};
  EXPECT_EQ(RemarkOf({}, missing, Language::kEnglish),
            "3 Medium Stars (7.083°); no time: the sun does not get that low then");
}

}  // namespace
}  // namespace occasions
