#include "libraries/hours/zman_day.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "libraries/hours/own_zman.h"
#include "tests/core/hours_days.h"

namespace hours {
namespace {

constexpr int64_t kMinutesPerDay = 24 * 60;

// Which ends of its day a zman needs by degrees, 0 for none.
struct NeededDepressions {
  double morning = 0;
  double evening = 0;
};

NeededDepressions NeededBy(const Reckoning& reckoning) {
  const auto degrees = [](const Bound& bound) {
    return bound.kind == BoundKind::kDegrees ? bound.thousandths / 1000.0 : 0;
  };
  NeededDepressions needed;
  if (reckoning.day.end.kind == BoundKind::kDawnParts) return {19.8, 0};
  if (reckoning.thousandthHours != kDayThousandthHours) needed.morning = degrees(reckoning.day.start);
  if (reckoning.thousandthHours != 0) needed.evening = degrees(reckoning.day.end);
  return needed;
}

TEST(HoursZmanDay, FromSixtyDegreesToThePolesExactlyTheDepressionsThatDoNotOccurHaveNoTime) {
  int64_t missing = 0;
  for (const int32_t latitude : {-9000, -6600, -6544, -6400, -6200, -6000, 6000, 6100, 6300, 6559, 6600, 7800, 9000}) {
    const sun::PlaceSettings place = PlaceAt(latitude, 1500, 1);
    for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay < sun::UnixDayOfDate(1, 1, 2027); unixDay += 3) {
      const sun::SunDay sunDay = sun::ComputeSunDay(unixDay, place.site);
      ZmanDay day = DayAt(unixDay, place);
      for (const CatalogueZman& zman : Catalogue()) {
        if (zman.definition.isForPesachEve) continue;
        const NeededDepressions needed = NeededBy(zman.definition.reckoning);
        const auto isReached = [](const sun::SunEvent& event) { return event.crossing == sun::Crossing::kReached; };
        const bool occurs = (needed.morning == 0 || isReached(sun::MorningDepression(sunDay, needed.morning))) &&
                            (needed.evening == 0 || isReached(sun::EveningDepression(sunDay, needed.evening)));
        ASSERT_EQ(day.ClockMinute(zman.definition).has_value(), occurs) << zman.id << " " << latitude << " " << unixDay;
        missing += occurs ? 0 : 1;
      }
    }
  }
  EXPECT_GT(missing, 1000);
}

// By hand: at the solstice the sun sinks 90 - 64 - 23.44 = 2.56 degrees below the horizon of 64 degrees.
TEST(HoursZmanDay, WhiteNightsAreTheSameInBothHemispheres) {
  const std::pair<sun::PlaceSettings, int32_t> solstices[] = {{PlaceAt(6400, 0, 0), sun::UnixDayOfDate(21, 6, 2026)},
                                                              {PlaceAt(-6400, 0, 0), sun::UnixDayOfDate(21, 12, 2026)}};
  for (const auto& [place, unixDay] : solstices) {
    EXPECT_NE(TimeOf("sunset-baal-hatanya", unixDay, place), "----");
    for (const char* id : {"nightfall-3.7", "nightfall-8.5", "dawn-16.1", "tallit-11", "shema-mga-16.1",
                           "twilight-13.24", "twilight-13.5-min-before-7.083", "shema-16.1-to-sunset"}) {
      EXPECT_EQ(TimeOf(id, unixDay, place), "----") << id;
    }
    for (const char* id : {"sunrise", "sunset", "shema-gra", "shema-mga-72-min", "nightfall-72-zmanis", "midnight"}) {
      EXPECT_NE(TimeOf(id, unixDay, place), "----") << id;
    }
  }
}

// In the polar day sunrise and sunset are the lowest points, so the day has 24 hours; in the polar night both are
// midday.
TEST(HoursZmanDay, WhereTheSunStaysUpOrDownTheDayRunsBetweenTheStandIns) {
  const sun::PlaceSettings place = PlaceAt(6939, 1858, 1);
  const int32_t summer = sun::UnixDayOfDate(21, 6, 2026);
  ZmanDay polarDay = DayAt(summer, place);
  const double shema = *polarDay.UtcSeconds(Zman("shema-gra"));
  EXPECT_NEAR(*polarDay.UtcSeconds(Zman("midday")) - shema, 6 * 3600, 60);
  EXPECT_EQ(*polarDay.UtcSeconds(Zman("midnight")), *polarDay.UtcSeconds(Zman("sunset")));

  const int32_t winter = sun::UnixDayOfDate(21, 12, 2026);
  ZmanDay polarNight = DayAt(winter, place);
  for (const char* id : {"sunrise", "shema-gra", "plag-gra", "sunset", "nightfall-72-zmanis"}) {
    EXPECT_EQ(*polarNight.UtcSeconds(Zman(id)), *polarNight.UtcSeconds(Zman("midday"))) << id;
  }
  EXPECT_NE(TimeOf("nightfall-8.5", winter, place), "----");
  EXPECT_EQ(TimeOf("sunset-baal-hatanya", winter, place), "----");
}

// Past 65 degrees 44 minutes the sun may set after midnight.
TEST(HoursZmanDay, SunriseAndSunsetAreTheShownOnesOnEveryDay) {
  for (const int32_t latitude : {-6544, 0, 3147, 6400, 6544, 6559}) {
    const sun::PlaceSettings place = PlaceAt(latitude, 2528, 1, 0, 200);
    for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay < sun::UnixDayOfDate(1, 1, 2027); ++unixDay) {
      const sun::SunDay sunDay = sun::ComputeSunDay(unixDay, place.site);
      ZmanDay day = DayAt(unixDay, place);
      EXPECT_TRUE(day.AgreesWithShown());
      EXPECT_EQ(day.ClockMinute(Zman("sunrise")), ShownMinute(place, sun::Sunrise(sunDay, 200)));
      EXPECT_EQ(day.ClockMinute(Zman("sunset")), ShownMinute(place, sun::Sunset(sunDay, 200)));
      EXPECT_EQ(day.ClockMinute(Zman("nightfall-72-min")), ShownMinute(place, sun::Sunset(sunDay, 200)) + 72);
    }
  }
}

