// The dialogs of the readings library, and what an accepted one does to the documents and to the candle rule.
#include <cstring>

#include "app/active_document.h"
#include "engine/current.h"
#include "tests/program/program_fixture.h"

using testing::SizeIs;

namespace {

constexpr unsigned kReadingsDialogs[] = {1011, 1012, 1015};

// A rule that neither place below has.
constexpr CandleOverrideRecord kStaleRule{false, 7};

class ReadingsCommandsTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    CurrentRange = {{5, 1, 2007}, {12, 1, 2007}};  // two Fridays
  }

  // Runs the command with the current place under a name, in a state in which only the command can have set the rule.
  void Run(unsigned id, const char* place, bool accepted) {
    std::strcpy(CurrentLocation.name, place);
    CandleOverride = kStaleRule;
    Libraries().readingsChanged = accepted;
    SendMessageA(frame_, WM_COMMAND, MAKEWPARAM(id, 0), 0);
  }
  // How many minutes before the sunset at 19:05 candles are lit on the newest document's first Friday.
  static uint32_t CandleMinutes() {
    const ShabbatTimeEntry first = ShabbatTimesOf(ActiveDocument()).at(0);
    return 19 * 60 + 5 - (first.candleHour * 60 + first.candleMinute);
  }
};

}  // namespace

TEST_F(ReadingsCommandsTest, AnAcceptedDialogOpensAndComputesADocument) {
  for (const unsigned id : kReadingsDialogs) {
    const int before = CountDocuments();
    Run(id, "Aachen", true);
    EXPECT_EQ(CountDocuments(), before + 1) << id;
    EXPECT_EQ(TextOf(ActiveDocument()), "Aachen (5.1.2007 - 12.1.2007)") << id;
    EXPECT_THAT(ShabbatTimesOf(ActiveDocument()), SizeIs(2)) << id;
  }
}

TEST_F(ReadingsCommandsTest, AfterAnAcceptedDialogJerusalemKeepsItsFortyMinutes) {
  for (const unsigned id : kReadingsDialogs) {
    Run(id, "Jerusalem", true);
    EXPECT_FALSE(CandleOverride.readSetting) << id;
    EXPECT_EQ(CandleOverride.fixedMinutes, 40) << id;
    EXPECT_EQ(CandleMinutes(), 40u) << id;
  }
}

TEST_F(ReadingsCommandsTest, AfterAnAcceptedDialogAnotherPlaceReadsThePreference) {
  Libraries().settings["shabbat2.ini|Shabbat|CandleLighting"] = "22";
  for (const unsigned id : kReadingsDialogs) {
    Run(id, "Aachen", true);
    EXPECT_TRUE(CandleOverride.readSetting) << id;
    EXPECT_EQ(CandleMinutes(), 22u) << id;
  }
}

TEST_F(ReadingsCommandsTest, ACancelledDialogChangesNothing) {
  for (const unsigned id : kReadingsDialogs) {
    CallLog().clear();
    Run(id, "Jerusalem", false);
    EXPECT_EQ(CountDocuments(), 1) << id;
    EXPECT_EQ(CandleOverride.readSetting, kStaleRule.readSetting) << id;
    EXPECT_EQ(CandleOverride.fixedMinutes, kStaleRule.fixedMinutes) << id;
    EXPECT_THAT(CallLog(), SizeIs(1)) << id;  // the dialog itself
  }
}
