#include "libraries/dialogs/scroll_fit.h"

#include <gtest/gtest.h>

namespace dialogs {
namespace {

constexpr Extent kBars = {17, 15};

TEST(ScrollFit, ALayoutThatFitsHasAllTheRoom) {
  EXPECT_EQ(PageIn({800, 560}, {800, 560}, kBars), (Extent{800, 560}));
  EXPECT_EQ(PageIn({900, 600}, {800, 560}, kBars), (Extent{900, 600}));
}

TEST(ScrollFit, EachBarTakesItsRoom) {
  EXPECT_EQ(PageIn({799, 600}, {800, 560}, kBars), (Extent{799, 585}));
  EXPECT_EQ(PageIn({900, 559}, {800, 560}, kBars), (Extent{883, 559}));
  EXPECT_EQ(PageIn({799, 559}, {800, 560}, kBars), (Extent{782, 544}));
}

// The bar that the one direction needs leaves too little room in the other.
TEST(ScrollFit, OneBarMayNeedTheOther) {
  EXPECT_EQ(PageIn({799, 560}, {800, 560}, kBars), (Extent{782, 545}));
  EXPECT_EQ(PageIn({800, 559}, {800, 560}, kBars), (Extent{783, 544}));
}

TEST(ScrollFit, APositionMovesNoFartherThanItMust) {
  EXPECT_EQ(PositionShowing(50, 60, 0, 100, 300), 0);
  EXPECT_EQ(PositionShowing(90, 130, 0, 100, 300), 30);
  EXPECT_EQ(PositionShowing(90, 130, 120, 100, 300), 90);
  EXPECT_EQ(PositionShowing(90, 130, 60, 100, 300), 60);
}

TEST(ScrollFit, WhatIsLongerThanThePageShowsItsBeginning) {
  EXPECT_EQ(PositionShowing(20, 250, 0, 100, 300), 20);
  EXPECT_EQ(PositionShowing(20, 250, 200, 100, 300), 20);
}

TEST(ScrollFit, APositionStaysInTheLayout) {
  EXPECT_EQ(PositionShowing(0, 0, 250, 100, 300), 0);
  EXPECT_EQ(PositionShowing(290, 310, 0, 100, 300), 200);
  EXPECT_EQ(PositionShowing(10, 20, 5, 400, 300), 0);
}

}  // namespace
}  // namespace dialogs
