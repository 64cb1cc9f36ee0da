// High latitudes, where the sun does not set, does not sink to a depression or does not rise: every day of a year,
// judged by the sun's altitude at the moment that is answered.
//
// The altitude is worked out here from the Astronomical Almanac's low-precision formulas of the sun (page C5: longitude
// and right ascension to 0.01 degrees between 1950 and 2050), which share nothing with the library. Days are days since
// 1970-01-01, moments seconds of UTC since then, angles degrees.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/sun_day.h"
#include "libraries/twilight/twilight_core.h"

namespace {

using sun::Crossing;
using sun::SunEvent;

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kDay = 86400;
constexpr double kRadians = std::numbers::pi / 180;
constexpr double kHorizon = -50.0 / 60;  // of the sun's centre at sunrise and sunset
constexpr double kDepressions[] = {5.95, 8, 8.5, 16.1};
constexpr double kFormulaError = 0.02;  // of an altitude by the formulas below, with some room

struct Place {
  int32_t packedLatitude, packedLongitude, zoneHours, zoneMinutes;
  double elevationMetres;
};

// The latitudes where a day has no sunset or a night no darkness; clocks on the sun's time, hours off it, of half an
// hour, and beyond the date line.
constexpr Place kWhiteNightPlaces[] = {
    {6000, 0, 0, 0, 0},         {6010, 2456, 2, 0, 0},      {6100, -14954, -9, 0, 0},  {6200, 12944, 9, 0, 0},
    {6304, 2140, 1, 0, 300},    {6409, -2157, 0, 0, 0},     {6450, -14743, -9, 0, 0},  {6501, 2528, 2, 0, 0},
    {6530, 17731, 12, 0, 0},    {6535, 2209, 1, 0, 0},      {6544, -1806, 0, 0, 0},    {6549, 2400, 2, 0, 0},
    {6554, -17000, 13, 0, 0},   {6559, 9000, 4, 30, 0},     {6559, -2000, -3, -30, 0}, {6559, 2500, 2, 0, 200},
    {-6000, 0, 0, 0, 0},        {-6100, 13600, 9, 30, 0},   {-6212, -5858, -3, 0, 0},  {-6304, 6240, 5, 45, 0},
    {-6414, -5637, -3, 0, 208}, {-6500, -17633, 12, 45, 0}, {-6544, 11030, 8, 0, 0},   {-6559, -6817, -4, 0, 0},
};

// Beyond the latitudes that can be entered: nights and days of weeks.
constexpr Place kPolarPlaces[] = {{6939, 1858, 1, 0, 0}, {-6833, 7758, 5, 0, 0}, {-7751, 16640, 12, 0, 0}};

double Degrees(int32_t packed) {
  return packed / 100 + packed % 100 / 60.0;
}

double AltitudeAt(const Place& place, double utcSeconds) {
  const double days = utcSeconds / kDay - 10957.5;  // from 2000-01-01 12:00
  const double meanLongitude = 280.460 + 0.9856474 * days;
  const double anomaly = kRadians * (357.528 + 0.9856003 * days);
  const double longitude = kRadians * (meanLongitude + 1.915 * std::sin(anomaly) + 0.020 * std::sin(2 * anomaly));
  const double obliquity = kRadians * (23.439 - 0.0000004 * days);
  const double ascension = std::atan2(std::cos(obliquity) * std::sin(longitude), std::cos(longitude));
  const double declination = std::asin(std::sin(obliquity) * std::sin(longitude));
  const double siderealDegrees = 15 * (18.697374558 + 24.06570982441908 * days);
  const double hourAngle = kRadians * (siderealDegrees + Degrees(place.packedLongitude)) - ascension;
  const double latitude = kRadians * Degrees(place.packedLatitude);
  return std::asin(std::sin(latitude) * std::sin(declination) +
                   std::cos(latitude) * std::cos(declination) * std::cos(hourAngle)) /
         kRadians;
}

// The sun's altitudes in the half day on one side of a transit.
struct Course {
  double from, to;
  double lowest, highest;
};

Course CourseBetween(const Place& place, double from, double to) {
  Course course = {from, to, 90, -90};
  for (double moment = from; moment <= to; moment += 5 * kMinute) {
    const double altitude = AltitudeAt(place, moment);
    course.lowest = std::min(course.lowest, altitude);
    course.highest = std::max(course.highest, altitude);
  }
  return course;
}

double HorizonOf(const Place& place) {
  constexpr double kEarthRadiusMetres = 6356900;
  return kHorizon - std::acos(kEarthRadiusMetres / (kEarthRadiusMetres + place.elevationMetres)) / kRadians;
}

sun::PlaceSettings SettingsOf(const Place& place) {
  const sun::Site site =
      sun::SiteFromPacked(place.packedLatitude, place.packedLongitude, place.zoneHours, place.zoneMinutes);
  return {site, place.elevationMetres, {site.standardOffsetMinutes * 60, {}}};
}

// One day at one place with what the library answers.
struct Day {
  const Place& place;
  int32_t unixDay;
  sun::PlaceSettings settings;
  sun::SunDay sunDay;
  SunEvent sunrise;
  SunEvent sunset;
  double transit;
};

Day DayAt(const Place& place, int32_t unixDay) {
  const sun::PlaceSettings settings = SettingsOf(place);
  const sun::SunDay sunDay = sun::ComputeSunDay(unixDay, settings.site);
  return {place,
          unixDay,
          settings,
          sunDay,
          sun::Sunrise(sunDay, place.elevationMetres),
          sun::Sunset(sunDay, place.elevationMetres),
          sun::TransitUtcSeconds(sunDay)};
}

template <typename Check>
void OnEveryDayOf2026(const Place& place, Check check) {
  const int32_t end = sun::UnixDayOfDate(31, 12, 2026);
  for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay <= end; ++unixDay) {
    SCOPED_TRACE(testing::Message() << place.packedLatitude << "," << place.packedLongitude << " day "
                                    << unixDay - sun::UnixDayOfDate(31, 12, 2025));
    check(DayAt(place, unixDay));
    if (testing::Test::HasFailure()) return;  // one day tells enough
  }
}

