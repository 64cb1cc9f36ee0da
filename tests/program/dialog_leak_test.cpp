// Dialogs that are opened and closed again and again hold on to nothing.
#include "engine/bound_entries.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/program_fixture.h"

namespace {

class DialogLeakTest : public ProgramTest, public testing::WithParamInterface<unsigned> {};

uint32_t ThirtyDays(uint32_t, uint32_t) {
  return 30;
}

void NoMonthName(uint32_t, uint32_t, char* name, uint32_t, uint32_t, uint32_t) {
  name[0] = '\0';
}

}  // namespace

TEST_P(DialogLeakTest, OpenedAndClosedTwoHundredTimes) {
  Libraries().unknownSettingsAreMissing = true;
  CivilCalendar.DatefilterGetLastDayOfMonth = ThirtyDays;
  LunarCalendar.DatefilterGetMonthNameEx = NoMonthName;
  OpenFrame();
  const auto openAndClose = [this] {
    WithDialog([&] { SendMessageA(frame_, WM_COMMAND, GetParam(), 0); },
               [](HWND dialog) { SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    DispatchPendingMessages();
  };
  openAndClose();
  const SystemScript before = System();
  for (int i = 0; i < 200; ++i) openAndClose();
  EXPECT_EQ(System().blocks, before.blocks);
  EXPECT_EQ(System().properties, before.properties);
  EXPECT_EQ(System().fonts, before.fonts);
  EXPECT_EQ(System().pensAndBrushes, before.pensAndBrushes);
  EXPECT_EQ(System().deviceContexts, before.deviceContexts);
  EXPECT_EQ(System().locks, before.locks);
}

INSTANTIATE_TEST_SUITE_P(Commands, DialogLeakTest,
                         testing::Values(IDM_SELECT_RANGE, IDM_PREFERENCES, IDM_SUNSET_OF_A_DAY, IDM_ABOUT,
                                         IDM_EXPORT_RTF, IDM_EXPORT_ZMANIM, IDM_EXPORT_DATES, IDM_LOCATION_MANAGER,
                                         IDM_DAF_YOMI));
