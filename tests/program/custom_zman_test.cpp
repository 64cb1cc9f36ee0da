// A click on a time of the table, the dialog that it opens, and what becomes of the time typed there.
#include "tests/program/custom_zman_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using EditZmanDialogTest = CustomZmanTest;

// Accepts the dialog, which must show one error and put the focus on a field.
void ExpectError(HWND dialog, const std::string& message, int field) {
  CallLog().clear();
  Click(dialog, IDOK);
  EXPECT_THAT(CallLog(), ElementsAre("message box '" + message + "' caption 'Error' type 0x10 owner yes"));
  EXPECT_EQ(GetFocus(), GetDlgItem(dialog, field)) << message;
}

}  // namespace

TEST_F(CustomZmanTest, AClickedTimeIsStoredForItsDateZmanAndPlaceAndShownAtOnce) {
  Libraries().draws.clear();
  EditCell({1, 3}, "4", "44");
  EXPECT_THAT(CallLog(), ElementsAre("own time set Aachen|Zman 3|6.1.2007 = 4:44", "own times stored"));
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{4, 44}));
  EXPECT_EQ(TimeInBlock({1, 4}), (ClockTime{6, 40}));
  EXPECT_EQ(TimeInBlock({2, 3}), (ClockTime{6, 30}));
  EXPECT_THAT(Libraries().draws, testing::Contains(testing::Field(&Draw::text, "<4:44>")));
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
}

TEST_F(CustomZmanTest, TheStoredTimeOutlivesTheNextCalculation) {
  EditCell({1, 3}, "4", "44");
  CalculateZmanim(document_, 5, 1, 2007, 31, 12, 2007);
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{4, 44}));
  EXPECT_EQ(TimeInBlock({0, 3}), (ClockTime{6, 30}));
}

TEST_F(CustomZmanTest, CancelChangesNeitherStoreNorTable) {
  EditCell({1, 3}, "4", "44", IDCANCEL);
  EXPECT_THAT(CallLog(), IsEmpty());
  EXPECT_THAT(Libraries().ownTimes, IsEmpty());
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{6, 30}));
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
}

TEST_F(CustomZmanTest, AStoreThatCannotBeWrittenIsReportedAndTheTableKeepsTheComputedTime) {
  Libraries().ownTimesFail = true;
  EditCell({1, 3}, "4", "44");
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'The time <4:44> for \"Zman 3\" on 6.1.2007 in Aachen could not be "
                          "stored.\nPlease check that the settings folder can be written to and that the disk is not "
                          "full, and try again.' caption 'Error' type 0x10 owner yes"));
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{6, 30}));
  EXPECT_EQ(Libraries().openOwnTimes, 0);
}

TEST_F(CustomZmanTest, ATimeThatTheStoreRefusesIsReportedToo) {
  EditCell({1, 3}, "4294967295", "0");  // passes the dialog as -1
  EXPECT_THAT(CallsWith("message box"), ElementsAre(HasSubstr("it is no time of the day")));
  EXPECT_EQ(TimeInBlock({1, 3}), (ClockTime{6, 30}));
}

TEST_F(CustomZmanTest, AZmanWithoutADescriptionCannotBeStored) {
  Libraries().zmanNames[3] = "";
  Compute();
  WithDialog(
      [&] {
        ClickCell({1, 3});
      },
      [](HWND dialog) {
        EXPECT_EQ(FieldText(dialog, 102), "");
        Click(dialog, IDOK);
      });
  EXPECT_THAT(CallsWith("own"), IsEmpty());
  EXPECT_THAT(CallsWith("message box"), SizeIs(1));
}

TEST_F(CustomZmanTest, InTheBuiltInZmanimAClickExplainsAndStoresNothing) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  Compute();
  const ClockTime before = TimeInBlock({1, 3});
  ClickCell({1, 3});
  EXPECT_THAT(CallLog(), ElementsAre("message box 'Times of your own can be set for the zmanim of your selection only, "
                                     "not for the built-in zmanim.' caption 'Times / Readings' type 0x40 owner yes"));
  EXPECT_EQ(TimeInBlock({1, 3}), before);
}

