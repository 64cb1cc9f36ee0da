// The geometry of the zmanim table and of its view. Expected pixels are worked out by hand.
#include "zmanim/core/zmanim_geometry.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "zmanim/core/zmanim_layout.h"

namespace {

// Columns of (1000 - 80) / 16 = 57 pixels from x = 80 on; ten whole rows of 15 pixels and half of an eleventh.
ZmanimGeometry Table() {
  return {.clientWidth = 1000,
          .clientHeight = 157,
          .rowHeight = 15,
          .dateWidth = 80,
          .textIndent = 6,
          .visibleColumns = 16,
          .firstDay = 7,
          .firstZman = 3,
          .dayCount = 400,
          .zmanCount = 40};
}

PaneRect WholeClient(const ZmanimGeometry& geometry) {
  return {0, 0, geometry.clientWidth, geometry.clientHeight};
}

}  // namespace

TEST(ZmanimGeometry, ColumnsShareWhatTheDatesLeave) {
  EXPECT_EQ(Table().ColumnWidth(), 57);
  ZmanimGeometry twelveHours = Table();
  twelveHours.visibleColumns = 10;
  EXPECT_EQ(twelveHours.ColumnWidth(), 92);
}

TEST(ZmanimGeometry, CellsCountFromTheScrollPositions) {
  EXPECT_EQ(Table().CellRect({7, 3}), (PaneRect{80, 0, 57, 15}));
  EXPECT_EQ(Table().CellRect({9, 5}), (PaneRect{80 + 2 * 57, 30, 57, 15}));
  EXPECT_EQ(Table().CellRect({6, 2}), (PaneRect{80 - 57, -15, 57, 15}));
  EXPECT_EQ(Table().ColumnX(5), 80 + 2 * 57);
}

TEST(ZmanimGeometry, TheIndentIsTheDatesRoomButNotTheCells) {
  EXPECT_EQ(Table().DateRect(8), (PaneRect{0, 15, 86, 15}));
  EXPECT_EQ(Table().CellAt(79, 0), std::nullopt);
  EXPECT_EQ(Table().CellAt(80, 0), (ZmanimCell{7, 3}));
}

TEST(ZmanimGeometry, TheCellAtAnyPointOfACellIsThatCell) {
  for (const int width : {1000, 333, 97}) {
    for (const int columns : {16, 10}) {
      for (const uint32_t firstDay : {0u, 7u, 399u}) {
        for (const uint32_t firstZman : {0u, 3u, 39u}) {
          ZmanimGeometry geometry = Table();
          geometry.clientWidth = width;
          geometry.visibleColumns = columns;
          geometry.firstDay = firstDay;
          geometry.firstZman = firstZman;
          for (uint32_t day = firstDay; day < std::min(firstDay + 12, geometry.dayCount); ++day) {
            for (uint32_t zman = firstZman; zman < geometry.zmanCount; ++zman) {
              const ZmanimCell cell{day, zman};
              const PaneRect rect = geometry.CellRect(cell);
              for (int x = rect.x; x < rect.Right(); ++x) {
                for (int y = rect.y; y < rect.Bottom(); ++y) ASSERT_EQ(geometry.CellAt(x, y), cell) << x << " " << y;
              }
            }
          }
        }
      }
    }
  }
}

TEST(ZmanimGeometry, EveryPointThatHasACellLiesInIt) {
  const ZmanimGeometry geometry = Table();
  for (int x = -20; x < geometry.clientWidth; ++x) {
    for (int y = -20; y < geometry.clientHeight; ++y) {
      const auto cell = geometry.CellAt(x, y);
      ASSERT_EQ(cell.has_value(), x >= 80 && y >= 0) << x << " " << y;
      if (!cell) continue;
      const PaneRect rect = geometry.CellRect(*cell);
      ASSERT_TRUE(x >= rect.x && x < rect.Right() && y >= rect.y && y < rect.Bottom()) << x << " " << y;
    }
  }
}

TEST(ZmanimGeometry, NothingStandsBelowTheLastDayAndRightOfTheLastZman) {
  ZmanimGeometry geometry = Table();
  geometry.firstDay = 398;
  geometry.firstZman = 38;
  EXPECT_EQ(geometry.CellAt(80 + 57, 15), (ZmanimCell{399, 39}));
  EXPECT_EQ(geometry.CellAt(80, 30), std::nullopt);
  EXPECT_EQ(geometry.CellAt(80 + 2 * 57, 0), std::nullopt);
}

TEST(ZmanimGeometry, AnEmptyTableHasNoCells) {
  ZmanimGeometry geometry = Table();
  geometry.dayCount = 0;
  geometry.firstDay = 0;
  EXPECT_EQ(geometry.CellAt(100, 5), std::nullopt);
  EXPECT_EQ(geometry.DaysIn(WholeClient(geometry)), (IndexRange{0, 0}));
  EXPECT_EQ(geometry.LastFirstDay(), 0);
}

TEST(ZmanimGeometry, ATableNarrowerThanItsDatesHasNoColumns) {
  ZmanimGeometry geometry = Table();
  geometry.clientWidth = 60;
  EXPECT_EQ(geometry.ColumnWidth(), 0);
  EXPECT_EQ(geometry.CellAt(80, 0), std::nullopt);
  EXPECT_EQ(geometry.ZmanimIn(WholeClient(geometry)), (IndexRange{3, 3}));
  EXPECT_EQ(geometry.ColumnsRect(50), (PaneRect{80, 0, 0, 50}));
}

