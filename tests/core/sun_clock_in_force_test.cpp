#include "libraries/sun/clock_in_force.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace {

constexpr double kDay = 86400;

sun::PlaceClock ClockOf(int32_t standardOffsetSeconds, std::string_view zoneId) {
  sun::PlaceClock clock = {standardOffsetSeconds, {}};
  std::ranges::copy(zoneId, clock.zoneId.begin());
  return clock;
}

double UtcSecondsOf(uint32_t year, uint32_t month, uint32_t day, double hours) {
  return sun::UnixDayOfDate(day, month, year) * kDay + hours * 3600;
}

// European summer time begins and ends at 1:00 UTC, in 2026 on 29 March and 25 October.
TEST(SunClockInForce, SummerTimeBeginsAndEndsAtItsMoment) {
  const sun::PlaceClock berlin = ClockOf(3600, "Europe/Berlin");
  EXPECT_EQ(sun::ClockOffsetSeconds(berlin, UtcSecondsOf(2026, 3, 29, 1) - 0.1), 3600);
  EXPECT_EQ(sun::ClockOffsetSeconds(berlin, UtcSecondsOf(2026, 3, 29, 1)), 7200);
  EXPECT_EQ(sun::ClockOffsetSeconds(berlin, UtcSecondsOf(2026, 10, 25, 1) - 0.1), 7200);
  EXPECT_EQ(sun::ClockOffsetSeconds(berlin, UtcSecondsOf(2026, 10, 25, 1)), 3600);
}

// Germany had summer time in 1949, but clock rules are kept from 1970 on only.
TEST(SunClockInForce, Before1970TheStandardClockHolds) {
  EXPECT_EQ(sun::ClockOffsetSeconds(ClockOf(3600, "Europe/Berlin"), UtcSecondsOf(1949, 7, 1, 12)), 3600);
  EXPECT_EQ(sun::ClockOffsetSeconds(ClockOf(3600, "Europe/Berlin"), -0.1), 3600);
}

// Nepal's clock was 5:30 ahead of UTC until 1986 and is 5:45 since.
TEST(SunClockInForce, TheClockInForceAtTheMomentCountsNotTodays) {
  const sun::PlaceClock kathmandu = ClockOf(5 * 3600 + 45 * 60, "Asia/Kathmandu");
  EXPECT_EQ(sun::ClockOffsetSeconds(kathmandu, UtcSecondsOf(1980, 1, 16, 12)), 5 * 3600 + 30 * 60);
  EXPECT_EQ(sun::ClockOffsetSeconds(kathmandu, UtcSecondsOf(2026, 1, 16, 12)), 5 * 3600 + 45 * 60);
}

TEST(SunClockInForce, WithoutAZoneTheStandardClockHoldsAllYear) {
  EXPECT_EQ(sun::ClockOffsetSeconds(ClockOf(-12600, ""), UtcSecondsOf(2026, 7, 1, 12)), -12600);
}

// 2:00 to 2:59 is shown twice on 25 October and left out on 29 March.
TEST(SunClockInForce, ATimeShownTwiceIsTheFirstOneLeftOutOfTheClockBefore) {
  const sun::PlaceClock berlin = ClockOf(3600, "Europe/Berlin");
  const auto showing = [&](uint32_t month, uint32_t day, double hours) {
    return sun::ClockOffsetShowing(berlin, static_cast<int64_t>(UtcSecondsOf(2026, month, day, hours)));
  };
  EXPECT_EQ(showing(3, 28, 12), 3600);
  EXPECT_EQ(showing(3, 29, 1.99), 3600);
  EXPECT_EQ(showing(3, 29, 2.5), 3600);
  EXPECT_EQ(showing(3, 29, 3), 7200);
  EXPECT_EQ(showing(3, 29, 12), 7200);
  EXPECT_EQ(showing(10, 25, 1.99), 7200);
  EXPECT_EQ(showing(10, 25, 2.5), 7200);
  EXPECT_EQ(showing(10, 25, 3), 3600);
}

// Samoa went from 10 hours behind to 14 ahead at the end of 29 December 2011 and had no 30 December.
TEST(SunClockInForce, AClockMayLeaveOutADay) {
  const sun::PlaceClock apia = ClockOf(13 * 3600, "Pacific/Apia");
  const auto showing = [&](uint32_t day, double hours) {
    return sun::ClockOffsetShowing(apia, static_cast<int64_t>(UtcSecondsOf(2011, 12, day, hours)));
  };
  EXPECT_EQ(showing(29, 0), -10 * 3600);
  EXPECT_EQ(showing(29, 23.99), -10 * 3600);
  EXPECT_EQ(showing(31, 0), 14 * 3600);
  EXPECT_EQ(showing(31, 23.99), 14 * 3600);
}

// Through every hour of ten years in zones of every kind: what a clock shows at a moment leads back to it, or to one
// an hour before that it shows alike.
TEST(SunClockInForce, WhatAClockShowsLeadsBackToItsMoment) {
  for (const char* zone : {"Europe/London", "America/St_Johns", "Asia/Jerusalem", "Australia/Lord_Howe",
                           "Asia/Kathmandu", "Africa/Casablanca", "Pacific/Chatham", "America/Sao_Paulo"}) {
    const sun::PlaceClock clock = ClockOf(0, zone);
    int later = 0;
    for (double utc = UtcSecondsOf(2015, 1, 1, 0.25); utc < UtcSecondsOf(2025, 1, 1, 0); utc += 3600) {
      const int32_t offset = sun::ClockOffsetSeconds(clock, utc);
      const int32_t showing = sun::ClockOffsetShowing(clock, static_cast<int64_t>(utc) + offset);
      if (showing == offset) continue;
      ++later;
      ASSERT_EQ(sun::ClockOffsetSeconds(clock, utc + offset - showing), showing) << zone;
      ASSERT_GT(showing, offset) << zone;
    }
    EXPECT_LE(later, 20) << zone;  // once a year, and Morocco around Ramadan too
  }
}

TEST(SunClockInForce, TheNearestMinuteTakesHalfAMinuteUp) {
  EXPECT_EQ(sun::NearestMinute(29.99, 0), 0);
  EXPECT_EQ(sun::NearestMinute(30, 0), 1);
  EXPECT_EQ(sun::NearestMinute(-30, 0), 0);
  EXPECT_EQ(sun::NearestMinute(-30.01, 0), -1);
  EXPECT_EQ(sun::NearestMinute(0, 3600), 60);
}

TEST(SunClockInForce, TheMinuteNotBeforeAMomentIsTheNextOneUnlessItIsExact) {
  EXPECT_EQ(sun::MinuteNotBefore(60, 0), 1);
  EXPECT_EQ(sun::MinuteNotBefore(60.01, 0), 2);
  EXPECT_EQ(sun::MinuteNotBefore(-0.01, 0), 0);
  EXPECT_EQ(sun::MinuteNotBefore(1, -60), 0);
}

TEST(SunClockInForce, TheTimeOfDayIsWithinADayBothBeforeAndAfter1970) {
  const struct {
    int64_t minutes;
    int32_t hour, minute;
  } expected[] = {{0, 0, 0}, {1439, 23, 59}, {1440, 0, 0}, {-1, 23, 59}, {-1440, 0, 0}, {-1441, 23, 59}};
  for (const auto& row : expected) {
    const sun::HourAndMinute time = sun::TimeOfDay(row.minutes);
    EXPECT_EQ(time.hour, row.hour) << row.minutes;
    EXPECT_EQ(time.minute, row.minute) << row.minutes;
  }
}

}  // namespace
