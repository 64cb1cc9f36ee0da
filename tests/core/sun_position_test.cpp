#include <gtest/gtest.h>

#include <cmath>

#include "libraries/sun/angles.h"
#include "libraries/sun/delta_t.h"
#include "libraries/sun/fast_sine.h"
#include "libraries/sun/solar_position.h"

namespace {

double Arcseconds(double radians) {
  return radians / sun::kRadiansPerArcsecond;
}

double ArcsecondsBetween(double radians, double degrees, double minutes, double seconds) {
  const double expected = ((degrees * 60 + minutes) * 60 + seconds) * sun::kRadiansPerArcsecond;
  return Arcseconds(std::remainder(radians - expected, sun::kTurn));
}

// Meeus, "Astronomical Algorithms", example 25.b (the whole of VSOP87): 1992 October 13, 0h Terrestrial Time.
TEST(SunPosition, LongitudeLatitudeAndDeclinationOfMeeusExample25b) {
  const sun::ApparentSun sun = sun::ApparentSunAt(-2636.5);
  EXPECT_NEAR(ArcsecondsBetween(sun.longitudeRadians.value, 199, 54, 21.818), 0, 1.0);
  EXPECT_NEAR(Arcseconds(sun.latitudeRadians), 0.72, 0.3);
  const sun::SunInSky sky = sun::SunInSkyAt(-2636.5 - sun::DeltaTSeconds(1992.78) / sun::kSecondsPerDay);
  EXPECT_NEAR(ArcsecondsBetween(std::asin(sky.sinDeclination.value), -7, -47, -1.74), 0, 1.0);
}

// Meeus, example 22.a: 1987 April 10, 0h Terrestrial Time; nutation in longitude -3.788".
TEST(SunPosition, ObliquityAndNutationOfMeeusExample22a) {
  const sun::ApparentSun sun = sun::ApparentSunAt(-4649.5);
  EXPECT_NEAR(ArcsecondsBetween(sun.obliquityRadians, 23, 26, 36.850), 0, 0.15);
  EXPECT_NEAR(Arcseconds(sun.equationOfEquinoxesRadians), -3.788 * std::cos(sun.obliquityRadians), 0.15);
}

// Meeus, example 12.a: 1987 April 10, 0h Universal Time, apparent sidereal time 13h10m46.1351s.
// The sun's right ascension at that moment by PyEphem 4.1: 1h12m22.03s.
TEST(SunPosition, HourAngleIsApparentSiderealTimeLessRightAscension) {
  const double hourAngleSeconds = (13 * 3600 + 10 * 60 + 46.1351) - (1 * 3600 + 12 * 60 + 22.03);
  const sun::SunInSky sky = sun::SunInSkyAt(-4649.5);
  EXPECT_NEAR(std::remainder(Arcseconds(sky.greenwichHourAngleRadians.value) - hourAngleSeconds * 15, 1296000.0), 0,
              1.0);
}

TEST(SunPosition, TheQuadraticsHoldForHalfADayAndWellEnoughForAWhole) {
  for (double days = -36525; days < 36525; days += 171.3) {
    const sun::SunInSky noon = sun::SunInSkyAt(days);
    for (const double later : {-1.0, -0.5, 0.5, 1.0}) {
      const sun::SunInSky then = sun::SunInSkyAt(days + later);
      const double hourAngleError =
          std::remainder(noon.greenwichHourAngleRadians.At(later) - then.greenwichHourAngleRadians.value, sun::kTurn);
      EXPECT_NEAR(Arcseconds(hourAngleError), 0, std::fabs(later) < 1 ? 0.15 : 0.3) << days;
      EXPECT_NEAR(Arcseconds(noon.sinDeclination.At(later) - then.sinDeclination.value), 0,
                  std::fabs(later) < 1 ? 0.15 : 0.3)
          << days;
    }
  }
}

TEST(SunPosition, IsFiniteOverEightThousandYears) {
  for (double days = -2.9e6; days < 2.9e6; days += 12345.6) {
    const sun::SunInSky sky = sun::SunInSkyAt(days);
    EXPECT_TRUE(std::isfinite(sky.greenwichHourAngleRadians.value)) << days;
    EXPECT_NEAR(sky.greenwichHourAngleRadians.ratePerDay, sun::kTurn, 0.003) << days;
    EXPECT_LE(std::fabs(sky.sinDeclination.value), std::sin(24.5 * sun::kRadiansPerDegree)) << days;
  }
}

// Espenak and Meeus give these measured values beside their polynomials (seconds); the tolerances are the polynomials'.
TEST(SunDeltaT, FollowsTheMeasuredValues) {
  EXPECT_NEAR(sun::DeltaTSeconds(0), 10580, 5);
  EXPECT_NEAR(sun::DeltaTSeconds(1000), 1570, 5);
  EXPECT_NEAR(sun::DeltaTSeconds(1700), 9, 1);
  EXPECT_NEAR(sun::DeltaTSeconds(1955), 31.1, 0.3);
  EXPECT_NEAR(sun::DeltaTSeconds(1975), 45.5, 0.2);
  EXPECT_NEAR(sun::DeltaTSeconds(2000), 63.8, 0.1);
  EXPECT_NEAR(sun::DeltaTSeconds(2010), 66.1, 0.2);
}

// Of the Astronomical Almanac (to 1970) and the IERS, at the beginning of the year, seconds.
TEST(SunDeltaT, IsWithinAQuarterOfASecondOfTheMeasuredValuesFrom1900To2020) {
  const struct {
    double year;
    double seconds;
  } measured[] = {{1900, -2.72}, {1910, 10.46}, {1920, 21.16}, {1930, 24.02}, {1940, 24.33},
                  {1950, 29.15}, {1960, 33.15}, {1970, 40.18}, {1980, 50.54}, {1990, 56.86},
                  {2000, 63.83}, {2010, 66.07}, {2017, 68.59}, {2020, 69.36}};
  for (const auto& row : measured) EXPECT_NEAR(sun::DeltaTSeconds(row.year), row.seconds, 0.25) << row.year;
}

// The Earth has turned faster since 2020 than the polynomial of 2014 foresaw: 69.1 s in 2025 (IERS). Three seconds of
// delta T move a sunset by a hundredth of a second.
TEST(SunDeltaT, RunsAheadOfTheEarthByLessThanThreeSecondsIn2025) {
  EXPECT_NEAR(sun::DeltaTSeconds(2025), 69.1, 3);
}

TEST(SunDeltaT, HasNoStepWhereOnePolynomialHandsOverToTheNext) {
  for (const double year : {-500., 500., 1600., 1700., 1800., 1860., 1900., 1920., 1941., 1961., 1986., 2005., 2015.}) {
    EXPECT_NEAR(sun::DeltaTSeconds(year - 1e-6), sun::DeltaTSeconds(year), year < 1700 ? 5 : 0.5) << year;
  }
}

// By hand: 67.62 + 0.3645 * 985 + 0.0039755 * 985^2.
TEST(SunDeltaT, GrowsToAnHourAndAQuarterByTheYear3000) {
  EXPECT_NEAR(sun::DeltaTSeconds(3000), 4283.8, 0.1);
}

TEST(SunFastSine, AgreesWithTheCLibrary) {
  for (double turns = -1000.7; turns < 1000; turns += 0.0371) {
    double sine;
    double cosine;
    sun::SineAndCosineOfTurns(turns, sine, cosine);
    EXPECT_NEAR(sine, std::sin(sun::kTurn * turns), 2e-11) << turns;
    EXPECT_NEAR(cosine, std::cos(sun::kTurn * turns), 2e-11) << turns;
  }
}

}  // namespace
