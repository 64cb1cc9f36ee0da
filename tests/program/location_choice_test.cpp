// The place and range that the program starts with, and the place that the user picks.
#include "app/active_document.h"
#include "app/program.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::SizeIs;

namespace {

using LocationChoiceTest = ProgramTest;

void AddUserPlace(const std::string& name, const char* latitudeDegrees, const char* latitudeMinutes, const char* south,
                  const char* zoneHours) {
  auto& settings = Libraries().settings;
  settings["shabbat2.ini|Locations|" + name] = "Available";
  const std::string place = "shabloc2.ini|" + name + "|";
  settings[place + "LatitudeDegrees"] = latitudeDegrees;
  settings[place + "LatitudeHours"] = latitudeMinutes;
  settings[place + "LatitudeFlag"] = south;
  settings[place + "LongitudeDegrees"] = "151";
  settings[place + "LongitudeHours"] = "12";
  settings[place + "LongitudeFlag"] = "";
  settings[place + "TimeZone"] = zoneHours;
  settings[place + "TimeZoneMin"] = "";
}

void ListNoUserPlace(const std::string& name) {
  Libraries().settings["shabbat2.ini|Locations|" + name] = "";
}

void SetDefaultLocation(const std::string& name) {
  Libraries().settings["almanac13.ini|Preferences|DefaultLocation"] = name;
}

void ExpectLocation(const char* name, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes) {
  EXPECT_STREQ(CurrentLocation.name, name);
  EXPECT_EQ(CurrentLocation.latitude, latitude);
  EXPECT_EQ(CurrentLocation.longitude, longitude);
  EXPECT_EQ(CurrentLocation.zoneHours, zoneHours);
  EXPECT_EQ(CurrentLocation.zoneMinutes, zoneMinutes);
}

void Command(HWND frame, unsigned id) {
  SendMessageA(frame, WM_COMMAND, MAKEWPARAM(id, 0), 0);
}

}  // namespace

TEST_F(LocationChoiceTest, WithoutADefaultLocationTheFirstDocumentShowsAachen) {
  ListNoUserPlace("Aachen");
  OpenFrame();
  ExpectLocation("Aachen", 5046, 606, 1, 0);
  EXPECT_EQ(TextOf(ActiveDocument()), "Aachen (20.11.2026 - 21.12.2026)");
}

TEST_F(LocationChoiceTest, TheDefaultLocationIsTakenFromTheSiblingsSettings) {
  SetDefaultLocation("Haifa");
  ListNoUserPlace("Haifa");
  OpenFrame();
  ExpectLocation("Haifa", 3249, 3459, 2, 0);
}

TEST_F(LocationChoiceTest, AnUnknownDefaultLocationFallsBackToTheFirstBuiltInPlace) {
  SetDefaultLocation("Atlantis");
  OpenFrame();
  ExpectLocation("Aachen", 5046, 606, 1, 0);
  EXPECT_EQ(TextOf(ActiveDocument()), "Aachen (20.11.2026 - 21.12.2026)");
}

TEST_F(LocationChoiceTest, AUserPlaceWithTheNameOfABuiltInOneIsTheOneUsed) {
  SetDefaultLocation("Haifa");
  AddUserPlace("Haifa", "33", "52", "1", "10");
  OpenFrame();
  ExpectLocation("Haifa", -3352, 15112, 10, 0);
}

TEST_F(LocationChoiceTest, AUserPlaceThatNoBuiltInOneHasIsFound) {
  SetDefaultLocation("Home");
  AddUserPlace("Attic", "1", "1", "", "1");
  AddUserPlace("Home", "33", "52", "", "-3");
  AddUserPlace("Office", "2", "2", "", "2");
  OpenFrame();
  ExpectLocation("Home", 3352, 15112, -3, 0);
}

TEST_F(LocationChoiceTest, AnUnknownNameIsNotTakenFromAUserPlaceReadInTheSearch) {
  SetDefaultLocation("Atlantis");
  AddUserPlace("Home", "33", "52", "", "-3");
  OpenFrame();
  ExpectLocation("Aachen", 5046, 606, 1, 0);
}