TEST(HoursZmanDay, WholeMinutesAreCountedFromTheShownMinuteWhateverItIs) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2);
  const int32_t friday = sun::UnixDayOfDate(16, 1, 2026);
  for (const int64_t days : {-3, 0, 5}) {
    ZmanDay day(friday, place, {6 * 60 + days * kMinutesPerDay, 17 * 60 + 1 + days * kMinutesPerDay});
    EXPECT_FALSE(day.AgreesWithShown());
    EXPECT_EQ(ClockText(day.ClockMinute(Zman("sunrise"))), "6:00");
    EXPECT_EQ(ClockText(day.ClockMinute(Zman("dawn-72-min"))), "4:48");
    EXPECT_EQ(ClockText(day.ClockMinute(Zman("candles-18-min"))), "16:43");
    EXPECT_EQ(ClockText(day.ClockMinute(Zman("twilight-yereim-18-min"))), "16:43");
    EXPECT_EQ(ClockText(day.ClockMinute(Zman("twilight-yereim-13.5-min"))), "16:45");  // exact: 16:45:02
    EXPECT_EQ(day.ClockMinute(Zman("sunset")).value() / kMinutesPerDay, friday);
  }
}

// Sunset 16:58:32 and H = 51:36.5 by PyEphem 4.1; by hand 72/60 of H are 61:56, so the moment is 18:00:28.
TEST(HoursZmanDay, ProportionalMinutesAreFractionsOfTheDay) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2);
  EXPECT_EQ(TimeOf("nightfall-72-zmanis", sun::UnixDayOfDate(16, 1, 2026), place), "18:01");
}

// By hand: 12:00 of mean time in Jerusalem (35 degrees 14 minutes are 2:20:56) is 11:39:04 on the clock of +2 hours.
TEST(HoursZmanDay, FixedNoonIsTheMeridiansMeanTimeAllYear) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2);
  for (uint32_t month = 1; month <= 12; ++month) {
    EXPECT_EQ(TimeOf("midday-fixed", sun::UnixDayOfDate(11, month, 2026), place), "11:39");
  }
}

