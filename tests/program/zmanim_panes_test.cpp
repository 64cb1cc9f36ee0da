// The panes of the zmanim view. Expected positions follow from the font's measures and from the doubled text library,
// whose dates are 80 pixels wide.
#include "zmanim/zmanim_panes.h"
#include "app/active_document.h"
#include "app/bound_entries.h"
#include "app/open_document.h"
#include "app/program.h"
#include "document/properties.h"
#include "engine/current.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"
#include "win/scoped.h"
#include "win/text_metrics.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/zmanim_count.h"

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Field;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

constexpr int kDateWidth = 10 * kDoubledCharacterWidth;
constexpr char kFont[] = "Times New Roman 0";
constexpr char kBoldFont[] = "Times New Roman 700";

class ZmanimPanesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    document_ = ActiveDocument();
    ASSERT_NE(document_, nullptr);
    SendMessageA(document_, WM_COMMAND, IDB_ZMANIM, 0);
    container_ = GetDlgItem(document_, IDC_ZMANIM_PANE);
    table_ = GetDlgItem(container_, IDC_ZMANIM_TABLE);
    heading_ = GetDlgItem(container_, IDC_ZMANIM_HEADING);
    legend_ = GetDlgItem(container_, IDC_ZMANIM_LEGEND);
    const FontMeasure font = MeasureFontOnDisplay(GetFontProperty(document_, property::kZmanimFont));
    rowHeight_ = font.lineHeight;
    indent_ = font.averageCharacterWidth;
    CallLog().clear();
  }

  void UseZmanim(uint32_t count) {
    Libraries().zmanimCount = count;
    RefreshZmanimCount();
    CallLog().clear();
  }
  void ComputeDays(uint32_t days) {
    const int32_t first = 732681;  // 5 January 2007
    CurrentRange = {{5, 1, 2007}, Date(first + static_cast<int32_t>(days) - 1)};
    const CalendarDate& end = CurrentRange.end;
    CalculateZmanim(document_, 5, 1, 2007, end.uDay, end.uMonth, end.uYear);
    CallLog().clear();
  }
  static CalendarDate Date(int32_t absoluteDay);

  // Makes the table's client area so many whole rows high, and a number of pixels.
  void ShowRows(int rows, int pixels = 0) {
    RECT window, client;
    GetWindowRect(table_, &window);
    GetClientRect(table_, &client);
    const int borders = window.bottom - window.top - client.bottom;
    GetClientRect(container_, &client);
    MoveWindow(table_, 0, 100, client.right, rows * rowHeight_ + pixels + borders, TRUE);
    GetClientRect(table_, &client);
    ASSERT_EQ(client.bottom, rows * rowHeight_ + pixels);
  }

  int ClientWidth() {
    RECT client;
    GetClientRect(table_, &client);
    return client.right;
  }
  int ColumnWidth(int columns = 16) { return (ClientWidth() - kDateWidth) / columns; }
  int Position(int bar) { return GetScrollPos(table_, bar); }
  int Maximum(int bar) {
    int minimum, maximum;
    GetScrollRange(table_, bar, &minimum, &maximum);
    EXPECT_EQ(minimum, 0);
    return maximum;
  }
  int Scroll(int code, int thumb = 0) {
    SendMessageA(table_, WM_VSCROLL, MAKEWPARAM(code, thumb), 0);
    return Position(SB_VERT);
  }
  int ScrollSideways(int code, int thumb = 0) {
    SendMessageA(table_, WM_HSCROLL, MAKEWPARAM(code, thumb), 0);
    return Position(SB_HORZ);
  }
  void Press(int key) { SendMessageA(table_, WM_KEYDOWN, static_cast<WPARAM>(key), 0); }
  int Wheel(int delta) {
    SendMessageA(table_, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
    return Position(SB_VERT);
  }
  void PaintAll() { RedrawWindow(document_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN); }

  HWND document_ = nullptr;
  HWND container_ = nullptr;
  HWND table_ = nullptr;
  HWND heading_ = nullptr;
  HWND legend_ = nullptr;
  int rowHeight_ = 0;
  int indent_ = 0;
};

CalendarDate ZmanimPanesTest::Date(int32_t absoluteDay) {
  CalendarDate date{};
  CivilCalendar.DatefilterForeignFromAbsolute(absoluteDay, &date);
  return date;
}

RECT RectInParent(HWND window) {
  RECT rect;
  GetWindowRect(window, &rect);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
  return rect;
}

}  // namespace

