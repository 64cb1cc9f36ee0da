#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "libraries/sun/clock_in_force.h"
#include "libraries/twilight/twilight_core.h"

namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

sun::PlaceSettings PlaceAt(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, double metres = 0) {
  const sun::Site site = sun::SiteFromPacked(packedLatitude, packedLongitude, zoneHours, 0);
  return {site, metres, {site.standardOffsetMinutes * 60, {}}};
}

// Rounded sunset and exact nightfall of PyEphem 4.1: 16:58:32 and 17:37:24 in Jerusalem on 16 January 2026.
TEST(TwilightInterval, LeadsFromTheRoundedSunsetToNightfallRoundedUp) {
  const int32_t friday = sun::UnixDayOfDate(16, 1, 2026);
  EXPECT_EQ(twilight::EveningIntervalMinutes(friday, PlaceAt(3147, 3514, 2), 8.5), 38 - 59 + 60);
}

// By hand from the same source: at 754 metres the sun sets at 17:03:05; nightfall stays.
TEST(TwilightInterval, TheElevationDelaysSunsetOnly) {
  const int32_t friday = sun::UnixDayOfDate(16, 1, 2026);
  EXPECT_EQ(twilight::EveningIntervalMinutes(friday, PlaceAt(3147, 3514, 2, 754), 8.5), 38 - 3);
}

TEST(TwilightInterval, NightfallIsNeverEarlyAndNeverAWholeMinuteLate) {
  for (const sun::PlaceSettings& place :
       {PlaceAt(3147, 3514, 2, 754), PlaceAt(5047, 605, 1), PlaceAt(-3651, 17446, 12)}) {
    for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay < sun::UnixDayOfDate(1, 1, 2030); ++unixDay) {
      for (const double depression : {1.9, 5.95, 8.5, 16.1}) {
        const sun::SunDay day = sun::ComputeSunDay(unixDay, place.site);
        const double shown =
            60.0 * static_cast<double>(sun::NearestMinute(sun::Sunset(day, place.elevationMetres).utcSeconds, 0) +
                                       twilight::EveningIntervalMinutes(unixDay, place, depression));
        const double exact = sun::EveningDepression(day, depression).utcSeconds;
        ASSERT_GE(shown, exact) << unixDay << " " << depression;
        ASSERT_LT(shown, exact + 60) << unixDay << " " << depression;
      }
    }
  }
}

TEST(TwilightInterval, IsZeroWhenTheSunStandsThatLowAtSunsetAlready) {
  const int32_t friday = sun::UnixDayOfDate(16, 1, 2026);
  for (const double depression : {50.0 / 60, 0.5, 0.0, -20.0, -90.0, -1e300}) {
    EXPECT_EQ(twilight::EveningIntervalMinutes(friday, PlaceAt(3147, 3514, 2), depression), 0) << depression;
  }
  EXPECT_EQ(twilight::EveningIntervalMinutes(friday, PlaceAt(3147, 3514, 2, 754), 1.0), 0);
}

// By hand: at 59 degrees the sun sinks 7.56 degrees on 21 June, lowest at 0:02 UTC on the meridian of Greenwich.
TEST(TwilightInterval, InWhiteNightsItLeadsToTheLowestPoint) {
  const sun::PlaceSettings place = PlaceAt(5900, 0, 0);
  const int32_t solstice = sun::UnixDayOfDate(21, 6, 2026);
  const sun::SunDay day = sun::ComputeSunDay(solstice, place.site);
  const int64_t sunset = sun::NearestMinute(sun::Sunset(day, 0).utcSeconds, 0);
  const int64_t lowest = (int64_t{solstice} + 1) * 1440 + 2;
  for (const double depression : {8.0, 8.5, 16.1, 90.0, 1e300, kNotANumber}) {
    EXPECT_NEAR(static_cast<double>(sunset + twilight::EveningIntervalMinutes(solstice, place, depression)),
                static_cast<double>(lowest), 1.0)
        << depression;
  }
}

TEST(TwilightInterval, IsZeroWhereTheSunDoesNotSetAtAll) {
  const int32_t solstice = sun::UnixDayOfDate(21, 6, 2026);
  EXPECT_EQ(twilight::EveningIntervalMinutes(solstice, PlaceAt(6939, 1858, 1), 8.5), 0);
}

// In the polar night sunset is the transit: the sun, 3 degrees deep at noon, still sinks to 8.5 and is past 1 already.
TEST(TwilightInterval, InThePolarNightItLeadsFromTheTransit) {
  const int32_t solstice = sun::UnixDayOfDate(21, 12, 2026);
  const sun::PlaceSettings place = PlaceAt(6939, 1858, 1);
  const sun::SunDay day = sun::ComputeSunDay(solstice, place.site);
  const double exactMinutes = (sun::EveningDepression(day, 8.5).utcSeconds - sun::TransitUtcSeconds(day)) / 60;
  EXPECT_NEAR(twilight::EveningIntervalMinutes(solstice, place, 8.5), exactMinutes, 1.5);
  EXPECT_GT(exactMinutes, 120);
  EXPECT_EQ(twilight::EveningIntervalMinutes(solstice, place, 1.0), 0);
}

TEST(TwilightInterval, IsAnIntervalOfADayForAnyNumbers) {
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  for (const int32_t number : {0, 9000, kMost, kLeast}) {
    for (const double depression : {8.5, 1e300, -1e300, kNotANumber}) {
      for (const uint32_t date : {0u, 15u, 0xFFFFFFFFu}) {
        const sun::PlaceSettings place = PlaceAt(number, number, number, number);
        const int32_t minutes =
            twilight::EveningIntervalMinutes(sun::UnixDayOfDate(date, date, date), place, depression);
        EXPECT_GE(minutes, 0) << number;
        EXPECT_LE(minutes, 24 * 60) << number;
      }
    }
  }
}

}  // namespace
