#include "libraries/sun/place_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace {

// The files' texts by "file|section|key", and the keys asked for, behind the plain functions that a reader is made of.
std::map<std::string, const char*> texts;
std::vector<std::string> asked;

uint32_t ReadText(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                  const char* file) {
  const std::string name = std::string(file).append("|").append(section).append("|").append(key);
  asked.push_back(name);
  const auto found = texts.find(name);
  return static_cast<uint32_t>(std::snprintf(buffer, size, "%s", found == texts.end() ? defaultValue : found->second));
}

int32_t ReadInt(const char* section, const char* key, int32_t defaultValue, const char* file) {
  char text[32];
  ReadText(section, key, "", text, sizeof text, file);
  return text[0] ? std::stoi(text) : defaultValue;
}

constexpr sun::PackedPlace kAachen = {5047, 605, 1, 0};

class SunPlaceSettings : public testing::Test {
 protected:
  SunPlaceSettings() {
    texts.clear();
    asked.clear();
  }

  std::string ZoneOf(const sun::PackedPlace& place) {
    return sun::ReadPlaceSettings(reader_, place).clock.zoneId.data();
  }
  double ElevationOf(const sun::PackedPlace& place) { return sun::ReadPlaceSettings(reader_, place).elevationMetres; }

  const sun::SettingsReader reader_ = {ReadInt, ReadText};
};

TEST_F(SunPlaceSettings, TheKeyHasUnsignedCoordinatesAndASignedZone) {
  EXPECT_STREQ(sun::KeyOf({3147, 3514, 2, 0}).data(), "31-47-35-14-2-0");
  EXPECT_STREQ(sun::KeyOf({4734, -5243, -3, -30}).data(), "47-34-52-43--3--30");
  EXPECT_STREQ(sun::KeyOf({-5, -9, 0, 0}).data(), "0-5-0-9-0-0");
}

TEST_F(SunPlaceSettings, TheKeyOfTheLeastNumbersIsWhole) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  EXPECT_STREQ(sun::KeyOf({kLeast, kLeast, kLeast, kLeast}).data(), "21474836-48-21474836-48--2147483648--2147483648");
}

TEST_F(SunPlaceSettings, ElevationIsReadByTheKeyOfThePlace) {
  texts["almanacelevation.ini|Elevation|31-47-35-14-2-0"] = "754";
  EXPECT_EQ(ElevationOf({3147, 3514, 2, 0}), 754);
  EXPECT_EQ(ElevationOf({-3147, -3514, 2, 0}), 754);
  EXPECT_EQ(ElevationOf({3147, 3514, 3, 0}), 0);
}

// The tz database has St. John's at -3:30, which some settings write -3 and -30, some -3 and 30.
TEST_F(SunPlaceSettings, SettingsUnderTheMinutesOtherSignAreFound) {
  texts["almanacelevation.ini|Elevation|47-34-52-43--3--30"] = "120";
  texts["solar.ini|SummerTime|47-34-52-43--3--30"] = "America/Halifax";
  for (const int32_t minutes : {30, -30}) {
    EXPECT_EQ(ElevationOf({4734, -5243, -3, minutes}), 120) << minutes;
    EXPECT_EQ(ZoneOf({4734, -5243, -3, minutes}), "America/Halifax") << minutes;
  }
  texts["almanacelevation.ini|Elevation|47-34-52-43--3-30"] = "0";
  texts["solar.ini|SummerTime|47-34-52-43--3-30"] = "none";
  EXPECT_EQ(ElevationOf({4734, -5243, -3, 30}), 0);
  EXPECT_EQ(ZoneOf({4734, -5243, -3, 30}), "");
  EXPECT_EQ(ElevationOf({4734, -5243, -3, -30}), 120);
}

