// Expected times without another source: PyEphem 4.1 with the horizon of tools/sun_reference.py.
#include "companion/hours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/profile.h"
#include "companion/solar.h"
#include "tests/contract/settings_home.h"

namespace {

constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
constexpr int32_t kMost = std::numeric_limits<int32_t>::max();

struct Place {
  int32_t latitude, longitude, zoneHours, zoneMinutes;
};

constexpr Place kJerusalem = {3147, 3514, 2, 0};
constexpr Place kApia = {-1350, -17145, 13, 0};

struct Date {
  uint32_t day, month, year;
};

struct Shown {
  int32_t riseHour = -1, riseMinute = -1, setHour = -1, setMinute = -1;
};

Shown ShownSun(const Place& place, const Date& date) {
  Shown shown;
  SolarGetSunsetSunrise(date.day, date.month, date.year, SOLAR_SUNRISE, place.latitude, place.longitude,
                        place.zoneHours, place.zoneMinutes, &shown.riseHour, &shown.riseMinute);
  SolarGetSunsetSunrise(date.day, date.month, date.year, SOLAR_SUNSET, place.latitude, place.longitude, place.zoneHours,
                        place.zoneMinutes, &shown.setHour, &shown.setMinute);
  return shown;
}

int32_t Calculate(const Place& place, const Date& date, uint32_t index, const Shown& shown) {
  return HoursCalculate2(nullptr, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, date.day,
                         date.month, date.year, index, shown.riseHour, shown.riseMinute, shown.setHour,
                         shown.setMinute);
}

// As a program asks; "22:05", or "----".
std::string TimeOf(const Place& place, const Date& date, uint32_t index) {
  const int32_t minutes = Calculate(place, date, index, ShownSun(place, date));
  if (minutes == HOURS_NONE) return "----";
  EXPECT_TRUE(minutes >= 0 && minutes < 24 * 60) << minutes;
  char text[16];
  std::snprintf(text, sizeof text, "%d:%02d", minutes / 60, minutes % 60);
  return text;
}

std::string Description(uint32_t index) {
  char text[HOURS_TEXT_SIZE] = "untouched";
  return HoursGetDescription(index, text) ? text : "none";
}

std::string Hebrew(uint32_t index) {
  char text[HOURS_TEXT_SIZE] = "untouched";
  return HoursGetDescriptionHebrew(index, text) ? text : "none";
}

uint64_t Fingerprint() {
  uint32_t fingerprint[2] = {};
  HoursGetFingerprint(fingerprint);
  return uint64_t{fingerprint[1]} << 32 | fingerprint[0];
}

class HoursContract : public testing::Test {
 protected:
  // The library may be 50 ms behind another settings folder or file.
  HoursContract() { WaitUntilSeen(); }
  void Choose(const std::string& text) {
    home_.Put("hours.txt", text);
    WaitUntilSeen();
  }

