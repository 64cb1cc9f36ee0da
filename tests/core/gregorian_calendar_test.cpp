#include "libraries/calendar/gregorian.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using calendar::AbsoluteFromGregorian;
using calendar::Date;
using calendar::DaysInGregorianMonth;
using calendar::GregorianFromAbsolute;
using calendar::Weekday;

constexpr int32_t kLastDay = 3652059;  // 9999 * 365.2425 days, rounded down: 31 December 9999

// Dates as E. M. Reingold and N. Dershowitz publish them, "Calendrical Calculations", table of sample dates.
TEST(GregorianCalendar, AgreesWithPublishedDates) {
  constexpr struct {
    int32_t absolute;
    Date date;
  } kDates[] = {
      {25469, {24, 9, 70}},    {49217, {2, 10, 135}},   {171307, {8, 1, 470}},    {210155, {20, 5, 576}},
      {253427, {10, 11, 694}}, {369740, {25, 4, 1013}}, {452605, {10, 3, 1240}},  {544676, {9, 4, 1492}},
      {569477, {5, 3, 1560}},  {613424, {30, 6, 1680}}, {664224, {2, 8, 1819}},   {694799, {19, 4, 1903}},
      {709580, {7, 10, 1943}}, {728714, {25, 2, 1996}}, {744313, {10, 11, 2038}}, {764652, {18, 7, 2094}},
  };
  for (const auto& [absolute, date] : kDates) {
    EXPECT_EQ(AbsoluteFromGregorian(date), absolute);
    EXPECT_EQ(GregorianFromAbsolute(absolute), date);
  }
}

TEST(GregorianCalendar, DayOneIsAMonday) {
  EXPECT_EQ(AbsoluteFromGregorian({1, 1, 1}), 1);
  EXPECT_EQ(calendar::WeekdayOf(1), Weekday::kMonday);
  EXPECT_EQ(calendar::WeekdayOf(AbsoluteFromGregorian({5, 1, 2024})), Weekday::kFriday);
  EXPECT_EQ(AbsoluteFromGregorian({5, 1, 2024}) % 7, 5);
}

TEST(GregorianCalendar, WeekdaysOfDaysBeforeDayOneRunOn) {
  EXPECT_EQ(calendar::WeekdayOf(0), Weekday::kSunday);
  EXPECT_EQ(calendar::WeekdayOf(-1), Weekday::kSaturday);
  EXPECT_EQ(calendar::WeekdayOf(-7), Weekday::kSunday);
}

TEST(GregorianCalendar, CenturiesAreLeapYearsOnlyEveryFourth) {
  EXPECT_TRUE(calendar::IsGregorianLeapYear(2000));
  EXPECT_FALSE(calendar::IsGregorianLeapYear(1900));
  EXPECT_FALSE(calendar::IsGregorianLeapYear(2100));
  EXPECT_TRUE(calendar::IsGregorianLeapYear(2024));
  EXPECT_EQ(DaysInGregorianMonth(2, 1900), 28);
  EXPECT_EQ(DaysInGregorianMonth(2, 2000), 29);
}

TEST(GregorianCalendar, ThereIsNoMonthBelowOneOrAboveTwelve) {
  EXPECT_EQ(DaysInGregorianMonth(0, 2024), 0);
  EXPECT_EQ(DaysInGregorianMonth(13, 2024), 0);
  EXPECT_EQ(DaysInGregorianMonth(std::numeric_limits<int32_t>::min(), 2024), 0);
}

// Walks from day to day by the months' lengths alone.
TEST(GregorianCalendar, EveryDayOfEveryYearConvertsBothWays) {
  Date date{1, 1, 1};
  for (int32_t absolute = 1; absolute <= kLastDay; ++absolute) {
    ASSERT_EQ(AbsoluteFromGregorian(date), absolute);
    ASSERT_EQ(GregorianFromAbsolute(absolute), date) << absolute;
    if (++date.day <= DaysInGregorianMonth(date.month, date.year)) continue;
    date.day = 1;
    if (++date.month <= 12) continue;
    date.month = 1;
    ++date.year;
  }
  EXPECT_EQ(date, (Date{1, 1, 10000}));
}

TEST(GregorianCalendar, WhatLiesOutsideIsClamped) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  EXPECT_EQ(AbsoluteFromGregorian({kLeast, kLeast, kLeast}), 1);
  EXPECT_EQ(AbsoluteFromGregorian({kMost, kMost, kMost}), kLastDay);
  EXPECT_EQ(AbsoluteFromGregorian({31, 2, 2023}), AbsoluteFromGregorian({28, 2, 2023}));
  EXPECT_EQ(GregorianFromAbsolute(kLeast), (Date{1, 1, 1}));
  EXPECT_EQ(GregorianFromAbsolute(0), (Date{1, 1, 1}));
  EXPECT_EQ(GregorianFromAbsolute(kLastDay + 1), (Date{31, 12, 9999}));
  EXPECT_EQ(GregorianFromAbsolute(kMost), (Date{31, 12, 9999}));
}

// J. Meeus, "Astronomical Algorithms", chapter 8: an algorithm without epacts or day numbers.
TEST(GregorianCalendar, EasterAgreesWithAnotherPublishedAlgorithm) {
  for (int32_t year = 1583; year <= 9999; ++year) {
    const int32_t a = year % 19, b = year / 100, c = year % 100;
    const int32_t g = (b - (b + 8) / 25 + 1) / 3;
    const int32_t h = (19 * a + b - b / 4 - g + 15) % 30;
    const int32_t l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    const int32_t m = (a + 11 * h + 22 * l) / 451;
    const int32_t n = h + l - 7 * m + 114;
    ASSERT_EQ(calendar::GregorianEaster(year), AbsoluteFromGregorian({n % 31 + 1, n / 31, year})) << year;
  }
}

}  // namespace
