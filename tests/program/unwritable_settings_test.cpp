// Settings that cannot be stored: the user is told which file it is, and nothing is lost that can be kept.
#include "tests/program/locations_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

using UnwritableSettingsTest = LocationsTest;

// The one message since the last look, which must name the file.
void ExpectMessageNaming(const std::string& file) {
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'The settings could not be saved to the file " + file +
                          ".\nPlease check that its folder can be written to and that the disk is not full, and try "
                          "again.' caption 'Error' type 0x10 owner yes"));
  CallLog().clear();
}

}  // namespace

TEST_F(UnwritableSettingsTest, TheEditorOfALocationStaysAndNamesTheFile) {
  const struct {
    const char* place;
    const char* unwritable;
    const char* named;
  } files[] = {{"Home", "shabloc2.ini", "shabloc2.ini"},
               {"Office", "shabbat2.ini", "shabloc2.ini"},
               {"Attic", "almanacelevation.ini", "almanacelevation.ini"}};
  for (const auto& row : files) {
    Manage([&](HWND manager) {
      Edit(manager, 102, [&](HWND editor) {
        Fill(editor, {.name = row.place, .elevation = "12"});
        CallLog().clear();
        Libraries().unwritableFile = row.unwritable;
        Click(editor, IDOK);
        ExpectMessageNaming(row.named);
        EXPECT_TRUE(IsWindowVisible(editor)) << row.unwritable;
        Libraries().unwritableFile.clear();
        Click(editor, IDOK);
      });
      Click(manager, IDCANCEL);
    });
    EXPECT_EQ(Stored("almanacelevation.ini|Elevation|32-49-34-59-2-0"), "12") << row.unwritable;
    EXPECT_EQ(Stored(std::string("shabbat2.ini|Locations|") + row.place), "Available") << row.unwritable;
    Libraries().settings.DeleteSection("almanacelevation.ini", "Elevation");
  }
}

TEST_F(UnwritableSettingsTest, ARenamedLocationThatCannotBeDeletedIsReported) {
  AddUserPlace("Home", {});
  Manage([](HWND manager) {
    Select(manager, 2);
    Edit(manager, 104, [](HWND editor) {
      SetField(editor, 101, "Cottage");
      Libraries().writesFail = true;
      Click(editor, IDOK);
      ExpectMessageNaming("shabloc2.ini");
      Click(editor, IDCANCEL);
    });
    EXPECT_THAT(Names(manager), testing::Contains("Home"));
    Click(manager, IDCANCEL);
  });
}

// The old place's section is deleted first, a new place's first key is written first.
TEST_F(UnwritableSettingsTest, OneWriteThatFailsAmongManyIsReported) {
  AddUserPlace("Home", {});
  Manage([](HWND manager) {
    for (const int button : {104, 102}) {
      Select(manager, 2);
      Edit(manager, button, [](HWND editor) {
        Fill(editor, {.name = "Cottage"});
        CallLog().clear();
        System().answer = IDYES;
        Libraries().failingWrites = 1;
        Click(editor, IDOK);
        EXPECT_THAT(CallsWith("message box"), testing::Contains(HasSubstr("could not be saved to the file")));
        EXPECT_TRUE(IsWindowVisible(editor));
        Click(editor, IDCANCEL);
      });
    }
    Click(manager, IDCANCEL);
  });
}

TEST_F(UnwritableSettingsTest, TheCopiesForTheSiblingMayFailUnheard) {
  for (const char* const copy : {"almanachlp2.ini", "almanachlpl2.ini"}) {
    Libraries().unwritableFile = copy;
    Manage([](HWND manager) {
      Edit(manager, 102, [](HWND editor) {
        Fill(editor, {.name = "Cottage"});
        Click(editor, IDOK);
      });
      Click(manager, IDCANCEL);
    });
    EXPECT_EQ(Stored("shabbat2.ini|Locations|Cottage"), "Available") << copy;
    Libraries().settings.DeleteKey("shabbat2.ini", "Locations", "Cottage");
  }
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(UnwritableSettingsTest, ALocationThatCannotBeRemovedStaysInTheList) {
  for (const char* const file : {"shabloc2.ini", "shabbat2.ini", "almanacelevation.ini"}) {
    AddUserPlace("Home", {});
    Manage([&](HWND manager) {
      Select(manager, 2);
      CallLog().clear();
      Libraries().unwritableFile = file;
      Click(manager, 103);
      ASSERT_EQ(CallsWith("message box").size(), 2u) << file;
      EXPECT_THAT(CallsWith("message box")[1], HasSubstr("could not be saved to the file shabloc2.ini")) << file;
      Libraries().unwritableFile.clear();
      Click(manager, IDCANCEL);
    });
  }
}

TEST_F(UnwritableSettingsTest, TheLanguageOfZmanimAndTheBuiltInOnesAreReportedAndOpenNothing) {
  Libraries().unwritableFile = "shab30.ini";
  for (const unsigned id : {IDM_ZMANIM_HEBREW, IDM_ZMANIM_ENGLISH, IDM_BUILT_IN_ZMANIM}) {
    SendMessageA(frame_, WM_COMMAND, id, 0);
    ExpectMessageNaming("shab30.ini");
    EXPECT_EQ(CountDocuments(), 1) << id;
  }
}
