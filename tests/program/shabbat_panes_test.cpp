// The two panes of the Shabbat-times view. Expected positions follow from the font's measures and thirds of the width.
#include "shabbat/shabbat_panes.h"

#include "app/active_document.h"
#include "app/compute_document.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"
#include "win/text_metrics.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ShabbatPanesTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
    OpenFrame();
    document_ = ActiveDocument();
    ASSERT_NE(document_, nullptr);
    list_ = GetDlgItem(document_, IDC_LIST_PANE);
    header_ = GetDlgItem(document_, IDC_HEADER_PANE);
    lineHeight_ = MeasureFontOnDisplay(GetFontProperty(document_, property::kFont)).lineHeight;
    ShowLines(10);
  }

  // Makes the list pane as high as some whole lines, and a number of pixels.
  void ShowLines(int lines, int pixels = 0) {
    RECT client;
    GetClientRect(document_, &client);
    MoveWindow(list_, 0, 0, client.right, lines * lineHeight_ + pixels, TRUE);
    GetClientRect(list_, &client);
    ASSERT_EQ(client.bottom, lines * lineHeight_ + pixels);
  }

  void ComputeWeeks(uint32_t endYear) {
    CurrentRange = {{5, 1, 2007}, {5, 1, endYear}};
    CalculateShabbatTimes(document_, 5, 1, 2007, 5, 1, endYear);
    SetListPaneScrollRange(list_);
  }

  int Position() { return GetScrollPos(list_, SB_VERT); }
  int Maximum() {
    int minimum, maximum;
    GetScrollRange(list_, SB_VERT, &minimum, &maximum);
    EXPECT_EQ(minimum, 0);
    return maximum;
  }
  int Scroll(int code, int thumb = 0) {
    SendMessageA(list_, WM_VSCROLL, MAKEWPARAM(code, thumb), 0);
    return Position();
  }
  int Press(int key) {
    SendMessageA(list_, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    return Position();
  }
  int Wheel(int delta) {
    SendMessageA(list_, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
    return Position();
  }
  int ColumnWidth() {
    RECT client;
    GetClientRect(list_, &client);
    return client.right / 3;
  }

  HWND document_ = nullptr;
  HWND list_ = nullptr;
  HWND header_ = nullptr;
  int lineHeight_ = 0;
};

}  // namespace

TEST_F(ShabbatPanesTest, HeaderDrawsItsThreeTitlesOverTheColumns) {
  const int a = MeasureFontOnDisplay(GetFontProperty(document_, property::kBoldFont)).averageCharacterWidth;
  const int c = ColumnWidth();
  EXPECT_THAT(DrawsOf(header_),
              ElementsAre(Draw{a, 0, "Date", "Courier New 700"}, Draw{a + c, 0, "Candle Lighting", "Courier New 700"},
                          Draw{a + 2 * c, 0, "End of Shabbat", "Courier New 700"}));
}

TEST_F(ShabbatPanesTest, HeaderIsABlueBandOfOneBoldLine) {
  DrawsOf(header_);
  const int h = MeasureFontOnDisplay(GetFontProperty(document_, property::kBoldFont)).lineHeight;
  const HDC dc = GetDC(header_);
  EXPECT_EQ(GetPixel(dc, 0, 0), static_cast<COLORREF>(RGB(0, 0, 255)));
  EXPECT_EQ(GetPixel(dc, 300, h - 1), static_cast<COLORREF>(RGB(0, 0, 255)));
  EXPECT_EQ(GetPixel(dc, 300, h), static_cast<COLORREF>(RGB(255, 255, 255)));
  ReleaseDC(header_, dc);
}

TEST_F(ShabbatPanesTest, ListDrawsDateAndTimesOfEveryShabbat) {
  Bound().sunset = [](const CalendarDate& date) { return DoubledTime{16, static_cast<int32_t>(20 + date.uDay)}; };
  CurrentRange = {{5, 1, 2007}, {12, 1, 2007}};
  CalculateShabbatTimes(document_, 5, 1, 2007, 12, 1, 2007);
  const int c = ColumnWidth();
  const int h = lineHeight_;
  const char font[] = "Courier New 0";
  EXPECT_THAT(DrawsOf(list_),
              ElementsAreArray(std::vector<Draw>{{0, 0, "05.01.2007", font},  // sunset 16:25, then 16:26
                                                 {c, 0, "<16:7>", font},
                                                 {2 * c, 0, "<17:11>", font},
                                                 {0, h, "12.01.2007", font},  // sunset 16:32, then 16:33
                                                 {c, h, "<16:14>", font},
                                                 {2 * c, h, "<17:18>", font}}));
}

TEST_F(ShabbatPanesTest, EmptyBlockDrawsAnEmptyListWithoutScrollRange) {
  CurrentRange = {{6, 1, 2007}, {7, 1, 2007}};
  CalculateShabbatTimes(document_, 6, 1, 2007, 7, 1, 2007);
  SetListPaneScrollRange(list_);
  EXPECT_THAT(DrawsOf(list_), IsEmpty());
  EXPECT_EQ(Maximum(), 0);
  EXPECT_THAT(DrawsOf(header_), SizeIs(3));
}

