// Labels belong to their times: after every change of the zmanim in use, whatever is painted, clicked, exported or
// printed of a document that was computed before has its times under their own names.
#include "tests/program/labels_fixture.h"

#include "app/active_document.h"
#include "app/compute_document.h"
#include "app/program.h"
#include "engine/current.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_block.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

// A change of what is in use, and what the first columns are then.
struct Change {
  const char* name;
  void (*happens)();
  std::vector<std::string> names;
  std::vector<std::string> times;  // where they are not those of the names
};

void UseNames(const std::vector<std::string>& names) {
  Libraries().zmanNames.clear();
  for (const std::string& name : names) {
    Libraries().zmanNames[static_cast<uint32_t>(Libraries().zmanNames.size())] = name;
  }
  Libraries().zmanimCount = static_cast<uint32_t>(names.size());
}

uint32_t selectionStamp = 0;

void StampedFingerprint(uint32_t fingerprint[2]) {
  fingerprint[0] = 7;
  fingerprint[1] = selectionStamp;
}

// Built-in zmanim: 72 minutes before a sunrise of 5:47, and twice the 40 minutes that every twilight interval has.
const Change kChanges[] = {
    {"Selection",
     [] {
       UseNames({"Alpha", "Gamma"});
     },
     {"Alpha", "Gamma"},
     {}},
    {"GrownSelection",
     [] {
       UseNames({"Alpha", "Beta", "Gamma", "Delta"});
     },
     {"Alpha", "Beta", "Gamma", "Delta"},
     {}},
    {"Order",
     [] {
       UseNames({"Gamma", "Alpha", "Beta"});
     },
     {"Gamma", "Alpha", "Beta"},
     {}},
    {"Names",
     [] {
       UseNames({"Alpha", "Beta", "Zeta"});
     },
     {"Alpha", "Beta", "Zeta"},
     {}},
    {"Mode",
     [] { Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0"; },
     {"Alot HaShachar (Rabbi Moshe Feinstein)", "Earliest Tallit (11 degrees below horizon)"},
     {"<4:35>", "<5:7>"}},
};

void PrintTo(const Change& change, std::ostream* out) {
  *out << change.name;
}

class ChangedZmanimTest : public LabelsTest, public testing::WithParamInterface<Change> {
 protected:
  Columns Expected() const {
    Columns columns = ColumnsOf(GetParam().names);
    if (!GetParam().times.empty()) columns.times = GetParam().times;
    return columns;
  }
};

}  // namespace

TEST_P(ChangedZmanimTest, IsPaintedWithItsOwnNames) {
  GetParam().happens();
  ExpectPainted(Expected());
}

TEST_P(ChangedZmanimTest, AClickOnlyRepaints) {
  GetParam().happens();
  ClickCell({0, 1});
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
  EXPECT_TRUE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_TRUE(GetUpdateRect(legend_, nullptr, FALSE));
  ClickCell({0, 1});  // the second click of a double click: nobody has seen yet what it would mean
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
  ExpectPainted(Expected());
}

TEST_P(ChangedZmanimTest, TheNextClickMeansWhatIsSeenAndOkStoresIt) {
  GetParam().happens();
  ExpectPainted(Expected());
  CallLog().clear();
  if (GetParam().times.empty()) {
    WithDialog(
        [this] {
          PostClick({0, 1});
        },
        [](HWND dialog) {
          EXPECT_EQ(FieldText(dialog, 102), GetParam().names[1]);
          SetField(dialog, 103, "4");
          SetField(dialog, 104, "44");
          Click(dialog, IDOK);
        });
    EXPECT_THAT(CallsWith("own time set"),
                ElementsAre("own time set Aachen|" + GetParam().names[1] + "|5.1.2007 = 4:44"));
    Columns columns = Expected();
    columns.times[1] = "<4:44>";
    ExpectPainted(columns);
  } else {  // built-in zmanim take no times
    PostClick({0, 1});
    EXPECT_THAT(CallsWith("message box"), SizeIs(1));
    EXPECT_THAT(CallsWith("own time set"), IsEmpty());
  }
}