  SettingsHome home_;
};

TEST_F(HoursContract, WithoutAChoiceTheUsualZmanimAreThere) {
  EXPECT_EQ(HoursGetCount(), 25u);
  EXPECT_EQ(Description(4), "HaNetz HaChama");
  std::set<std::string> descriptions;
  std::set<std::string> hebrew;
  for (uint32_t i = 0; i < HoursGetCount(); ++i) {
    EXPECT_LE(Description(i).size(), 48u);
    EXPECT_TRUE(descriptions.insert(Description(i)).second) << Description(i);
    EXPECT_TRUE(hebrew.insert(Hebrew(i)).second) << Description(i);
  }
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(HoursContract, IndicesFollowTheUsersOrder) {
  Choose(
      "zman sunset\r\nrubbish\r\nzman dawn-16.1\r\nzman own-1\r\nown 1 minutes-after-sunset 10.5 up Mine|\xE0 12\r\n");
  ASSERT_EQ(HoursGetCount(), 3u);
  EXPECT_EQ(Description(0), "Shkia");
  EXPECT_EQ(Description(1), "Alot HaShachar (16.1\xB0)");
  EXPECT_EQ(Description(2), "Mine");
  EXPECT_EQ(Hebrew(2), "\xE0 21");
}

TEST_F(HoursContract, HebrewReadsRightWhenItsBytesAreReversed) {
  Choose("zman dawn-16.1\n");
  std::string text = Hebrew(0);
  std::ranges::reverse(text);
  EXPECT_EQ(text, "(\xFA\xE5\xEC\xF2\xEE 16.1) \xF8\xE7\xF9\xE4 \xFA\xE5\xEC\xF2");
}

TEST_F(HoursContract, WhatIsNotThereLeavesTheTextUntouched) {
  char text[HOURS_TEXT_SIZE] = "untouched";
  for (const uint32_t index : {HoursGetCount(), 100u, 0xFFFFFFFFu}) {
    EXPECT_EQ(HoursGetDescription(index, text), 0);
    EXPECT_EQ(HoursGetDescriptionHebrew(index, text), 0);
    EXPECT_STREQ(text, "untouched");
    EXPECT_EQ(TimeOf(kJerusalem, {16, 1, 2026}, index), "----");
  }
  EXPECT_EQ(HoursGetDescription(0, nullptr), 0);
  EXPECT_EQ(HoursGetDescriptionHebrew(0, nullptr), 0);
}

TEST_F(HoursContract, CountIsAtMostTheHundredThatAZmanimRecordHolds) {
  std::string text;
  for (int number = 1; number <= 150; ++number) {
    const std::string id = std::to_string(number);
    text += "zman own-" + id + "\nown " + id + " hours-gra 3 up Mine\n";
  }
  Choose(text);
  EXPECT_EQ(HoursGetCount(), 100u);
  EXPECT_EQ(Description(0), "Mine");
  EXPECT_EQ(Description(99), "Mine (100)");
}

TEST_F(HoursContract, AChangeOfTheChoiceIsSeen) {
  Choose("zman sunset\n");
  EXPECT_EQ(HoursGetCount(), 1u);
  Choose("zman sunset\nzman sunrise\n");
  EXPECT_EQ(HoursGetCount(), 2u);
  std::filesystem::remove(home_.Path("hours.txt"));
  WaitUntilSeen();
  EXPECT_EQ(HoursGetCount(), 25u);
}

TEST_F(HoursContract, FingerprintIsTheSelections) {
  const uint64_t usual = Fingerprint();
  EXPECT_EQ(Fingerprint(), usual);
  Choose("zman sunset\nzman sunrise\n");
  const uint64_t two = Fingerprint();
  EXPECT_NE(two, usual);
  Choose("# the same, with remarks\r\nzman sunset\r\nzman nobody\r\nzman sunrise\r\n");
  EXPECT_EQ(Fingerprint(), two);

  Choose("zman sunset\n");
  const uint64_t one = Fingerprint();
  EXPECT_NE(one, two);
  Choose("zman sunrise\nzman sunset\n");
  EXPECT_NE(Fingerprint(), two);
  std::filesystem::remove(home_.Path("hours.txt"));
  WaitUntilSeen();
  EXPECT_EQ(Fingerprint(), usual);
}

TEST_F(HoursContract, FingerprintChangesWithNamesAndDefinitions) {
  std::set<uint64_t> seen;
  for (const char* own :
       {"hours-gra 3 up Mine|\xE0", "hours-gra 3 up Yours|\xE0", "hours-gra 3 up Mine|\xE1",
        "hours-gra 3 down Mine|\xE0", "hours-gra 3.5 up Mine|\xE0", "hours-mga-72-min 3 up Mine|\xE0"}) {
    Choose(std::string("zman own-1\nown 1 ") + own + "\n");
    ASSERT_EQ(HoursGetCount(), 1u) << own;
    EXPECT_TRUE(seen.insert(Fingerprint()).second) << own;
  }
}

// The sentence as the selection dialog shows it.
TEST_F(HoursContract, DefinitionIsASentenceInUtf16) {
  Choose("zman shema-gra\nzman dawn-16.1\n");
  wchar_t text[200] = L"";
  const std::wstring expected = L"3 of the 12 hours from sunrise to sunset, rounded down.";
  EXPECT_EQ(HoursGetDefinition(0, text, 200), expected.size() + 1);
  EXPECT_EQ(text, expected);
  EXPECT_NE(HoursGetDefinition(1, text, 200), 0u);
  EXPECT_EQ(std::wstring(text), L"The sun 16.1\u00B0 below the horizon in the morning, rounded down.");
}

TEST_F(HoursContract, DefinitionIsCutToTheBufferAndAlwaysEnded) {
  Choose("zman shema-gra\n");
  const uint32_t whole = HoursGetDefinition(0, nullptr, 0);
  EXPECT_EQ(HoursGetDefinition(0, nullptr, 100), whole);
  wchar_t text[8] = L"-------";
  EXPECT_EQ(HoursGetDefinition(0, text, 0), whole);
  EXPECT_EQ(text[0], L'-');
  EXPECT_EQ(HoursGetDefinition(0, text, 1), whole);
  EXPECT_EQ(std::wstring(text, 3), std::wstring(L"\0--", 3));
  EXPECT_EQ(HoursGetDefinition(0, text, 5), whole);
  EXPECT_STREQ(text, L"3 of");
  EXPECT_EQ(text[5], L'-');
  std::wstring fitting(whole, L'-');
  EXPECT_EQ(HoursGetDefinition(0, fitting.data(), whole), whole);
  EXPECT_EQ(fitting[whole - 2], L'.');
  EXPECT_EQ(fitting[whole - 1], L'\0');
}

TEST_F(HoursContract, AZmanThatIsNotThereHasNoDefinition) {
  wchar_t text[8] = L"before";
  for (const uint32_t index : {HoursGetCount(), 100u, 0xFFFFFFFFu}) {
    EXPECT_EQ(HoursGetDefinition(index, text, 8), 0u);
    EXPECT_EQ(HoursGetDefinition(index, nullptr, 0), 0u);
    EXPECT_STREQ(text, L"before");
  }
}

TEST_F(HoursContract, FingerprintOfNobodyIsIgnored) {
  HoursGetFingerprint(nullptr);
}

// Jerusalem at sea level: 16.1 degrees at 5:22:56, sunrise 6:39:15, transit 11:48:46, sunset 16:58:32, 8.5 degrees at
// 17:37:25. By hand from these: three twelfths of the day end at 9:14:04, and at 8:38:04 with 72 minutes more at its
// ends.
TEST_F(HoursContract, DeadlinesGoDownAndOnsetsUp) {
  Choose("zman dawn-16.1\nzman shema-gra\nzman shema-mga-72-min\nzman midday\nzman nightfall-8.5\n");
  const Date friday = {16, 1, 2026};
  EXPECT_EQ(TimeOf(kJerusalem, friday, 0), "5:22");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 1), "9:14");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 2), "8:38");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 3), "11:49");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 4), "17:38");
}