TEST_F(ZmanimPanesTest, TheViewHasItsThreePanes) {
  EXPECT_EQ(ClassOf(container_), "ShabbatZmanim");
  EXPECT_EQ(ClassOf(heading_), "ShabbatZmanimOne");
  EXPECT_EQ(ClassOf(table_), "ShabbatZmanimTwo");
  EXPECT_EQ(ClassOf(legend_), "ShabbatZmanimThree");
  for (const HWND pane : {heading_, table_, legend_}) EXPECT_TRUE(IsWindowVisible(pane));
  EXPECT_EQ(GetFocus(), table_);
}

TEST_F(ZmanimPanesTest, LegendHeadingAndTableAreLaidOutByTheSystemFont) {
  MoveWindow(container_, 0, 0, 900, 500, TRUE);
  const FontMeasure font = MeasureFontOnDisplay(nullptr);
  const int h = font.lineHeight;
  const int a = font.averageCharacterWidth;
  const struct {
    HWND pane;
    RECT rect;
  } expected[] = {{legend_, {a, 0, 900, 8 * h}}, {heading_, {0, 8 * h, 900, 9 * h}}, {table_, {0, 9 * h, 900, 500}}};
  for (const auto& row : expected) {
    const RECT rect = RectInParent(row.pane);
    EXPECT_TRUE(EqualRect(&rect, &row.rect))
        << ClassOf(row.pane) << ": " << rect.left << "," << rect.top << "," << rect.right << "," << rect.bottom;
  }
}

TEST_F(ZmanimPanesTest, TheBuiltInLegendIsSixLinesHighInEveryDocumentAtOnce) {
  const int h = MeasureFontOnDisplay(nullptr).lineHeight;
  SendMessageA(frame_, WM_COMMAND, IDM_BUILT_IN_ZMANIM, 0);
  EXPECT_EQ(RectInParent(legend_).bottom, 6 * h);
  SendMessageA(frame_, WM_COMMAND, IDM_BUILT_IN_ZMANIM, 0);
  EXPECT_EQ(RectInParent(legend_).bottom, 8 * h);
}

TEST_F(ZmanimPanesTest, ACreationWithoutAPaneFails) {
  WNDCLASSA pane{};
  ASSERT_TRUE(GetClassInfoA(Program.instance, "ShabbatZmanimThree", &pane));
  SendMessageA(Program.mdiClient, WM_MDIDESTROY, reinterpret_cast<WPARAM>(document_), 0);
  ASSERT_TRUE(UnregisterClassA("ShabbatZmanimThree", Program.instance));
  EXPECT_EQ(OpenDocument(frame_), nullptr);
  EXPECT_THAT(System().properties, IsEmpty());
  pane.lpszClassName = "ShabbatZmanimThree";
  EXPECT_NE(RegisterClassA(&pane), 0);
}

TEST_F(ZmanimPanesTest, TheTableDrawsDateAndTimesOfEveryDay) {
  UseZmanim(3);
  Libraries().zmanMinutes = [](uint32_t index, const CalendarDate& date) {
    return static_cast<int32_t>(60 * date.uDay + index);
  };
  ComputeDays(2);
  const int a = indent_;
  const int c = ColumnWidth();
  const int d = kDateWidth;
  const int h = rowHeight_;
  EXPECT_THAT(DrawsOf(table_), ElementsAreArray(std::vector<Draw>{{a, 0, "05.01.2007", kFont},
                                                                  {a + d, 0, "<5:0>", kFont},
                                                                  {a + d + c, 0, "<5:1>", kFont},
                                                                  {a + d + 2 * c, 0, "<5:2>", kFont},
                                                                  {a, h, "06.01.2007", kFont},
                                                                  {a + d, h, "<6:0>", kFont},
                                                                  {a + d + c, h, "<6:1>", kFont},
                                                                  {a + d + 2 * c, h, "<6:2>", kFont}}));
}

TEST_F(ZmanimPanesTest, MarksAreDrawnForTimesThatAreNone) {
  UseZmanim(3);
  Libraries().ownTimes["Aachen|Zman 1|5.1.2007"] = {1000, 0};
  Libraries().zmanMinutes = [](uint32_t index, const CalendarDate&) { return index == 0 ? -1 : 600; };
  ComputeDays(1);
  const auto draws = DrawsOf(table_);
  ASSERT_THAT(draws, SizeIs(4));
  EXPECT_EQ(draws[1].text, "----");
  EXPECT_EQ(draws[2].text, "??:??");
  EXPECT_EQ(draws[3].text, "<10:0>");
}

