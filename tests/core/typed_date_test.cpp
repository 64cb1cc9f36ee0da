// Expected values are worked out by hand.
#include "app/core/typed_date.h"

#include <gtest/gtest.h>

namespace {

uint32_t LastDay(uint32_t month, uint32_t year) {
  EXPECT_GE(month, 1u) << "asked for a month that does not exist";
  EXPECT_LE(month, 12u) << "asked for a month that does not exist";
  constexpr uint32_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : kDays[(month - 1) % 12];
}

}  // namespace

TEST(TypedDate, FieldsThatMakeADateAreThatDate) {
  const auto date = DateOf({22, 6, 2027}, LastDay);
  ASSERT_TRUE(date);
  EXPECT_EQ(date->uDay, 22u);
  EXPECT_EQ(date->uMonth, 6u);
  EXPECT_EQ(date->uYear, 2027u);
  for (const TypedDate& typed : {TypedDate{1, 1, 1583}, {31, 12, 3000}, {29, 2, 2028}}) {
    EXPECT_TRUE(DateOf(typed, LastDay)) << *typed.day << "." << *typed.month << "." << *typed.year;
  }
}

TEST(TypedDate, AnEmptyFieldLeavesNoDate) {
  EXPECT_FALSE(DateOf({std::nullopt, 6, 2027}, LastDay));
  EXPECT_FALSE(DateOf({22, std::nullopt, 2027}, LastDay));
  EXPECT_FALSE(DateOf({22, 6, std::nullopt}, LastDay));
}

TEST(TypedDate, NumbersThatAreNoDateLeaveNone) {
  for (const TypedDate& typed : {TypedDate{22, 0, 2027},
                                 {22, 13, 2027},
                                 {0, 6, 2027},
                                 {31, 6, 2027},
                                 {29, 2, 2027},
                                 {31, 12, 1582},
                                 {1, 1, 3001},
                                 {22, 6, 202},
                                 {4294967295, 4294967295, 4294967295}}) {
    EXPECT_FALSE(DateOf(typed, LastDay)) << *typed.day << "." << *typed.month << "." << *typed.year;
  }
}