TEST_F(HoursContract, SunriseAndSunsetAndWholeMinutesFromThemAreThoseGiven) {
  Choose("zman sunrise\nzman sunset\nzman dawn-72-min\nzman nightfall-72-min\nzman candles-18-min\n");
  const Shown shown = {6, 40, 16, 57};  // sunrise late and sunset early by minutes
  const std::vector<int32_t> expected = {6 * 60 + 40, 16 * 60 + 57, 5 * 60 + 28, 18 * 60 + 9, 16 * 60 + 39};
  for (uint32_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(Calculate(kJerusalem, {16, 1, 2026}, i, shown), expected[i]) << i;
  }
}

TEST_F(HoursContract, ElevationMovesWhatHangsOnSunriseAndSunsetOnly) {
  Choose("zman sunset\nzman sunset-sea-level\nzman nightfall-8.5\nzman nightfall-72-min\nzman plag-gra\n");
  const Date friday = {16, 1, 2026};
  EXPECT_EQ(TimeOf(kJerusalem, friday, 0), "16:59");
  const std::string plag = TimeOf(kJerusalem, friday, 4);
  ProfileWriteString("Elevation", "31-47-35-14-2-0", "754", "almanacelevation.ini");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 0), "17:03");  // 17:03:05
  EXPECT_EQ(TimeOf(kJerusalem, friday, 1), "16:59");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 2), "17:38");
  EXPECT_EQ(TimeOf(kJerusalem, friday, 3), "18:15");
  EXPECT_NE(TimeOf(kJerusalem, friday, 4), plag);
}

