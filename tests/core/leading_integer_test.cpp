#include "engine/core/leading_integer.h"

#include <gtest/gtest.h>

TEST(LeadingInteger, ReadsDigitsUpToTheFirstOtherCharacter) {
  EXPECT_EQ(LeadingInteger("18"), 18);
  EXPECT_EQ(LeadingInteger("18 minutes"), 18);
  EXPECT_EQ(LeadingInteger("18.9"), 18);
  EXPECT_EQ(LeadingInteger("007"), 7);
  EXPECT_EQ(LeadingInteger("0x12"), 0);
}

TEST(LeadingInteger, SkipsLeadingWhiteSpaceAndTakesOneSign) {
  EXPECT_EQ(LeadingInteger(" \t\r\n\v\f42"), 42);
  EXPECT_EQ(LeadingInteger("-42"), -42);
  EXPECT_EQ(LeadingInteger("+42"), 42);
  EXPECT_EQ(LeadingInteger("+-42"), 0);
  EXPECT_EQ(LeadingInteger("- 42"), 0);
}

TEST(LeadingInteger, TextThatDoesNotStartWithANumberIsZero) {
  for (const char* text : {"", " ", "abc", "-", "+", "x18", "\x80"}) EXPECT_EQ(LeadingInteger(text), 0) << text;
}

TEST(LeadingInteger, NumbersBeyondThirtyTwoBitsAreTheNearestThatFits) {
  EXPECT_EQ(LeadingInteger("2147483647"), 2147483647);
  EXPECT_EQ(LeadingInteger("2147483648"), 2147483647);
  EXPECT_EQ(LeadingInteger("-2147483647"), -2147483647);
  EXPECT_EQ(LeadingInteger("-2147483648"), INT32_MIN);
  EXPECT_EQ(LeadingInteger("-99999999999999999999999"), INT32_MIN);
  EXPECT_EQ(LeadingInteger("99999999999999999999999"), INT32_MAX);
}