TEST_F(SunPlaceSettings, WithoutHoursTheMinutesSignsAreTwoZones) {
  texts["almanacelevation.ini|Elevation|5-0-1-0-0--30"] = "120";
  EXPECT_EQ(ElevationOf({500, 100, 0, 30}), 0);
  EXPECT_EQ(ElevationOf({500, 100, 0, -30}), 120);
}

TEST_F(SunPlaceSettings, TheZonesMinutesGoTheWayOfItsHours) {
  for (const int32_t minutes : {30, -30}) {
    EXPECT_EQ(sun::ReadPlaceSettings(reader_, {4734, -5243, -3, minutes}).site.standardOffsetMinutes, -210) << minutes;
  }
}

TEST_F(SunPlaceSettings, AnElevationBelowTheSeaIsNone) {
  texts["almanacelevation.ini|Elevation|31-30-35-28-2-0"] = "-430";
  EXPECT_EQ(ElevationOf({3130, 3528, 2, 0}), 0);
}

// Deliberate: one place is known to lie at 263 metres without a setting, north and east only.
TEST_F(SunPlaceSettings, OnePlaceHasAnElevationOfItsOwn) {
  EXPECT_EQ(ElevationOf({4854, 842, 1, 0}), 263);
  EXPECT_EQ(ElevationOf({4854, 842, 1, 30}), 263);
  EXPECT_EQ(ElevationOf({-4854, 842, 1, 0}), 0);
  EXPECT_EQ(ElevationOf({4854, -842, 1, 0}), 0);
  EXPECT_EQ(ElevationOf({4854, 842, 2, 0}), 0);
  texts["almanacelevation.ini|Elevation|48-54-8-42-1-0"] = "0";
  EXPECT_EQ(ElevationOf({4854, 842, 1, 0}), 0);
}

TEST_F(SunPlaceSettings, TheNearestPlaceOfTheSameOffsetGivesTheZone) {
  EXPECT_EQ(ZoneOf(kAachen), "Europe/Berlin");
  EXPECT_EQ(ZoneOf({3147, 3514, 2, 0}), "Asia/Jerusalem");
}

TEST_F(SunPlaceSettings, AnOffsetThatNoPlaceHasGivesTheStandardClock) {
  EXPECT_EQ(ZoneOf({5047, 605, 1, 17}), "");
  EXPECT_EQ(sun::ReadPlaceSettings(reader_, {5047, 605, 1, 17}).clock.standardOffsetSeconds, 77 * 60);
}

TEST_F(SunPlaceSettings, ModeOffGivesTheStandardClockEvenWhereTheSettingsNameAZone) {
  texts["solar.ini|SummerTime|5-0-0-0-0-0"] = "Europe/Berlin";
  texts["solar.ini|SummerTime|50-47-6-5-1-0"] = "Europe/Berlin";
  for (const char* off : {"Off", "off", "OFF"}) {
    texts["solar.ini|SummerTime|Mode"] = off;
    EXPECT_EQ(ZoneOf(kAachen), "") << off;
  }
}

TEST_F(SunPlaceSettings, AnyOtherModeIsAutomatic) {
  for (const char* mode : {"Automatic", "", "On", "Offf", "Of"}) {
    texts["solar.ini|SummerTime|Mode"] = mode;
    EXPECT_EQ(ZoneOf(kAachen), "Europe/Berlin") << mode;
  }
}

TEST_F(SunPlaceSettings, TheSettingsNameAPlacesZone) {
  texts["solar.ini|SummerTime|50-47-6-5-1-0"] = "Asia/Jerusalem";
  EXPECT_EQ(ZoneOf(kAachen), "Asia/Jerusalem");
  EXPECT_EQ(ZoneOf({5048, 605, 1, 0}), "Europe/Berlin");
}

TEST_F(SunPlaceSettings, NoneGivesAPlaceTheStandardClock) {
  for (const char* none : {"none", "None"}) {
    texts["solar.ini|SummerTime|50-47-6-5-1-0"] = none;
    EXPECT_EQ(ZoneOf(kAachen), "") << none;
  }
}