TEST_F(ZmanimPanesTest, ADocumentComputedBeforeTheSelectionGrewShowsNoTimeThere) {
  UseZmanim(2);
  ComputeDays(1);
  UseZmanim(4);
  const auto draws = DrawsOf(table_);
  ASSERT_THAT(draws, SizeIs(5));
  EXPECT_EQ(draws[2].text, "<6:10>");
  EXPECT_EQ(draws[3].text, "----");
  EXPECT_EQ(draws[4].text, "----");
}

TEST_F(ZmanimPanesTest, DrawingStartsAtBothScrollPositions) {
  UseZmanim(40);
  ComputeDays(300);
  Scroll(SB_THUMBPOSITION, 3);
  ScrollSideways(SB_THUMBPOSITION, 5);
  const auto draws = DrawsOf(table_);
  EXPECT_EQ(draws[0], (Draw{indent_, 0, "08.01.2007", kFont}));
  EXPECT_EQ(draws[1], (Draw{indent_ + kDateWidth, 0, "<6:50>", kFont}));
}

TEST_F(ZmanimPanesTest, PartlyVisibleRowsAreDrawnButNoneThatStartsAtTheBottomEdge) {
  UseZmanim(1);
  ComputeDays(300);
  ShowRows(10);
  EXPECT_THAT(DrawsOf(table_), SizeIs(10 * 2));
  ShowRows(10, 1);
  EXPECT_THAT(DrawsOf(table_), SizeIs(11 * 2));
}

