#include "libraries/persons/date_fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "libraries/calendar/jewish.h"

namespace persons {
namespace {

using calendar::Date;
using testing::Contains;
using testing::Not;
using testing::SizeIs;

DateReading Gregorian(const char* day, int32_t month, const char* year) {
  return ReadDate(Calendar::kGregorian, {day, month, year}, YearIs::kNeeded);
}

DateReading Jewish(const char* day, int32_t month, const char* year, YearIs need = YearIs::kNeeded) {
  return ReadDate(Calendar::kJewish, {day, month, year}, need);
}

TEST(DateFields, ADateIsReadWithBlanksAroundItsNumbers) {
  EXPECT_EQ(Gregorian(" 5", 5, "1948 ").date, (Date{5, 5, 1948}));
  EXPECT_EQ(Jewish("05", calendar::kIyar, "5708").date, (Date{5, calendar::kIyar, 5708}));
}

TEST(DateFields, WhatIsMissingIsAskedForFromTheLeft) {
  EXPECT_EQ(Gregorian("", 0, "").message, "Enter the day.");
  EXPECT_EQ(Gregorian("3", 0, "").message, "Choose the month.");
  EXPECT_EQ(Gregorian("3", 0, "").faulty, DateField::kMonth);
  EXPECT_EQ(Gregorian("3", 2, " ").message, "Enter the year.");
  EXPECT_EQ(Gregorian("3", 2, " ").faulty, DateField::kYear);
}

TEST(DateFields, ADayThatNoMonthHasIsTold) {
  EXPECT_EQ(Gregorian("32", 0, "").message, "The day must be between 1 and 31.");
  EXPECT_EQ(Gregorian("0", 1, "2024").message, "The day must be between 1 and 31.");
  EXPECT_EQ(Gregorian("x", 1, "2024").message, "The day must be between 1 and 31.");
  EXPECT_EQ(Jewish("31", 1, "5784").message, "The day must be between 1 and 30.");
}

TEST(DateFields, ADayThatTheMonthLacksIsTold) {
  EXPECT_EQ(Gregorian("29", 2, "2023").message, "29 February does not exist in 2023.");
  EXPECT_EQ(Gregorian("29", 2, "2024").date, (Date{29, 2, 2024}));
  // 5784 has 383 days (published calendars): neither Cheshvan nor Kislev is full.
  EXPECT_EQ(Jewish("30", calendar::kKislev, "5784").message, "30 Kislev does not exist in 5784.");
  EXPECT_EQ(Jewish("30", calendar::kAdar, "5784").date, (Date{30, calendar::kAdar, 5784}));
  EXPECT_EQ(Jewish("30", calendar::kAdar, "5783").message, "30 Adar does not exist in 5783.");
}

TEST(DateFields, YearsOutsideTheCalendarsAreTold) {
  const char kWanted[] = "The year must be between 1583 and 3000; enter earlier dates as Jewish dates.";
  EXPECT_EQ(Gregorian("3", 2, "1582").message, kWanted);
  EXPECT_EQ(Gregorian("3", 2, "3001").message, kWanted);
  EXPECT_EQ(Gregorian("3", 2, "19a0").message, kWanted);
  EXPECT_TRUE(Gregorian("1", 1, "1583").date);
  EXPECT_TRUE(Gregorian("31", 12, "3000").date);
  EXPECT_EQ(Jewish("3", 2, "6762").message, "The Jewish year must be between 1 and 6761.");
  EXPECT_EQ(Jewish("3", 2, "0").message, "The Jewish year must be between 1 and 6761.");
  EXPECT_TRUE(Jewish("3", 2, "6761").date);
}

TEST(DateFields, ACommonYearHasNoAdarII) {
  EXPECT_EQ(Jewish("3", calendar::kAdarII, "5783").message, "There is no Adar II in 5783.");
  EXPECT_EQ(Jewish("3", calendar::kAdarII, "5783").faulty, DateField::kMonth);
  EXPECT_TRUE(Jewish("3", calendar::kAdarII, "5784").date);
}

TEST(DateFields, AJewishYearMayBeUnknownOnlyWhereThatIsAllowed) {
  EXPECT_EQ(Jewish("3", calendar::kAdar, "").message, "Enter the year.");
  EXPECT_EQ(Jewish("3", calendar::kAdar, "", YearIs::kOptional).date, (Date{3, calendar::kAdar, kUnknownYear}));
  EXPECT_EQ(Jewish("3", 1, "0", YearIs::kOptional).message,
            "The Jewish year must be between 1 and 6761; leave it empty where it is not known.");
  for (const int32_t month : {calendar::kCheshvan, calendar::kKislev, calendar::kAdar}) {
    EXPECT_TRUE(Jewish("30", month, "", YearIs::kOptional).date) << month;
  }
  EXPECT_EQ(Jewish("30", calendar::kTevet, "", YearIs::kOptional).message, "30 Tevet does not exist.");
  EXPECT_EQ(Jewish("30", calendar::kAdarII, "", YearIs::kOptional).message, "30 Adar II does not exist.");
}

// 14 May 1948 was 5 Iyar 5708 (the declaration of Israel's independence), its evening 6 Iyar.
TEST(DateFields, TheSameDayStandsInTheOtherCalendar) {
  EXPECT_EQ(OtherFieldsOf({Calendar::kGregorian, {14, 5, 1948}, false}), (DateFields{"5", calendar::kIyar, "5708"}));
  EXPECT_EQ(OtherFieldsOf({Calendar::kGregorian, {14, 5, 1948}, true}), (DateFields{"6", calendar::kIyar, "5708"}));
  EXPECT_EQ(OtherFieldsOf({Calendar::kJewish, {5, calendar::kIyar, 5708}, false}), (DateFields{"14", 5, "1948"}));
  EXPECT_EQ(OtherFieldsOf({Calendar::kJewish, {6, calendar::kIyar, 5708}, true}), (DateFields{"14", 5, "1948"}));
}

TEST(DateFields, WhatHasNoGregorianDateLeavesTheOtherLineEmpty) {
  EXPECT_TRUE(AreEmpty(OtherFieldsOf({Calendar::kJewish, {5, calendar::kIyar, kUnknownYear}, false})));
  EXPECT_TRUE(AreEmpty(OtherFieldsOf({Calendar::kJewish, {7, calendar::kAdar, 2488}, false})));
}

TEST(DateFields, TheMonthsAreThoseOfTheTypedYear) {
  EXPECT_THAT(GregorianMonths(), SizeIs(12));
  EXPECT_THAT(JewishMonths("5783", 0), SizeIs(12));
  EXPECT_THAT(JewishMonths("5783", 0), Contains(MonthChoice{calendar::kAdar, "Adar"}));
  EXPECT_THAT(JewishMonths("5784", 0), Contains(MonthChoice{calendar::kAdar, "Adar I"}));
  EXPECT_THAT(JewishMonths("5784", 0), Contains(MonthChoice{calendar::kAdarII, "Adar II"}));
  EXPECT_EQ(JewishMonths("5784", 0).front(), (MonthChoice{calendar::kTishri, "Tishri"}));
  EXPECT_EQ(JewishMonths("5784", 0).back(), (MonthChoice{calendar::kElul, "Elul"}));
}

TEST(DateFields, WhileNoYearIsTypedThereAreBothAdars) {
  for (const char* const typed : {"", "57x", "9999"}) EXPECT_THAT(JewishMonths(typed, 0), SizeIs(13)) << typed;
}

TEST(DateFields, AMonthThatIsChosenIsNotTakenAwayWhileTheYearIsTyped) {
  EXPECT_THAT(JewishMonths("5783", calendar::kAdarII), Contains(MonthChoice{calendar::kAdarII, "Adar II"}));
  EXPECT_THAT(JewishMonths("5783", calendar::kAdar), Not(Contains(MonthChoice{calendar::kAdarII, "Adar II"})));
}

TEST(DateFields, DatesAreWrittenOut) {
  EXPECT_EQ(JewishDateText({16, calendar::kAdar, 5710}), "16 Adar 5710");
  EXPECT_EQ(JewishDateText({16, calendar::kAdar, 5784}), "16 Adar I 5784");
  EXPECT_EQ(JewishDateText({16, calendar::kAdarII, kUnknownYear}), "16 Adar II");
  EXPECT_EQ(GregorianDateText({16, 2, 1950}), "16 February 1950");
}

}  // namespace
}  // namespace persons
