// The layout of the zmanim block is what all its readers rely on.
#include "zmanim/core/zmanim_block.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

TEST(ZmanimBlock, EveryWordHasItsPlace) {
  std::vector<unsigned char> bytes(ZmanimBlockSize(3));
  auto* const block = reinterpret_cast<ZmanimBlock*>(bytes.data());
  ZmanimDay* const days = block->days;
  block->count = 3;
  days[2].date = {5, 1, 2007};
  days[2].times[0] = {4, 35};
  days[2].times[99] = kNoTime;
  const auto word = [&bytes](std::size_t offset) {
    int32_t value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
  };
  EXPECT_EQ(word(0), 3);
  const std::size_t day = 4 + 812 * 2;
  EXPECT_EQ(word(day), 5);
  EXPECT_EQ(word(day + 4), 1);
  EXPECT_EQ(word(day + 8), 2007);
  EXPECT_EQ(word(day + 12), 4);
  EXPECT_EQ(word(day + 16), 35);
  EXPECT_EQ(word(day + 12 + 8 * 99), 2000);
  EXPECT_EQ(word(day + 16 + 8 * 99), 0);
}

TEST(ZmanimBlock, ItsSizeIsFourBytesAnd812ADay) {
  EXPECT_EQ(ZmanimBlockSize(0), 4u);
  EXPECT_EQ(ZmanimBlockSize(1), 816u);
  EXPECT_EQ(ZmanimBlockSize(32001), 4u + 32001u * 812u);
}

TEST(ZmanimBlock, BothEndsOfARangeCount) {
  EXPECT_EQ(CountZmanimDays(100, 100).count, 1u);
  EXPECT_EQ(CountZmanimDays(100, 131).count, 32u);
  EXPECT_EQ(CountZmanimDays(-3, 3).count, 7u);
  EXPECT_FALSE(CountZmanimDays(100, 131).tooMany);
}

TEST(ZmanimBlock, ARangeThatStartsAfterItsEndHasNoDays) {
  EXPECT_EQ(CountZmanimDays(101, 100).count, 0u);
  EXPECT_EQ(CountZmanimDays(INT32_MAX, INT32_MIN).count, 0u);
  EXPECT_FALSE(CountZmanimDays(101, 100).tooMany);
}

TEST(ZmanimBlock, ARangeThatIsTooLongKeepsTheDayThatExceedsIt) {
  EXPECT_EQ(CountZmanimDays(1, 32000).count, 32000u);
  EXPECT_FALSE(CountZmanimDays(1, 32000).tooMany);
  for (const int32_t last : {32001, 32002, INT32_MAX}) {
    EXPECT_EQ(CountZmanimDays(1, last).count, 32001u);
    EXPECT_TRUE(CountZmanimDays(1, last).tooMany);
  }
  EXPECT_EQ(CountZmanimDays(INT32_MIN, INT32_MAX).count, 32001u);
}