TEST_F(ZmanimPanesTest, OnlyCellsThatMeetTheAreaToBePaintedAreDrawn) {
  UseZmanim(16);
  ComputeDays(300);
  PaintAll();
  Libraries().draws.clear();
  const int x = kDateWidth + 2 * ColumnWidth();
  const RECT area{x, rowHeight_, x + ColumnWidth(), 3 * rowHeight_};
  RedrawWindow(table_, &area, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  const int textX = indent_ + x;
  EXPECT_THAT(Libraries().draws,
              ElementsAre(Draw{textX, rowHeight_, "<6:20>", kFont}, Draw{textX, 2 * rowHeight_, "<6:20>", kFont}));
}

TEST_F(ZmanimPanesTest, AnEmptyOrMissingBlockDrawsNothing) {
  CurrentRange = {{6, 1, 2007}, {5, 1, 2007}};
  CalculateZmanim(document_, 6, 1, 2007, 5, 1, 2007);
  EXPECT_THAT(DrawsOf(table_), IsEmpty());
  FreeBlockProperty(document_, property::kZmanimTimes);
  EXPECT_THAT(DrawsOf(table_), IsEmpty());
  RefreshZmanimView(document_);
  EXPECT_EQ(Maximum(SB_VERT), 0);
}

TEST_F(ZmanimPanesTest, SettingsAreReadOnceForAPaintingNotForACell) {
  UseZmanim(40);
  ComputeDays(300);
  Libraries().logSettings = true;
  DrawsOf(table_);
  EXPECT_THAT(CallsWith("read"), ElementsAre("read shab30.ini|Settings|EnableZmanim"));
}

TEST_F(ZmanimPanesTest, TheHeadingNumbersTheColumnsOverThem) {
  UseZmanim(3);
  ComputeDays(1);
  const int a = MeasureFontOnDisplay(GetFontProperty(document_, property::kBoldZmanimFont)).averageCharacterWidth;
  const int c = ColumnWidth();
  EXPECT_THAT(DrawsOf(heading_), ElementsAre(Draw{a, 0, "Date", kBoldFont}, Draw{a + kDateWidth, 0, "1", kBoldFont},
                                             Draw{a + kDateWidth + c, 0, "2", kBoldFont},
                                             Draw{a + kDateWidth + 2 * c, 0, "3", kBoldFont}));
  RECT client;
  GetClientRect(heading_, &client);
  const RECT clip{0, 0, ClientWidth(), client.bottom};
  EXPECT_TRUE(EqualRect(&Libraries().lastClip, &clip));
}

TEST_F(ZmanimPanesTest, TheHeadingStartsAtTheHorizontalPosition) {
  UseZmanim(100);
  ComputeDays(1);
  ScrollSideways(SB_THUMBPOSITION, 84);
  const auto draws = DrawsOf(heading_);
  EXPECT_EQ(draws[1].text, "85");
  EXPECT_EQ(draws.back().text, "100");
}

TEST_F(ZmanimPanesTest, TheHeadingIsABlueBandOfOneBoldLine) {
  DrawsOf(heading_);
  const int h = MeasureFontOnDisplay(GetFontProperty(document_, property::kBoldZmanimFont)).lineHeight;
  const ScopedWindowDc dc(heading_);
  EXPECT_EQ(GetPixel(dc.dc(), 0, 0), static_cast<COLORREF>(RGB(0, 0, 255)));
  EXPECT_EQ(GetPixel(dc.dc(), 300, h - 1), static_cast<COLORREF>(RGB(0, 0, 255)));
}

TEST_F(ZmanimPanesTest, With24HourTimesSixteenColumnsAreVisible) {
  UseZmanim(40);
  ComputeDays(300);
  EXPECT_EQ(Maximum(SB_HORZ), 24);
  UseZmanim(16);
  ComputeDays(300);
  EXPECT_EQ(Maximum(SB_HORZ), 0);
}

TEST_F(ZmanimPanesTest, With12HourTimesTenColumnsAreVisible) {
  Libraries().amPm = true;
  UseZmanim(40);
  ComputeDays(1);
  EXPECT_EQ(Maximum(SB_HORZ), 30);
  const auto draws = DrawsOf(table_);
  EXPECT_EQ(draws[2].x - draws[1].x, ColumnWidth(10));
}

TEST_F(ZmanimPanesTest, AnotherFormOfTimesLetsEveryColumnBeReached) {
  UseZmanim(40);
  ComputeDays(300);
  Libraries().amPm = true;
  Libraries().formChanged = true;
  SendMessageA(frame_, WM_COMMAND, IDM_TIME_FORM, 0);
  EXPECT_EQ(Maximum(SB_HORZ), 30);
}

TEST_F(ZmanimPanesTest, EveryVerticalRequestMovesToItsPosition) {
  ComputeDays(105);
  ShowRows(10);
  ASSERT_EQ(Maximum(SB_VERT), 95);
  EXPECT_EQ(Scroll(SB_LINEDOWN), 1);
  EXPECT_EQ(Scroll(SB_PAGEDOWN), 11);
  EXPECT_EQ(Scroll(SB_LINEUP), 10);
  EXPECT_EQ(Scroll(SB_PAGEUP), 0);
  EXPECT_EQ(Scroll(SB_LINEUP), 0);
  EXPECT_EQ(Scroll(SB_THUMBTRACK, 50), 50);
  EXPECT_EQ(Scroll(SB_THUMBPOSITION, 60), 60);
  EXPECT_EQ(Scroll(SB_BOTTOM), 95);
  EXPECT_EQ(Scroll(SB_PAGEDOWN), 95);
  EXPECT_EQ(Scroll(SB_TOP), 0);
  EXPECT_EQ(Scroll(SB_ENDSCROLL), 0);
}

TEST_F(ZmanimPanesTest, HorizontalRequestsMoveByColumnsAndNothingPages) {
  UseZmanim(40);
  ComputeDays(300);
  EXPECT_EQ(ScrollSideways(SB_LINERIGHT), 1);
  EXPECT_EQ(ScrollSideways(SB_LINELEFT), 0);
  EXPECT_EQ(ScrollSideways(SB_LINELEFT), 0);
  EXPECT_EQ(ScrollSideways(SB_THUMBTRACK, 7), 7);
  EXPECT_EQ(ScrollSideways(SB_PAGERIGHT), 7);
  EXPECT_EQ(ScrollSideways(SB_PAGELEFT), 7);
  EXPECT_EQ(ScrollSideways(SB_RIGHT), 24);
  EXPECT_EQ(ScrollSideways(SB_LINERIGHT), 24);
  EXPECT_EQ(ScrollSideways(SB_THUMBPOSITION, 9), 9);
  EXPECT_EQ(ScrollSideways(SB_LEFT), 0);
  EXPECT_EQ(ScrollSideways(SB_ENDSCROLL), 0);
}

TEST_F(ZmanimPanesTest, KeysScrollBothWays) {
  UseZmanim(40);
  ComputeDays(105);
  ShowRows(10);
  const struct {
    int key;
    int day;
    int zman;
  } steps[] = {{VK_DOWN, 1, 0}, {VK_NEXT, 11, 0}, {VK_UP, 10, 0},   {VK_END, 95, 0}, {VK_PRIOR, 85, 0},
               {VK_HOME, 0, 0}, {VK_RIGHT, 0, 1}, {VK_RIGHT, 0, 2}, {VK_LEFT, 0, 1}, {'A', 0, 1}};
  for (const auto& step : steps) {
    Press(step.key);
    EXPECT_EQ(Position(SB_VERT), step.day) << step.key;
    EXPECT_EQ(Position(SB_HORZ), step.zman) << step.key;
  }
}

TEST_F(ZmanimPanesTest, TheWheelMovesByWholeNotchesAndADeltaOfMinusOneDoesNothing) {
  ComputeDays(105);
  ShowRows(10);
  PaintAll();
  Scroll(SB_THUMBPOSITION, 20);
  EXPECT_EQ(Wheel(-1), 20);
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_EQ(Wheel(240), 18);
  RECT update, client;
  EXPECT_TRUE(GetUpdateRect(table_, &update, FALSE));
  GetClientRect(table_, &client);
  EXPECT_TRUE(EqualRect(&update, &client));
  EXPECT_EQ(Wheel(-119), 18);
  EXPECT_EQ(Wheel(-120), 19);
  EXPECT_EQ(Wheel(32760), 0);
  EXPECT_EQ(Wheel(-32760), 95);
}

TEST_F(ZmanimPanesTest, ARangeThatGetsShorterLowersThePositionToTheNewEndRatherThanToTheStart) {
  ComputeDays(300);
  RECT client;
  GetClientRect(table_, &client);
  const int rows = client.bottom / rowHeight_;
  EXPECT_EQ(Scroll(SB_THUMBPOSITION, 120), 120);
  ComputeDays(250);
  EXPECT_EQ(Position(SB_VERT), 120);
  ComputeDays(150);
  EXPECT_EQ(Maximum(SB_VERT), 150 - rows);
  EXPECT_EQ(Position(SB_VERT), 150 - rows);
}

TEST_F(ZmanimPanesTest, FewerZmanimLowerTheHorizontalPosition) {
  UseZmanim(40);
  ComputeDays(3);
  ScrollSideways(SB_RIGHT);
  UseZmanim(20);
  ComputeDays(3);
  EXPECT_EQ(Position(SB_HORZ), 4);
}

TEST_F(ZmanimPanesTest, ScrollingByARowDrawsOnlyWhatCameIntoView) {
  UseZmanim(16);
  ComputeDays(300);
  ShowRows(10);
  PaintAll();
  Libraries().draws.clear();
  Scroll(SB_LINEDOWN);
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_THAT(Libraries().draws, SizeIs(17));
  EXPECT_THAT(Libraries().draws, Each(Field(&Draw::y, 9 * rowHeight_)));
}

TEST_F(ZmanimPanesTest, ScrollingByAColumnDrawsOnlyWhatCameIntoViewInTableAndHeading) {
  UseZmanim(40);
  ComputeDays(300);
  PaintAll();
  Libraries().draws.clear();
  ScrollSideways(SB_LINERIGHT);
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_FALSE(GetUpdateRect(heading_, nullptr, FALSE));
  ASSERT_FALSE(Libraries().draws.empty());
  const int left = kDateWidth + 14 * ColumnWidth();
  for (const Draw& draw : Libraries().draws) EXPECT_TRUE(draw.x >= left || draw.text == "Date") << draw.text;
}

TEST_F(ZmanimPanesTest, TheLastPageOfTheLongestRangeIsReached) {
  UseZmanim(100);
  ComputeDays(32001);
  ShowRows(10);
  EXPECT_EQ(Scroll(SB_BOTTOM), 31991);
  EXPECT_EQ(Scroll(SB_THUMBTRACK, 31990), 31990);
  EXPECT_EQ(Scroll(SB_LINEDOWN), 31991);
  EXPECT_EQ(ScrollSideways(SB_RIGHT), 84);
  const auto draws = DrawsOf(table_);
  EXPECT_EQ(draws.back().text, "<22:30>");  // 360 + 990 minutes
}

TEST_F(ZmanimPanesTest, TheEnglishLegendIsOneTextBrokenIntoLines) {
  UseZmanim(3);
  Libraries().zmanNames[1] = "Shema & Tefila";
  Libraries().zmanNames[2] = "";
  Libraries().brokenTexts.clear();
  EXPECT_THAT(DrawsOf(legend_), IsEmpty());
  ASSERT_THAT(Libraries().brokenTexts, SizeIs(1));
  const BrokenText& legend = Libraries().brokenTexts.front();
  EXPECT_EQ(legend.text, "1 = Zman 0,   2 = Shema & Tefila,   3 =        GR\"O = Vilna Gaon   M\"A = Magen Avraham");
  EXPECT_EQ(legend.font, kBoldFont);
  EXPECT_EQ(legend.format, unsigned{DT_WORDBREAK | DT_NOPREFIX});
  RECT client;
  GetClientRect(legend_, &client);
  EXPECT_EQ(legend.width, client.right);
  EXPECT_EQ(legend.height, client.bottom);
}

TEST_F(ZmanimPanesTest, TheEnglishLegendOfTheBuiltInZmanimHasTheirNames) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  Libraries().brokenTexts.clear();
  DrawsOf(legend_);
  ASSERT_THAT(Libraries().brokenTexts, SizeIs(1));
  EXPECT_THAT(Libraries().brokenTexts.front().text,
              testing::StartsWith("1 = Alot HaShachar (Rabbi Moshe Feinstein),   2 = Earliest Tallit (11 degrees"));
  EXPECT_THAT(Libraries().brokenTexts.front().text, testing::HasSubstr(",   19 = Tzait HaChochavim (Rabbeinu Tam)  "));
}

