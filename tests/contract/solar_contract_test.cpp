// Expected times: PyEphem 4.1 with the horizon of tools/sun_reference.py, in the clock time of the tz database.
#include "companion/solar.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <limits>
#include <string>

#include "companion/profile.h"
#include "tests/contract/settings_home.h"

namespace {

constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
constexpr int32_t kMost = std::numeric_limits<int32_t>::max();

struct Place {
  int32_t latitude, longitude, zoneHours, zoneMinutes;
};
constexpr Place kAachen = {5047, 605, 1, 0};
constexpr Place kJerusalem = {3147, 3514, 2, 0};

std::string TimeOf(uint32_t event, const Place& place, uint32_t year, uint32_t month, uint32_t day) {
  int32_t hour = -1;
  int32_t minute = -1;
  SolarGetSunsetSunrise(day, month, year, event, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes,
                        &hour, &minute);
  char text[32];
  std::snprintf(text, sizeof text, "%d:%02d", hour, minute);
  return text;
}

std::string Sunset(const Place& place, uint32_t year, uint32_t month, uint32_t day) {
  return TimeOf(SOLAR_SUNSET, place, year, month, day);
}

std::string Sunrise(const Place& place, uint32_t year, uint32_t month, uint32_t day) {
  return TimeOf(SOLAR_SUNRISE, place, year, month, day);
}

class SolarContract : public testing::Test {
 protected:
  SettingsHome home_;
};

TEST_F(SolarContract, IsOfInterfaceVersion256) {
  EXPECT_EQ(SolarGetAPIVersion(), 256u);
}

TEST_F(SolarContract, AnswersInSummerTime) {
  EXPECT_EQ(Sunset(kAachen, 2026, 6, 26), "21:53");     // 21:53:05
  EXPECT_EQ(Sunrise(kAachen, 2026, 6, 26), "5:24");     // 5:23:50
  EXPECT_EQ(Sunset(kJerusalem, 2026, 3, 26), "17:54");  // 17:54:29, the last day of standard time
  EXPECT_EQ(Sunset(kJerusalem, 2026, 3, 27), "18:55");  // 17:55:10 of the standard clock
}

TEST_F(SolarContract, ChangesTheClockOnTheDayOfTheChange) {
  EXPECT_EQ(Sunrise(kAachen, 2026, 3, 28), "6:21");   // 6:20:47
  EXPECT_EQ(Sunrise(kAachen, 2026, 3, 29), "7:19");   // 6:18:34 of the standard clock
  EXPECT_EQ(Sunset(kAachen, 2026, 3, 28), "19:02");   // 19:01:38
  EXPECT_EQ(Sunset(kAachen, 2026, 3, 29), "20:03");   // 19:03:15 of the standard clock
  EXPECT_EQ(Sunset(kAachen, 2026, 10, 24), "18:25");  // 17:25:26 of the standard clock
  EXPECT_EQ(Sunrise(kAachen, 2026, 10, 25), "7:15");  // 7:15:12
  EXPECT_EQ(Sunset(kAachen, 2026, 10, 25), "17:24");  // 17:23:31
}

int32_t ClockOffset(const Place& place, uint32_t year, uint32_t month, uint32_t day, int32_t minuteOfDay) {
  return SolarGetClockOffset(day, month, year, minuteOfDay, place.latitude, place.longitude, place.zoneHours,
                             place.zoneMinutes);
}

// European summer time begins and ends at 1:00 UTC.
TEST_F(SolarContract, TellsTheClocksOffset) {
  EXPECT_EQ(ClockOffset(kAachen, 2026, 3, 28, 26 * 60 + 59), 3600);  // left out on the 29th
  EXPECT_EQ(ClockOffset(kAachen, 2026, 3, 28, 27 * 60), 7200);
  EXPECT_EQ(ClockOffset(kAachen, 2026, 10, 25, 2 * 60 + 30), 7200);  // the first of two
  EXPECT_EQ(ClockOffset(kAachen, 2026, 10, 25, 3 * 60), 3600);
  EXPECT_EQ(ClockOffset(kAachen, 2026, 10, 26, -22 * 60), 7200);
  EXPECT_EQ(ClockOffset(kAachen, 1950, 6, 26, 12 * 60), 3600);
  EXPECT_EQ(ClockOffset({4735, -5245, -3, 30}, 2026, 7, 1, 12 * 60), -(2 * 3600 + 1800));
  EXPECT_EQ(ClockOffset({2743, 8519, 5, 45}, 2026, 7, 1, 12 * 60), 5 * 3600 + 2700);
  ProfileWriteString("SummerTime", "Mode", "Off", "solar.ini");
  EXPECT_EQ(ClockOffset(kAachen, 2026, 7, 1, 12 * 60), 3600);
  ClockOffset({kLeast, kMost, kLeast, kMost}, 0, 99, 4000000000, kLeast);
}

TEST_F(SolarContract, AnswersInStandardTimeBefore1970) {
  EXPECT_EQ(Sunset(kAachen, 1950, 6, 26), "20:53");   // 20:53:02
  EXPECT_EQ(Sunset(kAachen, 1969, 12, 21), "16:32");  // 16:32:10
}

// 17:15:45 of the clock of the time, 5:30 ahead of Greenwich; the place's zone is 5:45 today.
TEST_F(SolarContract, AnswersInTheClockOfTheTimeWhereAZoneChanged) {
  EXPECT_EQ(Sunset({2743, 8519, 5, 45}, 1980, 1, 16), "17:16");
  EXPECT_EQ(Sunset({2743, 8519, 5, 45}, 2026, 1, 16), "17:31");  // 17:31:19
}

TEST_F(SolarContract, CountsTheMinutesOfNegativeZones) {
  EXPECT_EQ(Sunset({4734, -5243, -3, -30}, 2026, 1, 16), "16:38");  // 16:38:12
}

TEST_F(SolarContract, AnswersForTheDateAskedBeyondTheDateLine) {
  EXPECT_EQ(Sunset({152, -15729, 14, 0}, 2026, 1, 16), "18:40");     // 18:40:16
  EXPECT_EQ(Sunrise({152, -15729, 14, 0}, 2026, 1, 16), "6:39");     // 6:38:41
  EXPECT_EQ(Sunset({-4357, -17633, 12, 45}, 2026, 1, 16), "21:13");  // 20:12:42 of the standard clock
  EXPECT_EQ(Sunset({-3651, 17446, 12, 0}, 2026, 7, 16), "17:24");    // 17:23:31
}

TEST_F(SolarContract, PlacesAskedInTurnAnswerEachForItself) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Sunset({152, -15729, 14, 0}, 2026, 1, 16), "18:40");    // 18:40:16
    EXPECT_EQ(Sunset({4734, -5243, -3, -30}, 2026, 1, 16), "16:38");  // 16:38:12
    EXPECT_EQ(Sunset({2743, 8519, 5, 45}, 2026, 1, 16), "17:31");     // 17:31:19
  }
}

