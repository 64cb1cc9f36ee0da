// Expected times: PyEphem 4.1 with the horizon of tools/sun_reference.py.
#include "companion/twilight.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "companion/profile.h"
#include "companion/solar.h"
#include "tests/contract/settings_home.h"

namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
constexpr int32_t kMost = std::numeric_limits<int32_t>::max();

class TwilightContract : public testing::Test {
 protected:
  double Read(const char* text, double defaultValue = -1) {
    EXPECT_NE(ProfileWriteString("Shabbat", "Degrees", text, "shabbat2.ini"), 0);
    return TwilightGetProfileDouble("Shabbat", "Degrees", defaultValue, "shabbat2.ini");
  }

  SettingsHome home_;
};

// Minutes after midnight of the sunset shown plus the interval.
int32_t NightfallShown(uint32_t day, uint32_t month, uint32_t year, double depression, int32_t latitude,
                       int32_t longitude, int32_t zoneHours) {
  int32_t hour = -1, minute = -1, hours = -1, minutes = -1;
  SolarGetSunsetSunrise(day, month, year, SOLAR_SUNSET, latitude, longitude, zoneHours, 0, &hour, &minute);
  TwilightCalculate(day, month, year, depression, latitude, longitude, zoneHours, 0, &hours, &minutes);
  EXPECT_GE(hours, 0);
  EXPECT_TRUE(minutes >= 0 && minutes <= 59) << minutes;
  return (hour + hours) * 60 + minute + minutes;
}

TEST_F(TwilightContract, AddedToTheSunsetShownGivesNightfallRoundedUp) {
  EXPECT_EQ(NightfallShown(16, 1, 2026, 8.5, 3147, 3514, 2), 17 * 60 + 38);  // 17:37:24
  EXPECT_EQ(NightfallShown(26, 6, 2026, 8.5, 5047, 605, 1), 23 * 60 + 5);    // 23:04:50 in summer time
}

TEST_F(TwilightContract, SeesTheElevationThatSunsetSees) {
  ProfileWriteString("Elevation", "31-47-35-14-2-0", "754", "almanacelevation.ini");
  int32_t hours = -1, minutes = -1;
  TwilightCalculate(16, 1, 2026, 8.5, 3147, 3514, 2, 0, &hours, &minutes);
  EXPECT_EQ(hours, 0);
  EXPECT_EQ(minutes, 35);  // sunset 17:03:05, nightfall 17:37:24
  EXPECT_EQ(NightfallShown(16, 1, 2026, 8.5, 3147, 3514, 2), 17 * 60 + 38);
}

TEST_F(TwilightContract, IsZeroWhenTheSunStandsThatLowAtSunset) {
  int32_t hours = -1, minutes = -1;
  TwilightCalculate(16, 1, 2026, 0.5, 3147, 3514, 2, 0, &hours, &minutes);
  EXPECT_EQ(hours, 0);
  EXPECT_EQ(minutes, 0);
}

TEST_F(TwilightContract, AnyArgumentsAnswerAnInterval) {
  for (const int32_t number : {0, 6559, -99999, kMost, kLeast}) {
    for (const uint32_t date : {0u, 12u, 0xFFFFFFFFu}) {
      for (const double depression : {8.5, -1e300, std::numeric_limits<double>::infinity(), kNotANumber}) {
        int32_t hours = -1, minutes = -1;
        TwilightCalculate(date, date, date, depression, number, number, number, number, &hours, &minutes);
        EXPECT_TRUE(hours >= 0 && hours <= 24) << hours;
        EXPECT_TRUE(minutes >= 0 && minutes <= 59) << minutes;
      }
    }
  }
  TwilightCalculate(16, 1, 2026, 8.5, 3147, 3514, 2, 0, nullptr, nullptr);
}

TEST_F(TwilightContract, ReadsBackWhateverIsAValidFloat) {
  const std::string manyDigits = "8." + std::string(1000, '3');
  for (const char* text : {"8", "8.5", ".5", "5.", "+8", "-8.5", "007.083", manyDigits.c_str()}) {
    EXPECT_NE(TwilightIsValidFloat(text), 0) << text;
    EXPECT_EQ(Read(text), std::stod(text)) << text;
  }
}

TEST_F(TwilightContract, ANumberLongerThanAnyBufferIsReadWhole) {
  const std::string text = std::string(5000, '0') + "8.5";
  EXPECT_NE(TwilightIsValidFloat(text.c_str()), 0);
  EXPECT_EQ(Read(text.c_str()), 8.5);
}

TEST_F(TwilightContract, ReadsTheNumberThatATextStartsWith) {
  EXPECT_EQ(Read("8,5"), 8);
  EXPECT_EQ(Read("1e5"), 1);
  EXPECT_EQ(Read("8.5 degrees"), 8.5);
}

TEST_F(TwilightContract, WithoutANumberTheDefaultIsRead) {
  EXPECT_EQ(TwilightGetProfileDouble("Shabbat", "Missing", 8.25, "shabbat2.ini"), 8.25);
  for (const char* text : {"", "degrees", ".", "-"}) EXPECT_EQ(Read(text, 8.25), 8.25) << text;
  EXPECT_EQ(TwilightGetProfileDouble(nullptr, "Degrees", 8.25, "shabbat2.ini"), 8.25);
  EXPECT_EQ(TwilightGetProfileDouble("Shabbat", nullptr, 8.25, "shabbat2.ini"), 8.25);
  EXPECT_EQ(TwilightGetProfileDouble("Shabbat", "Degrees", 8.25, nullptr), 8.25);
}

TEST_F(TwilightContract, WhatIsNoNumberIsNoValidFloat) {
  for (const char* text : {"", " ", ".", "8,5", "1e5", "8.5.1", "0x10", "nan", "inf", "8 5"}) {
    EXPECT_EQ(TwilightIsValidFloat(text), 0) << text;
  }
  EXPECT_EQ(TwilightIsValidFloat(nullptr), 0);
  EXPECT_NE(TwilightIsValidFloat(" 8.5\t"), 0);
}

}  // namespace
