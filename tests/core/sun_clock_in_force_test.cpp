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