Course MorningOf(const Day& day) {
  return CourseBetween(day.place, day.transit - kDay / 2, day.transit);
}

Course EveningOf(const Day& day) {
  return CourseBetween(day.place, day.transit, day.transit + kDay / 2);
}

// The moment is the sun's crossing of the altitude, or its lowest point, or its highest, whichever the course asks for.
void ExpectTrueMoment(const Place& place, const SunEvent& event, double wantedAltitude, const Course& course) {
  const double altitude = AltitudeAt(place, event.utcSeconds);
  const bool staysAbove = course.lowest > wantedAltitude + kFormulaError;
  const bool staysBelow = course.highest < wantedAltitude - kFormulaError;
  EXPECT_GE(event.utcSeconds, course.from - kMinute);
  EXPECT_LE(event.utcSeconds, course.to + kMinute);
  EXPECT_TRUE(!staysAbove || event.crossing == Crossing::kStaysAbove);
  EXPECT_TRUE(!staysBelow || event.crossing == Crossing::kStaysBelow);
  switch (event.crossing) {
    case Crossing::kReached: EXPECT_NEAR(altitude, wantedAltitude, kFormulaError); break;
    case Crossing::kStaysAbove:
      EXPECT_NEAR(altitude, course.lowest, 0.005);
      EXPECT_GT(altitude, wantedAltitude - kFormulaError);
      break;
    case Crossing::kStaysBelow:
      EXPECT_NEAR(altitude, course.highest, 0.005);
      EXPECT_LT(altitude, wantedAltitude + kFormulaError);
      break;
  }
}

void ExpectTrueSunriseAndSunset(const Day& day) {
  ExpectTrueMoment(day.place, day.sunrise, HorizonOf(day.place), MorningOf(day));
  ExpectTrueMoment(day.place, day.sunset, HorizonOf(day.place), EveningOf(day));
}

TEST(SunWhiteNights, SunriseAndSunsetAreCrossingsOrTheSunsLowestPoints) {
  for (const Place& place : kWhiteNightPlaces) OnEveryDayOf2026(place, ExpectTrueSunriseAndSunset);
}

