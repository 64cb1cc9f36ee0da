// The location manager on a scripted store.
#include <algorithm>
#include <cstring>

#include "app/active_document.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "tests/program/locations_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST_F(LocationsTest, ManagerListsBuiltInAndUserPlacesSortedAndSelectsTheDocuments) {
  AddUserPlace("Home", {});
  AddUserPlace("Haifa", {});
  Libraries().settings["shabbat2.ini|Locations|Gone"] = "";
  Manage([](HWND manager) {
    EXPECT_THAT(Names(manager), ElementsAre("Aachen", "Haifa", "Home", "Jerusalem"));
    EXPECT_EQ(Selected(manager), 0);
    EXPECT_EQ(FieldText(manager, 105), "Aachen: 50,46N   6,06E  GMT+1, no elevation");
    EXPECT_FALSE(CanRemove(manager));
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(LocationsTest, AUserPlaceNamedLikeABuiltInOneWinsAndCanBeRemoved) {
  AddUserPlace("Haifa", {.latitudeDegrees = "33", .latitudeMinutes = "5"});
  Manage([](HWND manager) {
    Select(manager, 1);
    EXPECT_EQ(FieldText(manager, 105), "Haifa: 33,05N  34,59E  GMT+2, no elevation");
    EXPECT_TRUE(CanRemove(manager));
    Select(manager, 2);
    EXPECT_FALSE(CanRemove(manager));
    Select(manager, 1);
    Click(manager, IDOK);
  });
  EXPECT_EQ(CurrentLocation.latitude, 3305);
  EXPECT_EQ(CountDocuments(), 2);
}

TEST_F(LocationsTest, SelectingOpensADocumentForThePlaceAndTheDocumentsRange) {
  Manage([](HWND manager) {
    Select(manager, 2);
    SendMessageA(manager, WM_COMMAND, MAKEWPARAM(101, LBN_DBLCLK), 0);
  });
  char title[128];
  GetWindowTextA(ActiveDocument(), title, sizeof title);
  EXPECT_STREQ(title, "Jerusalem (20.11.2026 - 21.12.2026)");
  EXPECT_FALSE(CandleOverride.readSetting);
  EXPECT_EQ(CandleOverride.fixedMinutes, 40);
}

TEST_F(LocationsTest, ShowingTheLineLeavesTheCurrentPlaceWhole) {
  Manage([](HWND manager) {
    Select(manager, 2);
    Click(manager, IDCANCEL);
  });
  EXPECT_STREQ(CurrentLocation.name, "Aachen");
  EXPECT_EQ(CurrentLocation.latitude, 5046);
}

TEST_F(LocationsTest, CancellingOverAnotherDocumentTakesItsPlaceWhole) {
  CurrentLocation = {"Haifa", 3249, 3459, 2, 0};
  Manage([](HWND manager) { Click(manager, IDCANCEL); });
  EXPECT_STREQ(CurrentLocation.name, "Aachen");
  EXPECT_EQ(CurrentLocation.latitude, 5046);
}

TEST_F(LocationsTest, TheNewDocumentHasTheRangeOfTheActiveOneThoughAnotherIsCurrent) {
  CurrentRange = {{1, 2, 2003}, {4, 5, 2006}};
  Manage([](HWND manager) {
    Select(manager, 1);
    Click(manager, IDOK);
  });
  EXPECT_EQ(TextOf(ActiveDocument()), "Haifa (20.11.2026 - 21.12.2026)");
}

TEST_F(LocationsTest, CancellingOverJerusalemsDocumentFixesItsCandleMinutes) {
  Manage([](HWND manager) {
    Select(manager, 2);
    Click(manager, IDOK);
  });
  CurrentLocation = {"Haifa", 3249, 3459, 2, 0};
  CandleOverride = {true, 0};
  Manage([](HWND manager) { Click(manager, IDCANCEL); });
  EXPECT_STREQ(CurrentLocation.name, "Jerusalem");
  EXPECT_FALSE(CandleOverride.readSetting);
}

TEST_F(LocationsTest, WithoutADocumentTheFirstPlaceAndAYearFromTodayAreTaken) {
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  Manage([](HWND manager) { Click(manager, IDCANCEL); });
  EXPECT_STREQ(CurrentLocation.name, "Aachen");
  EXPECT_EQ(CurrentRange.start.uDay, 20u);
  EXPECT_EQ(CurrentRange.end.uDay, 1u);
  EXPECT_EQ(CurrentRange.end.uMonth, 11u);
  EXPECT_EQ(CurrentRange.end.uYear, 2027u);
}

TEST_F(LocationsTest, ElevationComesFromItsKeyOrTheOneDefault) {
  AddUserPlace("High", {.elevation = "0"});
  AddUserPlace("Odd", {.latitudeDegrees = "48",
                       .latitudeMinutes = "54",
                       .longitudeDegrees = "8",
                       .longitudeMinutes = "42",
                       .zoneHours = "1"});
  AddUserPlace("Oddity", {.latitudeDegrees = "48",
                          .latitudeMinutes = "54",
                          .south = true,
                          .longitudeDegrees = "8",
                          .longitudeMinutes = "42",
                          .west = true,
                          .zoneHours = "1"});
  Libraries().settings["almanacelevation.ini|Elevation|32-49-34-59-2-0"] = "754";
  Manage([](HWND manager) {
    ASSERT_THAT(Names(manager), ElementsAre("Aachen", "Haifa", "High", "Jerusalem", "Odd", "Oddity"));
    Select(manager, 2);
    EXPECT_EQ(FieldText(manager, 105), "High: 32,49N  34,59E  GMT+2, 754 meters");
    Select(manager, 1);
    EXPECT_EQ(FieldText(manager, 105), "Haifa: 32,49N  34,59E  GMT+2, 754 meters");
    Select(manager, 4);
    EXPECT_EQ(FieldText(manager, 105), "Odd: 48,54N   8,42E  GMT+1, 263 meters");
    Select(manager, 5);
    EXPECT_EQ(FieldText(manager, 105), "Oddity: 48,54S   8,42W  GMT+1, no elevation");
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(FieldText(editor, 300), "263");  // the editor looks at the numbers without hemispheres
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}

TEST_F(LocationsTest, RemovingAsksAndDeletesThePlaceEverywhere) {
  AddUserPlace("Zion", {});
  Libraries().settings["almanacelevation.ini|Elevation|32-49-34-59-2-0"] = "754";
  Manage([](HWND manager) {
    Select(manager, 3);
    System().answer = IDNO;
    Click(manager, 103);
    EXPECT_THAT(
        CallsWith("message box"),
        ElementsAre("message box 'Do you want to remove the selected city?' caption 'Times / Readings' type 0x24 "
                    "owner yes"));
    EXPECT_THAT(Names(manager), Contains("Zion"));
    System().answer = IDYES;
    Click(manager, 103);
    EXPECT_THAT(Names(manager), Not(Contains("Zion")));
    EXPECT_EQ(Selected(manager), LB_ERR);  // it was the last of the list
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabbat2.ini|Locations|Zion"), "(none)");
  EXPECT_EQ(Stored("shabloc2.ini|Zion|TimeZone"), "(none)");
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59-2-0"), "(none)");
}

// The key is that of the six numbers as they are stored; packed, 130 minutes would be another degree.
TEST_F(LocationsTest, RemovingAPlaceOfMoreThanAHundredMinutesRemovesItsElevation) {
  AddUserPlace("Zion", {.latitudeMinutes = "130"});
  Libraries().settings["almanacelevation.ini|Elevation|32-130-34-59-2-0"] = "754";
  Manage([](HWND manager) {
    Select(manager, 3);
    Click(manager, 103);
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-130-34-59-2-0"), "(none)");
}

TEST_F(LocationsTest, AnElevationUnderTheMinutesOtherSignIsShownAndRemoved) {
  AddUserPlace("Zion", {.zoneHours = "-3", .zoneMinutes = "30"});
  Libraries().settings["almanacelevation.ini|Elevation|32-49-34-59--3--30"] = "754";
  Manage([](HWND manager) {
    Select(manager, 3);
    EXPECT_EQ(FieldText(manager, 105), "Zion: 32,49N  34,59E  GMT-3:30, 754 meters");
    Click(manager, 103);
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59--3--30"), "(none)");
}

TEST_F(LocationsTest, PlacesThatDifferInLetterCaseAloneAreEachThemselves) {
  AddUserPlace("jerusalem", {.latitudeDegrees = "40"});
  Manage([](HWND manager) {
    ASSERT_THAT(Names(manager), testing::UnorderedElementsAre("Aachen", "Haifa", "Jerusalem", "jerusalem"));
    for (int index = 2; index <= 3; ++index) {
      Select(manager, index);
      const bool own = Names(manager)[static_cast<std::size_t>(index)] == "jerusalem";
      EXPECT_THAT(FieldText(manager, 105),
                  testing::StartsWith(own ? "jerusalem: 40,49N  34,59E" : "Jerusalem: 31,47N  35,13E"));
      EXPECT_EQ(CanRemove(manager), own);
    }
    Click(manager, IDCANCEL);
  });
}

TEST_F(LocationsTest, RemovingASpellingLeavesTheOtherThatTheFilesHold) {
  AddUserPlace("home", {.latitudeDegrees = "40"});
  Libraries().settings.AddSpelling("shabbat2.ini|Locations|Home");
  Libraries().settings["shabbat2.ini|Locations|Home"] = "Available";
  Libraries().settings.AddSpelling("shabloc2.ini|Home|LatitudeDegrees");
  Libraries().settings["shabloc2.ini|Home|LatitudeDegrees"] = "50";
  Manage([](HWND manager) {
    const auto names = Names(manager);
    ASSERT_THAT(names, testing::IsSupersetOf({"home", "Home"}));
    const auto index = static_cast<int>(std::find(names.begin(), names.end(), "Home") - names.begin());
    Select(manager, index);
    EXPECT_THAT(FieldText(manager, 105), testing::StartsWith("Home: 50,00N"));
    Click(manager, 103);
    EXPECT_THAT(Names(manager), Contains("home"));
    EXPECT_THAT(Names(manager), Not(Contains("Home")));
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabbat2.ini|Locations|home"), "Available");
  EXPECT_EQ(Stored("shabloc2.ini|home|LatitudeDegrees"), "40");
}

TEST_F(LocationsTest, TheDocumentsPlaceIsSelectedInItsOwnSpelling) {
  AddUserPlace("haifa", {});
  for (const char* name : {"Haifa", "haifa"}) {
    Location place{};
    std::strcpy(place.name, name);
    SetPlace(ActiveDocument(), place);
    Manage([name](HWND manager) {
      EXPECT_EQ(Names(manager)[static_cast<std::size_t>(Selected(manager))], name);
      Click(manager, IDCANCEL);
    });
  }
}

TEST_F(LocationsTest, ALongNameGetsTheLinesThatItNeeds) {
  const std::string longName(255, 'W');
  AddUserPlace(longName, {});
  Manage([&](HWND manager) {
    const auto heightOf = [manager](int control) {
      RECT area;
      GetWindowRect(GetDlgItem(manager, control), &area);
      return area.bottom - area.top;
    };
    const int line = heightOf(105);
    const int list = heightOf(101);
    const auto names = Names(manager);
    Select(manager, static_cast<int>(std::find(names.begin(), names.end(), longName) - names.begin()));
    EXPECT_GT(heightOf(105), 4 * line);
    EXPECT_EQ(heightOf(105) + heightOf(101), line + list);
    Select(manager, 0);
    EXPECT_EQ(heightOf(105), line);
    EXPECT_EQ(heightOf(101), list);
    Click(manager, IDCANCEL);
  });
}

TEST_F(LocationsTest, RemovingAPlaceInTheMiddleSelectsTheNext) {
  AddUserPlace("Home", {});
  Manage([](HWND manager) {
    Select(manager, 2);
    Click(manager, 103);
    EXPECT_EQ(Selected(manager), 2);
    EXPECT_THAT(FieldText(manager, 105), testing::StartsWith("Jerusalem: "));
    Click(manager, IDCANCEL);
  });
}

TEST_F(LocationsTest, PlacesBeyondTheKeyListsSizeAreNotSeen) {
  // 100 names of 204 bytes and a terminator are 20,500 bytes; the list takes 20,480.
  for (int i = 100; i < 200; ++i) AddUserPlace("P" + std::to_string(i) + std::string(200, 'x'), {});
  Manage([](HWND manager) {
    EXPECT_EQ(Names(manager).size(), 3u + 99u);
    Click(manager, IDCANCEL);
  });
}