TEST_F(SolarContract, ASunsetAfterMidnightAnswersTheSmallHours) {
  EXPECT_EQ(Sunset({6409, -2157, 0, 0}, 2026, 6, 21), "0:04");   // 0:04:08 of the 22nd
  EXPECT_EQ(Sunrise({6409, -2157, 0, 0}, 2026, 6, 21), "2:55");  // 2:55:04
}

TEST_F(SolarContract, AnyOtherEventIsSunset) {
  EXPECT_EQ(TimeOf(7, kAachen, 2026, 6, 26), "21:53");
}

TEST_F(SolarContract, SummerTimeIsSwitchedOffBySetting) {
  ProfileWriteString("SummerTime", "Mode", "Off", "solar.ini");
  EXPECT_EQ(Sunset(kAachen, 2026, 6, 26), "20:53");
  ProfileWriteString("SummerTime", "Mode", "Automatic", "solar.ini");
  EXPECT_EQ(Sunset(kAachen, 2026, 6, 26), "21:53");
}

TEST_F(SolarContract, APlacesZoneIsNamedBySetting) {
  ProfileWriteString("SummerTime", "50-47-6-5-1-0", "none", "solar.ini");
  EXPECT_EQ(Sunset(kAachen, 2026, 6, 26), "20:53");
  ProfileWriteString("SummerTime", "50-47-6-5-1-0", "Europe/London", "solar.ini");
  EXPECT_EQ(Sunset(kAachen, 2026, 6, 26), "20:53");
  ProfileWriteString("SummerTime", "50-47-6-5-1-0", "Asia/Jerusalem", "solar.ini");
  EXPECT_EQ(Sunset(kAachen, 2026, 6, 26), "22:53");
}

