#include "publishing/core/block_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace publishing {
namespace {

using testing::ElementsAre;
using testing::Optional;

constexpr BlockRow kRow = {10};
constexpr BlockRow kGroup = {10, true};

TEST(BlockPlan, RowsFlowDownOneBlockAfterTheOther) {
  EXPECT_THAT(FillBlocks(std::vector<BlockRow>(5, kRow), {3, 20, 0, false}), Optional(ElementsAre(0u, 2u, 4u)));
  EXPECT_EQ(FillBlocks(std::vector<BlockRow>(7, kRow), {3, 20, 0, false}), std::nullopt);
  EXPECT_EQ(FillBlocks({{21}}, {3, 20, 0, false}), std::nullopt);
  EXPECT_THAT(FillBlocks({}, {3, 20, 0, false}), Optional(ElementsAre()));
}

TEST(BlockPlan, NoGroupStandsAloneAtTheFootOfABlock) {
  EXPECT_THAT(FillBlocks({kRow, kRow, kGroup, kRow}, {2, 30, 0, false}), Optional(ElementsAre(0u, 2u)));
}

// Two rows and a group with its row are 40, with the gap 45.
TEST(BlockPlan, AGapIsAboveAGroupUnlessABlockBeginsWithIt) {
  const std::vector<BlockRow> rows = {kRow, kRow, kGroup, kRow};
  EXPECT_THAT(FillBlocks(rows, {2, 44, 5, false}), Optional(ElementsAre(0u, 2u)));
  EXPECT_THAT(FillBlocks(rows, {2, 45, 5, false}), Optional(ElementsAre(0u)));
  EXPECT_THAT(FillBlocks({kGroup, kRow}, {1, 20, 5, false}), Optional(ElementsAre(0u)));
}

TEST(BlockPlan, GroupsAreWholeOnRequest) {
  const std::vector<BlockRow> rows = {kGroup, kRow, kRow, kGroup, kRow, kRow};
  EXPECT_THAT(FillBlocks(rows, {2, 50, 0, false}), Optional(ElementsAre(0u, 5u)));
  EXPECT_THAT(FillBlocks(rows, {2, 50, 0, true}), Optional(ElementsAre(0u, 3u)));
  EXPECT_EQ(FillBlocks(rows, {3, 20, 0, true}), std::nullopt);
}

TEST(BlockPlan, EvenBlocksAreAsLowAsTheyCanBe) {
  BlockRoom room = {2, 1000, 0, false};
  EXPECT_THAT(FillEvenly(std::vector<BlockRow>(7, kRow), room), Optional(ElementsAre(0u, 4u)));
  EXPECT_EQ(room.height, 40);
  room = {2, 30, 0, false};
  EXPECT_EQ(FillEvenly(std::vector<BlockRow>(7, kRow), room), std::nullopt);
}

}  // namespace
}  // namespace publishing
