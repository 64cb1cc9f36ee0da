#include "win/core/whole_number.h"

#include <gtest/gtest.h>

TEST(WholeNumber, UnsignedTakesDigitsAlone) {
  EXPECT_EQ(ParseUnsigned("18"), 18u);
  EXPECT_EQ(ParseUnsigned(" 007\t"), 7u);
  EXPECT_EQ(ParseUnsigned("4294967295"), 4294967295u);
  for (const char* text : {"", " ", "x", "-5", "+5", "1.5", "5x", "1 2", "4294967296"}) {
    EXPECT_FALSE(ParseUnsigned(text).has_value()) << text;
  }
}

TEST(WholeNumber, SignedTakesOneSign) {
  EXPECT_EQ(ParseSigned("-30"), -30);
  EXPECT_EQ(ParseSigned("+2"), 2);
  EXPECT_EQ(ParseSigned(" 10 "), 10);
  EXPECT_EQ(ParseSigned("-2147483648"), INT32_MIN);
  for (const char* text : {"", "-", "+", "+-2", "--2", "2-", "2147483648"}) {
    EXPECT_FALSE(ParseSigned(text).has_value()) << text;
  }
}
