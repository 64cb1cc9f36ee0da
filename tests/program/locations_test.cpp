// The location manager and the location editor on a scripted store.
#include "app/active_document.h"
#include "app/program.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

struct EditedFields {
  const char* name = "Home";
  const char* latitudeDegrees = "32";
  const char* latitudeMinutes = "49";
  bool south = false;
  const char* longitudeDegrees = "34";
  const char* longitudeMinutes = "59";
  bool west = false;
  const char* zoneHours = "2";
  const char* zoneMinutes = "0";
  const char* elevation = "0";
};

class LocationsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    OpenFrame();
    CallLog().clear();
  }

  void AddUserPlace(const std::string& name, const EditedFields& fields) {
    auto& settings = Libraries().settings;
    settings["shabbat2.ini|Locations|" + name] = "Available";
    const std::string place = "shabloc2.ini|" + name + "|";
    settings[place + "LatitudeDegrees"] = fields.latitudeDegrees;
    settings[place + "LatitudeHours"] = fields.latitudeMinutes;
    settings[place + "LatitudeFlag"] = fields.south ? "1" : "0";
    settings[place + "LongitudeDegrees"] = fields.longitudeDegrees;
    settings[place + "LongitudeHours"] = fields.longitudeMinutes;
    settings[place + "LongitudeFlag"] = fields.west ? "1" : "0";
    settings[place + "TimeZone"] = fields.zoneHours;
    settings[place + "TimeZoneMin"] = fields.zoneMinutes;
  }

  void Manage(const std::function<void(HWND)>& drive) {
    WithDialog([&] { SendMessageA(frame_, WM_COMMAND, IDM_LOCATION_MANAGER, 0); }, drive);
  }

  static std::vector<std::string> Names(HWND manager) {
    std::vector<std::string> names;
    const LRESULT count = SendDlgItemMessageA(manager, 101, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      char name[256] = "";
      SendDlgItemMessageA(manager, 101, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(name));
      names.push_back(name);
    }
    return names;
  }
  static LRESULT Selected(HWND manager) { return SendDlgItemMessageA(manager, 101, LB_GETCURSEL, 0, 0); }
  static void Select(HWND manager, int index) {
    SendDlgItemMessageA(manager, 101, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageA(manager, WM_COMMAND, MAKEWPARAM(101, LBN_SELCHANGE), 0);
  }
  static bool CanRemove(HWND manager) { return IsWindowVisible(GetDlgItem(manager, 103)) != FALSE; }

  static void Fill(HWND editor, const EditedFields& fields) {
    SetField(editor, 101, fields.name);
    SetField(editor, 102, fields.latitudeDegrees);
    SetField(editor, 103, fields.latitudeMinutes);
    Click(editor, fields.south ? 105 : 104);
    SetField(editor, 106, fields.longitudeDegrees);
    SetField(editor, 107, fields.longitudeMinutes);
    Click(editor, fields.west ? 109 : 108);
    SetField(editor, 110, fields.zoneHours);
    SetField(editor, 200, fields.zoneMinutes);
    SetField(editor, 300, fields.elevation);
  }
  static void Edit(HWND manager, int button, const std::function<void(HWND)>& drive) {
    WithDialog([&] { Click(manager, button); }, drive);
  }
  static std::string Stored(const std::string& key) {
    const auto found = Libraries().settings.find(key);
    return found == Libraries().settings.end() ? "(none)" : found->second;
  }
};

}  // namespace

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

TEST_F(LocationsTest, AddingWritesEveryKeyIntoBothFilesAndTheElevationIntoOne) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      char caption[64];
      GetWindowTextA(editor, caption, sizeof caption);
      EXPECT_STREQ(caption, "Add location");
      EXPECT_EQ(FieldText(editor, 101) + FieldText(editor, 102) + FieldText(editor, 110) + FieldText(editor, 300), "");
      EXPECT_TRUE(IsDlgButtonChecked(editor, 104));
      EXPECT_TRUE(IsDlgButtonChecked(editor, 108));
      Fill(editor, {.south = true, .zoneHours = "-3", .zoneMinutes = "30", .elevation = "12"});
      Click(editor, IDOK);
    });
    EXPECT_THAT(Names(manager), Contains("Home"));
    EXPECT_EQ(Selected(manager), 0);
    Click(manager, IDCANCEL);
  });
  std::vector<std::string> expected;
  for (const char* key : {"LatitudeDegrees=32", "LatitudeHours=49", "LatitudeFlag=1", "LongitudeDegrees=34",
                          "LongitudeHours=59", "LongitudeFlag=0", "TimeZone=-3", "TimeZoneMin=30"}) {
    expected.push_back(std::string("write shabloc2.ini|Home|") + key);
    expected.push_back(std::string("write almanachlpl2.ini|Home|") + key);
  }
  expected.push_back("write shabbat2.ini|Locations|Home=Available");
  expected.push_back("write almanachlp2.ini|Locations|Home=Available");
  expected.push_back("write almanacelevation.ini|Elevation|32-49-34-59--3-30=12");
  EXPECT_THAT(CallsWith("write"), testing::ElementsAreArray(expected));
}

