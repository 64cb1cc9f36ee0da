// Expected values are worked out by hand.
#include "document/core/document_layout.h"

#include <gtest/gtest.h>

namespace {

constexpr LayoutMeasures kMeasures{
    .lineHeight = 18, .averageCharacterWidth = 10, .iconHeight = 32, .sizingFrameHeight = 4};

}  // namespace

TEST(DocumentLayout, StacksToolbarTitlesAndListFromTheTop) {
  const DocumentLayout layout = LayOutDocument(1000, 700, kMeasures);
  EXPECT_EQ(layout.toolbar, (PaneRect{0, 0, 1000, 47}));  // 32 + 3 + 2 * 4 + 4
  EXPECT_EQ(layout.header, (PaneRect{0, 47, 1000, 36}));  // two lines
  EXPECT_EQ(layout.list, (PaneRect{10, 83, 990, 617}));   // indented by one character
  EXPECT_EQ(layout.content, (PaneRect{0, 47, 1000, 653}));
}

TEST(DocumentLayout, ListAndContentReachTheBottomOfTheClientArea) {
  for (int height = 83; height < 400; height += 7) {
    const DocumentLayout layout = LayOutDocument(500, height, kMeasures);
    EXPECT_EQ(layout.list.y + layout.list.height, height);
    EXPECT_EQ(layout.content.y + layout.content.height, height);
    EXPECT_EQ(layout.list.x + layout.list.width, 500);
  }
}

TEST(DocumentLayout, WhatHasNoRoomGetsSizeZero) {
  const DocumentLayout layout = LayOutDocument(4, 60, kMeasures);
  EXPECT_EQ(layout.list, (PaneRect{10, 83, 0, 0}));
  EXPECT_EQ(layout.content, (PaneRect{0, 47, 4, 13}));
  EXPECT_EQ(LayOutDocument(0, 0, kMeasures).content.height, 0);
}
