#include "libraries/kinship/person_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/core/kinship_people.h"

namespace kinship {
namespace {

using persons::Kind;
using persons::Person;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Days of 2026 by published Jewish calendars: 3 March is 14 Adar 5786, 2 April 15 Nisan, 12 September 1 Tishri 5787.
class PersonRowsTest : public testing::Test {
 protected:
  PersonRowsTest() {
    people_.at(2).notes = "Likes\nbooks";
    rows_.Take(people_, In2026());
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (int row = 0; row < rows_.Count(); ++row) names.push_back(rows_.Text(row, Column::kName));
    return names;
  }
  std::vector<std::string> NamesBy(Column column, bool descending = false) {
    rows_.Sort(column, descending);
    return Names();
  }
  std::vector<std::string> Found(const char* typed) {
    rows_.Search(typed);
    return Names();
  }

  std::map<PersonRows::Id, Person> people_ = {
      {1, Jewish(Kind::kYahrzeit, "Moshe", {14, calendar::kAdar, 5710})},
      {2, Jewish(Kind::kBirthday, "anna", {15, calendar::kNisan, 5750})},
      {5, Jewish(Kind::kWedding, "Zvi", {1, calendar::kTishri, persons::kUnknownYear})}};
  PersonRows rows_{kAsciiLetters};
};

TEST_F(PersonRowsTest, ARowHasTheDatesOfTheYearAndOfThoseAfterIt) {
  EXPECT_EQ(rows_.Text(0, Column::kOccasion), "Yahrzeit");
  EXPECT_EQ(rows_.Text(0, Column::kJewishDate), "14 Adar 5710");
  EXPECT_EQ(rows_.Text(0, Column::kNext), "03.03.2026");
  EXPECT_EQ(rows_.Text(0, Column::kDay), "Tuesday");
  EXPECT_EQ(rows_.Text(0, Column::kYears), "76");
  EXPECT_EQ(rows_.Text(0, Column::kYear), "03.03.2026");
  // Adar I of 5787 (published calendars: 14 Adar I 5787 is 21 February 2027, 14 Adar 5788 is 12 March 2028).
  EXPECT_EQ(rows_.Text(0, Column::kSecondYear), "21.02.2027");
  EXPECT_EQ(rows_.Text(0, Column::kThirdYear), "12.03.2028");
}

TEST_F(PersonRowsTest, AnUnknownYearLeavesTheYearsEmpty) {
  EXPECT_EQ(rows_.Text(2, Column::kJewishDate), "1 Tishri");
  EXPECT_EQ(rows_.Text(2, Column::kNext), "12.09.2026");
  EXPECT_EQ(rows_.Text(2, Column::kYears), "");
}

TEST_F(PersonRowsTest, InAnotherYearTheNextDayIsCountedFromItsFirst) {
  Shown shown = In2026();
  shown.today = calendar::AbsoluteFromGregorian({4, 3, 2026});
  rows_.Take(people_, shown);
  EXPECT_EQ(rows_.Text(0, Column::kNext), "21.02.2027");
  shown.year = 2028;
  rows_.Take(people_, shown);
  EXPECT_EQ(rows_.Text(0, Column::kNext), "12.03.2028");
}

TEST_F(PersonRowsTest, TheCustomOfAllMovesYahrzeitInLeapYears) {
  Shown shown = In2026();
  shown.ofYahrzeit = persons::AdarCustom::kBoth;
  rows_.Take(people_, shown);
  EXPECT_EQ(rows_.Text(0, Column::kSecondYear), "21.02.2027, 23.03.2027");  // 14 Adar II 5787 is Purim, 23 March
}

TEST_F(PersonRowsTest, AColumnSortsAndTurnsRound) {
  EXPECT_THAT(NamesBy(Column::kNext), ElementsAre("Moshe", "anna", "Zvi"));
  EXPECT_THAT(NamesBy(Column::kName), ElementsAre("anna", "Moshe", "Zvi"));
  EXPECT_THAT(NamesBy(Column::kName, true), ElementsAre("Zvi", "Moshe", "anna"));
  EXPECT_THAT(NamesBy(Column::kJewishDate), ElementsAre("Zvi", "Moshe", "anna"));
  EXPECT_THAT(NamesBy(Column::kOccasion), ElementsAre("anna", "Zvi", "Moshe"));
  EXPECT_THAT(NamesBy(Column::kDay), ElementsAre("Moshe", "anna", "Zvi"));  // Tuesday, Thursday, Shabbat
}

TEST_F(PersonRowsTest, WhatIsUnknownComesLastInEitherDirection) {
  EXPECT_THAT(NamesBy(Column::kYears), ElementsAre("anna", "Moshe", "Zvi"));
  EXPECT_THAT(NamesBy(Column::kYears, true), ElementsAre("Moshe", "anna", "Zvi"));
}

TEST_F(PersonRowsTest, SearchFindsEachWordInAnyColumnAndKeepsTheOrder) {
  rows_.Sort(Column::kName, true);
  EXPECT_THAT(Found(" A "), ElementsAre("Zvi", "Moshe", "anna"));
  EXPECT_THAT(Found("tuesday YAHR"), ElementsAre("Moshe"));
  EXPECT_THAT(Found("books"), ElementsAre("anna"));
  EXPECT_THAT(Found("12.03.2028"), ElementsAre("Moshe"));
  EXPECT_THAT(Found("nisan"), ElementsAre("anna"));
  EXPECT_THAT(Found("anna moshe"), IsEmpty());
  EXPECT_THAT(Found(""), ElementsAre("Zvi", "Moshe", "anna"));
}

TEST_F(PersonRowsTest, WhatChangedIsReckonedAnew) {
  people_.at(2) = Jewish(Kind::kBirthday, "Anna", {16, calendar::kNisan, 5750});
  people_.erase(1);
  people_.emplace(9, Jewish(Kind::kOther, "Ben", {17, calendar::kNisan, 5750}));
  rows_.Take(people_, In2026());
  EXPECT_THAT(NamesBy(Column::kNext), ElementsAre("Anna", "Ben", "Zvi"));
  EXPECT_EQ(rows_.Text(0, Column::kNext), "03.04.2026");
}

TEST_F(PersonRowsTest, RowsAreFoundByEntryAndByBeginning) {
  rows_.Sort(Column::kName, false);
  EXPECT_THAT(rows_.RowsOf({5, 2, 77}), ElementsAre(0, 2));
  EXPECT_EQ(rows_.Beginning("M", 0), 1);
  EXPECT_EQ(rows_.Beginning("an", 1), 0);
  EXPECT_EQ(rows_.Beginning("x", 0), -1);
}

TEST_F(PersonRowsTest, ThereAreNoDatesPastTheLastYear) {
  Shown shown = In2026();
  shown.year = persons::kLastGregorianYear;
  rows_.Take(people_, shown);
  EXPECT_NE(rows_.Text(0, Column::kYear), "");
  EXPECT_EQ(rows_.Text(0, Column::kSecondYear), "");
}

TEST(Outlook, SaysTheWeekdayAndTheNextThreeDays) {
  // 14 May 1948 was a Friday, 5 Iyar 5708. 5 Iyar is 20 days after Pesach: 2 April 2026, 22 April 2027, 11 April 2028.
  const std::string text = Outlook(Gregorian(Kind::kBirthday, "x", {14, 5, 1948}), In2026());
  EXPECT_EQ(text,
            "Friday, 14 May 1948: 5 Iyar 5708.\nNext:\nWednesday, 22 April 2026 (78)\nWednesday, 12 May 2027 (79)\n"
            "Monday, 1 May 2028 (80)");
}

TEST(Outlook, AfterSunsetTheJewishDayIsTheNext) {
  Person person = Gregorian(Kind::kBirthday, "x", {14, 5, 1948});
  person.event.afterSunset = true;
  EXPECT_THAT(Outlook(person, In2026()), HasSubstr("Friday, 14 May 1948, after sunset: 6 Iyar 5708."));
}

}  // namespace
}  // namespace kinship
