// The readings view's places, worked out by hand.
#include "readings/core/readings_geometry.h"

#include <gtest/gtest.h>

namespace {

constexpr ReadingsGeometry kGeometry{
    .paneWidth = 1000, .paneHeight = 400, .indent = 7, .dateWidth = 93, .lineHeight = 20, .rangeLineHeight = 13};

}  // namespace

TEST(ReadingsGeometry, ColumnsShareWhatTheDateLeaves) {
  EXPECT_EQ(kGeometry.DateX(), 7);
  EXPECT_EQ(kGeometry.TorahX(), 100);
  EXPECT_EQ(kGeometry.HaftarahX(), 550);
  ReadingsGeometry odd = kGeometry;
  odd.paneWidth = 1001;
  EXPECT_EQ(odd.HaftarahX(), 550);
}

TEST(ReadingsGeometry, AnEntryTakesFiveLines) {
  EXPECT_EQ(kGeometry.LineY(0, 3), 60);
  EXPECT_EQ(kGeometry.LineY(1, 0), 100);
  EXPECT_EQ(kGeometry.EntryHeight(), 100);
}

TEST(ReadingsGeometry, EntriesAreDrawnUntilTheyStartBelowThePane) {
  EXPECT_TRUE(kGeometry.IsEntryDrawn(3));
  EXPECT_TRUE(kGeometry.IsEntryDrawn(4));  // starts exactly at the bottom edge
  EXPECT_FALSE(kGeometry.IsEntryDrawn(5));
}

TEST(ReadingsGeometry, ThePageStepCountsFourLinesWhereTheRangeCountsFive) {
  EXPECT_EQ(kGeometry.WholeEntries(), 6);  // 400 / 65
  EXPECT_EQ(kGeometry.PageStep(), 4);      // 400 / 80 - 1
}

TEST(ReadingsGeometry, AListOfExactlyOnePageScrollsByTwo) {
  EXPECT_EQ(LastReadingsPosition(6, 6), 2);
  EXPECT_EQ(LastReadingsPosition(5, 6), 1);
  EXPECT_EQ(LastReadingsPosition(4, 6), 0);
  EXPECT_EQ(LastReadingsPosition(1, 6), 0);
  EXPECT_EQ(LastReadingsPosition(0, 0), 0);
  EXPECT_EQ(LastReadingsPosition(32001, 6), 31997);
}

TEST(ReadingsGeometry, ABandOfTheHeadersHeightStaysEmptyUnderIt) {
  const ReadingsLayout layout = LayOutReadings(500, 19);
  EXPECT_EQ(layout.headerHeight, 19);
  EXPECT_EQ(layout.listY, 38);
  EXPECT_EQ(layout.listHeight, 462);
  EXPECT_EQ(LayOutReadings(30, 19).listHeight, 0);
}

TEST(ReadingsGeometry, TheDateGapIsFiveMillimetres) {
  EXPECT_EQ(DateGap(96), 18);   // 4800 / 254
  EXPECT_EQ(DateGap(144), 28);  // 7200 / 254
  EXPECT_EQ(DateGap(254), 50);
}
