// Expected values are worked out by hand from the rules.
#include "shabbat/core/shabbat_rules.h"

#include <gtest/gtest.h>

#include <limits>

#include "engine/core/candle_rule.h"
#include "shabbat/core/shabbat_record.h"

namespace {

constexpr int32_t kFriday = 732681;  // 5 January 2007
constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();

void ExpectFridays(int32_t first, int32_t last, uint32_t count, bool tooMany = false) {
  const FridayCount fridays = CountFridays(first, last);
  EXPECT_EQ(fridays.count, count);
  EXPECT_EQ(fridays.tooMany, tooMany);
}

}  // namespace

TEST(FridayCount, RangeFromFridayToNextThursdayHasOne) {
  ExpectFridays(kFriday, kFriday + 6, 1);
}
TEST(FridayCount, RangeFromSaturdayToNextThursdayHasNone) {
  ExpectFridays(kFriday + 1, kFriday + 6, 0);
}
TEST(FridayCount, RangeOfOneFridayHasOne) {
  ExpectFridays(kFriday, kFriday, 1);
}
TEST(FridayCount, RangeThatEndsBeforeItStartsHasNone) {
  ExpectFridays(kFriday, kFriday - 1, 0);
}
TEST(FridayCount, NegativeDaysAreNeverFridays) {
  ExpectFridays(-700, 4, 0);
}
TEST(FridayCount, LargestDaysEndTheCount) {
  ExpectFridays(kMost - 6, kMost, 1);
}

TEST(FridayCount, ThirtyTwoThousandAreNotTooMany) {
  ExpectFridays(kFriday, kFriday + 7 * 31999, 32000);
  ExpectFridays(kFriday, kFriday + 7 * 32000 - 1, 32000);
}

TEST(FridayCount, TheFridayThatIsOneTooManyIsKeptAndEndsTheRange) {
  const FridayCount fridays = CountFridays(kFriday, kMost);
  EXPECT_EQ(fridays.count, 32001u);
  EXPECT_EQ(fridays.lastDay, kFriday + 7 * 32000);
  EXPECT_TRUE(fridays.tooMany);
  ExpectFridays(kFriday, kFriday + 7 * 32000, 32001, true);
}

TEST(CandleOverride, JerusalemLightsFortyMinutesBefore) {
  const CandleOverrideRecord rule = CandleOverrideFor("Jerusalem");
  EXPECT_FALSE(rule.readSetting);
  EXPECT_EQ(rule.fixedMinutes, 40);
}

TEST(CandleOverride, JerusalemInOtherLetterCaseReadsThePreference) {
  for (const char* name : {"jerusalem", "JERUSALEM", "Jerusalem ", "Aachen", ""}) {
    EXPECT_TRUE(CandleOverrideFor(name).readSetting) << name;
  }
}

TEST(CandleLighting, EighteenMinutesBeforeSunset) {
  EXPECT_EQ(CandleLightingTime({19, 5}, 18), (ClockTime{18, 47}));
  EXPECT_EQ(CandleLightingTime({19, 18}, 18), (ClockTime{19, 0}));
}

TEST(CandleLighting, WrapsBackOverMidnight) {
  EXPECT_EQ(CandleLightingTime({0, 10}, 18), (ClockTime{23, 52}));
  EXPECT_EQ(CandleLightingTime({0, 0}, 1440), (ClockTime{0, 0}));
  EXPECT_EQ(CandleLightingTime({1, 0}, 61 + 1440), (ClockTime{23, 59}));
}

TEST(CandleLighting, NegativeMinutesLeaveTheHourWithoutCarry) {
  EXPECT_EQ(CandleLightingTime({19, 50}, -18), (ClockTime{19, 68}));
}

TEST(CandleLighting, AnyMinutesEnd) {
  // 2147483647 = 35791394 h 7 min before 19:05: 18:58 less 35791394 h = 1491308 d 2 h, so 16:58.
  EXPECT_EQ(CandleLightingTime({19, 5}, kMost), (ClockTime{16, 58}));
  EXPECT_EQ(CandleLightingTime({19, -1}, kMost).minute, 52);
}

TEST(EndOfShabbat, FortyFiveMinutesAfterSunset) {
  EXPECT_EQ(EndOfShabbatTime({19, 5}, 45), (ClockTime{19, 50}));
  EXPECT_EQ(EndOfShabbatTime({19, 15}, 45), (ClockTime{20, 0}));
}

TEST(EndOfShabbat, PassesMidnight) {
  EXPECT_EQ(EndOfShabbatTime({23, 30}, 45), (ClockTime{0, 15}));
  EXPECT_EQ(EndOfShabbatTime({23, 30}, 45 + 1440), (ClockTime{0, 15}));
}

TEST(EndOfShabbat, NegativeMinutesCanStayNegative) {
  EXPECT_EQ(EndOfShabbatTime({19, 5}, -10), (ClockTime{19, -5}));
}

TEST(EndOfShabbat, HourOfTwentyFourStandsUnlessTheMinutesCarry) {
  EXPECT_EQ(EndOfShabbatTime({24, 10}, 0), (ClockTime{24, 10}));
  EXPECT_EQ(EndOfShabbatTime({24, 10}, 49), (ClockTime{24, 59}));
  EXPECT_EQ(EndOfShabbatTime({24, 10}, 50), (ClockTime{1, 0}));
  EXPECT_EQ(EndOfShabbatTime({47, 10}, 50), (ClockTime{24, 0}));
  EXPECT_EQ(EndOfShabbatTime({47, 10}, 110), (ClockTime{1, 0}));
}

TEST(EndOfShabbat, AnyMinutesEnd) {
  // 19:05 and 35791394 h 7 min: 19:12 and 2 h.
  EXPECT_EQ(EndOfShabbatTime({19, 5}, kMost), (ClockTime{21, 12}));
  EXPECT_EQ(EndOfShabbatTime({19, 0}, kLeast).hour, 19);
}

TEST(TwilightInterval, CarriesMinutesButDoesNotWrapTheHour) {
  EXPECT_EQ(AddTwilightInterval({18, 30}, {0, 40}), (ClockTime{19, 10}));
  EXPECT_EQ(AddTwilightInterval({23, 30}, {0, 40}), (ClockTime{24, 10}));
  EXPECT_EQ(AddTwilightInterval({23, 30}, {2, 59}), (ClockTime{26, 29}));
}

TEST(ShabbatTimesBlock, HasTheSizeOfItsEntries) {
  EXPECT_EQ(ShabbatTimesBlockSize(1), 40u);
  EXPECT_EQ(ShabbatTimesBlockSize(5), 184u);
  EXPECT_EQ(ShabbatTimesBlockSize(32001), 4u + 32001u * 36u);
}

TEST(ShabbatTimesBlock, OfNoEntriesHasRoomForTwo) {
  EXPECT_EQ(ShabbatTimesBlockSize(0), 76u);
}