TEST(ZmanimGeometry, RangesEndWhereTheLastPageIsFull) {
  EXPECT_EQ(Table().WholeRows(), 10);
  EXPECT_EQ(Table().LastFirstDay(), 390);
  EXPECT_EQ(Table().LastFirstZman(), 24);  // 40 - 16
  ZmanimGeometry geometry = Table();
  geometry.visibleColumns = 10;
  EXPECT_EQ(geometry.LastFirstZman(), 30);
  geometry.zmanCount = 10;
  EXPECT_EQ(geometry.LastFirstZman(), 0);
  geometry.dayCount = 3;
  EXPECT_EQ(geometry.LastFirstDay(), 0);
  geometry.clientHeight = -4;
  EXPECT_EQ(geometry.LastFirstDay(), 3);
}

TEST(ZmanimGeometry, AFontWithoutHeightShowsNoRow) {
  ZmanimGeometry geometry = Table();
  geometry.rowHeight = 0;
  EXPECT_EQ(geometry.WholeRows(), 0);
  EXPECT_EQ(geometry.CellAt(100, 0), std::nullopt);
  EXPECT_EQ(geometry.DaysIn(WholeClient(geometry)), (IndexRange{7, 7}));
}

TEST(ZmanimGeometry, OneThatIsPartlyVisibleIsShownBothWays) {
  const ZmanimGeometry geometry = Table();
  EXPECT_EQ(geometry.DaysIn(WholeClient(geometry)), (IndexRange{7, 18}));    // ten rows and the eleventh
  EXPECT_EQ(geometry.ZmanimIn(WholeClient(geometry)), (IndexRange{3, 20}));  // 16 columns and 8 pixels of another
}

TEST(ZmanimGeometry, ARowThatStartsAtTheBottomEdgeIsNotShown) {
  ZmanimGeometry geometry = Table();
  geometry.clientHeight = 150;
  EXPECT_EQ(geometry.DaysIn({0, 0, 1000, 1000}), (IndexRange{7, 17}));
}

TEST(ZmanimGeometry, OnlyWhatMeetsTheAreaIsThere) {
  const ZmanimGeometry geometry = Table();
  EXPECT_EQ(geometry.DaysIn({0, 15, 10, 15}), (IndexRange{8, 9}));
  EXPECT_EQ(geometry.DaysIn({0, 14, 10, 17}), (IndexRange{7, 10}));
  EXPECT_EQ(geometry.ZmanimIn({80 + 57, 0, 57, 10}), (IndexRange{4, 5}));
  EXPECT_EQ(geometry.ZmanimIn({80 + 56, 0, 59, 10}), (IndexRange{3, 6}));
  EXPECT_EQ(geometry.ZmanimIn({0, 0, 80, 10}), (IndexRange{3, 3}));
  EXPECT_EQ(geometry.DaysIn({0, 15, 10, 0}), (IndexRange{7, 7}));
}

TEST(ZmanimGeometry, TheFarEndOfALongRangeIsReached) {
  ZmanimGeometry geometry = Table();
  geometry.dayCount = 32001;
  geometry.zmanCount = 100;
  EXPECT_EQ(geometry.LastFirstDay(), 31991);
  geometry.firstDay = 31991;
  geometry.firstZman = 84;
  EXPECT_EQ(geometry.DaysIn(WholeClient(geometry)), (IndexRange{31991, 32001}));
  EXPECT_EQ(geometry.ZmanimIn(WholeClient(geometry)), (IndexRange{84, 100}));
  EXPECT_EQ(geometry.CellRect({32000, 99}), (PaneRect{80 + 15 * 57, 9 * 15, 57, 15}));
}

TEST(ZmanimLayout, LegendHeadingAndTableStandBelowEachOther) {
  const ZmanimLayout layout = LayOutZmanim(1000, 600, 16, 8, LegendLines(true, false));
  EXPECT_EQ(layout.legend, (PaneRect{8, 0, 992, 128}));
  EXPECT_EQ(layout.heading, (PaneRect{0, 128, 1000, 16}));
  EXPECT_EQ(layout.table, (PaneRect{0, 144, 1000, 456}));
}

TEST(ZmanimLayout, TheLegendOfTheBuiltInZmanimIsSixLines) {
  const ZmanimLayout layout = LayOutZmanim(1000, 600, 16, 8, LegendLines(false, false));
  EXPECT_EQ(layout.legend, (PaneRect{8, 0, 992, 96}));
  EXPECT_EQ(layout.heading, (PaneRect{0, 96, 1000, 16}));
  EXPECT_EQ(layout.table, (PaneRect{0, 112, 1000, 488}));
}

TEST(ZmanimLayout, TheHebrewLegendIsEightLinesWhateverItNames) {
  EXPECT_EQ(LegendLines(false, true), 8);
  EXPECT_EQ(LegendLines(true, true), 8);
}

TEST(ZmanimLayout, AreasWithoutRoomHaveSizeZero) {
  const ZmanimLayout layout = LayOutZmanim(5, 100, 16, 8, 8);
  EXPECT_EQ(layout.legend.width, 0);
  EXPECT_EQ(layout.table.height, 0);
}