// The equation of time is never more than 16.5 minutes.
TEST(HoursZmanDay, FixedNoonAndMidnightBelongToTheDateEverywhere) {
  const sun::PlaceSettings eastern[] = {PlaceAt(152, -15729, 14), PlaceAt(-1350, -17145, 13),
                                        PlaceAt(-4357, -17633, 12, 45), PlaceAt(-1417, -17042, -11),
                                        PlaceAt(6444, 17731, 12)};
  for (const sun::PlaceSettings& place : eastern) {
    for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay < sun::UnixDayOfDate(1, 1, 2027); unixDay += 5) {
      ZmanDay day = DayAt(unixDay, place);
      const double midday = *day.UtcSeconds(Zman("midday"));
      EXPECT_LT(std::fabs(*day.UtcSeconds(Zman("midday-fixed")) - midday), 16.6 * 60);
      EXPECT_NEAR(*day.UtcSeconds(Zman("midnight")) - midday, 12 * 3600, 30);
      EXPECT_EQ(*day.ClockMinute(Zman("midday")) / kMinutesPerDay, unixDay);
      const int64_t sunrise = *day.ClockMinute(Zman("sunrise"));
      EXPECT_EQ(sunrise / kMinutesPerDay, unixDay);
    }
  }
}

TEST(HoursZmanDay, LaterOfTwoIsTheLaterInSummerAndInWinter) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2);
  for (const auto& [month, later] : {std::pair{6u, "mincha-gedola-gra"}, {12u, "mincha-gedola-30-min"}}) {
    ZmanDay day = DayAt(sun::UnixDayOfDate(21, month, 2026), place);
    EXPECT_EQ(day.UtcSeconds(Zman("mincha-gedola-later")), day.UtcSeconds(Zman(later)));
  }
}

// The clock goes from 2:00 to 3:00 on that night; sunrise is at 6:34 of the new time, 5:34 of the old.
TEST(HoursZmanDay, MinutesAreCountedAcrossAChangeOfTheClock) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2, 0, 0, "Asia/Jerusalem");
  ZmanDay day = DayAt(sun::UnixDayOfDate(27, 3, 2026), place);
  EXPECT_EQ(ClockText(day.ClockMinute(Zman("sunrise"))), "6:34");
  const OwnZman early = {1, FindOwnForm("minutes-before-sunrise"), 300000, Rounding::kDown, "a", ""};
  EXPECT_EQ(ClockText(day.ClockMinute(DefinitionOf(early))), "0:34");
  const OwnZman earlyByHalf = {1, FindOwnForm("minutes-before-sunrise"), 300500, Rounding::kDown, "a", ""};
  EXPECT_EQ(ClockText(day.ClockMinute(DefinitionOf(earlyByHalf))), "0:33");  // sunrise 6:34:12, so 0:33:42
}