TEST(SunPolarDays, SunriseAndSunsetAreCrossingsOrTheSunsLowestOrHighestPoints) {
  for (const Place& place : kPolarPlaces) OnEveryDayOf2026(place, ExpectTrueSunriseAndSunset);
}

TEST(SunWhiteNights, DepressionsAreCrossingsOrTheSunsLowestPoints) {
  for (const Place& place : kWhiteNightPlaces) {
    OnEveryDayOf2026(place, [](const Day& day) {
      const Course morning = MorningOf(day);
      const Course evening = EveningOf(day);
      for (const double depression : kDepressions) {
        ExpectTrueMoment(day.place, sun::MorningDepression(day.sunDay, depression), -depression, morning);
        ExpectTrueMoment(day.place, sun::EveningDepression(day.sunDay, depression), -depression, evening);
      }
    });
  }
}

// By hand: the sun does not set where its declination passes 90 degrees less the latitude less 50'. At 65 degrees 59'
// that is 23.183, a quarter of a degree below its 23.436 at the solstice, which it keeps to for 8.5 days before and
// after (0.00347 degrees times the square of the days); at 65 degrees 44' it is 23.433, for 0.9 days.
TEST(SunWhiteNights, DaysWithoutSunsetBeginAtSixtyFiveDegreesFortyFour) {
  const struct {
    int32_t packedLatitude;
    int fewest, most;
  } rows[] = {{6500, 0, 0}, {6543, 0, 0}, {6544, 1, 2}, {6559, 16, 18}, {-6535, 0, 0}, {-6559, 16, 18}};
  for (const auto& row : rows) {
    int without = 0;
    OnEveryDayOf2026({row.packedLatitude, 0, 0, 0, 0}, [&without](const Day& day) {
      if (day.sunset.crossing == Crossing::kStaysAbove) ++without;
    });
    EXPECT_GE(without, row.fewest) << row.packedLatitude;
    EXPECT_LE(without, row.most) << row.packedLatitude;
  }
}

TEST(SunWhiteNights, BelowThePolarCircleTheSunRisesEveryDay) {
  for (const Place& place : kWhiteNightPlaces) {
    OnEveryDayOf2026(place, [](const Day& day) {
      EXPECT_NE(day.sunrise.crossing, Crossing::kStaysBelow);
      EXPECT_NE(day.sunset.crossing, Crossing::kStaysBelow);
    });
  }
}

// Near its lowest point the sun's altitude grows with the square of the time from it, so a moment that comes or goes
// moves by the root of what the lowest altitude changed by from one day to the next; elsewhere it moves less. Midnight
// itself shifts by half a minute at most.
double MostMinutesOfADay(const Place& place, double lowestYesterday, double lowestToday) {
  const double degrees = std::fabs(AltitudeAt(place, lowestToday) - AltitudeAt(place, lowestYesterday)) + 0.001;
  const double cosineProduct = std::cos(kRadians * Degrees(place.packedLatitude)) * std::cos(kRadians * 23.44);
  const double radians = std::sqrt(2 * kRadians * degrees / cosineProduct);
  return 1.05 * 4 * radians / kRadians + 1;  // the Earth turns a degree in four minutes
}

double MinutesMoved(const SunEvent& yesterday, const SunEvent& today) {
  return std::fabs(today.utcSeconds - yesterday.utcSeconds - kDay) / kMinute;
}

void ExpectNoJump(const Day& yesterday, const Day& today) {
  const double morningBound = MostMinutesOfADay(today.place, sun::MidnightBeforeUtcSeconds(yesterday.sunDay),
                                                sun::MidnightBeforeUtcSeconds(today.sunDay));
  const double eveningBound = MostMinutesOfADay(today.place, sun::MidnightAfterUtcSeconds(yesterday.sunDay),
                                                sun::MidnightAfterUtcSeconds(today.sunDay));
  EXPECT_LE(MinutesMoved(yesterday.sunrise, today.sunrise), morningBound);
  EXPECT_LE(MinutesMoved(yesterday.sunset, today.sunset), eveningBound);
  for (const double depression : kDepressions) {
    EXPECT_LE(MinutesMoved(sun::MorningDepression(yesterday.sunDay, depression),
                           sun::MorningDepression(today.sunDay, depression)),
              morningBound);
    EXPECT_LE(MinutesMoved(sun::EveningDepression(yesterday.sunDay, depression),
                           sun::EveningDepression(today.sunDay, depression)),
              eveningBound);
  }
}

