#include <gtest/gtest.h>

#include "libraries/calendar/gregorian.h"
#include "libraries/candles/field_texts.h"

namespace candles {
namespace {

using Date = calendar::Date;

std::string ComplaintOf(std::string_view text) {
  const FridayAnswer answer = ReadFriday(text);
  EXPECT_EQ(answer.friday.has_value(), answer.complaint.empty()) << text;
  return answer.complaint;
}

// 8 March 2024 was a Friday, by any wall calendar.
TEST(CandlesFieldTexts, FridayIsReadWithAndWithoutZeros) {
  for (const char* text : {"8.3.2024", "08.03.2024", " 08.03.2024\t", "008.03.2024"}) {
    EXPECT_EQ(ReadFriday(text).friday, (Date{8, 3, 2024})) << text;
    EXPECT_EQ(ComplaintOf(text), "") << text;
  }
}

TEST(CandlesFieldTexts, WhatIsNoDateIsToldHowToWriteOne) {
  for (const char* text : {"", "  ", "8", "8.3", "8.3.", ".3.2024", "8..2024", "8/3/2024", "8.3.2024.", "8. 3.2024",
                           "8.3.2024 x", "-8.3.2024", "8.3.20 24", "2024-03-08", "8.3.99999999999", "\xFC.3.2024"}) {
    EXPECT_EQ(ComplaintOf(text), "The Friday must be a date written day.month.year, such as 08.03.2024.") << text;
  }
}

TEST(CandlesFieldTexts, PartOutsideItsRangeIsNamed) {
  EXPECT_EQ(ComplaintOf("8.0.2024"), "The month of the Friday must be in the range 1-12.");
  EXPECT_EQ(ComplaintOf("8.13.2024"), "The month of the Friday must be in the range 1-12.");
  EXPECT_EQ(ComplaintOf("8.3.24"), "The year of the Friday must be in the range 1583-3000.");
  EXPECT_EQ(ComplaintOf("31.12.1582"), "The year of the Friday must be in the range 1583-3000.");
  EXPECT_EQ(ComplaintOf("2.1.3001"), "The year of the Friday must be in the range 1583-3000.");
  EXPECT_EQ(ComplaintOf("999999999.3.2024"), "The day of the Friday must be in the range 1-31.");
  EXPECT_EQ(ComplaintOf("0.3.2024"), "The day of the Friday must be in the range 1-31.");
  EXPECT_EQ(ComplaintOf("30.2.2024"), "The day of the Friday must be in the range 1-29.");
  EXPECT_EQ(ComplaintOf("29.2.2023"), "The day of the Friday must be in the range 1-28.");
}

TEST(CandlesFieldTexts, OtherWeekdayIsToldTheNearestFridays) {
  EXPECT_EQ(ComplaintOf("9.3.2024"),
            "09.03.2024 is a Saturday. Times are kept by the Friday: the nearest are 08.03.2024 and 15.03.2024.");
  EXPECT_EQ(ComplaintOf("7.3.2024"),
            "07.03.2024 is a Thursday. Times are kept by the Friday: the nearest are 01.03.2024 and 08.03.2024.");
  EXPECT_EQ(ComplaintOf("31.12.2023"),
            "31.12.2023 is a Sunday. Times are kept by the Friday: the nearest are 29.12.2023 and 05.01.2024.");
}

// 1 January 1583 was a Saturday; 31 December 3000 will be a Wednesday (hand computation: 1 January 2000 was a Saturday,
// and 1001 years with 243 leap days make 1244 = 5 mod 7 weekdays more).
TEST(CandlesFieldTexts, FridaysOutsideTheProgramsYearsAreNotNamed) {
  EXPECT_EQ(ComplaintOf("1.1.1583"),
            "01.01.1583 is a Saturday. Times are kept by the Friday: the nearest is 07.01.1583.");
  EXPECT_EQ(ComplaintOf("31.12.3000"),
            "31.12.3000 is a Wednesday. Times are kept by the Friday: the nearest is 26.12.3000.");
  EXPECT_EQ(ReadFriday("7.1.1583").friday, (Date{7, 1, 1583}));
  EXPECT_EQ(ReadFriday("26.12.3000").friday, (Date{26, 12, 3000}));
}

TEST(CandlesFieldTexts, EveryFridayOfSomeYearsIsReadBackFromItsTextAndNoOtherDay) {
  const int32_t first = calendar::AbsoluteFromGregorian({1, 1, 1999});
  for (int32_t day = first; day < first + 3 * 366; ++day) {
    const Date date = calendar::GregorianFromAbsolute(day);
    const bool isFriday = calendar::WeekdayOf(day) == calendar::Weekday::kFriday;
    EXPECT_EQ(ReadFriday(DateText(date)).friday, isFriday ? std::optional<Date>(date) : std::nullopt) << DateText(date);
  }
}

TEST(CandlesFieldTexts, ComingFridayIsTodayOnAFriday) {
  EXPECT_EQ(ComingFriday({8, 3, 2024}), (Date{8, 3, 2024}));
  EXPECT_EQ(ComingFriday({9, 3, 2024}), (Date{15, 3, 2024}));
  EXPECT_EQ(ComingFriday({14, 3, 2024}), (Date{15, 3, 2024}));
  EXPECT_EQ(ComingFriday({30, 12, 2023}), (Date{5, 1, 2024}));
}

TEST(CandlesFieldTexts, FreeFridayIsTheFirstThatThePlaceHasNoTimesFor) {
  const Entries entries = {{{"Haifa", 2024, 3, 8}, {}}, {{"Haifa", 2024, 3, 15}, {}}, {{"Haifa", 2024, 3, 29}, {}}};
  EXPECT_EQ(FreeFriday(entries, "Haifa", {4, 3, 2024}), (Date{22, 3, 2024}));
  EXPECT_EQ(FreeFriday(entries, "Haifa", {23, 3, 2024}), (Date{5, 4, 2024}));
  EXPECT_EQ(FreeFriday(entries, "haifa", {4, 3, 2024}), (Date{8, 3, 2024}));
  EXPECT_EQ(FreeFriday({}, "", {4, 3, 2024}), (Date{8, 3, 2024}));
}

TEST(CandlesFieldTexts, TimesOfTheTwentyFourHourForm) {
  EXPECT_EQ(ReadTime("18:47"), (TypedTime{18, 47, false}));
  EXPECT_EQ(ReadTime(" 6:07 "), (TypedTime{6, 7, false}));
  EXPECT_EQ(ReadTime("00:00"), (TypedTime{0, 0, false}));
  EXPECT_EQ(ReadTime("23:59"), (TypedTime{23, 59, false}));
}

TEST(CandlesFieldTexts, TimesOfTheTwelveHourForm) {
  for (const char* text : {"6:47 pm", "6:47pm", "06:47 p.m.", "6:47 PM", "6:47  P.M", "6:47 pm. "}) {
    EXPECT_EQ(ReadTime(text), (TypedTime{18, 47, true})) << text;
  }
  EXPECT_EQ(ReadTime("6:47 a.m."), (TypedTime{6, 47, true}));
  EXPECT_EQ(ReadTime("12:00 am"), (TypedTime{0, 0, true}));
  EXPECT_EQ(ReadTime("12:30 pm"), (TypedTime{12, 30, true}));
}

TEST(CandlesFieldTexts, AnythingElseIsNoTime) {
  for (const char* text : {"",         "  ",         "18",       "18:",     ":47",     "18:4",           "18:475",
                           "018:47",   "24:00",      "18:60",    "1847",    "18.47",   "18: 47",         "18 :47",
                           "-1:00",    "18:-1",      "18:47:00", "18:47 x", "0:30 am", "13:00 pm",       "18:47 pm",
                           "6:47 p m", "6:47 p.m.x", "6:47 mp",  "6:47 p",  "6:47 .m", "99999999999:00", "6:47 pmm"}) {
    EXPECT_EQ(ReadTime(text), std::nullopt) << text;
  }
}

TEST(CandlesFieldTexts, EveryMinuteOfTheDayIsReadBackFromItsText) {
  for (int32_t minute = 0; minute < 24 * 60; ++minute) {
    const TypedTime time = {minute / 60, minute % 60, false};
    EXPECT_EQ(ReadTime(TimeText(time.hour, time.minute)), time);
  }
}

TEST(CandlesFieldTexts, HourOfTheMorningWithoutItsHalfMayMeanTheEvening) {
  EXPECT_TRUE(MayMeanEvening({6, 47, false}));
  EXPECT_TRUE(MayMeanEvening({3, 0, false}));
  EXPECT_TRUE(MayMeanEvening({11, 59, false}));
  EXPECT_FALSE(MayMeanEvening({6, 47, true}));
  EXPECT_FALSE(MayMeanEvening({2, 59, false}));
  EXPECT_FALSE(MayMeanEvening({12, 0, false}));
  EXPECT_FALSE(MayMeanEvening({18, 47, false}));
}

TEST(CandlesFieldTexts, BlanksAroundAPlaceCountOnlyWhereNoneIsKnownWithoutThem) {
  const std::vector<std::string> known = {"Jerusalem", " Odd "};
  EXPECT_EQ(PlaceMeant("Jerusalem", known), "Jerusalem");
  EXPECT_EQ(PlaceMeant(" Jerusalem ", known), "Jerusalem");
  EXPECT_EQ(PlaceMeant(" Odd ", known), " Odd ");
  EXPECT_EQ(PlaceMeant(" Elsewhere ", known), " Elsewhere ");
}

TEST(CandlesFieldTexts, APlaceInOtherLettersIsTheFirstKnownOneThatDiffersInTheirCaseAlone) {
  const std::vector<std::string> known = {"jerusalem", "Z\xFCrich", "Jerusalem"};
  EXPECT_EQ(PlaceMeant("Jerusalem", known), "Jerusalem");
  EXPECT_EQ(PlaceMeant("JERUSALEM ", known), "jerusalem");
  EXPECT_EQ(PlaceMeant("z\xFCRICH", known), "Z\xFCrich");
  EXPECT_EQ(PlaceMeant("Z\xDCRICH", known), "Z\xDCRICH");
}

}  // namespace
}  // namespace candles
