#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "libraries/sun/sun_day.h"

namespace {

using sun::Crossing;
using sun::SunDay;
using sun::SunEvent;

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kDay = 86400;
constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
constexpr int32_t kMost = std::numeric_limits<int32_t>::max();

SunDay DayAt(uint32_t year, uint32_t month, uint32_t day, int32_t packedLatitude, int32_t packedLongitude,
             int32_t zoneHours, int32_t zoneMinutes = 0) {
  return sun::ComputeSunDay(sun::UnixDayOfDate(day, month, year),
                            sun::SiteFromPacked(packedLatitude, packedLongitude, zoneHours, zoneMinutes));
}

// Hours of the standard clock, counted from the date's midnight.
double ClockHours(const SunDay& day, double utcSeconds) {
  return 12 + (utcSeconds - day.noonUtcSeconds) / kHour;
}

TEST(SunDay, AtTheEquinoxOnTheEquatorTheDayLastsTwelveHoursAndSixAndTwoThirdsMinutes) {
  // By hand: 2 * 50' below the horizon at 15 degrees an hour, less the 9 s that the sun gains in half a March day.
  const SunDay day = DayAt(2026, 3, 20, 0, 0, 0);
  const double length = sun::Sunset(day, 0).utcSeconds - sun::Sunrise(day, 0).utcSeconds;
  EXPECT_NEAR(length, 12 * kHour + 100.0 / 15 * kMinute - 9, 2);
}

// By hand: dip arccos(R / (R + h)) over 15 degrees an hour times cos 31.8: 1.5, 4.2 and 4.8 minutes.
TEST(SunDay, ElevationLengthensTheDayByTheDipOfTheHorizon) {
  const SunDay day = DayAt(2026, 3, 20, 3148, 3513, 2);
  const struct {
    double metres;
    double minutes;
  } expected[] = {{100, 1.51}, {754, 4.15}, {1000, 4.78}};
  for (const auto& row : expected) {
    EXPECT_NEAR(sun::Sunset(day, row.metres).utcSeconds - sun::Sunset(day, 0).utcSeconds, row.minutes * kMinute, 2);
    EXPECT_NEAR(sun::Sunrise(day, 0).utcSeconds - sun::Sunrise(day, row.metres).utcSeconds, row.minutes * kMinute, 2);
  }
}

TEST(SunDay, AnElevationBelowTheSeaIsNone) {
  const SunDay day = DayAt(2026, 3, 20, 3148, 3513, 2);
  EXPECT_EQ(sun::Sunset(day, -430).utcSeconds, sun::Sunset(day, 0).utcSeconds);
}

TEST(SunDay, ThePlainGeometryOfADepressionIgnoresRefraction) {
  const SunDay day = DayAt(2026, 3, 20, 3148, 3513, 2);
  EXPECT_EQ(sun::EveningDepression(day, 50.0 / 60).utcSeconds, sun::Sunset(day, 0).utcSeconds);
  EXPECT_EQ(sun::MorningDepression(day, 50.0 / 60).utcSeconds, sun::Sunrise(day, 0).utcSeconds);
}

TEST(SunDay, PlacesBeyondTheDateLineAnswerForTheDateAsked) {
  const struct {
    int32_t latitude, longitude, zoneHours, zoneMinutes;
  } places[] = {{152, -15729, 14, 0}, {-1350, -17145, 13, 0}, {-2108, -17512, 13, 0}, {-4357, -17633, 12, 45}};
  for (const auto& place : places) {
    const SunDay day = DayAt(2026, 1, 15, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes);
    EXPECT_NEAR(ClockHours(day, sun::TransitUtcSeconds(day)), 12.4, 0.6) << place.longitude;
    EXPECT_NEAR(ClockHours(day, sun::Sunrise(day, 0).utcSeconds), 6, 2) << place.longitude;
    EXPECT_NEAR(ClockHours(day, sun::Sunset(day, 0).utcSeconds), 18.5, 2) << place.longitude;
  }
}

// By hand: St. John's stands 52 degrees 43' west, 12:00 there 3h30m52s behind Greenwich, its clock 3h30m; Kathmandu 85
// degrees 19' east, 5h41m16s ahead, its clock 5h45m. On 15 April the sun is on time to some seconds.
TEST(SunDay, HalfHourZonesCountTheirMinutes) {
  const SunDay stJohns = DayAt(2026, 4, 15, 4734, -5243, -3, -30);
  EXPECT_NEAR(ClockHours(stJohns, sun::TransitUtcSeconds(stJohns)), 12 + 52 / kHour, 20 / kHour);
  const SunDay kathmandu = DayAt(2026, 4, 15, 2743, 8519, 5, 45);
  EXPECT_NEAR(ClockHours(kathmandu, sun::TransitUtcSeconds(kathmandu)), 12 + 224 / kHour, 20 / kHour);
}

// Published for Reykjavik, 21 June: sunrise 2:55, sunset 0:04 of the 22nd.
TEST(SunDay, SunsetMayFallAfterMidnight) {
  const SunDay day = DayAt(2026, 6, 21, 6409, -2157, 0);
  const SunEvent sunset = sun::Sunset(day, 0);
  EXPECT_EQ(sunset.crossing, Crossing::kReached);
  EXPECT_NEAR(ClockHours(day, sunset.utcSeconds), 24 + 4.0 / 60, 1.5 / 60);
  EXPECT_NEAR(ClockHours(day, sun::Sunrise(day, 0).utcSeconds), 2 + 55.0 / 60, 1.5 / 60);
}

// By hand: Tromso at 18 degrees 58' east is 15m52s ahead of its clock, and the sun 1m50s late on 21 June, 2m early on
// 21 December.
TEST(SunDay, WhereTheSunDoesNotSetItsLowestPointsStandForSunriseAndSunset) {
  const SunDay day = DayAt(2026, 6, 21, 6939, 1858, 1);
  EXPECT_EQ(sun::Sunrise(day, 0).crossing, Crossing::kStaysAbove);
  EXPECT_EQ(sun::Sunset(day, 0).crossing, Crossing::kStaysAbove);
  EXPECT_NEAR(ClockHours(day, sun::Sunrise(day, 0).utcSeconds), -14.0 / 60, 1.0 / 60);
  EXPECT_NEAR(ClockHours(day, sun::Sunset(day, 0).utcSeconds), 24 - 14.0 / 60, 1.0 / 60);
}

TEST(SunDay, WhereTheSunDoesNotRiseItsHighestPointStandsForSunriseAndSunset) {
  const SunDay day = DayAt(2026, 12, 21, 6939, 1858, 1);
  EXPECT_EQ(sun::Sunrise(day, 0).crossing, Crossing::kStaysBelow);
  EXPECT_EQ(sun::Sunset(day, 0).crossing, Crossing::kStaysBelow);
  EXPECT_EQ(sun::Sunset(day, 0).utcSeconds, sun::TransitUtcSeconds(day));
  EXPECT_NEAR(ClockHours(day, sun::TransitUtcSeconds(day)), 12 - 18.0 / 60, 1.0 / 60);
}

// The highest latitude at which a depression occurs all year is 66.56 degrees less the depression: 50.46 for 16.1.
TEST(SunDay, InWhiteNightsADepressionIsNotReachedAndTheLowestPointIsGiven) {
  const SunDay below = DayAt(2026, 6, 21, 5020, 605, 1);
  EXPECT_EQ(sun::EveningDepression(below, 16.1).crossing, Crossing::kReached);
  const SunDay above = DayAt(2026, 6, 21, 5035, 605, 1);
  EXPECT_EQ(sun::EveningDepression(above, 16.1).crossing, Crossing::kStaysAbove);
  EXPECT_EQ(sun::EveningDepression(above, 16.1).utcSeconds, sun::MidnightAfterUtcSeconds(above));
  EXPECT_EQ(sun::MorningDepression(above, 16.1).crossing, Crossing::kStaysAbove);
  EXPECT_EQ(sun::MorningDepression(above, 16.1).utcSeconds, sun::MidnightBeforeUtcSeconds(above));
  EXPECT_EQ(sun::EveningDepression(above, 8.5).crossing, Crossing::kReached);
}

TEST(SunDay, DeeperDepressionsComeLaterUntilTheLowestPoint) {
  for (int32_t latitude = -6600; latitude <= 6600; latitude += 300) {
    for (uint32_t month = 1; month <= 12; ++month) {
      const SunDay day = DayAt(2026, month, 21, latitude, 3500, 2);
      double last = sun::TransitUtcSeconds(day);
      for (double depression = -60; depression <= 60; depression += 2.5) {
        const double moment = sun::EveningDepression(day, depression).utcSeconds;
        EXPECT_GE(moment, last) << latitude << " " << month << " " << depression;
        EXPECT_LE(moment, sun::MidnightAfterUtcSeconds(day)) << latitude << " " << month << " " << depression;
        last = moment;
      }
    }
  }
}

// The sun's altitude at the moment found, worked out from the day's quadratics, is the one asked for.
TEST(SunDay, EveryMomentFoundSolvesItsEquationEvenWhereTheSunGrazesTheHorizon) {
  constexpr double kDegree = 0.017453292519943295;
  int reached = 0;
  for (int32_t latitude = 6500; latitude <= 6700; latitude += 3) {
    for (uint32_t date = 1; date <= 30; ++date) {
      const SunDay day = DayAt(2026, 6, date, latitude, -2157, 0);
      const SunEvent sunset = sun::Sunset(day, 0);
      if (sunset.crossing != Crossing::kReached) continue;
      ++reached;
      const double days = (sunset.utcSeconds - day.noonUtcSeconds) / kDay;
      const double sinDeclination = day.sinDeclination.At(days);
      const double sinAltitude = day.sinLatitude * sinDeclination + day.cosLatitude *
                                                                        std::sqrt(1 - sinDeclination * sinDeclination) *
                                                                        std::cos(day.hourAngleRadians.At(days));
      EXPECT_NEAR(std::asin(sinAltitude) / kDegree, -50.0 / 60, 1e-5) << latitude << " " << date;
    }
  }
  EXPECT_GT(reached, 500);
}

// From one midday to the next the sun takes 24 hours and at most half a minute more or less, so a date that is skipped,
// repeated or taken by another century's rule shows at once.
TEST(SunDay, MiddaysFollowEachOtherThroughThreeCenturies) {
  const sun::Site greenwich = sun::SiteFromPacked(5129, 0, 0, 0);
  double last = sun::TransitUtcSeconds(sun::ComputeSunDay(sun::UnixDayOfDate(31, 12, 1898), greenwich));
  const int32_t end = sun::UnixDayOfDate(31, 12, 2101);
  for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 1899); unixDay <= end; ++unixDay) {
    const double transit = sun::TransitUtcSeconds(sun::ComputeSunDay(unixDay, greenwich));
    ASSERT_NEAR(transit - last, kDay, 31) << unixDay;
    last = transit;
  }
}