TEST_F(ZmanimPanesTest, ALegendOfAHundredZmanimIsWrittenWhole) {
  UseZmanim(100);
  for (uint32_t zman = 0; zman < 100; ++zman) Libraries().zmanNames[zman] = std::string(48, 'x');
  Libraries().brokenTexts.clear();
  DrawsOf(legend_);
  ASSERT_THAT(Libraries().brokenTexts, SizeIs(1));
  EXPECT_THAT(Libraries().brokenTexts.front().text, testing::EndsWith("M\"A = Magen Avraham"));
  EXPECT_GT(Libraries().brokenTexts.front().text.size(), 5000u);
}

TEST_F(ZmanimPanesTest, TheHebrewLegendFlowsFromTheRightEdgeInTheDisplayFont) {
  UseZmanim(3);
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  Libraries().hebrewZmanNames = {{0, "ab cd"}, {1, " "}, {2, "ef"}};
  RECT client;
  GetClientRect(legend_, &client);
  const int right = client.right;
  const char font[] = "Hebrew Face 0";
  const int w = kDoubledCharacterWidth;
  EXPECT_THAT(DrawsOf(legend_), ElementsAreArray(std::vector<Draw>{{right - 2 * w, 0, "1 ", font},
                                                                   {right - 4 * w, 0, "= ", font},
                                                                   {right - 7 * w, 0, " ba", font},
                                                                   {right - 9 * w, 0, "dc", font},
                                                                   {right - 11 * w, 0, " ,", font},
                                                                   {right - 13 * w, 0, "3 ", font},
                                                                   {right - 15 * w, 0, "= ", font},
                                                                   {right - 17 * w, 0, "fe", font}}));
}