TEST_F(CustomZmanTest, AClickBesideTheTimesDoesNothing) {
  const ZmanimGeometry geometry = Geometry();
  ClickAt(geometry.dateWidth - 1, 5);
  ClickAt(5, 5);
  CalculateZmanim(document_, 5, 1, 2007, 6, 1, 2007);
  CallLog().clear();
  ClickAt(geometry.dateWidth + 5, 2 * geometry.rowHeight);
  EXPECT_THAT(CallLog(), IsEmpty());
}

TEST_F(CustomZmanTest, ThePlaceIsTheDocumentsThoughAnotherIsCurrent) {
  CurrentLocation = {"Elsewhere", 0, 0, 0, 0};
  EditCell({0, 0}, "5", "5");
  EXPECT_THAT(CallsWith("own time set"), ElementsAre("own time set Aachen|Zman 0|5.1.2007 = 5:5"));
}

TEST_F(CustomZmanTest, AClickOnAnyCellAtAnyScrollPositionEditsExactlyThatCell) {
  const struct {
    int day;
    int zman;
  } positions[] = {{0, 0}, {17, 0}, {0, 24}, {100, 11}, {32767, 32767}};
  for (const auto& position : positions) {
    SendMessageA(table_, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position.day), 0);
    SendMessageA(table_, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, position.zman), 0);
    const ZmanimGeometry geometry = Geometry();
    for (const uint32_t row : {0u, 1u, static_cast<uint32_t>(geometry.WholeRows()) - 1}) {
      for (const uint32_t column : {0u, 7u, 15u}) {
        const ZmanimCell cell{geometry.firstDay + row, geometry.firstZman + column};
        const PaneRect rect = geometry.CellRect(cell);
        for (const bool farCorner : {false, true}) {
          CallLog().clear();
          WithDialog([&] { ClickAt(farCorner ? rect.Right() - 1 : rect.x, farCorner ? rect.Bottom() - 1 : rect.y); },
                     [](HWND dialog) { Click(dialog, IDOK); });
          CalendarDate date{};
          {
            const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document_, property::kZmanimTimes));
            const ZmanimDay* const days = block->days;
            date = days[cell.day].date;
          }
          char expected[128];
          std::snprintf(expected, sizeof expected, "own time set Aachen|Zman %u|%u.%u.%u = ", cell.zman, date.uDay,
                        date.uMonth, date.uYear);
          ASSERT_THAT(CallsWith("own time set"), ElementsAre(testing::StartsWith(expected)));
        }
      }
    }
  }
}

TEST_F(EditZmanDialogTest, ShowsDateDescriptionAndCurrentTime) {
  Libraries().zmanNames[3] = "Shema & Tefila";
  Compute();
  WithDialog(
      [&] {
        ClickCell({1, 3});
      },
      [](HWND dialog) {
        EXPECT_EQ(TextOf(dialog), "Edit Zmanim");
        EXPECT_EQ(FieldText(dialog, 101), "6.1.2007");
        EXPECT_EQ(FieldText(dialog, 102), "Shema & Tefila");
        EXPECT_EQ(FieldText(dialog, 103), "6");
        EXPECT_EQ(FieldText(dialog, 104), "30");
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, 103));
        Click(dialog, IDCANCEL);
      });
}

TEST_F(EditZmanDialogTest, HasItsControlsWhereTheTemplatePutsThem) {
  WithDialog(
      [&] {
        ClickCell({0, 0});
      },
      [](HWND dialog) {
        const struct {
          int id;
          RECT units;
        } controls[] = {{101, {60, 3, 200, 11}},  {102, {60, 18, 200, 26}}, {103, {60, 33, 76, 45}},
                        {104, {90, 33, 106, 45}}, {1, {55, 50, 95, 64}},    {2, {105, 50, 145, 64}}};
        for (const auto& control : controls) {
          RECT expected = control.units;
          MapDialogRect(dialog, &expected);
          RECT rect;
          GetWindowRect(GetDlgItem(dialog, control.id), &rect);
          MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
          EXPECT_TRUE(EqualRect(&rect, &expected)) << control.id;
        }
        Click(dialog, IDCANCEL);
      });
}