TEST(SunWhiteNights, FromDayToDayNoMomentMovesFurtherThanTheSunsCourseExplains) {
  for (const Place& place : kWhiteNightPlaces) {
    OnEveryDayOf2026(place, [](const Day& day) { ExpectNoJump(day, DayAt(day.place, day.unixDay + 1)); });
  }
}

// The sun's day from one sunset to the next sunrise has no gap and no overlap but the night.
TEST(SunWhiteNights, SunsetIsNeverAfterTheNextSunrise) {
  for (const Place& place : kWhiteNightPlaces) {
    OnEveryDayOf2026(place, [](const Day& day) {
      const Day tomorrow = DayAt(day.place, day.unixDay + 1);
      EXPECT_LE(day.sunrise.utcSeconds, day.transit);
      EXPECT_LE(day.transit, day.sunset.utcSeconds);
      EXPECT_LE(day.sunset.utcSeconds, tomorrow.sunrise.utcSeconds + 0.5);
      if (day.sunset.crossing == Crossing::kStaysAbove && tomorrow.sunrise.crossing == Crossing::kStaysAbove) {
        EXPECT_NEAR(day.sunset.utcSeconds, tomorrow.sunrise.utcSeconds, 0.5);
      }
    });
  }
}

// What a program shows: the rounded sunset plus the interval is the depression rounded up or, where the sun does not
// get there, its lowest point rounded up.
TEST(SunWhiteNights, TwilightIntervalsLeadToTheDepressionOrToTheLowestPoint) {
  for (const Place& place : kWhiteNightPlaces) {
    OnEveryDayOf2026(place, [](const Day& day) {
      const double lowest = EveningOf(day).lowest;
      const int32_t offsetSeconds = day.settings.clock.standardOffsetSeconds;
      const int64_t sunset = sun::NearestMinute(day.sunset.utcSeconds, offsetSeconds);
      for (const double depression : kDepressions) {
        const int32_t interval = twilight::EveningIntervalMinutes(day.unixDay, day.settings, depression);
        ASSERT_GE(interval, 0);
        ASSERT_LE(interval, 12 * 60);
        const double shown = static_cast<double>(sunset + interval) * kMinute - offsetSeconds;
        const double latest = AltitudeAt(day.place, shown);
        if (day.sunset.crossing != Crossing::kReached) {
          EXPECT_EQ(interval, 0);
        } else if (lowest < -depression - kFormulaError) {
          EXPECT_LT(latest, -depression + kFormulaError);
          EXPECT_GT(AltitudeAt(day.place, shown - kMinute), -depression - kFormulaError);
        } else if (lowest > -depression + kFormulaError) {
          EXPECT_NEAR(latest, lowest, 0.01);
        }
      }
    });
  }
}

TEST(SunWhiteNights, EveryAnswerIsATimeOfDayWithinADayOfNoon) {
  for (const Place& place : kWhiteNightPlaces) {
    OnEveryDayOf2026(place, [](const Day& day) {
      const int32_t offsetSeconds = day.settings.clock.standardOffsetSeconds;
      const double noon = day.unixDay * kDay + kDay / 2 - offsetSeconds;
      for (const SunEvent& event : {day.sunrise, day.sunset}) {
        EXPECT_LT(std::fabs(event.utcSeconds - noon), 18 * kHour);
        const sun::HourAndMinute time = sun::TimeOfDay(sun::NearestMinute(event.utcSeconds, offsetSeconds));
        EXPECT_TRUE(time.hour >= 0 && time.hour <= 23 && time.minute >= 0 && time.minute <= 59);
      }
    });
  }
}

}  // namespace
