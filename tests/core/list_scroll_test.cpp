// Expected values are worked out by hand.
#include "win/core/list_scroll.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "shabbat/core/shabbat_geometry.h"

namespace {

constexpr ScrollState kMiddle{.position = 50, .minimum = 0, .maximum = 90, .page = 10, .thumb = 33};

ScrollState At(int position) {
  ScrollState state = kMiddle;
  state.position = position;
  return state;
}

constexpr auto kAllRequests = {ScrollRequest::kLineUp,   ScrollRequest::kLineDown, ScrollRequest::kPageUp,
                               ScrollRequest::kPageDown, ScrollRequest::kThumb,    ScrollRequest::kTop,
                               ScrollRequest::kBottom};

}  // namespace

TEST(ListScroll, EachRequestLeadsToItsPosition) {
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kLineUp, kMiddle), 49);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kLineDown, kMiddle), 51);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kPageUp, kMiddle), 40);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kPageDown, kMiddle), 60);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kThumb, kMiddle), 33);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kTop, kMiddle), 0);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kBottom, kMiddle), 90);
}

TEST(ListScroll, PositionsStayWithinTheRange) {
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kLineUp, At(0)), 0);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kPageUp, At(7)), 0);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kLineDown, At(90)), 90);
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kPageDown, At(85)), 90);
  ScrollState far = kMiddle;
  far.thumb = 500;
  EXPECT_EQ(ScrolledPosition(ScrollRequest::kThumb, far), 90);
}

TEST(ListScroll, ScrollingAListThatFitsHasNoEffect) {
  const ScrollState fits{.position = 0, .minimum = 0, .maximum = 0, .page = 10, .thumb = 5};
  for (const ScrollRequest request : kAllRequests) EXPECT_EQ(ScrolledPosition(request, fits), 0);
  EXPECT_EQ(WheeledPosition(-120, fits), 0);
}

TEST(ListScroll, RangeEndsWhereTheLastPageIsFull) {
  EXPECT_EQ(LastScrollPosition(100, 10), 90);
  EXPECT_EQ(LastScrollPosition(11, 10), 1);
  EXPECT_EQ(LastScrollPosition(32001, 0), 32001);
}

TEST(ListScroll, FewerRecordsThanFitHaveTheEmptyRange) {
  EXPECT_EQ(LastScrollPosition(10, 10), 0);
  EXPECT_EQ(LastScrollPosition(3, 10), 0);
  EXPECT_EQ(LastScrollPosition(0, 10), 0);
}

TEST(ListScroll, AWheelNotchIsOneLine) {
  EXPECT_EQ(WheeledPosition(120, kMiddle), 49);
  EXPECT_EQ(WheeledPosition(-120, kMiddle), 51);
  EXPECT_EQ(WheeledPosition(-360, kMiddle), 53);
  EXPECT_EQ(WheeledPosition(INT16_MIN, At(0)), 90);
  EXPECT_EQ(WheeledPosition(INT16_MAX, At(90)), 0);
}

TEST(ListScroll, LessThanANotchMovesNothing) {
  for (const int delta : {119, -119, 1, 0, -2})
    EXPECT_EQ(WheeledPosition(static_cast<int16_t>(delta), kMiddle), 50) << delta;
}

TEST(ListScroll, AWheelDeltaOfMinusOneIsIgnored) {
  EXPECT_FALSE(IsWheelDelta(-1));
  for (const int delta : {120, -120, 0, 1, -2}) EXPECT_TRUE(IsWheelDelta(static_cast<int16_t>(delta))) << delta;
}

TEST(ShabbatGeometry, ColumnsAreThirdsOfTheClientWidth) {
  const ShabbatListGeometry geometry{.clientWidth = 1000, .clientHeight = 100, .lineHeight = 18};
  EXPECT_EQ(geometry.ColumnX(0), 0);
  EXPECT_EQ(geometry.ColumnX(1), 333);
  EXPECT_EQ(geometry.ColumnX(2), 666);
}

TEST(ShabbatGeometry, CountsWholeLinesButDrawsThePartlyVisibleOne) {
  const ShabbatListGeometry geometry{.clientWidth = 1000, .clientHeight = 100, .lineHeight = 18};
  EXPECT_EQ(geometry.WholeLines(), 5);
  EXPECT_TRUE(geometry.IsLineDrawn(5));  // from 90 to 108
  EXPECT_FALSE(geometry.IsLineDrawn(6));
}

TEST(ShabbatGeometry, DrawsTheLineThatStartsExactlyAtTheBottomEdge) {
  const ShabbatListGeometry geometry{.clientWidth = 1000, .clientHeight = 90, .lineHeight = 18};
  EXPECT_TRUE(geometry.IsLineDrawn(5));
  EXPECT_FALSE(geometry.IsLineDrawn(6));
}

TEST(ShabbatGeometry, AFontWithoutHeightShowsNoWholeLine) {
  EXPECT_EQ((ShabbatListGeometry{10, 10, 0}.WholeLines()), 0);
}