TEST_F(LocationChoiceTest, JerusalemAsTheDefaultLocationFixesItsCandleMinutes) {
  SetDefaultLocation("Jerusalem");
  ListNoUserPlace("Jerusalem");
  CandleOverride = {true, 0};
  OpenFrame();
  EXPECT_FALSE(CandleOverride.readSetting);
  EXPECT_EQ(CandleOverride.fixedMinutes, 40);
}

TEST_F(LocationChoiceTest, TheDefaultRangeSpansTodayAndThe31DaysAfterIt) {
  ListNoUserPlace("Aachen");
  System().localTime.wYear = 2024;
  System().localTime.wMonth = 2;
  System().localTime.wDay = 1;
  OpenFrame();
  EXPECT_EQ(CurrentRange.start.uDay, 1u);
  EXPECT_EQ(CurrentRange.start.uMonth, 2u);
  EXPECT_EQ(CurrentRange.end.uDay, 3u);  // of March: February 2024 has 29 days
  EXPECT_EQ(CurrentRange.end.uMonth, 3u);
  EXPECT_EQ(CurrentRange.end.uYear, 2024u);
}

TEST_F(LocationChoiceTest, TheFirstDocumentIsComputed) {
  ListNoUserPlace("Aachen");
  OpenFrame();
  // Fridays from 20 November to 21 December 2026.
  ASSERT_THAT(ShabbatTimesOf(ActiveDocument()), SizeIs(5));
  EXPECT_EQ(GetIntegerProperty(ActiveDocument(), "StartDay"), 20);
  EXPECT_EQ(GetIntegerProperty(ActiveDocument(), "StartYear"), 2026);
}

TEST_F(LocationChoiceTest, PickingAPlaceOpensADocumentForIt) {
  ListNoUserPlace("Aachen");
  ListNoUserPlace("Jerusalem");
  const HWND frame = OpenFrame();
  Libraries().pickedLocation = "Jerusalem";
  Command(frame, 1001);
  EXPECT_THAT(CallsWith("pick"), ElementsAre("pick a place, current 'Aachen', owner yes"));
  ExpectLocation("Jerusalem", 3147, 3513, 2, 0);
  EXPECT_FALSE(CandleOverride.readSetting);
  EXPECT_EQ(TextOf(ActiveDocument()), "Jerusalem (20.11.2026 - 21.12.2026)");
  EXPECT_EQ(CountDocuments(), 2);
}

TEST_F(LocationChoiceTest, ACancelledPickChangesNothing) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  Command(frame, 1001);
  ExpectLocation("Aachen", 5046, 606, 1, 0);
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(LocationChoiceTest, ANameInOtherLettersMeansTheOwnPlaceThatDiffersInTheirCaseAlone) {
  AddUserPlace("Home", "33", "52", "", "-3");
  ListNoUserPlace("Nowhere");
  SetDefaultLocation("HOME");
  OpenFrame();
  ExpectLocation("Home", 3352, 15112, -3, 0);
}

TEST_F(LocationChoiceTest, ABuiltInPlaceIsItselfBesideAnOwnPlaceInOtherLetters) {
  AddUserPlace("jerusalem", "33", "52", "", "-3");
  SetDefaultLocation("Jerusalem");
  OpenFrame();
  ExpectLocation("Jerusalem", 3147, 3513, 2, 0);
}

TEST_F(LocationChoiceTest, APickedNameThatIsFoundNowhereKeepsTheNumbersReadLast) {
  ListNoUserPlace("Aachen");
  const HWND frame = OpenFrame();
  Libraries().pickedLocation = "Atlantis";
  Command(frame, 1001);
  ExpectLocation("Atlantis", 3147, 3513, 2, 0);  // the last built-in place
  AddUserPlace("Home", "33", "52", "", "-3");
  Command(frame, 1001);
  ExpectLocation("Atlantis", 3352, 15112, -3, 0);  // the last user place
}