TEST_F(ZmanimPanesTest, TheHebrewLegendGoesOnInTheNextLineOfItsFont) {
  UseZmanim(40);
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  for (uint32_t zman = 0; zman < 40; ++zman) Libraries().hebrewZmanNames[zman] = "abcdefghij";
  const auto draws = DrawsOf(legend_);
  int lines = 0;
  for (std::size_t i = 1; i < draws.size(); ++i) {
    EXPECT_GE(draws[i].x, 0);
    if (draws[i].y != draws[i - 1].y) ++lines;
  }
  EXPECT_GE(lines, 3);
}

TEST_F(ZmanimPanesTest, PaintingLeaksNothingInEitherLanguage) {
  PaintAll();
  const SystemScript before = System();
  for (const char* const hebrew : {"0", "1"}) {
    Libraries().settings["shab30.ini|Zmanim|Hebrew"] = hebrew;
    for (int i = 0; i < 20; ++i) PaintAll();
  }
  EXPECT_EQ(System().fonts, before.fonts);
  EXPECT_EQ(System().pensAndBrushes, before.pensAndBrushes);
  EXPECT_EQ(System().deviceContexts, before.deviceContexts);
  EXPECT_EQ(System().locks, before.locks);
}

TEST_F(ZmanimPanesTest, WithoutFontsThePanesStillDraw) {
  ComputeDays(1);
  DeleteFontProperty(document_, property::kZmanimFont);
  DeleteFontProperty(document_, property::kBoldZmanimFont);
  EXPECT_FALSE(DrawsOf(table_).empty());
  EXPECT_FALSE(DrawsOf(heading_).empty());
}
