// The list's rows: filter, search, the next one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "libraries/occasions/occasion_list.h"
#include "tests/core/occasions_places.h"

namespace occasions {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::string Small(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return small;
}

constexpr int32_t kFriday = 739947;  // 27 November 2026
static_assert(calendar::WeekdayOf(kFriday) == calendar::Weekday::kFriday);

const std::vector<Row> kRows = {
    {.day = kFriday, .occasion = Occasion::kShabbat, .moment = Moment::kCandles, .rule = Rule::kSunset, .minute = 960},
    {.day = kFriday + 1, .occasion = Occasion::kShabbat, .moment = Moment::kEnd, .minute = 1030},
    {.day = kFriday + 7, .occasion = Occasion::kChanukah, .moment = Moment::kLights, .number = 1, .minute = 1010},
    {.day = kFriday + 8, .occasion = Occasion::kChanukah, .number = 1},
    {.day = kFriday + 9, .occasion = Occasion::kChanukah, .moment = Moment::kLights, .number = 3}};

class OccasionListTest : public testing::Test {
 protected:
  OccasionListTest() { list_.Take(QuestionAt(kNewYorkPlace, "America/New_York", calendar::Land::kDiaspora), kRows); }
  std::vector<int32_t> Days() const {
    std::vector<int32_t> days;
    for (int row = 0; row < list_.Count(); ++row) days.push_back(list_.At(row).day - kFriday);
    return days;
  }

  OccasionList list_{Small};
};

TEST_F(OccasionListTest, AKindIsShownAloneAndAllAgain) {
  list_.ShowKind(Kind::kChanukah);
  EXPECT_THAT(Days(), ElementsAre(7, 8, 9));
  EXPECT_EQ(list_.All(), kRows.size());
  list_.ShowKind({});
  EXPECT_EQ(list_.Shown(), kRows);
}

TEST_F(OccasionListTest, EveryWordIsFoundInTitleOrDateOrRemark) {
  list_.Search("SHABBAT");  // of the Saturdays' name too
  EXPECT_THAT(Days(), ElementsAre(0, 1, 8));
  list_.Search("shabbat candle");
  EXPECT_THAT(Days(), ElementsAre(0));
  list_.Search("candle shabbat 27.11.2026");
  EXPECT_THAT(Days(), ElementsAre(0));
  list_.Search("חנוכה");
  EXPECT_THAT(Days(), ElementsAre(7, 8, 9));
  list_.Search("כסלו חנוכה");
  EXPECT_THAT(Days(), ElementsAre(7, 8, 9));
  list_.Search("kislev");
  EXPECT_THAT(Days(), ElementsAre(0, 1, 7, 8, 9));
  list_.Search(RemarkOf(list_.question(), kRows[0], Language::kEnglish));
  EXPECT_THAT(Days(), ElementsAre(0));
  list_.Search("nowhere");
  EXPECT_EQ(list_.Count(), 0);
  list_.Search("  ");
  EXPECT_EQ(list_.Count(), 5);
}

TEST_F(OccasionListTest, FilterAndSearchHoldTogetherAndForNewRows) {
  list_.Search("shabbat");
  list_.ShowKind(Kind::kChanukah);
  EXPECT_THAT(Days(), ElementsAre(8));
  list_.Take(list_.question(), {kRows[0], kRows[3]});
  EXPECT_THAT(Days(), ElementsAre(8));
  list_.Search("");
  EXPECT_THAT(Days(), ElementsAre(8));
  list_.ShowKind({});
  EXPECT_THAT(Days(), ElementsAre(0, 8));
}

TEST_F(OccasionListTest, WhatMoreLettersFindIsWhatTheyFindAlone) {
  for (const char* const word : {"c", "ch", "chanukah", "26", "5.12.2026"}) {
    list_.Search(word);
    OccasionList alone(Small);
    alone.Take(list_.question(), kRows);
    alone.Search(word);
    EXPECT_EQ(list_.Shown(), alone.Shown()) << word;
  }
}

// 14 Nisan 5785 is a Shabbat: chametz is burnt on Friday, and what is left after the meal is removed.
TEST(OccasionListSearch, TheRemovalOfChametzOnAShabbatIsFoundByItsOwnTitle) {
  const Taken year = TakenYear(kNewYorkPlace, "America/New_York", calendar::Land::kDiaspora, Span::kJewishYear, 5785);
  OccasionList list(Small);
  list.Take(year.question, year.rows);
  const auto titles = [&list](const char* typed) {
    list.Search(typed);
    std::vector<std::string> found;
    for (const Row& row : list.Shown()) found.push_back(TitleOf(row, Language::kEnglish));
    return found;
  };
  constexpr char kRemoval[] = "Chametz: last time to remove what is left";
  EXPECT_THAT(titles("burn"), AllOf(Contains(HasSubstr("burn")), Not(Contains(kRemoval))));
  EXPECT_THAT(titles("remove"), Contains(kRemoval));
}

TEST_F(OccasionListTest, TheNextIsTheFirstThatIsShownAndToCome) {
  EXPECT_EQ(list_.FirstToCome({kFriday - 100, 0}), 0);
  EXPECT_EQ(list_.FirstToCome({kFriday, 961}), 1);
  EXPECT_EQ(list_.FirstToCome({kFriday + 8, 1439}), 3);
  EXPECT_EQ(list_.FirstToCome({kFriday + 9, 0}), -1) << "what does not occur does not come";
  list_.ShowKind(Kind::kChanukah);
  EXPECT_EQ(list_.FirstToCome({kFriday, 961}), 0);
}

TEST_F(OccasionListTest, TheRowNearestToADayIsOfItOrTheNextOne) {
  EXPECT_EQ(list_.NearestTo(kFriday + 1), 1);
  EXPECT_EQ(list_.NearestTo(kFriday + 2), 2);
  EXPECT_EQ(list_.NearestTo(kFriday + 99), 4);
  list_.Search("nowhere");
  EXPECT_EQ(list_.NearestTo(kFriday), -1);
}

TEST_F(OccasionListTest, TypedDatesAreFoundFromARowOnAndRound) {
  EXPECT_EQ(list_.Beginning("27", 0), 0);
  EXPECT_EQ(list_.Beginning("04.12", 0), 2);
  EXPECT_EQ(list_.Beginning("27", 1), 0);
  EXPECT_EQ(list_.Beginning("31", 0), -1);
}

}  // namespace
}  // namespace occasions
