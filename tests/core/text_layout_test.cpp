#include "output/text_layout.h"

#include <gtest/gtest.h>

#include "output/date_text.h"
#include "output/text_sink.h"

TEST(PadRight, FillsUpWithSpacesAndLeavesLongerTextsWhole) {
  EXPECT_EQ(PadRight("Date", 6), "Date  ");
  EXPECT_EQ(PadRight("Date", 4), "Date");
  EXPECT_EQ(PadRight("Date", 2), "Date");
  EXPECT_EQ(PadRight("", 2), "  ");
}

TEST(RtfEscape, ReplacesBracesAndBackslashOnly) {
  EXPECT_EQ(RtfEscape("a{b}c\\d"), "a\\'7Bb\\'7Dc\\'5Cd");
  EXPECT_EQ(RtfEscape("It's \xE0\xE1 100%"), "It's \xE0\xE1 100%");
  EXPECT_EQ(RtfEscape(""), "");
}

TEST(RtfEscape, ReplacesTheBytesAskedFor) {
  EXPECT_EQ(RtfEscape("It's {a}", "'{"), "It\\'27s \\'7Ba}");
}

TEST(IsBlank, SpacesOnlyAreBlank) {
  EXPECT_TRUE(IsBlank(""));
  EXPECT_TRUE(IsBlank("   "));
  EXPECT_FALSE(IsBlank(" x "));
  EXPECT_FALSE(IsBlank("\t"));
}

TEST(ReverseText, TurnsTheBytesRound) {
  EXPECT_EQ(ReverseText("ab c"), "c ba");
  EXPECT_EQ(ReverseText("\xE0\xE1"), "\xE1\xE0");
  EXPECT_EQ(ReverseText(""), "");
}

TEST(FirstWord, TakesTheSpacesThatFollow) {
  EXPECT_EQ(FirstWord("ab  c"), "ab  ");
  EXPECT_EQ(FirstWord("ab"), "ab");
  EXPECT_EQ(FirstWord("ab "), "ab ");
  EXPECT_EQ(FirstWord("  ab"), "  ");
  EXPECT_EQ(FirstWord(""), "");
}

TEST(WriteLine, EndsInCarriageReturnAndLineFeed) {
  StringSink sink;
  WriteLine(sink, "a");
  WriteLine(sink, "");
  EXPECT_EQ(sink.text(), "a\r\n\r\n");
}

TEST(DateText, PadsWithZeros) {
  EXPECT_EQ(DateText({5, 1, 2007}), "05.01.2007");
  EXPECT_EQ(DateText({31, 12, 999}), "31.12.0999");
  EXPECT_EQ(DateText({0, 0, 0}), "00.00.0000");
  EXPECT_EQ(DateText({4294967295u, 4294967295u, 4294967295u}), "4294967295.4294967295.4294967295");
}
