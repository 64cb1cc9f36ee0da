// Scrolling of the zmanim table by days and by zmanim.
#include <cstdint>

#include "resources/ids.h"
#include "tests/program/zmanim_view_fixture.h"

using testing::Each;
using testing::Field;
using testing::SizeIs;

namespace {

class ZmanimScrollTest : public ZmanimViewTest {
 protected:
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
};

}  // namespace

TEST_F(ZmanimScrollTest, With24HourTimesSixteenColumnsAreVisible) {
  UseZmanim(40);
  ComputeDays(300);
  EXPECT_EQ(Maximum(SB_HORZ), 24);
  UseZmanim(16);
  ComputeDays(300);
  EXPECT_EQ(Maximum(SB_HORZ), 0);
}

TEST_F(ZmanimScrollTest, With12HourTimesTenColumnsAreVisible) {
  Libraries().amPm = true;
  UseZmanim(40);
  ComputeDays(1);
  EXPECT_EQ(Maximum(SB_HORZ), 30);
  const auto draws = DrawsOf(table_);
  EXPECT_EQ(draws[2].x - draws[1].x, ColumnWidth(10));
}

TEST_F(ZmanimScrollTest, AnotherFormOfTimesLetsEveryColumnBeReached) {
  UseZmanim(40);
  ComputeDays(300);
  Libraries().amPm = true;
  Libraries().formChanged = true;
  SendMessageA(frame_, WM_COMMAND, IDM_TIME_FORM, 0);
  EXPECT_EQ(Maximum(SB_HORZ), 30);
}

TEST_F(ZmanimScrollTest, EveryVerticalRequestMovesToItsPosition) {
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

TEST_F(ZmanimScrollTest, HorizontalRequestsMoveByColumnsAndNothingPages) {
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

TEST_F(ZmanimScrollTest, KeysScrollBothWays) {
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

TEST_F(ZmanimScrollTest, TheWheelMovesByWholeNotchesAndADeltaOfMinusOneDoesNothing) {
  ComputeDays(105);
  ShowRows(10);
  PaintAll();
  Scroll(SB_THUMBPOSITION, 20);
  EXPECT_EQ(Wheel(-1), 20);
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_EQ(Wheel(240), 18);
  RECT update;
  EXPECT_TRUE(GetUpdateRect(table_, &update, FALSE));
  const RECT client = TableClient();
  EXPECT_TRUE(EqualRect(&update, &client));
  EXPECT_EQ(Wheel(-119), 18);
  EXPECT_EQ(Wheel(-120), 19);
  EXPECT_EQ(Wheel(32760), 0);
  EXPECT_EQ(Wheel(-32760), 95);
}

TEST_F(ZmanimScrollTest, ARangeThatGetsShorterLowersThePositionToTheNewEndRatherThanToTheStart) {
  ComputeDays(300);
  const int rows = TableClient().bottom / rowHeight_;
  EXPECT_EQ(Scroll(SB_THUMBPOSITION, 120), 120);
  ComputeDays(250);
  EXPECT_EQ(Position(SB_VERT), 120);
  ComputeDays(150);
  EXPECT_EQ(Maximum(SB_VERT), 150 - rows);
  EXPECT_EQ(Position(SB_VERT), 150 - rows);
}

TEST_F(ZmanimScrollTest, FewerZmanimLowerTheHorizontalPosition) {
  UseZmanim(40);
  ComputeDays(3);
  ScrollSideways(SB_RIGHT);
  UseZmanim(20);
  ComputeDays(3);
  EXPECT_EQ(Position(SB_HORZ), 4);
}

TEST_F(ZmanimScrollTest, ScrollingByARowDrawsOnlyWhatCameIntoView) {
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

TEST_F(ZmanimScrollTest, ScrollingByAColumnDrawsOnlyWhatCameIntoViewInTableAndHeading) {
  UseZmanim(40);
  ComputeDays(300);
  PaintAll();
  Libraries().draws.clear();
  ScrollSideways(SB_LINERIGHT);
  EXPECT_FALSE(GetUpdateRect(table_, nullptr, FALSE));
  EXPECT_FALSE(GetUpdateRect(heading_, nullptr, FALSE));
  ASSERT_FALSE(Libraries().draws.empty());
  const int left = kDoubledDateWidth + 14 * ColumnWidth();
  for (const Draw& draw : Libraries().draws) EXPECT_TRUE(draw.x >= left || draw.text == "Date") << draw.text;
}

TEST_F(ZmanimScrollTest, TheHeadingMovesOnlyTheNumbersOverTheTable) {
  // With a vertical scroll bar the heading is wider than the table's columns; beyond them it draws nothing that could
  // be moved into view.
  UseZmanim(40);
  ComputeDays(300);
  RECT heading;
  GetClientRect(heading_, &heading);
  ASSERT_GT(heading.right, TableClient().right);
  PaintAll();
  Libraries().draws.clear();
  ScrollSideways(SB_LINERIGHT);
  const RECT exposed{TableClient().right - ColumnWidth(), 0, TableClient().right, heading.bottom};
  EXPECT_TRUE(EqualRect(&Libraries().lastPaintedArea, &exposed))
      << Libraries().lastPaintedArea.left << " to " << Libraries().lastPaintedArea.right;
}

TEST_F(ZmanimScrollTest, TheLastPageOfTheLongestRangeIsReached) {
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
