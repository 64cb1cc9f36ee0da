// The commands of the occasions library: what it is told, and when they are grey.
#include <cstring>

#include "app/active_document.h"
#include "app/compute_document.h"
#include "app/open_document.h"
#include "app/program.h"
#include "engine/current.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/doubles/occasions_double.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class OccasionsCommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().unknownSettingsAreMissing = true;
    BindDoubledOccasions();
    OpenFrame();
    CallLog().clear();
  }
  void Run(unsigned id) { SendMessageA(frame_, WM_COMMAND, id, 0); }
  bool IsGrey(unsigned id) {
    SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(frame_)), 0);
    return (GetMenuState(GetMenu(frame_), id, MF_BYCOMMAND) & MF_GRAYED) != 0;
  }
  // A document of a place and a range beside those that are there; it is the one in front.
  HWND Open(const Location& place, const DateRange& range) {
    CurrentLocation = place;
    CurrentRange = range;
    OpenAndCompute(frame_);
    return ActiveDocument();
  }
};

const Location kJerusalem = {"Jerusalem", 3147, 3514, 2, 0};
const Location kStJohns = {"St. John's", 4734, -5243, -3, 30};

}  // namespace

TEST_F(OccasionsCommandsTest, AreOfTheDocumentInFront) {
  const HWND first = Open(kJerusalem, {{5, 1, 2007}, {6, 1, 2007}});
  Open(kStJohns, {{1, 9, 2026}, {31, 8, 2027}});
  CurrentLocation = {"Haifa", 3249, 3459, 2, 0};
  CurrentRange = {{1, 1, 2030}, {2, 1, 2030}};
  CallLog().clear();
  Run(IDM_OCCASIONS);
  SendMessageA(Program.mdiClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(first), 0);
  Run(IDM_OCCASIONS);
  EXPECT_THAT(CallsWith("occasions"), ElementsAre("occasions of 'St. John's' 4734 -5243 -3:30 1.9.2026-31.8.2027",
                                                  "occasions of 'Jerusalem' 3147 3514 2:0 5.1.2007-6.1.2007"));
  EXPECT_EQ(Occasions().dialogOwner, frame_);
}

TEST_F(OccasionsCommandsTest, WithoutADocumentAreOfTheCurrentPlaceAndRange) {
  Run(IDM_WINDOW_CLOSE_ALL);
  CurrentLocation = kJerusalem;
  CurrentRange = {{1, 1, 2030}, {2, 1, 2030}};
  EXPECT_FALSE(IsGrey(IDM_OCCASIONS));
  Run(IDM_OCCASIONS);
  EXPECT_THAT(CallsWith("occasions"), ElementsAre("occasions of 'Jerusalem' 3147 3514 2:0 1.1.2030-2.1.2030"));
}

TEST_F(OccasionsCommandsTest, ADocumentThatIsClosedMeanwhileLeavesTheWindowItsPlace) {
  Open(kStJohns, {{1, 9, 2026}, {31, 8, 2027}});
  Occasions().inDialog = [](HWND owner) {
    SendMessageA(owner, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
    CurrentLocation = {"Haifa", 3249, 3459, 2, 0};
  };
  CallLog().clear();
  Run(IDM_OCCASIONS);
  EXPECT_THAT(CallsWith("occasions"), ElementsAre("occasions of 'St. John's' 4734 -5243 -3:30 1.9.2026-31.8.2027"));
  EXPECT_EQ(ActiveDocument(), nullptr);
}

TEST_F(OccasionsCommandsTest, HoldNoLockWhileAWindowIsOpen) {
  int locks = -1;
  Occasions().inDialog = [&](HWND) { locks = System().locks; };
  Run(IDM_OCCASIONS);
  EXPECT_EQ(locks, 0);
  locks = -1;
  Run(IDM_OCCASIONS_SHOWN);
  EXPECT_EQ(locks, 0);
}

TEST_F(OccasionsCommandsTest, WhatIsShownIsAskedForOnBehalfOfTheFrame) {
  Run(IDM_OCCASIONS_SHOWN);
  EXPECT_THAT(CallsWith("settings of occasions"), ElementsAre("settings of occasions"));
  EXPECT_EQ(Occasions().dialogOwner, frame_);
}

// Even when something was stored.
TEST_F(OccasionsCommandsTest, LeaveDocumentsAsTheyAre) {
  const HGLOBAL before = GetBlockProperty(ActiveDocument(), property::kShabbatTimes);
  Run(IDM_OCCASIONS);
  Run(IDM_OCCASIONS_SHOWN);
  EXPECT_EQ(CountDocuments(), 1);
  EXPECT_EQ(GetBlockProperty(ActiveDocument(), property::kShabbatTimes), before);
  EXPECT_THAT(CallsWith("write"), IsEmpty());
}

TEST_F(OccasionsCommandsTest, AreGreyWhereTheLibraryLacksThem) {
  EXPECT_FALSE(IsGrey(IDM_OCCASIONS));
  EXPECT_FALSE(IsGrey(IDM_OCCASIONS_SHOWN));
  OptionalEntries.OccasionsDoSettingsDialog = nullptr;
  EXPECT_FALSE(IsGrey(IDM_OCCASIONS));
  EXPECT_TRUE(IsGrey(IDM_OCCASIONS_SHOWN));
  OptionalEntries.OccasionsDoDialog = nullptr;
  EXPECT_TRUE(IsGrey(IDM_OCCASIONS));
  Run(IDM_OCCASIONS);  // as a shortcut of someone else's might send it
  Run(IDM_OCCASIONS_SHOWN);
  EXPECT_THAT(CallLog(), IsEmpty());
}

// The folder of the real libraries is searched for these tests, but it is not that of the program.
TEST_F(OccasionsCommandsTest, ALibraryThatIsNotInTheProgramsFolderIsNotLoaded) {
  OptionalEntries = {};
  BindOccasions();
  EXPECT_THAT(CallsWith("load"), IsEmpty());
  EXPECT_EQ(OptionalEntries.OccasionsDoDialog, nullptr);
  EXPECT_EQ(OptionalEntries.OccasionsEnumerate, nullptr);
  UnloadOccasions();
  EXPECT_THAT(CallsWith("unload"), IsEmpty());
}

TEST_F(OccasionsCommandsTest, UnloadingTakesTheCommandsAway) {
  UnloadOccasions();
  EXPECT_TRUE(IsGrey(IDM_OCCASIONS));
  EXPECT_TRUE(IsGrey(IDM_OCCASIONS_SHOWN));
}