// The hours are those of the same place at sea level then, sunrise and sunset are not.
TEST_F(HoursContract, ElevationLeavesProportionalHoursAloneWhereTheFileSaysSo) {
  const std::string zmanim = "zman sunset\nzman shema-gra\nzman shema-mga-72-min\nzman plag-gra\nzman dawn-72-min\n";
  Choose(zmanim);
  const Date friday = {16, 1, 2026};
  const std::string atSea[] = {TimeOf(kJerusalem, friday, 1), TimeOf(kJerusalem, friday, 2),
                               TimeOf(kJerusalem, friday, 3)};
  ProfileWriteString("Elevation", "31-47-35-14-2-0", "754", "almanacelevation.ini");
  const std::string dawn = TimeOf(kJerusalem, friday, 4);
  EXPECT_NE(TimeOf(kJerusalem, friday, 1), atSea[0]);
  uint32_t before[2];
  HoursGetFingerprint(before);

  Choose(zmanim + "proportional-hours sea-level\n");
  uint32_t after[2];
  HoursGetFingerprint(after);
  EXPECT_NE(std::memcmp(before, after, sizeof before), 0);
  EXPECT_EQ(HoursGetCount(), 5u);
  EXPECT_EQ(TimeOf(kJerusalem, friday, 0), "17:03");
  for (uint32_t i = 0; i < 3; ++i) EXPECT_EQ(TimeOf(kJerusalem, friday, i + 1), atSea[i]) << i;
  EXPECT_EQ(TimeOf(kJerusalem, friday, 4), dawn);
}

// At 59 degrees north the sun sinks 7.56 degrees on 21 June (by hand: 90 - 59 - 23.44): it does not reach 8.5.
TEST_F(HoursContract, InWhiteNightsExactlyWhatTheSunDoesNotReachHasNoTime) {
  Choose("zman nightfall-7.083\nzman nightfall-8.5\nzman shema-mga-16.1\nzman shema-gra\nzman nightfall-72-min\n");
  const Place place = {5900, 0, 0, 0};
  const Date solstice = {21, 6, 2026};
  EXPECT_NE(TimeOf(place, solstice, 0), "----");
  EXPECT_EQ(TimeOf(place, solstice, 1), "----");
  EXPECT_EQ(TimeOf(place, solstice, 2), "----");
  EXPECT_NE(TimeOf(place, solstice, 3), "----");
  EXPECT_NE(TimeOf(place, solstice, 4), "----");
}

// 14 Nisan 5786 is 1 April 2026.
TEST_F(HoursContract, ChametzHasATimeOnTheEveOfPesachOnly) {
  Choose("zman chametz-eat-gra\nzman tefila-gra\nzman chametz-burn-gra\n");
  for (uint32_t day = 1; day <= 30; ++day) {
    const Date date = {day, 4, 2026};
    EXPECT_EQ(TimeOf(kJerusalem, date, 0), day == 1 ? TimeOf(kJerusalem, date, 1) : "----") << day;
    EXPECT_EQ(TimeOf(kJerusalem, date, 2) == "----", day != 1) << day;
  }
}