TEST_F(SunPlaceSettings, AZoneThatTheDatabaseDoesNotKnowIsPassedOver) {
  const std::string longName(500, 'x');
  for (const char* unknown : {"Europe/Aachen", "", longName.c_str()}) {
    texts["solar.ini|SummerTime|50-47-6-5-1-0"] = unknown;
    EXPECT_EQ(ZoneOf(kAachen), "Europe/Berlin") << unknown;
  }
}

// Each change alone must be seen, whichever order they come in.
TEST_F(SunPlaceSettings, AKnownPlaceIsAsTheSettingsAreEachTimeItIsAskedFor) {
  sun::KnownPlace known;
  const auto expectSame = [&known, this](const sun::PackedPlace& place) {
    const sun::PlaceSettings& settings = known.Read(reader_, place);
    const sun::PlaceSettings expected = sun::ReadPlaceSettings(reader_, place);
    EXPECT_EQ(settings.site.latitudeRadians, expected.site.latitudeRadians);
    EXPECT_EQ(settings.site.longitudeRadians, expected.site.longitudeRadians);
    EXPECT_EQ(settings.elevationMetres, expected.elevationMetres);
    EXPECT_EQ(settings.clock.standardOffsetSeconds, expected.clock.standardOffsetSeconds);
    EXPECT_STREQ(settings.clock.zoneId.data(), expected.clock.zoneId.data());
  };
  const auto change = [&](const char* key, const char* text) {
    expectSame(kAachen);
    texts[key] = text;
    expectSame(kAachen);
  };
  change("almanacelevation.ini|Elevation|50-47-6-5-1-0", "173");
  EXPECT_EQ(known.Read(reader_, kAachen).elevationMetres, 173);
  change("solar.ini|SummerTime|50-47-6-5-1-0", "Asia/Jerusalem");
  EXPECT_STREQ(known.Read(reader_, kAachen).clock.zoneId.data(), "Asia/Jerusalem");
  change("solar.ini|SummerTime|Mode", "Off");
  EXPECT_STREQ(known.Read(reader_, kAachen).clock.zoneId.data(), "");
  change("solar.ini|SummerTime|Mode", "Automatic");
  for (const sun::PackedPlace& place : {sun::PackedPlace{5048, 605, 1, 0}, sun::PackedPlace{5048, 606, 1, 0},
                                        sun::PackedPlace{5048, 606, 2, 0}, sun::PackedPlace{5048, 606, 2, 1}}) {
    asked.clear();
    expectSame(place);
    const auto half = asked.begin() + static_cast<std::ptrdiff_t>(asked.size() / 2);
    EXPECT_TRUE(std::equal(asked.begin(), half, half, asked.end())) << "the keys of another place";
  }
}

TEST_F(SunPlaceSettings, AZoneOfHoursAndMinutesTakesTwoReadsMoreForWhatItsOwnKeyLacks) {
  sun::ReadPlaceSettings(reader_, {1904, 7253, 5, 30});
  EXPECT_EQ(asked, (std::vector<std::string>{"almanacelevation.ini|Elevation|19-4-72-53-5-30",
                                             "almanacelevation.ini|Elevation|19-4-72-53-5--30",
                                             "solar.ini|SummerTime|Mode", "solar.ini|SummerTime|19-4-72-53-5-30",
                                             "solar.ini|SummerTime|19-4-72-53-5--30"}));
}

TEST_F(SunPlaceSettings, TakesOneReadForTheElevationAndTwoForTheClock) {
  const sun::PlaceSettings settings = sun::ReadPlaceSettings(reader_, kAachen);
  EXPECT_EQ(settings.site.standardOffsetMinutes, 60);
  EXPECT_EQ(asked, (std::vector<std::string>{"almanacelevation.ini|Elevation|50-47-6-5-1-0",
                                             "solar.ini|SummerTime|Mode", "solar.ini|SummerTime|50-47-6-5-1-0"}));
}

}  // namespace
