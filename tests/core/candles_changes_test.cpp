#include <gtest/gtest.h>

#include "libraries/candles/candle_changes.h"

namespace candles {
namespace {

constexpr Times kTimes = {17, 25, 18, 31};
constexpr Times kOther = {7, 5, 0, 9};

Occasion OnMarch(uint32_t day, std::string place) {
  return {std::move(place), 2024, 3, day};
}

// The text after one change in it.
std::string With(const Occasion& occasion, std::optional<Times> times, std::string_view text) {
  return Applied({{occasion, times}}, text);
}

TEST(CandlesChanges, EntryAsALineHasAllColumnsPadded) {
  EXPECT_EQ(LineOf({OnMarch(8, "Jerusalem"), kTimes}), "2024-03-08 17:25 18:31 Jerusalem");
  EXPECT_EQ(LineOf({{"a", 1583, 1, 7}, kOther}), "1583-01-07 07:05 00:09 a");
}

TEST(CandlesChanges, PlaceOfAnyBytesComesBackFromItsLine) {
  for (int byte = 0; byte <= 255; ++byte) {
    const std::string letter(1, static_cast<char>(byte));
    for (const std::string& place : {letter, letter + "a" + letter, "a" + letter + "a", letter + letter}) {
      const Entry entry = {OnMarch(8, place), kTimes};
      const std::string line = LineOf(entry);
      EXPECT_EQ(EntryIn(line), entry) << byte;
      EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << byte;
    }
  }
}

TEST(CandlesChanges, PlaceStandsForItselfWhereverItCan) {
  EXPECT_EQ(LineOf({OnMarch(8, "St. John's, Z\xFCrich  #1"), kTimes}),
            "2024-03-08 17:25 18:31 St. John's, Z\xFCrich  #1");
  EXPECT_EQ(LineOf({OnMarch(8, " 5% \t"), kTimes}), "2024-03-08 17:25 18:31 %205%25 %09");
}

TEST(CandlesChanges, AllListsTheEntriesThatCount) {
  const Store store("2024-03-08 01:01 02:02 a\ndamaged\n2024-03-08 17:25 18:31 a\n2024-03-08 07:05 00:09 A\n");
  EXPECT_EQ(store.All(), (Entries{{OnMarch(8, "A"), kOther}, {OnMarch(8, "a"), kTimes}}));
  EXPECT_TRUE(Store().All().empty());
}

TEST(CandlesChanges, DifferenceHoldsWhatWasAddedChangedAndRemoved) {
  const Entries before = {{OnMarch(1, "a"), kTimes}, {OnMarch(8, "a"), kTimes}, {OnMarch(15, "a"), kTimes}};
  const Entries after = {{OnMarch(1, "a"), kTimes}, {OnMarch(8, "a"), kOther}, {OnMarch(8, "b"), kTimes}};
  EXPECT_EQ(Difference(before, after),
            (Changes{{OnMarch(8, "a"), kOther}, {OnMarch(8, "b"), kTimes}, {OnMarch(15, "a"), std::nullopt}}));
  EXPECT_TRUE(Difference(before, before).empty());
}

TEST(CandlesChanges, NewEntriesComeAtTheEndInOrder) {
  EXPECT_EQ(Applied({{OnMarch(15, "b"), kTimes}, {OnMarch(8, "b"), kTimes}, {OnMarch(22, "a"), kOther}}, "# mine\r\n"),
            "# mine\r\n2024-03-22 07:05 00:09 a\r\n2024-03-08 17:25 18:31 b\r\n2024-03-15 17:25 18:31 b\r\n");
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, ""), "2024-03-08 17:25 18:31 a\r\n");
}

TEST(CandlesChanges, NewLinesEndAsTheFirstOneDoes) {
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, "x\ny\r\n"), "x\ny\r\n2024-03-08 17:25 18:31 a\n");
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, "x\ry\r"), "x\ry\r2024-03-08 17:25 18:31 a\r");
}

TEST(CandlesChanges, LastLineWithoutAnEndGetsOneBeforeANewLine) {
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, "x\ny"), "x\ny\n2024-03-08 17:25 18:31 a\n");
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, "x"), "x\r\n2024-03-08 17:25 18:31 a\r\n");
}

TEST(CandlesChanges, ChangedEntryKeepsItsLine) {
  EXPECT_EQ(With(OnMarch(8, "a"), kOther, "# a\n2024-03-08 17:25 18:31 a\r\n2024-03-15 17:25 18:31 a\n"),
            "# a\n2024-03-08 07:05 00:09 a\r\n2024-03-15 17:25 18:31 a\n");
  EXPECT_EQ(With(OnMarch(8, "a"), kOther, "2024-03-08 17:25 18:31 a"), "2024-03-08 07:05 00:09 a");
}

TEST(CandlesChanges, RemovedEntryTakesItsLinesWithIt) {
  EXPECT_EQ(With(OnMarch(8, "a"), std::nullopt, "x\n2024-03-08 17:25 18:31 a\r\ny\n2024-03-08 01:01 02:02 a"),
            "x\ny\n");
  EXPECT_EQ(With(OnMarch(8, "a"), std::nullopt, "2024-03-08 17:25 18:31 a\n"), "");
}

TEST(CandlesChanges, EntryThatIsGoneAlreadyIsAsGoodAsRemoved) {
  EXPECT_EQ(With(OnMarch(8, "a"), std::nullopt, "x\n2024-03-08 17:25 18:31 A\n"), "x\n2024-03-08 17:25 18:31 A\n");
}

TEST(CandlesChanges, LinesThatTheChangedOneMadeVoidGo) {
  const std::string changed =
      With(OnMarch(8, "a"), kOther, "2024-03-08 01:01 02:02 a\nx\n2024-03-08 17:25 18:31 %61\ny\n");
  EXPECT_EQ(changed, "x\n2024-03-08 07:05 00:09 a\ny\n");
  EXPECT_EQ(Store(changed).Find("a", 8, 3, 2024), kOther);
}

TEST(CandlesChanges, LineThatHoldsTheTimesAlreadyKeepsItsBytes) {
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, "2024-03-08 17:25 18:31 %61  \n"), "2024-03-08 17:25 18:31 %61  \n");
}

TEST(CandlesChanges, EverythingElseKeepsItsBytes) {
  const std::string text =
      "\xEF\xBB\xBF"
      "# 2024-03-08 17:25 18:31 a\n\n\r\n\r2024-03-08 17:25 18:31\n2024-02-30 17:25 18:31 a\n2024-03-08 25:00 18:31 "
      "a\n" +
      std::string("\0\xFF\n2024-03-08 17:25 18:31 b\n2024-03-08 17:25 18:31 b\n", 53) + "  the end";
  EXPECT_EQ(Applied({}, text), text);
  EXPECT_EQ(With(OnMarch(8, "a"), std::nullopt, text), text);
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, text), text + "\n2024-03-08 17:25 18:31 a\n");
}

TEST(CandlesChanges, EntryBehindAByteOrderMarkIsChangedBehindIt) {
  EXPECT_EQ(With(OnMarch(8, "a"), kOther,
                 "\xEF\xBB\xBF"
                 "2024-03-08 17:25 18:31 a\n"),
            "\xEF\xBB\xBF"
            "2024-03-08 07:05 00:09 a\n");
  EXPECT_EQ(With(OnMarch(8, "a"), kTimes, "\xEF\xBB\xBF"),
            "\xEF\xBB\xBF"
            "2024-03-08 17:25 18:31 a\r\n");
}

}  // namespace
}  // namespace candles
