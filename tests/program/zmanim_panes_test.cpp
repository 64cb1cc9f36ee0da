// What the panes of the zmanim view draw, and where they stand. Expected positions follow from the font's measures and
// from the doubled text library, whose dates are 80 pixels wide.
#include "zmanim/zmanim_panes.h"

#include "app/open_document.h"
#include "app/program.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/zmanim_view_fixture.h"
#include "win/scoped.h"
#include "win/text_metrics.h"
#include "zmanim/calculate_zmanim.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using ZmanimPanesTest = ZmanimViewTest;

constexpr char kFont[] = "Times New Roman 0";
constexpr char kBoldFont[] = "Times New Roman 700";

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

TEST_F(ZmanimPanesTest, TheBuiltInLegendIsSixLinesHighInEveryDocumentThatIsSeen) {
  const int h = MeasureFontOnDisplay(nullptr).lineHeight;
  const auto show = [this] {
    SendMessageA(Program.mdiClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(document_), 0);
    PaintAll();
  };
  SendMessageA(frame_, WM_COMMAND, IDM_BUILT_IN_ZMANIM, 0);
  show();
  EXPECT_EQ(RectInParent(legend_).bottom, 6 * h);
  SendMessageA(frame_, WM_COMMAND, IDM_BUILT_IN_ZMANIM, 0);
  show();
  EXPECT_EQ(RectInParent(legend_).bottom, 8 * h);
}

// Hebrew letters are larger: six lines would hold only four of theirs.
TEST_F(ZmanimPanesTest, TheHebrewLegendOfTheBuiltInZmanimHasTheRoomOfAnyHebrewLegend) {
  const int h = MeasureFontOnDisplay(nullptr).lineHeight;
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  SendMessageA(frame_, WM_COMMAND, IDM_ZMANIM_HEBREW, 0);
  PaintAll();
  EXPECT_EQ(RectInParent(legend_).bottom, 8 * h);
  SendMessageA(frame_, WM_COMMAND, IDM_ZMANIM_ENGLISH, 0);
  PaintAll();
  EXPECT_EQ(RectInParent(legend_).bottom, 6 * h);
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
  const int d = kDoubledDateWidth;
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

TEST_F(ZmanimPanesTest, DrawingStartsAtBothScrollPositions) {
  UseZmanim(40);
  ComputeDays(300);
  SendMessageA(table_, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 3), 0);
  SendMessageA(table_, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 5), 0);
  const auto draws = DrawsOf(table_);
  EXPECT_EQ(draws[0], (Draw{indent_, 0, "08.01.2007", kFont}));
  EXPECT_EQ(draws[1], (Draw{indent_ + kDoubledDateWidth, 0, "<6:50>", kFont}));
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
  const int x = kDoubledDateWidth + 2 * ColumnWidth();
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
  int first = -1;
  int last = -1;
  GetScrollRange(table_, SB_VERT, &first, &last);
  EXPECT_EQ(first, 0);
  EXPECT_EQ(last, 0);
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
  EXPECT_THAT(DrawsOf(heading_),
              ElementsAre(Draw{a, 0, "Date", kBoldFont}, Draw{a + kDoubledDateWidth, 0, "1", kBoldFont},
                          Draw{a + kDoubledDateWidth + c, 0, "2", kBoldFont},
                          Draw{a + kDoubledDateWidth + 2 * c, 0, "3", kBoldFont}));
  RECT client;
  GetClientRect(heading_, &client);
  const RECT clip{0, 0, TableClient().right, client.bottom};
  EXPECT_TRUE(EqualRect(&Libraries().lastClip, &clip));
}

TEST_F(ZmanimPanesTest, TheHeadingStartsAtTheHorizontalPosition) {
  UseZmanim(100);
  ComputeDays(1);
  SendMessageA(table_, WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 84), 0);
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

// The built-in zmanim's own names, not those that the library has for its first ones. In the display font's bytes, from
// left to right, word by word.
TEST_F(ZmanimPanesTest, TheHebrewLegendOfTheBuiltInZmanimHasTheirNames) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  Libraries().brokenTexts.clear();
  std::string words;
  for (const Draw& draw : DrawsOf(legend_)) words += draw.text + "|";
  EXPECT_THAT(Libraries().brokenTexts, testing::IsEmpty());
  // 1 = alot hashachar (72 dakot), 2 = zman ...; 15 = shkia, 16 = tzait ...
  EXPECT_THAT(words, testing::StartsWith("1 |= | \xFA\xE5\xEC\xF2| \xF8\xE7\xF9\xE4| 72)|(\xFA\xE5\xF7\xE3|"
                                         " ,|2 |= | \xEF\xEE\xE6|"));
  EXPECT_THAT(words, testing::HasSubstr("|15 |= |\xE4\xF2\xE9\xF7\xF9| ,|16 |= |"));
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