TEST(HoursZmanDay, OwnZmanimAgreeWithTheCataloguesOfTheSameDefinition) {
  const struct {
    const char* form;
    int32_t thousandths;
    Rounding rounding;
    const char* id;
  } pairs[] = {
      {"degrees-before-sunrise", 16100, Rounding::kDown, "dawn-16.1"},
      {"degrees-after-sunset", 8500, Rounding::kUp, "nightfall-8.5"},
      {"minutes-before-sunrise", 72000, Rounding::kDown, "dawn-72-min"},
      {"minutes-after-sunrise", 0, Rounding::kDown, "sunrise"},
      {"minutes-before-sunset", 13500, Rounding::kDown, "twilight-yereim-13.5-min"},
      {"minutes-after-sunset", 45000, Rounding::kDown, "nightfall-45-min"},
      {"zmanis-before-sunrise", 90000, Rounding::kDown, "dawn-90-zmanis"},
      {"zmanis-after-sunset", 72000, Rounding::kUp, "nightfall-72-zmanis"},
      {"zmanis-after-sunrise", 180000, Rounding::kDown, "shema-gra"},
      {"zmanis-before-sunset", 75000, Rounding::kUp, "plag-gra"},
      {"hours-mga-16.1", 4000, Rounding::kDown, "tefila-mga-16.1"},
      {"hours-baal-hatanya", 10750, Rounding::kUp, "plag-baal-hatanya"},
      {"hours-ateret-torah", 9500, Rounding::kUp, "mincha-ketana-ateret-torah"},
      {"degrees-before-sunset", 2800, Rounding::kDown, "twilight-yereim-2.8"},
      {"minutes-before-midday", 180000, Rounding::kDown, "shema-3-clock-hours"},
      {"minutes-after-midday", 30000, Rounding::kUp, "mincha-gedola-30-min"},
      {"minutes-before-fixed-noon", 0, Rounding::kNearest, "midday-fixed"},
      {"minutes-after-fixed-noon", 30000, Rounding::kUp, "mincha-gedola-fixed-noon"},
      {"minutes-before-midnight", 0, Rounding::kDown, "midnight"},
      {"minutes-after-half-night", 0, Rounding::kDown, "midnight-half"},
      {"minutes-before-fixed-midnight", 0, Rounding::kDown, "midnight-fixed"},
      {"hours-gra-fixed-noon", 3000, Rounding::kDown, "shema-sunrise-fixed-noon"},
      {"hours-gra-fixed-noon", 4000, Rounding::kDown, "tefila-sunrise-fixed-noon"},
      {"hours-gra-fixed-noon", 9500, Rounding::kUp, "mincha-ketana-fixed-noon"},
      {"hours-gra-fixed-noon", 10750, Rounding::kUp, "plag-fixed-noon"},
      {"hours-mga-72-min-fixed-noon", 3000, Rounding::kDown, "shema-72-min-fixed-noon"},
      {"hours-mga-90-min-fixed-noon", 3000, Rounding::kDown, "shema-90-min-fixed-noon"},
      {"hours-mga-16.1-fixed-noon", 3000, Rounding::kDown, "shema-16.1-fixed-noon"},
      {"hours-mga-18-fixed-noon", 3000, Rounding::kDown, "shema-18-fixed-noon"},
      {"hours-night", 6000, Rounding::kDown, "midnight-half"},
  };
  const sun::PlaceSettings place = PlaceAt(5047, 605, 1);
  ZmanDay day = DayAt(sun::UnixDayOfDate(16, 3, 2026), place);
  for (const auto& pair : pairs) {
    const OwnZman own = {1, FindOwnForm(pair.form), pair.thousandths, pair.rounding, "a", ""};
    EXPECT_NEAR(*day.UtcSeconds(DefinitionOf(own)), *day.UtcSeconds(Zman(pair.id)), 1e-4) << pair.id;
    EXPECT_EQ(day.ClockMinute(DefinitionOf(own)), day.ClockMinute(Zman(pair.id))) << pair.id;
  }
}

// Far more depressions than the day has slots for.
TEST(HoursZmanDay, AnyNumberOfDepressionsIsAnswered) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2);
  const int32_t friday = sun::UnixDayOfDate(16, 1, 2026);
  const sun::SunDay sunDay = sun::ComputeSunDay(friday, place.site);
  ZmanDay day = DayAt(friday, place);
  for (int round = 0; round < 2; ++round) {
    for (int32_t thousandths = 1000; thousandths < 16000; thousandths += 7) {
      const OwnZman own = {1, FindOwnForm("degrees-after-sunset"), thousandths, Rounding::kUp, "a", ""};
      EXPECT_EQ(*day.UtcSeconds(DefinitionOf(own)), sun::EveningDepression(sunDay, thousandths / 1000.0).utcSeconds);
    }
  }
}

