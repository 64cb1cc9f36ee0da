#include "publishing/core/column_widths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>

namespace publishing {
namespace {

using testing::ElementsAre;

TEST(ColumnWidths, ColumnsThatFitHaveTheirOwn) {
  EXPECT_THAT(ColumnWidths({10, 20, 30}, {5, 5, 5}, 60), ElementsAre(10, 20, 30));
  EXPECT_THAT(ColumnWidths({}, {}, 60), ElementsAre());
}

// An equal share is 40. The narrow column keeps its 10; of the 30 more the wide ones lack 60 and 160.
TEST(ColumnWidths, WideColumnsShareWhatNarrowOnesLeave) {
  EXPECT_THAT(ColumnWidths({10, 100, 200}, {0, 0, 0}, 120), ElementsAre(10, 40 + 60 * 30 / 220, 40 + 160 * 30 / 220));
}

// Without its least the second column would get 48, as above.
TEST(ColumnWidths, NoColumnGetsLessThanItsLeast) {
  EXPECT_THAT(ColumnWidths({10, 100, 200}, {10, 70, 30}, 120), ElementsAre(10, 70, 40));
}

TEST(ColumnWidths, WithoutRoomForTheLeastTheyShareByThat) {
  EXPECT_THAT(ColumnWidths({10, 100, 200}, {10, 90, 90}, 120), ElementsAre(10, 55, 55));
}

TEST(ColumnWidths, TheyHaveRoomAndTheirLeastForAnyNumbers) {
  uint32_t dice = 1;
  const auto throwDice = [&dice](int sides) {
    dice = dice * 1664525 + 1013904223;  // Numerical Recipes' linear congruence
    return static_cast<int>((dice >> 8) % static_cast<uint32_t>(sides));
  };
  for (int table = 0; table < 5000; ++table) {
    std::vector<int> own(static_cast<std::size_t>(1 + throwDice(12)));
    std::vector<int> least = own;
    for (std::size_t column = 0; column < own.size(); ++column) {
      own[column] = throwDice(300);
      least[column] = throwDice(own[column] + 1);
    }
    const int needed = std::accumulate(least.begin(), least.end(), 0);
    const int room = needed + throwDice(300);
    const std::vector<int> widths = ColumnWidths(own, least, room);
    EXPECT_LE(std::accumulate(widths.begin(), widths.end(), 0), room) << table;
    for (std::size_t column = 0; column < own.size(); ++column) {
      EXPECT_GE(widths[column], least[column]) << table;
      EXPECT_LE(widths[column], own[column]) << table;
    }
  }
}

}  // namespace
}  // namespace publishing