TEST_F(LocationsTest, OverwritingAsksFirst) {
  AddUserPlace("Home", {});
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      Fill(editor, {.latitudeDegrees = "40"});
      System().answer = IDNO;
      Click(editor, IDOK);
      EXPECT_THAT(
          CallsWith("message box"),
          ElementsAre(
              "message box 'Do you want to overwrite this city?' caption 'Times / Readings' type 0x24 owner yes"));
      EXPECT_THAT(CallsWith("write"), IsEmpty());
      System().answer = IDYES;
      Click(editor, IDOK);
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|Home|LatitudeDegrees"), "40");
}

TEST_F(LocationsTest, LatitudeOf65IsAcceptedAnd66Refused) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      Fill(editor, {.latitudeDegrees = "66"});
      Click(editor, IDOK);
      EXPECT_THAT(CallsWith("message box"),
                  ElementsAre("message box 'The latitude must be between 65deg north and 65deg south.' caption 'Error' "
                              "type 0x10 owner yes"));
      EXPECT_EQ(GetFocus(), GetDlgItem(editor, 102));
      SetField(editor, 102, "65");
      Click(editor, IDOK);
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|Home|LatitudeDegrees"), "65");
}

TEST_F(LocationsTest, WhatIsNoNumberIsRefusedSilently) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      for (const int field : {102, 103, 106, 107, 300}) {
        for (const char* text : {"x", "", "-5"}) {
          Fill(editor, {});
          SetField(editor, field, text);
          Click(editor, IDOK);
          EXPECT_TRUE(IsWindowVisible(editor));
        }
      }
      EXPECT_THAT(CallLog(), Not(Contains(testing::StartsWith("message box"))));
      EXPECT_THAT(CallsWith("write"), IsEmpty());
      Fill(editor, {.zoneHours = "x", .zoneMinutes = "x"});
      Click(editor, IDOK);
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|Home|TimeZone"), "0");
}

TEST_F(LocationsTest, ANameThatNoFileCanHoldIsRefusedWithAReason) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      for (const char* name : {"", "A=B", "[A]", ";A", " A", "A "}) {
        CallLog().clear();
        Fill(editor, {});
        SetField(editor, 101, name);
        Click(editor, IDOK);
        EXPECT_EQ(CallsWith("message box").size(), 1u) << name;
        EXPECT_EQ(GetFocus(), GetDlgItem(editor, 101));
      }
      EXPECT_THAT(CallsWith("write"), IsEmpty());
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}

TEST_F(LocationsTest, ChangingRenamesAndLeavesNoTraceOfTheOldName) {
  AddUserPlace("Home", {});
  Manage([](HWND manager) {
    Select(manager, 2);
    Edit(manager, 104, [](HWND editor) {
      char caption[64];
      GetWindowTextA(editor, caption, sizeof caption);
      EXPECT_STREQ(caption, "Change location parameters");
      EXPECT_EQ(FieldText(editor, 101), "Home");
      EXPECT_EQ(FieldText(editor, 102), "32");
      EXPECT_EQ(FieldText(editor, 107), "59");
      EXPECT_EQ(FieldText(editor, 110), "2");
      EXPECT_EQ(FieldText(editor, 200), "0");
      EXPECT_EQ(FieldText(editor, 300), "0");
      SetField(editor, 101, "Cottage");
      Click(editor, IDOK);
    });
    EXPECT_THAT(Names(manager), ElementsAre("Aachen", "Cottage", "Haifa", "Jerusalem"));
    EXPECT_EQ(Selected(manager), 2);
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabbat2.ini|Locations|Home"), "(none)");
  EXPECT_EQ(Stored("shabloc2.ini|Home|LatitudeDegrees"), "(none)");
  EXPECT_EQ(Stored("shabloc2.ini|Cottage|LatitudeDegrees"), "32");
}

TEST_F(LocationsTest, ABuiltInPlaceIsEditedFromItsNumbers) {
  Manage([](HWND manager) {
    Select(manager, 1);
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(FieldText(editor, 102), "32");
      EXPECT_EQ(FieldText(editor, 103), "49");
      EXPECT_EQ(FieldText(editor, 106), "34");
      EXPECT_EQ(FieldText(editor, 110), "2");
      EXPECT_EQ(FieldText(editor, 200), "");
      EXPECT_EQ(FieldText(editor, 300), "0");
      Click(editor, IDOK);
    });
    EXPECT_TRUE(CanRemove(manager));
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabbat2.ini|Locations|Haifa"), "Available");
}

TEST_F(LocationsTest, ElevationZeroDeletesItsKey) {
  AddUserPlace("Home", {});
  Libraries().settings["almanacelevation.ini|Elevation|32-49-34-59-2-0"] = "754";
  Manage([](HWND manager) {
    Select(manager, 2);
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(FieldText(editor, 300), "754");
      SetField(editor, 300, "0");
      Click(editor, IDOK);
    });
    EXPECT_EQ(FieldText(manager, 105), "Home: 32,49N  34,59E  GMT+2, no elevation");
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59-2-0"), "(none)");
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
