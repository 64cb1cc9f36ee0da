// The location editor on a scripted store.
#include "tests/program/locations_fixture.h"

#include <algorithm>
#include <set>

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
      Fill(editor, {.zoneHours = "x"});
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

TEST_F(LocationEditorTest, NewNamesHoldNothingThatIsACommandInRtfFiles) {
  AddUserPlace("Old {place}", {});
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      for (const char* name : {"A{", "}A", "A\\B"}) {
        CallLog().clear();
        Fill(editor, {});
        SetField(editor, 101, name);
        Click(editor, IDOK);
        EXPECT_EQ(CallsWith("message box").size(), 1u) << name;
      }
      EXPECT_THAT(CallsWith("write"), IsEmpty());
      Click(editor, IDCANCEL);
    });
    CallLog().clear();
    Select(manager, 3);
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(FieldText(editor, 101), "Old {place}");
      SetField(editor, 102, "40");
      Click(editor, IDOK);
    });
    EXPECT_THAT(CallsWith("message box"), IsEmpty());
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|Old {place}|LatitudeDegrees"), "40");
}

TEST_F(LocationEditorTest, ABuiltInPlaceShowsItsOwnNumbersBesideAnOwnPlaceInOtherLetters) {
  AddUserPlace("haifa", {.latitudeDegrees = "40"});
  Manage([](HWND manager) {
    const auto names = Names(manager);
    Select(manager, static_cast<int>(std::find(names.begin(), names.end(), "Haifa") - names.begin()));
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(FieldText(editor, 102), "32");
      System().answer = IDNO;
      Click(editor, IDOK);
      EXPECT_THAT(
          CallsWith("message box"),
          ElementsAre(
              "message box 'Do you want to overwrite this city?' caption 'Times / Readings' type 0x24 owner yes"));
      EXPECT_THAT(CallsWith("write"), IsEmpty());
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|haifa|LatitudeDegrees"), "40");
}

TEST_F(LocationEditorTest, ANewNameTakesTheSpellingOfThePlaceThatItReplaces) {
  AddUserPlace("Home", {.latitudeDegrees = "40"});
  Manage([](HWND manager) {
    for (const char* name : {"HOME", "jerusalem"}) {
      CallLog().clear();
      Edit(manager, 102, [name](HWND editor) {
        Fill(editor, {.name = name});
        Click(editor, IDOK);
      });
      EXPECT_EQ(CallsWith("message box").size(), 1u) << name;
    }
    EXPECT_THAT(Names(manager), ElementsAre("Aachen", "Haifa", "Home", "Jerusalem"));
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|Home|LatitudeDegrees"), "32");
  EXPECT_EQ(Stored("shabloc2.ini|Jerusalem|LatitudeDegrees"), "32");
}

TEST_F(LocationEditorTest, APlaceOfTheUsersOwnCanBeSpelledAnew) {
  AddUserPlace("home", {});
  Manage([](HWND manager) {
    Select(manager, 2);
    Edit(manager, 104, [](HWND editor) {
      SetField(editor, 101, "Home");
      Click(editor, IDOK);
    });
    EXPECT_THAT(Names(manager), ElementsAre("Aachen", "Haifa", "Home", "Jerusalem"));
    EXPECT_THAT(CallsWith("message box"), IsEmpty());
    Click(manager, IDCANCEL);
  });
}

// The first try has written the place; the second one changes it and does not ask for it.
TEST_F(LocationEditorTest, SavingAgainAfterAFailureDoesNotAskToOverwriteWhatWasJustTyped) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      Fill(editor, {.elevation = "12"});
      Libraries().unwritableFile = "almanacelevation.ini";
      Click(editor, IDOK);
      EXPECT_EQ(CallsWith("message box").size(), 1u);
      Libraries().unwritableFile.clear();
      CallLog().clear();
      Click(editor, IDOK);
      EXPECT_THAT(CallsWith("message box"), IsEmpty());
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59-2-0"), "12");
}

TEST_F(LocationEditorTest, AnElevationUnderTheMinutesOtherSignMovesToTheKeyOfThePlace) {
  AddUserPlace("Home", {.zoneHours = "-3", .zoneMinutes = "30"});
  Libraries().settings["almanacelevation.ini|Elevation|32-49-34-59--3--30"] = "754";
  Manage([](HWND manager) {
    Select(manager, 2);
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(FieldText(editor, 300), "754");
      Click(editor, IDOK);
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59--3-30"), "754");
  EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59--3--30"), "(none)");
}

// A screen reader names an edit by the static text before it.
TEST_F(LocationEditorTest, EveryFieldHasALabelOfItsOwn) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      std::set<std::string> labels;
      for (const int field : {101, 102, 103, 106, 107, 110, 200, 300}) {
        char className[16];
        char label[64];
        const HWND before = GetWindow(GetDlgItem(editor, field), GW_HWNDPREV);
        GetClassNameA(before, className, sizeof className);
        EXPECT_STREQ(className, "Static") << field;
        GetWindowTextA(before, label, sizeof label);
        labels.insert(label);
      }
      EXPECT_EQ(labels.size(), 8u);
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
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
