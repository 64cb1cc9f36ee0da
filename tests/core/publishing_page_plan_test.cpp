#include "publishing/core/page_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace publishing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Lines of 10 dots, 2 below each row: five rows of a line on most pages, three on the first.
constexpr PageRoom kRoom = {.onFirst = 36, .onOthers = 60, .lineHeight = 10, .rowGap = 2};

std::vector<RowToPlan> Rows(const std::vector<int>& lineCounts) {
  std::vector<RowToPlan> rows;
  for (const int count : lineCounts) rows.push_back({.lineCount = count});
  return rows;
}

TEST(PagePlan, PagesAreFilledInOrder) {
  const auto pages = PlanPages(Rows(std::vector<int>(9, 1)), kRoom);
  ASSERT_EQ(pages.size(), 3u);
  EXPECT_THAT(pages[0], ElementsAre(RowSlice{0, 0, 1}, RowSlice{1, 0, 1}, RowSlice{2, 0, 1}));
  EXPECT_EQ(pages[1].size(), 5u);
  EXPECT_THAT(pages[2], ElementsAre(RowSlice{8, 0, 1}));
}

TEST(PagePlan, WithoutRowsThereIsAPage) {
  EXPECT_THAT(PlanPages({}, kRoom), ElementsAre(IsEmpty()));
}

TEST(PagePlan, ARowThatFitsOnAPageIsWhole) {
  EXPECT_THAT(
      PlanPages(Rows({1, 3, 4}), kRoom),
      ElementsAre(ElementsAre(RowSlice{0, 0, 1}), ElementsAre(RowSlice{1, 0, 3}), ElementsAre(RowSlice{2, 0, 4})));
  EXPECT_THAT(PlanPages(Rows({5}), kRoom), ElementsAre(IsEmpty(), ElementsAre(RowSlice{0, 0, 5})));
}

// A page has room for five lines of one row, the first for three.
TEST(PagePlan, ARowLongerThanAPageIsDivided) {
  EXPECT_THAT(PlanPages(Rows({1, 12, 1}), kRoom),
              ElementsAre(ElementsAre(RowSlice{0, 0, 1}), ElementsAre(RowSlice{1, 0, 5}),
                          ElementsAre(RowSlice{1, 5, 5}), ElementsAre(RowSlice{1, 10, 2}, RowSlice{2, 0, 1})));
  EXPECT_THAT(PlanPages(Rows({6}), kRoom), ElementsAre(ElementsAre(RowSlice{0, 0, 3}), ElementsAre(RowSlice{0, 3, 3})));
}

TEST(PagePlan, WithoutRoomThereIsALineOnEachPage) {
  EXPECT_THAT(PlanPages(Rows({2, 1}), {.onFirst = -50, .onOthers = 3, .lineHeight = 10, .rowGap = 2}),
              ElementsAre(IsEmpty(), ElementsAre(RowSlice{0, 0, 1}), ElementsAre(RowSlice{0, 1, 1}),
                          ElementsAre(RowSlice{1, 0, 1})));
}

TEST(PagePlan, AGroupStaysWithTheRowAfterIt) {
  const std::vector<RowToPlan> rows = {{}, {}, {.isGroup = true}, {}, {}};
  EXPECT_THAT(PlanPages(rows, kRoom),
              ElementsAre(ElementsAre(RowSlice{0, 0, 1}, RowSlice{1, 0, 1}),
                          ElementsAre(RowSlice{2, 0, 1}, RowSlice{3, 0, 1}, RowSlice{4, 0, 1})));
  EXPECT_THAT(PlanPages({{}, {.isGroup = true}, {}}, kRoom), ElementsAre(testing::SizeIs(3)));
  EXPECT_THAT(PlanPages({{}, {}, {.isGroup = true}}, kRoom), ElementsAre(testing::SizeIs(3)))
      << "there is no row after it";
}

// Three lines of 10 and 2 are the 36 of the first page: a gap is one too many, but the first row has none.
TEST(PagePlan, AboveAGroupIsAGapUnlessAPageBeginsWithIt) {
  PageRoom room = kRoom;
  room.groupGap = 1;
  const std::vector<RowToPlan> first = {{.isGroup = true}, {}, {}};
  EXPECT_THAT(PlanPages(first, room), ElementsAre(testing::SizeIs(3)));
  EXPECT_EQ(HeightOf(PlanPages(first, room)[0], first, room), 36);
  const std::vector<RowToPlan> second = {{}, {.isGroup = true}, {}};
  EXPECT_THAT(PlanPages(second, room), ElementsAre(testing::SizeIs(1), testing::SizeIs(2)));
  room.onFirst = 37;
  EXPECT_EQ(HeightOf(PlanPages(second, room)[0], second, room), 37);
}

TEST(PagePlan, ARowThatBeginsAPageDoesSo) {
  const std::vector<RowToPlan> rows = {{.beginsPage = true}, {}, {.isGroup = true, .beginsPage = true}, {}};
  EXPECT_THAT(PlanPages(rows, kRoom), ElementsAre(testing::SizeIs(2), testing::SizeIs(2)));
}

std::vector<RowSlice> SlicesOf(const std::vector<PlannedPage>& pages) {
  std::vector<RowSlice> slices;
  for (const PlannedPage& page : pages) slices.insert(slices.end(), page.begin(), page.end());
  return slices;
}

// Each line once and in order, no row divided that has room on a page.
void ExpectAllLines(const std::vector<RowSlice>& slices, const std::vector<RowToPlan>& rows, const PageRoom& room) {
  std::size_t row = 0;
  int line = 0;
  for (const RowSlice& slice : slices) {
    ASSERT_EQ(slice.row, row);
    ASSERT_EQ(slice.firstLine, line);
    line += slice.lineCount;
    const int lineCount = rows[row].lineCount;
    const bool mayBeDivided = lineCount * room.lineHeight + room.rowGap > room.onOthers;
    ASSERT_TRUE(line == lineCount || mayBeDivided);
    if (line < lineCount) continue;
    ++row;
    line = 0;
  }
  EXPECT_EQ(row, rows.size());
}

TEST(PagePlan, EveryLineIsThereOnceAndWithinItsPage) {
  uint32_t dice = 1;
  const auto throwDice = [&dice](int sides) {
    dice = dice * 1664525 + 1013904223;  // Numerical Recipes' linear congruence
    return static_cast<int>((dice >> 8) % static_cast<uint32_t>(sides));
  };
  for (int table = 0; table < 3000; ++table) {
    const PageRoom room = {throwDice(200), 20 + throwDice(200), 1 + throwDice(18), throwDice(3), throwDice(5)};
    std::vector<RowToPlan> rows(static_cast<std::size_t>(throwDice(40)));
    for (RowToPlan& row : rows) {
      row = {1 + throwDice(throwDice(10) == 0 ? 60 : 4), throwDice(5) == 0, throwDice(20) == 0};
    }
    const auto pages = PlanPages(rows, room);
    for (std::size_t number = 0; number < pages.size(); ++number) {
      const int height = number == 0 ? room.onFirst : room.onOthers;
      EXPECT_TRUE(pages[number].empty() || HeightOf(pages[number], rows, room) <= height) << table;
      EXPECT_TRUE(!pages[number].empty() || number == 0) << table;
    }
    ExpectAllLines(SlicesOf(pages), rows, room);
  }
}

}  // namespace
}  // namespace publishing