// Apia, 13 hours ahead of UTC: transit at 12:36:34, the lower one after it at 24:36:44.
TEST_F(HoursContract, EastOfTwelveHoursTheDateIsThePlaces) {
  Choose("zman sunrise\nzman midday\nzman midday-fixed\nzman sunset\nzman midnight\n");
  const Date friday = {16, 1, 2026};
  const Shown shown = ShownSun(kApia, friday);
  EXPECT_EQ(Calculate(kApia, friday, 0, shown), shown.riseHour * 60 + shown.riseMinute);
  EXPECT_EQ(TimeOf(kApia, friday, 1), "12:37");
  EXPECT_EQ(TimeOf(kApia, friday, 2), "12:27");  // by hand: 171 degrees 45' are 11:27, to 24 + 13 hours
  EXPECT_EQ(TimeOf(kApia, friday, 4), "0:36");   // of the next civil day
}

int32_t DayOffset(const Place& place, const Date& date, uint32_t index) {
  const Shown shown = ShownSun(place, date);
  return HoursGetDayOffset(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, date.day, date.month,
                           date.year, index, shown.riseHour, shown.riseMinute, shown.setHour, shown.setMinute);
}

// Lulea at midsummer: the sun sets after midnight and rises at about one, so that two hours before are the day before.
TEST_F(HoursContract, TheCivilDayOfAZmanIsTold) {
  Choose("zman dawn-120-min\nzman sunrise\nzman sunset\nzman midnight\nzman dawn-16.1\nzman chametz-eat-gra\n");
  constexpr Place kLulea = {6535, 2209, 1, 0};
  const Date midsummer = {21, 6, 2026};
  const Shown shown = ShownSun(kLulea, midsummer);
  ASSERT_LT(shown.setHour, 1);
  EXPECT_EQ(Calculate(kLulea, midsummer, 0, shown), shown.riseHour * 60 + shown.riseMinute + 22 * 60);
  constexpr int32_t kExpected[] = {-1, 0, 1, 1, 0, 0};  // the last two do not occur
  for (uint32_t index = 0; index < 6; ++index)
    EXPECT_EQ(DayOffset(kLulea, midsummer, index), kExpected[index]) << index;
  EXPECT_EQ(DayOffset(kJerusalem, {16, 1, 2026}, 3), 0);  // 23:49
  EXPECT_EQ(DayOffset(kApia, {16, 1, 2026}, 3), 1);       // 0:36
  for (uint32_t index = 0; index < 3; ++index) EXPECT_EQ(DayOffset(kJerusalem, {16, 1, 2026}, index), 0) << index;
  EXPECT_EQ(DayOffset(kJerusalem, {16, 1, 2026}, 6), 0);
}

TEST_F(HoursContract, AnswersForAnyArguments) {
  Choose(
      "zman dawn-16.1\nzman sunrise\nzman shema-gra\nzman midday-fixed\nzman chametz-eat-gra\nzman midnight\nzman "
      "midnight-half\n"
      "zman midnight-fixed\nzman twilight-two-stars\nproportional-hours sea-level\n");
  for (const int32_t number : {0, 6559, -99999, kMost, kLeast}) {
    for (const uint32_t date : {0u, 12u, 0xFFFFFFFFu}) {
      for (uint32_t i = 0; i < HoursGetCount(); ++i) {
        const int32_t minutes = HoursCalculate2(nullptr, number, number, number, number, date, date, date, i, number,
                                                number, number, number);
        EXPECT_TRUE(minutes >= HOURS_NONE && minutes < 24 * 60) << minutes;
      }
    }
  }
}

// The clock goes forward at 2:00 on 27 March 2026 in Jerusalem: that morning's dawn is told in the new time.
TEST_F(HoursContract, TimesAreToldOnTheClockInForce) {
  Choose("zman midday\nzman dawn-72-min\nzman sunrise\n");
  EXPECT_EQ(TimeOf(kJerusalem, {26, 3, 2026}, 0), "11:45");
  EXPECT_EQ(TimeOf(kJerusalem, {27, 3, 2026}, 0), "12:44");
  const int32_t dawn = Calculate(kJerusalem, {27, 3, 2026}, 1, ShownSun(kJerusalem, {27, 3, 2026}));
  const int32_t sunrise = Calculate(kJerusalem, {27, 3, 2026}, 2, ShownSun(kJerusalem, {27, 3, 2026}));
  EXPECT_EQ(sunrise - dawn, 72);
}

}  // namespace
