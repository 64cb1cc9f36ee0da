#include "publishing/core/page_on_screen.h"

#include <gtest/gtest.h>

namespace publishing {
namespace {

// A sheet of 6 by 9 inches.
constexpr int kDotsPerInch = 100;
constexpr Sheet kSheet = {600, 900, {50, 50, 500, 800}};

PageOnScreen Shown(Zoom zoom, int width, int height) {
  return ShowOnScreen(zoom, kSheet, kDotsPerInch, {{width, height}, {15, 16}, 96});
}

TEST(PageOnScreen, WholePageFitsBetweenItsBorders) {
  const PageOnScreen shown = Shown(Zoom::kWholePage, 1000, 474);
  EXPECT_EQ(shown.page, (PixelExtent{300, 450}));
  EXPECT_EQ(shown.visible, (PixelExtent{1000, 474}));
  EXPECT_EQ(shown.layout, shown.visible);
  EXPECT_EQ(shown.PageX(), 350);
  EXPECT_EQ(shown.PageY(), kPageBorder);
}

TEST(PageOnScreen, PageWidthLeavesRoomForTheScrollBar) {
  const PageOnScreen shown = Shown(Zoom::kPageWidth, 639, 500);
  EXPECT_EQ(shown.page, (PixelExtent{600, 900}));
  EXPECT_EQ(shown.visible, (PixelExtent{624, 500}));
  EXPECT_EQ(shown.layout, (PixelExtent{624, 924}));
}

TEST(PageOnScreen, PageWidthNeedsNoBarInAHighWindow) {
  const PageOnScreen shown = Shown(Zoom::kPageWidth, 324, 1000);
  EXPECT_EQ(shown.page, (PixelExtent{300, 450}));
  EXPECT_EQ(shown.layout, (PixelExtent{324, 1000}));
}

TEST(PageOnScreen, ActualSizeIsThatOfTheScreensInch) {
  EXPECT_EQ(Shown(Zoom::kActualSize, 2000, 2000).page, (PixelExtent{576, 864}));
  EXPECT_EQ(Shown(Zoom::kActualSize, 600, 888).visible, (PixelExtent{600, 888}));
  EXPECT_EQ(Shown(Zoom::kActualSize, 600, 887).visible, (PixelExtent{585, 871}))
      << "each bar takes room from the other";
  EXPECT_EQ(Shown(Zoom::kActualSize, 700, 887).visible, (PixelExtent{685, 887}));
}

TEST(PageOnScreen, OtherSizesAreInProportion) {
  EXPECT_EQ(Shown(Zoom::kThreeQuarters, 2000, 2000).page, (PixelExtent{432, 648}));
  EXPECT_EQ(Shown(Zoom::kOneAndAHalf, 2000, 2000).page, (PixelExtent{864, 1296}));
  EXPECT_EQ(Shown(Zoom::kDouble, 2000, 2000).page, (PixelExtent{1152, 1728}));
}

TEST(PageOnScreen, AWindowWithoutRoomShowsAPixel) {
  for (const Zoom zoom : {Zoom::kWholePage, Zoom::kPageWidth, Zoom::kThreeQuarters, Zoom::kActualSize}) {
    const PageOnScreen shown = Shown(zoom, 0, 0);
    EXPECT_GE(shown.page.width, 1);
    EXPECT_GE(shown.visible.width, 1);
    EXPECT_GE(shown.visible.height, 1);
    EXPECT_GT(shown.scale, 0);
  }
}

}  // namespace
}  // namespace publishing
