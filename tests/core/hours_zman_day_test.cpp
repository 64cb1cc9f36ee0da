#include "libraries/hours/zman_day.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/own_zman.h"
#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/places.h"

namespace hours {
namespace {

constexpr int64_t kMinutesPerDay = 24 * 60;

// On the standard clock all year unless a zone is named.
sun::PlaceSettings PlaceAt(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes = 0,
                           double metres = 0, const char* zoneId = "") {
  const sun::Site site = sun::SiteFromPacked(packedLatitude, packedLongitude, zoneHours, zoneMinutes);
  sun::PlaceSettings place = {site, metres, {site.standardOffsetMinutes * 60, {}}};
  std::string(zoneId).copy(place.clock.zoneId.data(), place.clock.zoneId.size() - 1);
  return place;
}

int64_t ShownMinute(const sun::PlaceSettings& place, const sun::SunEvent& event) {
  return sun::NearestMinute(event.utcSeconds, sun::ClockOffsetSeconds(place.clock, event.utcSeconds));
}

// The day with sunrise and sunset as the solar library shows them.
ZmanDay DayAt(int32_t unixDay, const sun::PlaceSettings& place) {
  const sun::SunDay day = sun::ComputeSunDay(unixDay, place.site);
  const auto ofDay = [&](const sun::SunEvent& event) {
    const sun::HourAndMinute time = sun::TimeOfDay(ShownMinute(place, event));
    return int64_t{time.hour} * 60 + time.minute;
  };
  return ZmanDay(unixDay, place,
                 {ofDay(sun::Sunrise(day, place.elevationMetres)), ofDay(sun::Sunset(day, place.elevationMetres))});
}

const Definition& Zman(const std::string& id) {
  const CatalogueZman* zman = FindInCatalogue(id);
  if (!zman) throw std::invalid_argument(id);
  return zman->definition;
}

std::string ClockText(std::optional<int64_t> minute) {
  if (!minute) return "----";
  const sun::HourAndMinute time = sun::TimeOfDay(*minute);
  char text[16];
  std::snprintf(text, sizeof text, "%d:%02d", time.hour, time.minute);
  return text;
}

std::string TimeOf(const char* id, int32_t unixDay, const sun::PlaceSettings& place) {
  return ClockText(DayAt(unixDay, place).ClockMinute(Zman(id)));
}

// What follows from one reckoning of day and night comes in this order.
const std::vector<std::vector<const char*>> kOrders = {
    {"dawn-120-min",
     "dawn-96-min",
     "dawn-90-min",
     "dawn-72-min",
     "dawn-60-min",
     "sunrise",
     "shema-gra",
     "tefila-gra",
     "midday-half",
     "mincha-gedola-gra",
     "samuch-gra",
     "mincha-ketana-gra",
     "plag-gra",
     "twilight-yereim-18-min",
     "twilight-yereim-13.5-min",
     "sunset",
     "nightfall-36-min",
     "nightfall-40-min",
     "nightfall-42-min",
     "nightfall-45-min",
     "nightfall-50-min",
     "twilight-58.5-min",
     "nightfall-60-min",
     "nightfall-72-min",
     "nightfall-90-min",
     "nightfall-96-min",
     "nightfall-120-min"},
    {"dawn-120-zmanis", "dawn-96-zmanis", "dawn-90-zmanis", "dawn-72-zmanis", "sunrise", "sunset",
     "nightfall-72-zmanis", "nightfall-90-zmanis", "nightfall-96-zmanis", "nightfall-120-zmanis"},
    {"candles-40-min", "candles-30-min", "candles-22-min", "candles-20-min", "candles-18-min", "candles-15-min",
     "sunset"},
    {"dawn-72-min", "shema-mga-72-min", "tefila-mga-72-min", "mincha-gedola-mga-72-min", "samuch-mga-72-min",
     "mincha-ketana-mga-72-min", "plag-mga-72-min", "nightfall-72-min"},
    {"shema-mga-120-min", "shema-mga-96-min", "shema-mga-90-min", "shema-mga-72-min", "shema-gra", "tefila-gra"},
    {"shema-mga-96-zmanis", "shema-mga-90-zmanis", "shema-mga-72-zmanis", "shema-gra"},
    {"dawn-16.1", "shema-mga-16.1", "tefila-mga-16.1", "mincha-gedola-mga-16.1", "samuch-mga-16.1",
     "mincha-ketana-mga-16.1", "plag-mga-16.1", "nightfall-16.1"},
    {"dawn-18", "shema-mga-18", "tefila-mga-18", "plag-mga-18", "nightfall-18"},
    {"dawn-19.8", "shema-mga-19.8", "tefila-mga-19.8", "plag-mga-19.8", "nightfall-19.8"},
    {"dawn-72-zmanis", "shema-ateret-torah", "tefila-ateret-torah", "mincha-gedola-ateret-torah",
     "mincha-ketana-ateret-torah", "nightfall-40-min"},
    {"dawn-16.9", "sunrise-baal-hatanya", "shema-baal-hatanya", "tefila-baal-hatanya", "mincha-gedola-baal-hatanya",
     "mincha-ketana-baal-hatanya", "plag-baal-hatanya", "sunset-baal-hatanya", "nightfall-6"},
    {"dawn-26",
     "dawn-19.8",
     "dawn-19",
     "dawn-18",
     "dawn-16.9",
     "dawn-16.1",
     "tallit-12.85",
     "tallit-11.5",
     "tallit-11",
     "tallit-10.2",
     "tallit-9.5",
     "tallit-7.65",
     "sunrise-baal-hatanya",
     "sunrise-sea-level",
     "midday",
     "sunset-sea-level",
     "sunset-baal-hatanya",
     "nightfall-3.7",
     "nightfall-3.8",
     "nightfall-4.42",
     "nightfall-4.66",
     "nightfall-4.8",
     "nightfall-5.95",
     "nightfall-6",
     "nightfall-6.45",
     "nightfall-7.083",
     "nightfall-7.5",
     "nightfall-7.67",
     "nightfall-8.5",
     "nightfall-8.75",
     "nightfall-9.3",
     "nightfall-9.75",
     "nightfall-11",
     "twilight-13.24",
     "nightfall-16.1",
     "nightfall-18",
     "nightfall-19.8",
     "midnight"},
};

using Order = std::vector<std::pair<const char*, Definition>>;

void ExpectOrder(const Order& order, ZmanDay& day, const std::string& where) {
  const char* before = "";
  double momentBefore = -1e18;
  int64_t minuteBefore = std::numeric_limits<int64_t>::min();
  for (const auto& [id, zman] : order) {
    const std::optional<double> moment = day.UtcSeconds(zman);
    if (!moment) continue;
    const int64_t minute = day.ClockMinute(zman).value();
    ASSERT_GE(*moment, momentBefore) << where << ": " << before << " and " << id;
    ASSERT_GE(minute, minuteBefore) << where << ": " << before << " and " << id;
    before = id;
    momentBefore = *moment;
    minuteBefore = minute;
  }
}

TEST(HoursZmanDay, OrderOfTheDayHoldsUpToSixtyDegreesOnEveryDayOfAYear) {
  std::vector<Order> orders;
  for (const auto& ids : kOrders) {
    Order& order = orders.emplace_back();
    for (const char* id : ids) order.emplace_back(id, Zman(id));
  }
  const int32_t first = sun::UnixDayOfDate(1, 1, 2026);
  for (int32_t latitude = -60; latitude <= 60; latitude += 5) {
    // The clock runs up to two hours ahead of the sun, as in western China.
    const sun::PlaceSettings place = PlaceAt(latitude * 100, -latitude * 200, (latitude + 60) / 60);
    for (int32_t unixDay = first; unixDay < first + 365; ++unixDay) {
      ZmanDay day = DayAt(unixDay, place);
      const std::string where = std::to_string(latitude) + " degrees, day " + std::to_string(unixDay - first + 1);
      for (const Order& order : orders) ASSERT_NO_FATAL_FAILURE(ExpectOrder(order, day, where));
    }
  }
}

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

}  // namespace
}  // namespace hours
