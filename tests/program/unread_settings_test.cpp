// Settings files that are there but cannot be read: the user is told which, and no default takes their place.
#include "app/unread_at_start.h"
#include "engine/optional_entries.h"
#include "tests/program/custom_zman_fixture.h"
#include "tests/program/locations_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

std::string QuestionAbout(const std::string& file) {
  return "message box 'The settings in the file " + file +
         " cannot be read, so they cannot be changed now. They stay as they are.\nPlease see to it that no other "
         "program "
         "holds the file and that you may open it, then choose Retry.' caption 'Times / Readings' type 0x35 owner yes";
}

int FreeAllAndRetry() {
  Libraries().unreadFiles.clear();
  return IDRETRY;
}

class UnreadSettingsTest : public LocationsTest {
 protected:
  void SetUp() override {
    LocationsTest::SetUp();
    OptionalEntries.ProfileCanRead = ProfileCanRead;
    Libraries().settings["shabbat2.ini|Shabbat|CandleLighting"] = "40";
    Libraries().settings["shabbat2.ini|Shabbat|End"] = "72";
  }
};

class UnreadOwnTimesTest : public CustomZmanTest {
 protected:
  void SetUp() override {
    CustomZmanTest::SetUp();
    OptionalEntries.ProfileCanRead = ProfileCanRead;
  }
};

}  // namespace

TEST_F(UnreadSettingsTest, ThePreferencesDoNotOpenOnDefaults) {
  Libraries().unreadFiles = {"shabbat2.ini"};
  SendMessageA(frame_, WM_COMMAND, IDM_PREFERENCES, 0);
  EXPECT_THAT(CallsWith("message box"), ElementsAre(QuestionAbout("shabbat2.ini")));
  EXPECT_THAT(CallsWith("write"), IsEmpty());
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(UnreadSettingsTest, AfterRetryThePreferencesShowWhatIsStored) {
  Libraries().unreadFiles = {"shabbat2.ini"};
  int asked = 0;
  System().onRetryBox = [&asked] { return ++asked == 3 ? FreeAllAndRetry() : IDRETRY; };
  WithDialog([&] { SendMessageA(frame_, WM_COMMAND, IDM_PREFERENCES, 0); },
             [](HWND dialog) {
               EXPECT_EQ(FieldText(dialog, 101), "40");
               EXPECT_EQ(FieldText(dialog, 102), "72");
               Click(dialog, IDOK);
             });
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(Stored("shabbat2.ini|Shabbat|CandleLighting"), "40");
  EXPECT_EQ(Stored("shabbat2.ini|Shabbat|End"), "72");
}

TEST_F(UnreadSettingsTest, NeitherDoTheDialogsOfLocations) {
  for (const char* const file : {"shabbat2.ini", "shabloc2.ini", "almanacelevation.ini"}) {
    Libraries().unreadFiles = {file};
    CallLog().clear();
    SendMessageA(frame_, WM_COMMAND, IDM_LOCATION_MANAGER, 0);
    EXPECT_THAT(CallsWith("message box"), ElementsAre(QuestionAbout(file)));

    Libraries().unreadFiles.clear();
    Manage([&](HWND manager) {
      CallLog().clear();
      Libraries().unreadFiles = {file};
      Click(manager, 102);
      EXPECT_THAT(CallsWith("message box"), ElementsAre(QuestionAbout(file)));
      Libraries().unreadFiles.clear();
      Click(manager, IDCANCEL);
    });
  }
}

TEST_F(UnreadSettingsTest, AProfileLibraryThatDoesNotTellIsBelieved) {
  OptionalEntries.ProfileCanRead = nullptr;
  Libraries().unreadFiles = {"shabbat2.ini"};
  WithDialog([&] { SendMessageA(frame_, WM_COMMAND, IDM_PREFERENCES, 0); },
             [](HWND dialog) { Click(dialog, IDCANCEL); });
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
  EXPECT_TRUE(GoOnWithUnreadSettings());
}

TEST_F(UnreadSettingsTest, AtTheStartOneBoxNamesAllFiles) {
  EXPECT_TRUE(GoOnWithUnreadSettings());
  EXPECT_THAT(CallLog(), IsEmpty());

  Libraries().unreadFiles = {"shabbat2.ini", "hours.txt", "occasions.ini"};
  EXPECT_FALSE(GoOnWithUnreadSettings()) << "Cancel";
  ASSERT_THAT(CallLog(), SizeIs(1));
  EXPECT_THAT(CallLog()[0],
              HasSubstr("These settings files cannot be read:\n\nshabbat2.ini\nhours.txt\noccasions.ini\n\n"));
  EXPECT_THAT(CallLog()[0], HasSubstr("caption 'Times / Readings' type 0x136 owner none"));  // Try Again is the default

  System().onRetryBox = [] { return IDCONTINUE; };
  EXPECT_TRUE(GoOnWithUnreadSettings());
}

TEST_F(UnreadSettingsTest, AtTheStartTryAgainAsksUntilAllCanBeRead) {
  Libraries().unreadFiles = {"shabbat2.ini", "hours.txt"};
  System().onRetryBox = [] {
    Libraries().unreadFiles.erase(Libraries().unreadFiles.begin());
    return IDTRYAGAIN;
  };
  EXPECT_TRUE(GoOnWithUnreadSettings());
  EXPECT_THAT(CallLog(),
              ElementsAre(HasSubstr(":\n\nshabbat2.ini\nhours.txt\n\n"), HasSubstr(":\n\nshabbat2.ini\n\n")));
}

TEST_F(UnreadOwnTimesTest, ATimeIsNotEditedWhileTheUsersOwnCannotBeRead) {
  Libraries().unreadFiles = {"ownhours.txt"};
  ClickCell({0, 0});
  EXPECT_THAT(CallsWith("message box"), ElementsAre(QuestionAbout("ownhours.txt")));
  EXPECT_THAT(CallsWith("own times stored"), IsEmpty());
}

// As in a document that was computed while the file could not be read.
TEST_F(UnreadOwnTimesTest, AfterRetryTheUsersOwnTimeIsEditedAndNotTheComputedOne) {
  Libraries().ownTimes["Aachen|Zman 0|5.1.2007"] = {3, 33};
  Libraries().unreadFiles = {"ownhours.txt"};
  System().onRetryBox = FreeAllAndRetry;
  WithDialog(
      [&] {
        ClickCell({0, 0});
      },
      [](HWND dialog) {
        EXPECT_EQ(FieldText(dialog, 103), "3");
        EXPECT_EQ(FieldText(dialog, 104), "33");
        Click(dialog, IDOK);
      });
  const DoubledTime stored = Libraries().ownTimes["Aachen|Zman 0|5.1.2007"];
  EXPECT_EQ(stored.hour, 3);
  EXPECT_EQ(stored.minute, 33);
}
