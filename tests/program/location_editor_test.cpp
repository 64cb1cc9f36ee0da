// The location editor on a scripted store.
#include "tests/program/locations_fixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

using LocationEditorTest = LocationsTest;

}  // namespace

TEST_F(LocationEditorTest, AddingWritesEveryKeyIntoBothFilesAndTheElevationIntoOne) {
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

TEST_F(LocationEditorTest, OverwritingAsksFirst) {
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

TEST_F(LocationEditorTest, LatitudeOf65IsAcceptedAnd66Refused) {
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

TEST_F(LocationEditorTest, WhatIsNoNumberIsRefusedSilently) {
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

TEST_F(LocationEditorTest, ANameThatNoFileCanHoldIsRefusedWithAReason) {
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

TEST_F(LocationEditorTest, ChangingRenamesAndLeavesNoTraceOfTheOldName) {
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

TEST_F(LocationEditorTest, ABuiltInPlaceIsEditedFromItsNumbers) {
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

TEST_F(LocationEditorTest, ElevationZeroDeletesItsKey) {
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