TEST_F(EditZmanDialogTest, MarksAreShownAsTheUnsignedNumbersTheyAre) {
  WithDialog(
      [&] {
        EditZmanDialog(document_, {5, 1, 2007}, "x", {2000, 0});
      },
      [](HWND dialog) {
        EXPECT_EQ(FieldText(dialog, 103), "2000");
        EXPECT_EQ(FieldText(dialog, 104), "0");
        ExpectError(dialog, "Hour must be less than 23", 103);
        Click(dialog, IDCANCEL);
      });
  WithDialog(
      [&] {
        EditZmanDialog(document_, {5, 1, 2007}, "x", {0, -20});
      },
      [](HWND dialog) {
        EXPECT_EQ(FieldText(dialog, 104), "4294967276");
        Click(dialog, IDCANCEL);
      });
}

TEST_F(EditZmanDialogTest, HourAndMinuteAreCheckedInOrderWithTheFocusOnTheFault) {
  WithDialog(
      [&] {
        ClickCell({0, 0});
      },
      [](HWND dialog) {
        const struct {
          const char* hour;
          const char* minute;
          const char* message;
          int field;
        } faults[] = {
            {"", "x", "Hour must be a number", 103},
            {"-1", "0", "Hour must be a number", 103},
            {"+1", "0", "Hour must be a number", 103},
            {"1x", "0", "Hour must be a number", 103},
            {"4294967296", "0", "Hour must be a number", 103},
            {"24", "x", "Hour must be less than 23", 103},
            {"2147483647", "0", "Hour must be less than 23", 103},
            {"23", "", "Minute must be a number", 104},
            {"23", "-1", "Minute must be a number", 104},
            {"23", "60", "Minute must be less than 59", 104},
        };
        for (const auto& fault : faults) {
          SetField(dialog, 103, fault.hour);
          SetField(dialog, 104, fault.minute);
          ExpectError(dialog, fault.message, fault.field);
          EXPECT_EQ(FieldText(dialog, 103), fault.hour);
          EXPECT_EQ(FieldText(dialog, 104), fault.minute);
        }
        Click(dialog, IDCANCEL);
      });
  EXPECT_THAT(CallsWith("own"), IsEmpty());
}

TEST_F(EditZmanDialogTest, TwentyThreeAndFiftyNineAreAcceptedDespiteTheMessages) {
  EditCell({0, 0}, "23", "59");
  EXPECT_EQ(TimeInBlock({0, 0}), (ClockTime{23, 59}));
  EditCell({0, 0}, "0", "0");
  EXPECT_EQ(TimeInBlock({0, 0}), (ClockTime{0, 0}));
}

TEST_F(EditZmanDialogTest, CancelAnswersNothing) {
  WithDialog(
      [&] {
        EXPECT_EQ(EditZmanDialog(document_, {5, 1, 2007}, "x", {4, 4}), std::nullopt);
      },
      [](HWND dialog) { Click(dialog, IDCANCEL); });
}

TEST_F(EditZmanDialogTest, ALongDescriptionIsCutToItsField) {
  WithDialog(
      [&] {
        EditZmanDialog(document_, {5, 1, 2007}, std::string(400, 'x'), {4, 4});
      },
      [](HWND dialog) {
        EXPECT_EQ(FieldText(dialog, 102), std::string(255, 'x'));
        Click(dialog, IDCANCEL);
      });
}

TEST_F(EditZmanDialogTest, OpenedAndClosedTwoHundredTimesItLeaksNothing) {
  const auto editOnce = [this](int button) { EditCell({0, 0}, "4", "44", button); };
  editOnce(IDOK);
  const SystemScript before = System();
  for (int i = 0; i < 200; ++i) editOnce(i % 2 ? IDOK : IDCANCEL);
  EXPECT_EQ(System().blocks, before.blocks);
  EXPECT_EQ(System().properties, before.properties);
  EXPECT_EQ(System().fonts, before.fonts);
  EXPECT_EQ(System().pensAndBrushes, before.pensAndBrushes);
  EXPECT_EQ(System().deviceContexts, before.deviceContexts);
  EXPECT_EQ(System().locks, before.locks);
  EXPECT_EQ(Libraries().openOwnTimes, 0);
}