TEST_F(SolarContract, AnElevationDelaysSunset) {
  EXPECT_EQ(Sunset(kJerusalem, 2026, 3, 26), "17:54");
  ProfileWriteString("Elevation", "31-47-35-14-2-0", "754", "almanacelevation.ini");
  EXPECT_EQ(Sunset(kJerusalem, 2026, 3, 26), "17:59");  // 17:58:39
  ProfileWriteString("Elevation", "31-47-35-14-2-0", "-754", "almanacelevation.ini");
  EXPECT_EQ(Sunset(kJerusalem, 2026, 3, 26), "17:54");
}

TEST_F(SolarContract, OnePlaceHasAnElevationOfItsOwn) {
  EXPECT_EQ(Sunset({4854, 842, 1, 0}, 2026, 1, 16), "17:01");  // 17:01:10 at 263 metres
  ProfileWriteString("Elevation", "48-54-8-42-1-0", "0", "almanacelevation.ini");
  EXPECT_EQ(Sunset({4854, 842, 1, 0}, 2026, 1, 16), "16:57");  // 16:57:27
}

TEST_F(SolarContract, AnyArgumentsAnswerATimeOfDay) {
  for (const int32_t number : {0, 1, -1, 6559, 9000, -99999, kMost, kLeast}) {
    for (const uint32_t date : {0u, 1u, 12u, 31u, 2026u, 0xFFFFFFFFu}) {
      int32_t hour = -1;
      int32_t minute = -1;
      SolarGetSunsetSunrise(date, date, date, date, number, number, number, number, &hour, &minute);
      EXPECT_TRUE(hour >= 0 && hour <= 23) << hour;
      EXPECT_TRUE(minute >= 0 && minute <= 59) << minute;
    }
  }
}

TEST_F(SolarContract, NullOutputsAreSkipped) {
  SolarGetSunsetSunrise(26, 6, 2026, SOLAR_SUNSET, 5047, 605, 1, 0, nullptr, nullptr);
  int32_t minute = -1;
  SolarGetSunsetSunrise(26, 6, 2026, SOLAR_SUNSET, 5047, 605, 1, 0, nullptr, &minute);
  EXPECT_EQ(minute, 53);
  EXPECT_NE(SolarGetBuiltInLocation(0, nullptr, nullptr, nullptr, nullptr, nullptr), 0u);
}

TEST_F(SolarContract, EveryBuiltInPlaceIsGivenWhole) {
  const uint32_t count = SolarGetCountOfBuiltInLocations();
  ASSERT_GT(count, 0u);
  bool hasJerusalem = false;
  for (uint32_t index = 0; index < count; ++index) {
    char name[256] = "";
    int32_t latitude = kMost, longitude = kMost, hours = kMost, minutes = kMost;
    ASSERT_NE(SolarGetBuiltInLocation(index, name, &latitude, &longitude, &hours, &minutes), 0u) << index;
    EXPECT_STRNE(name, "") << index;
    EXPECT_TRUE(latitude >= -6500 && latitude <= 6500) << name;
    EXPECT_TRUE(longitude >= -18000 && longitude <= 18000) << name;
    EXPECT_TRUE(hours >= -12 && hours <= 14) << name;
    EXPECT_TRUE(minutes > -60 && minutes < 60) << name;
    hasJerusalem = hasJerusalem || (std::strcmp(name, "Jerusalem") == 0 && hours == 2);
  }
  EXPECT_TRUE(hasJerusalem);
}

TEST_F(SolarContract, AnIndexWithoutAPlaceLeavesTheOutputsUntouched) {
  for (const uint32_t index : {SolarGetCountOfBuiltInLocations(), 0xFFFFFFFFu}) {
    char name[256] = "untouched";
    int32_t latitude = 1, longitude = 2, hours = 3, minutes = 4;
    EXPECT_EQ(SolarGetBuiltInLocation(index, name, &latitude, &longitude, &hours, &minutes), 0u);
    EXPECT_STREQ(name, "untouched");
    EXPECT_TRUE(latitude == 1 && longitude == 2 && hours == 3 && minutes == 4);
  }
}

}  // namespace
