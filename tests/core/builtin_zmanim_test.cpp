// The built-in zmanim. Expected times are worked out by hand.
#include "zmanim/core/builtin_zmanim.h"

#include <gtest/gtest.h>

namespace {

// A day of 13 hours and 26 minutes, whose proportional hour is 67 1/6 minutes.
constexpr DaySun kSpringDay{{5, 47}, {19, 13}};

ClockTime Interval(double degrees) {
  if (degrees == 11) return {0, 50};
  if (degrees == 10.2) return {0, 46};
  if (degrees == 5.95) return {0, 26};
  if (degrees == 7.5) return {0, 33};
  if (degrees == 8.75) return {0, 39};
  ADD_FAILURE() << "no row asks for " << degrees;
  return {};
}

ClockTime Row(std::size_t row, const DaySun& sun) {
  return BuiltInZmanTime(kBuiltInZmanim[row], sun, Interval);
}

}  // namespace

TEST(BuiltInZmanim, TheNineteenRowsOfASpringDay) {
  constexpr ClockTime kExpected[] = {
      {4, 35},   // 347 - 72 = 275
      {4, 57},   // 347 - 50
      {5, 1},    // 347 - 46
      {5, 47},   //
      {8, 32},   // 347 + 201.5 - 36 = 512.5
      {9, 8},    // 548.5
      {9, 51},   // 347 + 268.67 - 24 = 591.67
      {10, 15},  // 615.67
      {12, 30},  // 347 + 403 = 750
      {12, 30},  //
      {13, 3},   // 347 + 436.58 = 783.58
      {13, 9},   // 789.58
      {16, 25},  // 347 + 638.08 = 985.08
      {17, 7},   // 1027.08
      {19, 13},  //
      {19, 39},  // 1153 + 26
      {19, 46},  // 1153 + 33
      {19, 52},  // 1153 + 39
      {20, 25},  // 1153 + 72
  };
  static_assert(std::size(kExpected) == kBuiltInZmanimCount);
  for (std::size_t row = 0; row < kBuiltInZmanimCount; ++row) {
    const ClockTime time = Row(row, kSpringDay);
    EXPECT_EQ(time, kExpected[row]) << "row " << row << " is " << time.hour << ":" << time.minute;
  }
}

TEST(BuiltInZmanim, MiddayIsTheSameByBothOpinions) {
  for (int32_t minute = 0; minute < 60; ++minute) {
    const DaySun sun{{5, minute}, {18, 59 - minute / 2}};
    EXPECT_EQ(Row(8, sun), Row(9, sun));
  }
}

TEST(BuiltInZmanim, FractionsOfAMinuteAreDropped) {
  // A day of 11:59 hours: 719 / 12 = 59.92 minutes an hour.
  const DaySun sun{{6, 0}, {17, 59}};
  EXPECT_EQ(ProportionalHours(sun, 3, 0), (ClockTime{8, 59}));     // 539.75
  EXPECT_EQ(ProportionalHours(sun, 4, 0), (ClockTime{9, 59}));     // 599.67
  EXPECT_EQ(ProportionalHours(sun, 6, 0), (ClockTime{11, 59}));    // 719.5
  EXPECT_EQ(ProportionalHours(sun, 9.5, 0), (ClockTime{15, 29}));  // 929.21
}

TEST(BuiltInZmanim, DawnJustAfterMidnightIsStillATime) {
  EXPECT_EQ(MinutesBeforeSunrise({1, 12}, 72), (ClockTime{0, 0}));
  EXPECT_EQ(MinutesBeforeSunrise({1, 13}, 72), (ClockTime{0, 1}));
}

TEST(BuiltInZmanim, SunriseBeforeTwelveMinutesPastOneMakesDawnAMeaninglessLargeHour) {
  // 71 - 72 = 4294967295 = 71582788 * 60 + 15 in 32 unsigned bits.
  EXPECT_EQ(MinutesBeforeSunrise({1, 11}, 72), (ClockTime{71582788, 15}));
  EXPECT_EQ(Row(0, {{0, 30}, {23, 30}}), (ClockTime{71582787, 34}));  // 30 - 72 = 4294967254
}

TEST(BuiltInZmanim, SeventyTwoMinutesAfterALateSunsetPassMidnightWithoutAChangeOfDate) {
  EXPECT_EQ(Row(18, {{4, 0}, {22, 47}}), (ClockTime{23, 59}));
  EXPECT_EQ(Row(18, {{4, 0}, {22, 48}}), (ClockTime{0, 0}));
  EXPECT_EQ(Row(18, {{4, 0}, {23, 30}}), (ClockTime{0, 42}));
}

TEST(BuiltInZmanim, IntervalsDoNotWrapAtMidnight) {
  EXPECT_EQ(IntervalAfterSunset({23, 30}, {0, 33}), (ClockTime{24, 3}));
  EXPECT_EQ(IntervalAfterSunset({23, 30}, {2, 45}), (ClockTime{26, 15}));
  EXPECT_EQ(IntervalBeforeSunrise({0, 50}, {0, 50}), (ClockTime{0, 0}));
  EXPECT_EQ(IntervalBeforeSunrise({0, 30}, {0, 50}), (ClockTime{0, -20}));
  EXPECT_EQ(IntervalBeforeSunrise({0, 30}, {2, 0}), (ClockTime{-1, -30}));
}

TEST(BuiltInZmanim, ASunsetAfterMidnightMakesTheDayNegativeAndTruncatesTowardsZero) {
  // 347 + 3 * (10 - 347) / 12 = 262.75; by the M"A 226.75.
  const DaySun sun{{5, 47}, {0, 10}};
  EXPECT_EQ(Row(5, sun), (ClockTime{4, 22}));
  EXPECT_EQ(Row(4, sun), (ClockTime{3, 46}));
  EXPECT_EQ(ProportionalHours({{0, 20}, {0, 10}}, 3, -36), (ClockTime{0, -18}));  // 17.5 - 36
}

TEST(BuiltInZmanim, NegativeWordsCountAsUnsigned) {
  // Sunrise at "-1:00" is 4294967295 hours; whatever comes of it, it is defined.
  EXPECT_EQ(ProportionalHours({{-1, 0}, {-1, 0}}, 3, 0), (ClockTime{-1, 0}));
}

TEST(BuiltInZmanim, OnlyRowsByDegreesAskForAnInterval) {
  for (std::size_t row = 0; row < kBuiltInZmanimCount; ++row) {
    int asked = 0;
    BuiltInZmanTime(kBuiltInZmanim[row], kSpringDay, [&asked](double) {
      ++asked;
      return ClockTime{};
    });
    const bool byDegrees = row == 1 || row == 2 || (row >= 15 && row <= 17);
    EXPECT_EQ(asked, byDegrees ? 1 : 0) << row;
  }
}