TEST_F(ShabbatPanesTest, MissingBlockDrawsAnEmptyListWithoutScrollRange) {
  FreeBlockProperty(document_, property::kShabbatTimes);
  SetListPaneScrollRange(list_);
  EXPECT_THAT(DrawsOf(list_), IsEmpty());
  EXPECT_EQ(Maximum(), 0);
}

TEST_F(ShabbatPanesTest, FewerRecordsThanFitDoNotScroll) {
  EXPECT_EQ(Maximum(), 0);
  for (const int code : {SB_LINEDOWN, SB_PAGEDOWN, SB_BOTTOM}) EXPECT_EQ(Scroll(code), 0);
  EXPECT_EQ(Press(VK_END), 0);
  EXPECT_EQ(Wheel(-120), 0);
}

TEST_F(ShabbatPanesTest, EveryScrollRequestMovesToItsPosition) {
  ComputeWeeks(2009);  // 105 Fridays, ten fit
  ASSERT_EQ(Maximum(), 95);
  EXPECT_TRUE(GetWindowLongA(list_, GWL_STYLE) & WS_VSCROLL);
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

TEST_F(ShabbatPanesTest, KeysScroll) {
  ComputeWeeks(2009);
  EXPECT_EQ(Press(VK_DOWN), 1);
  EXPECT_EQ(Press(VK_NEXT), 11);
  EXPECT_EQ(Press(VK_UP), 10);
  EXPECT_EQ(Press(VK_END), 95);
  EXPECT_EQ(Press(VK_PRIOR), 85);
  EXPECT_EQ(Press(VK_HOME), 0);
  EXPECT_EQ(Press(VK_LEFT), 0);
  EXPECT_EQ(Press('A'), 0);
}

TEST_F(ShabbatPanesTest, WheelMovesByWholeNotches) {
  ComputeWeeks(2009);
  EXPECT_EQ(Wheel(-120), 1);
  EXPECT_EQ(Wheel(-360), 4);
  EXPECT_EQ(Wheel(-119), 4);
  EXPECT_EQ(Wheel(240), 2);
  EXPECT_EQ(Wheel(-1), 2);
  EXPECT_EQ(Wheel(1200), 0);
  EXPECT_EQ(Wheel(-32760), 95);
}

TEST_F(ShabbatPanesTest, WheelRepaintsTheWholePaneButADeltaOfMinusOneDoesNot) {
  ComputeWeeks(2009);
  UpdateWindow(list_);
  Wheel(-1);
  EXPECT_FALSE(GetUpdateRect(list_, nullptr, FALSE));
  Wheel(-120);
  RECT update, client;
  EXPECT_TRUE(GetUpdateRect(list_, &update, FALSE));
  GetClientRect(list_, &client);
  EXPECT_TRUE(EqualRect(&update, &client));
}

TEST_F(ShabbatPanesTest, DrawingStartsAtTheScrollPosition) {
  ComputeWeeks(2009);
  Scroll(SB_THUMBPOSITION, 2);
  const auto draws = DrawsOf(list_);
  ASSERT_FALSE(draws.empty());
  EXPECT_EQ(draws[0], (Draw{0, 0, "19.01.2007", "Courier New 0"}));
}

TEST_F(ShabbatPanesTest, TheLineThatStartsExactlyAtTheBottomEdgeIsDrawn) {
  ComputeWeeks(2009);
  ShowLines(10);
  EXPECT_THAT(DrawsOf(list_), SizeIs(11 * 3));
}

TEST_F(ShabbatPanesTest, OnePartlyVisibleLineIsDrawn) {
  ComputeWeeks(2009);
  ShowLines(10, 5);
  EXPECT_THAT(DrawsOf(list_), SizeIs(11 * 3));
  EXPECT_EQ(Maximum(), 95);
}

TEST_F(ShabbatPanesTest, GrowingLowersThePositionSoThatTheLastPageStaysFull) {
  ComputeWeeks(2009);
  EXPECT_EQ(Scroll(SB_BOTTOM), 95);
  ShowLines(15);
  EXPECT_EQ(Maximum(), 90);
  EXPECT_EQ(Position(), 90);
  const auto draws = DrawsOf(list_);
  EXPECT_EQ(draws.size(), 15u * 3);
}

TEST_F(ShabbatPanesTest, ShrinkingKeepsThePosition) {
  ComputeWeeks(2009);
  Scroll(SB_THUMBPOSITION, 40);
  ShowLines(6);
  EXPECT_EQ(Maximum(), 99);
  EXPECT_EQ(Position(), 40);
}

TEST_F(ShabbatPanesTest, ScrollingByALineOnlyDrawsWhatCameIntoView) {
  ComputeWeeks(2009);
  UpdateWindow(list_);
  Libraries().draws.clear();
  Scroll(SB_LINEDOWN);
  // The scroll took the bits along and painted at once; nothing is left to paint.
  EXPECT_FALSE(GetUpdateRect(list_, nullptr, FALSE));
  EXPECT_FALSE(Libraries().draws.empty());
}

TEST_F(ShabbatPanesTest, WithoutFontsThePanesStillDraw) {
  DeleteFontProperty(document_, property::kFont);
  DeleteFontProperty(document_, property::kBoldFont);
  EXPECT_THAT(DrawsOf(header_), SizeIs(3));
  EXPECT_THAT(DrawsOf(list_), SizeIs(5 * 3));
}