TEST(SunDay, DatesCountInGregorianDaysFrom1970) {
  EXPECT_EQ(sun::UnixDayOfDate(1, 1, 1970), 0);
  EXPECT_EQ(sun::UnixDayOfDate(1, 1, 2000), 10957);
  EXPECT_EQ(sun::UnixDayOfDate(29, 2, 2000), 11016);
  EXPECT_EQ(sun::UnixDayOfDate(1, 1, 1900), -25567);
  EXPECT_EQ(sun::UnixDayOfDate(1, 3, 1900) - sun::UnixDayOfDate(28, 2, 1900), 1);
}

TEST(SunDay, DatesThatDoNotExistMeanTheNearestOneOfTheirMonthAndYear) {
  EXPECT_EQ(sun::UnixDayOfDate(31, 2, 2026), sun::UnixDayOfDate(28, 2, 2026));
  EXPECT_EQ(sun::UnixDayOfDate(29, 2, 1900), sun::UnixDayOfDate(28, 2, 1900));
  EXPECT_EQ(sun::UnixDayOfDate(0, 0, 0), sun::UnixDayOfDate(1, 1, 1));
  EXPECT_EQ(sun::UnixDayOfDate(UINT32_MAX, UINT32_MAX, UINT32_MAX), sun::UnixDayOfDate(31, 12, 9999));
}

