// The command that lists the times set by hand, on documents that show some of them.
#include "app/own_times_dialog.h"

#include "engine/optional_entries.h"
#include "tests/program/custom_zman_fixture.h"
#include "zmanim/custom_zmanim.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Answer {
  bool known = false;
  int32_t hour = -1;
  int32_t minute = -1;
  bool operator==(const Answer&) const = default;
};

// The doubled dialog: what the user does in it, and how it is called.
struct DialogScript {
  std::function<void(OwnHoursCalculate)> act;
  bool changed = false;
  HWND owner = nullptr;
  int calls = 0;
};
DialogScript script;

int32_t DoDialog(HWND owner, OwnHoursCalculate calculate) {
  ++script.calls;
  script.owner = owner;
  if (script.act) script.act(calculate);
  return script.changed ? 1 : 0;
}

Answer Ask(OwnHoursCalculate calculate, const char* description, const char* location) {
  Answer answer;
  answer.known = calculate(6, 1, 2007, description, location, &answer.hour, &answer.minute) != 0;
  return answer;
}

class OwnTimesCommandTest : public CustomZmanTest {
 protected:
  void SetUp() override {
    CustomZmanTest::SetUp();
    script = {};
    OptionalEntries.OwnHoursDoDialog = DoDialog;
  }
  void Run() { SendMessageA(frame_, WM_COMMAND, IDM_OWN_TIMES, 0); }
};

}  // namespace

TEST_F(OwnTimesCommandTest, RunsTheDialogOfTheLibrary) {
  Run();
  EXPECT_EQ(script.calls, 1);
  EXPECT_EQ(script.owner, frame_);
  EXPECT_EQ(CountDocuments(), 1);
}

// Zman 3 is at 6:30, ten minutes for each before it after six o'clock.
TEST_F(OwnTimesCommandTest, TellsTheCalculatedTimeWhateverIsSetByHand) {
  Libraries().ownTimes["Aachen|Zman 3|6.1.2007"] = {12, 0};
  script.act = [](OwnHoursCalculate calculate) {
    EXPECT_EQ(Ask(calculate, "Zman 3", "Aachen"), (Answer{true, 6, 30}));
    EXPECT_EQ(Ask(calculate, "Zman 3", "Jerusalem"), (Answer{true, 6, 30}));
  };
  Run();
}

TEST_F(OwnTimesCommandTest, TellsNothingOfAZmanOrPlaceThatIsNotKnownAnyMore) {
  Libraries().unknownSettingsAreMissing = true;
  Libraries().zmanMinutes = [](uint32_t zman, const CalendarDate&) { return zman == 5 ? -1 : 360; };
  script.act = [](OwnHoursCalculate calculate) {
    EXPECT_EQ(Ask(calculate, "Zman 40", "Aachen"), Answer());
    EXPECT_EQ(Ask(calculate, "Zman 3", "Atlantis"), Answer());
    EXPECT_EQ(Ask(calculate, "Zman 3", std::string(300, 'x').c_str()), Answer());
    EXPECT_EQ(Ask(calculate, "Zman 5", "Aachen"), Answer());  // does not occur
  };
  Run();
}

TEST_F(OwnTimesCommandTest, OpenDocumentsTakeOverWhatWasChanged) {
  const ZmanimCell cell{1, 3};
  Libraries().ownTimes["Aachen|Zman 3|6.1.2007"] = {12, 0};
  Compute();
  EXPECT_EQ(TimeInBlock(cell), (ClockTime{12, 0}));
  script.changed = true;
  script.act = [](OwnHoursCalculate) { Libraries().ownTimes.clear(); };
  Run();
  UpdateWindow(table_);
  EXPECT_EQ(TimeInBlock(cell), (ClockTime{6, 30}));
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(OwnTimesCommandTest, ADocumentThatIsNotSeenTakesItOverWhenItIsExported) {
  Libraries().ownTimes["Aachen|Zman 3|6.1.2007"] = {12, 0};
  Compute();
  SendMessageA(document_, WM_COMMAND, IDB_SHABBAT_TIMES, 0);
  script.changed = true;
  script.act = [](OwnHoursCalculate) { Libraries().ownTimes.clear(); };
  Run();
  EXPECT_TRUE(RenewZmanim(document_));
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{6, 30}));
  EXPECT_FALSE(RenewZmanim(document_));
}

TEST_F(OwnTimesCommandTest, WithoutAChangeNothingIsComputedAnew) {
  const HGLOBAL before = GetBlockProperty(document_, property::kZmanimTimes);
  Run();
  UpdateWindow(table_);
  EXPECT_FALSE(RenewZmanim(document_));
  EXPECT_EQ(GetBlockProperty(document_, property::kZmanimTimes), before);
}

TEST_F(OwnTimesCommandTest, IsGreyWhereTheLibraryHasNoDialog) {
  const HMENU menu = GetMenu(frame_);
  const auto isGrey = [&] {
    SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
    return (GetMenuState(menu, IDM_OWN_TIMES, MF_BYCOMMAND) & MF_GRAYED) != 0;
  };
  EXPECT_FALSE(isGrey());
  OptionalEntries.OwnHoursDoDialog = nullptr;
  EXPECT_TRUE(isGrey());
  Run();  // as a shortcut of someone else's might send it
  EXPECT_EQ(script.calls, 0);
}
