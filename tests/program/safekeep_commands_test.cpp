// The commands that back all settings up and restore them, and what restored settings do to the documents.
#include <cstring>

#include "app/active_document.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/custom_zman_fixture.h"

using testing::ElementsAre;

namespace {

class SafekeepCommandsTest : public CustomZmanTest {
 protected:
  void Run(unsigned id) { SendMessageA(frame_, WM_COMMAND, id, 0); }
};

}  // namespace

TEST_F(SafekeepCommandsTest, StandAtTheEndOfTheSettings) {
  const HMENU settings = GetSubMenu(GetMenu(frame_), 3);
  const int count = GetMenuItemCount(settings);
  EXPECT_EQ(GetMenuItemID(settings, count - 3), 0u);  // a separator
  EXPECT_EQ(GetMenuItemID(settings, count - 2), 1132u);
  EXPECT_EQ(GetMenuItemID(settings, count - 1), 1133u);
  char text[64] = "";
  GetMenuStringA(settings, 1132, text, sizeof text, MF_BYCOMMAND);
  EXPECT_STREQ(text, "Back u&p settings...");
  GetMenuStringA(settings, 1133, text, sizeof text, MF_BYCOMMAND);
  EXPECT_STREQ(text, "Restore settin&gs...");
}

TEST_F(SafekeepCommandsTest, AreThereWithoutADocument) {
  Run(IDM_WINDOW_CLOSE_ALL);
  const HMENU menu = GetMenu(frame_);
  SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
  for (const unsigned id : {1132u, 1133u}) EXPECT_EQ(GetMenuState(menu, id, MF_BYCOMMAND) & MF_GRAYED, 0u) << id;
  Libraries().restoreSettings = [] {};
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SafekeepCommandsTest, BackingUpIsTheLibrarysAndChangesNothing) {
  Run(IDM_BACK_UP_SETTINGS);
  EXPECT_THAT(CallsWith("back"), ElementsAre("back settings up, owner yes"));
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SafekeepCommandsTest, WhereNothingWasRestoredNothingChanges) {
  CandleOverride = {false, 7};
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_THAT(CallsWith("restore"), ElementsAre("restore settings, owner yes"));
  EXPECT_EQ(CountDocuments(), 1);
  EXPECT_EQ(CandleOverride.fixedMinutes, 7);
}

TEST_F(SafekeepCommandsTest, RestoredSettingsOpenADocumentByTheCandleRuleOfThePlace) {
  std::strcpy(CurrentLocation.name, "Jerusalem");
  CandleOverride = {false, 7};
  Libraries().restoreSettings = [] { Libraries().settings["shabbat2.ini|Locations|Jerusalem"] = ""; };
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_EQ(CountDocuments(), 2);
  EXPECT_NE(ActiveDocument(), document_);
  EXPECT_EQ(CandleOverride.fixedMinutes, 40);
}

// A place of the user's own may have been elsewhere then; one that is no more keeps its numbers.
TEST_F(SafekeepCommandsTest, TheCurrentPlaceIsWhereTheRestoredSettingsHaveIt) {
  std::strcpy(CurrentLocation.name, "Home");
  CurrentLocation.latitude = 1;
  Libraries().restoreSettings = [] {
    Libraries().settings["shabbat2.ini|Locations|Home"] = "1";
    Libraries().settings["shabloc2.ini|Home|LatitudeDegrees"] = "32";
    Libraries().settings["shabloc2.ini|Home|LatitudeHours"] = "58";
    for (const char* key :
         {"LatitudeFlag", "LongitudeDegrees", "LongitudeHours", "LongitudeFlag", "TimeZone", "TimeZoneMin"}) {
      Libraries().settings[std::string("shabloc2.ini|Home|") + key] = "";
    }
  };
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_EQ(CurrentLocation.latitude, 3258);
  std::strcpy(CurrentLocation.name, "Nowhere");
  Libraries().settings["shabbat2.ini|Locations|Nowhere"] = "";
  CurrentLocation.latitude = 1;
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_EQ(CurrentLocation.latitude, 1);
  EXPECT_STREQ(CurrentLocation.name, "Nowhere");
}

TEST_F(SafekeepCommandsTest, OpenDocumentsTakeOverRestoredTimesSetByHand) {
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{6, 30}));
  // The document's own range begins on the doubled today, 20 November 2026.
  Libraries().restoreSettings = [] { Libraries().ownTimes["Aachen|Zman 3|21.11.2026"] = {12, 0}; };
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_TRUE(RenewZmanim(document_));  // as before it paints, when it is seen again
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{12, 0}));
}

// The form of times may be another.
TEST_F(SafekeepCommandsTest, OpenDocumentsAreDrawnAnew) {
  Run(IDM_WINDOW_TILE);
  DispatchPendingMessages();
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
  Libraries().restoreSettings = [] {};
  Run(IDM_RESTORE_SETTINGS);
  EXPECT_TRUE(GetUpdateRect(table_, nullptr, FALSE));
}
