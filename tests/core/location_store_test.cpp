// Expected values are worked out by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "locations/core/key_list.h"
#include "locations/core/packed_coordinate.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StrEq;
using namespace std::string_view_literals;

TEST(PackedCoordinate, OfASetFlagIsNegative) {
  EXPECT_EQ(PackCoordinate(33, 52, true), -3352);
  EXPECT_EQ(PackCoordinate(31, 47, false), 3147);
  EXPECT_EQ(PackCoordinate(0, 30, true), -30);
  EXPECT_EQ(PackCoordinate(0, 0, true), 0);
}

TEST(PackedCoordinate, OfAnyNumbersIsSomeNumber) {
  EXPECT_EQ(PackCoordinate(INT32_MAX, INT32_MAX, false), static_cast<int32_t>(int64_t{INT32_MAX} * 101));
  EXPECT_EQ(PackCoordinate(INT32_MIN, 0, true), 0);  // 2^31 * 100 in 32 bits
}

TEST(KeyList, NamesEndAtTheEmptyName) {
  EXPECT_THAT(KeyList("Home\0Office\0\0Rest\0\0"sv), ElementsAre(StrEq("Home"), StrEq("Office")));
}

TEST(KeyList, OfAnEmptySectionIsEmpty) {
  EXPECT_THAT(KeyList("\0\0"sv), IsEmpty());
  EXPECT_THAT(KeyList(""sv), IsEmpty());
}

TEST(KeyList, ANameWithoutItsTerminatorIsNotRead) {
  EXPECT_THAT(KeyList("Home\0Off"sv), ElementsAre(StrEq("Home")));
}