TEST(HoursZmanDay, OfTwoTimesTheLaterOrTheEarlierCountsAndNoneWhereOneDoesNotOccur) {
  const OwnForm* const midday = FindOwnForm("minutes-after-midday");
  const OwnForm* const hours = FindOwnForm("hours-gra");
  const OwnForm* const degrees = FindOwnForm("degrees-after-sunset");
  const OwnZman later = {1, hours, 6500, Rounding::kUp, "a", "", OwnOther{true, midday, 30000}};
  const OwnZman earlier = {1, midday, 30000, Rounding::kUp, "a", "", OwnOther{false, hours, 6500}};
  const OwnZman night = {1, hours, 12000, Rounding::kUp, "a", "", OwnOther{true, degrees, 8500}};
  const sun::PlaceSettings place = PlaceAt(6400, 1500, 1);
  for (const uint32_t month : {6u, 12u}) {
    ZmanDay day = DayAt(sun::UnixDayOfDate(21, month, 2026), place);
    const bool isSummer = month == 6;
    const char* const halfHour = "mincha-gedola-30-min";
    const char* const gra = "mincha-gedola-gra";
    EXPECT_EQ(day.UtcSeconds(DefinitionOf(later)), day.UtcSeconds(Zman(isSummer ? gra : halfHour)));
    EXPECT_EQ(day.UtcSeconds(DefinitionOf(earlier)), day.UtcSeconds(Zman(isSummer ? halfHour : gra)));
    EXPECT_EQ(day.ClockMinute(DefinitionOf(later)), day.ClockMinute(Zman("mincha-gedola-later")));
    EXPECT_EQ(day.ClockMinute(DefinitionOf(night)).has_value(), !isSummer);
  }
}

// By hand, 35 degrees 14 minutes being 2:20:56: 0:00 of mean time is 23:39:04 on the clock of +2 hours.
TEST(HoursZmanDay, MidnightOfTheMeridianIsHalfADayAfterItsNoon) {
  const sun::PlaceSettings place = PlaceAt(3147, 3514, 2);
  for (uint32_t month = 1; month <= 12; ++month) {
    EXPECT_EQ(TimeOf("midnight-fixed", sun::UnixDayOfDate(11, month, 2026), place), "23:39");
  }
}

TEST(HoursZmanDay, HalfOfTheNightIsBetweenSunsetAndTheNextSunrise) {
  const sun::PlaceSettings places[] = {PlaceAt(3147, 3514, 2), PlaceAt(-3749, 14458, 10), PlaceAt(6939, 1858, 1),
                                       PlaceAt(-13, -7831, -5, 0, 2850)};
  for (const sun::PlaceSettings& place : places) {
    for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay < sun::UnixDayOfDate(1, 1, 2027); unixDay += 7) {
      const double sunset = *DayAt(unixDay, place).UtcSeconds(Zman("sunset"));
      const double sunrise = *DayAt(unixDay + 1, place).UtcSeconds(Zman("sunrise"));
      EXPECT_NEAR(*DayAt(unixDay, place).UtcSeconds(Zman("midnight-half")), (sunset + sunrise) / 2, 1e-3) << unixDay;
    }
  }
}

// By hand: dawn by 19.8 degrees is 90 minutes before sunrise at the equinox in Jerusalem, and 5/18 of that are 25.
TEST(HoursZmanDay, TwoStarsAreFiveEighteenthsOfDawnAfterSunset) {
  ZmanDay day = DayAt(sun::UnixDayOfDate(16, 3, 2026), PlaceAt(3147, 3514, 2));
  const double sunset = *day.UtcSeconds(Zman("sunset"));
  EXPECT_NEAR(*day.UtcSeconds(Zman("twilight-two-stars")) - sunset, 25 * 60, 15);
}

// The sun of the polar night stays below the horizon, and so above no altitude over it.
TEST(HoursZmanDay, DegreesAboveTheHorizonHaveNoTimeWhereTheSunStaysLower) {
  const sun::PlaceSettings place = PlaceAt(6939, 1858, 1);
  EXPECT_EQ(TimeOf("twilight-yereim-2.1", sun::UnixDayOfDate(21, 12, 2026), place), "----");
  EXPECT_EQ(TimeOf("twilight-yereim-2.1", sun::UnixDayOfDate(21, 6, 2026), place), "----");
  EXPECT_NE(TimeOf("twilight-yereim-2.1", sun::UnixDayOfDate(20, 3, 2026), place), "----");
}

}  // namespace
}  // namespace hours