// A click that waited while the calculation ran was meant for what was seen before.
TEST_P(ChangedZmanimTest, AClickFromBeforeTheChangeMeansNothing) {
  const POINT point = CellPoint({0, 1});
  PostMessageA(table_, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
  const DWORD posted = GetTickCount();
  while (GetTickCount() == posted) continue;
  GetParam().happens();
  ExpectPainted(Expected());
  CallLog().clear();
  DispatchPendingMessages();
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
  EXPECT_THAT(CallsWith("own time"), IsEmpty());
}

TEST_P(ChangedZmanimTest, IsExportedWithItsOwnNames) {
  GetParam().happens();
  ExpectFiles(Expected());
}

TEST_P(ChangedZmanimTest, IsExportedWithItsOwnNamesThoughItChangedUnderTheSaveDialog) {
  System().whileSaving = GetParam().happens;
  const std::string text = Exported(IDM_EXPORT_TEXT);
  EXPECT_THAT(text, HasSubstr("1 = " + Expected().names[0]));
  EXPECT_THAT(text, HasSubstr("05.01.2007 " + Expected().times[0]));
}

TEST_P(ChangedZmanimTest, IsPrintedWithItsOwnNames) {
  GetParam().happens();
  ExpectPrinted(Expected());
}

INSTANTIATE_TEST_SUITE_P(All, ChangedZmanimTest, testing::ValuesIn(kChanges),
                         [](const auto& instance) { return instance.param.name; });

TEST_F(LabelsTest, UnchangedZmanimAreNotComputedAgain) {
  ExpectPainted(ColumnsOf({"Alpha", "Beta", "Gamma"}));
  ExpectFiles(ColumnsOf({"Alpha", "Beta", "Gamma"}));
  ExpectPrinted(ColumnsOf({"Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(TakeQuestions(), 0);
}

TEST_F(LabelsTest, ADefinitionThatTheLibraryTellsOfIsANewCalculation) {
  selectionStamp = 1;
  OptionalEntries.HoursGetFingerprint = StampedFingerprint;
  ComputeDays(1);
  PaintAll();
  TakeQuestions();
  Libraries().zmanMinutes = [](uint32_t, const CalendarDate&) { return 599; };
  PaintAll();
  EXPECT_EQ(DrawsOf(table_)[1].text, "<1:1>") << "the library has told of no change";
  selectionStamp = 2;
  EXPECT_EQ(DrawsOf(table_)[1].text, "<9:59>");
}

TEST_F(LabelsTest, AChangeByTheDialogReachesTheOlderDocumentWhenItIsSeen) {
  SendMessageA(frame_, WM_COMMAND, IDM_BUILT_IN_ZMANIM, 0);
  EXPECT_EQ(CountDocuments(), 2);
  DispatchPendingMessages();
  TakeQuestions();
  SendMessageA(Program.mdiClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(document_), 0);
  EXPECT_THAT(Exported(IDM_EXPORT_TEXT), HasSubstr("05.01.2007 <4:35>"));
}

TEST_F(LabelsTest, ADocumentThatNobodySeesCostsNothing) {
  Select({"Beta", "Alpha"});
  SendMessageA(document_, WM_COMMAND, IDB_READINGS, 0);
  PaintAll();
  EXPECT_EQ(TakeQuestions(), 0);
  SendMessageA(document_, WM_COMMAND, IDB_ZMANIM, 0);
  PaintAll();
  EXPECT_EQ(TakeQuestions(), 2);
}

TEST_F(LabelsTest, TheCalculationRunsBeforeThePaintingBegins) {
  Select({"Beta", "Alpha"});
  Libraries().zmanMinutes = [](uint32_t, const CalendarDate&) {
    EXPECT_EQ(System().deviceContexts, 0);
    return 600;
  };
  RedrawWindow(table_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  EXPECT_EQ(DrawsOf(table_)[1].text, "<10:0>");
}

TEST_F(LabelsTest, TheCalculationKeepsPlaceAndRangeOfTheDocument) {
  CurrentLocation = {"Elsewhere", 0, 0, 0, 0};
  CurrentRange = {{1, 1, 2000}, {2, 1, 2000}};
  Libraries().ownTimes["Aachen|Beta|5.1.2007"] = {4, 44};
  Libraries().logZmanim = true;
  Select({"Alpha", "Beta"});
  ExpectPainted({{"Alpha", "Beta"}, {"<1:1>", "<4:44>"}});
  EXPECT_THAT(CallsWith("zman 0"), ElementsAre("zman 0 of 5.1.2007 at 5046 606 1:0 sun 5:47 19:5 window yes"));
}

TEST_F(LabelsTest, TheCalculationSaysNothingOfALongRange) {
  SetRangeProperties(document_, {{1, 1, 1990}, {31, 12, 2999}});
  Select({"Beta"});
  EXPECT_TRUE(RenewZmanim(document_));
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document_, property::kZmanimTimes));
  EXPECT_EQ(block->count, 32001u);
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
}

TEST_F(LabelsTest, TheLanguageOfNamesAndTheFormOfTimesOnlyRedraw) {
  SendMessageA(frame_, WM_COMMAND, IDM_ZMANIM_HEBREW, 0);
  Libraries().formChanged = true;
  Libraries().amPm = true;
  SendMessageA(frame_, WM_COMMAND, IDM_TIME_FORM, 0);
  PaintAll();
  EXPECT_EQ(TakeQuestions(), 0);
}

// Columns are as wide as the form of times wants them, in the heading and in the table alike.
TEST_F(LabelsTest, AnotherFormOfTimesMovesNumbersAndTimesTogetherWhoeverSetIt) {
  Libraries().amPm = true;
  const RECT corner{0, 0, 5, 5};
  Libraries().draws.clear();
  RedrawWindow(table_, &corner, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  PaintAll();
  EXPECT_EQ(TakeQuestions(), 0);
  const std::vector<Draw> numbers = DrawsOf(heading_);
  const std::vector<Draw> times = DrawsOf(table_);
  EXPECT_EQ(times[2].x - times[1].x, ColumnWidth(10));
  EXPECT_EQ(numbers[2].x - numbers[1].x, ColumnWidth(10));
}

// Half of it could else be in the language of before.
TEST_F(LabelsTest, TheLegendIsPaintedWhole) {
  const RECT corner{0, 0, 5, 5};
  RedrawWindow(legend_, &corner, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  RECT client;
  GetClientRect(legend_, &client);
  EXPECT_TRUE(EqualRect(&Libraries().lastPaintedArea, &client));
}

TEST_F(LabelsTest, ShabbatTimesStayThoughTheirRulesHaveChanged) {
  const auto before = ShabbatTimesOf(document_);
  Libraries().settings["shabbat2.ini|Shabbat|CandleLighting"] = "40";
  Select({"Beta"});
  ExpectPainted(ColumnsOf({"Beta"}));
  const auto after = ShabbatTimesOf(document_);
  ASSERT_EQ(after.size(), before.size());
  EXPECT_EQ(after[0].candleMinute, before[0].candleMinute);
}

TEST_F(LabelsTest, OkStoresUnderTheDescriptionThatWasShownThoughTheOrderHasChanged) {
  WithDialog(
      [this] {
        ClickCell({0, 0});
      },
      [](HWND dialog) {
        EXPECT_EQ(FieldText(dialog, 102), "Alpha");
        UseNames({"Gamma", "Beta", "Alpha"});
        SetField(dialog, 103, "4");
        SetField(dialog, 104, "44");
        Click(dialog, IDOK);
      });
  EXPECT_THAT(CallsWith("own time set"), ElementsAre("own time set Aachen|Alpha|5.1.2007 = 4:44"));
  ExpectPainted({{"Gamma", "Beta", "Alpha"}, {"<7:7>", "<2:2>", "<4:44>"}});
}

TEST_F(LabelsTest, OkRefusesATimeOfAZmanThatIsGone) {
  const auto editWhile = [this](void (*happens)()) {
    CallLog().clear();
    WithDialog(
        [this] {
          PostClick({0, 0});
        },
        [happens](HWND dialog) {
          happens();
          SetField(dialog, 103, "4");
          SetField(dialog, 104, "44");
          Click(dialog, IDOK);
        });
    EXPECT_THAT(
        CallLog(),
        ElementsAre(
            "message box 'The time <4:44> for \"Alpha\" on 5.1.2007 was not stored, because this zman "
            "is not in use any more.\nPlease put it into your selection again, or leave the built-in zmanim, and set "
            "the time anew.' "
            "caption 'Error' type 0x10 owner yes"));
    EXPECT_THAT(Libraries().ownTimes, IsEmpty());
  };
  editWhile([] { UseNames({"Beta", "Gamma"}); });
  UseNames({"Alpha"});
  ExpectPainted(ColumnsOf({"Alpha"}));
  editWhile([] { Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0"; });
}

// The columns under the mouse are those that are painted, whatever the form of times is by now.
TEST_F(LabelsTest, AClickAfterAnotherFormOfTimesOnlyRepaints) {
  Libraries().amPm = true;
  ClickCell({0, 1});
  EXPECT_THAT(CallsWith("message box"), IsEmpty());
  EXPECT_TRUE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_TRUE(GetUpdateRect(heading_, nullptr, FALSE));
}

TEST_F(LabelsTest, WithoutMemoryADocumentKeepsTimesAndNamesUntilThereIsSome) {
  for (int failing = 1; failing <= 2; ++failing) {
    Select({"Alpha", "Beta"});
    ComputeDays(1);
    Select({"Beta", "Alpha"});
    System().failingBlock = failing;
    EXPECT_FALSE(RenewZmanim(document_)) << failing;
    EXPECT_EQ(System().failingBlock, 0) << failing;
    EXPECT_EQ(System().locks, 0) << failing;
    EXPECT_THAT(CallsWith("freed"), IsEmpty()) << failing;
    ExpectPainted(ColumnsOf({"Beta", "Alpha"}));
  }
}

TEST_F(LabelsTest, ADocumentThatIsComputedWithoutMemoryIsEmptyAndHarmless) {
  const std::size_t blocks = System().blocks.size();
  for (int failing = 1; failing <= 4; ++failing) {
    System().failingBlock = failing;
    CalculateShabbatTimes(document_, 5, 1, 2007, 6, 1, 2007);
    EXPECT_EQ(System().failingBlock, 0) << failing;
    PaintAll();
    EXPECT_EQ(System().locks, 0) << failing;
    EXPECT_THAT(CallsWith("freed"), IsEmpty()) << failing;
    EXPECT_LT(System().blocks.size(), blocks) << failing;
    CalculateShabbatTimes(document_, 5, 1, 2007, 6, 1, 2007);
    EXPECT_EQ(System().blocks.size(), blocks) << failing;
  }
}

// Bytes of the display font in another font would be other letters.
TEST_F(LabelsTest, WithoutTheHebrewFontTheLegendIsEnglish) {
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  Libraries().brokenTexts.clear();
  System().failingFont = 1;
  DrawsOf(legend_);
  EXPECT_EQ(System().failingFont, 0);
  ASSERT_THAT(Libraries().brokenTexts, SizeIs(1));
  EXPECT_THAT(Libraries().brokenTexts[0].text, testing::StartsWith("1 = Alpha"));
}