TEST(SunDay, LatitudesEndAtThePolesAndLongitudesWrap) {
  EXPECT_DOUBLE_EQ(sun::SiteFromPacked(9001, 0, 0, 0).latitudeRadians,
                   sun::SiteFromPacked(9000, 0, 0, 0).latitudeRadians);
  EXPECT_DOUBLE_EQ(sun::SiteFromPacked(kLeast, 0, 0, 0).latitudeRadians,
                   sun::SiteFromPacked(-9000, 0, 0, 0).latitudeRadians);
  EXPECT_NEAR(sun::SiteFromPacked(0, 36000 + 605, 0, 0).longitudeRadians,
              sun::SiteFromPacked(0, 605, 0, 0).longitudeRadians, 1e-12);
  EXPECT_EQ(sun::SiteFromPacked(0, 0, kMost, kMost).standardOffsetMinutes, 24 * 60);
  EXPECT_EQ(sun::SiteFromPacked(0, 0, kLeast, kLeast).standardOffsetMinutes, -24 * 60);
  EXPECT_EQ(sun::SiteFromPacked(0, 0, -3, -30).standardOffsetMinutes, -210);
}

TEST(SunDay, AnyNumbersGiveAMomentOfTheDay) {
  constexpr int32_t kPlaces[] = {0, 1, -1, 99, 3147, 6559, 6634, 8959, 9000, -9000, 18000, -18000, kMost, kLeast};
  constexpr double kAngles[] = {0,
                                8.5,
                                -8.5,
                                90,
                                -90,
                                1e300,
                                -1e300,
                                std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()};
  constexpr uint32_t kDates[][3] = {{0, 0, 0}, {20, 3, 2026}, {21, 6, 2026}, {UINT32_MAX, UINT32_MAX, UINT32_MAX}};
  for (const int32_t latitude : kPlaces) {
    for (const int32_t longitude : kPlaces) {
      for (const auto& date : kDates) {
        for (const int32_t zone : {0, 14, kMost, kLeast}) {
          const SunDay day = DayAt(date[2], date[1], date[0], latitude, longitude, zone, zone);
          for (const double amount : kAngles) {
            for (const SunEvent& event : {sun::Sunrise(day, amount), sun::Sunset(day, amount),
                                          sun::MorningDepression(day, amount), sun::EveningDepression(day, amount)}) {
              ASSERT_LE(std::fabs(event.utcSeconds - day.noonUtcSeconds), 25 * kHour)
                  << latitude << " " << longitude << " " << zone << " " << amount;
            }
          }
        }
      }
    }
  }
}

TEST(SunDay, ADepressionThatIsNotANumberIsNeverReached) {
  const SunDay day = DayAt(2026, 3, 20, 3147, 3514, 2);
  const SunEvent event = sun::EveningDepression(day, std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(event.crossing, Crossing::kStaysAbove);
  EXPECT_EQ(event.utcSeconds, sun::MidnightAfterUtcSeconds(day));
}

}  // namespace
