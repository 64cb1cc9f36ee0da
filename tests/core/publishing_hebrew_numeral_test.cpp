// The rules of Hebrew numerals: units, tens, hundreds; 15 and 16 are written as 9 and 6, 9 and 7.
#include "publishing/core/hebrew_numeral.h"

#include <gtest/gtest.h>

namespace publishing {
namespace {

TEST(HebrewNumeral, SparesTheLettersOfTheName) {
  EXPECT_EQ(HebrewNumeral(1), "א׳");
  EXPECT_EQ(HebrewNumeral(10), "י׳");
  EXPECT_EQ(HebrewNumeral(15), "ט״ו");
  EXPECT_EQ(HebrewNumeral(16), "ט״ז");
  EXPECT_EQ(HebrewNumeral(18), "י״ח");
  EXPECT_EQ(HebrewNumeral(30), "ל׳");
  EXPECT_EQ(HebrewNumeral(100), "ק׳");
  EXPECT_EQ(HebrewNumeral(715), "תשט״ו");
  EXPECT_EQ(HebrewNumeral(787), "תשפ״ז");
  EXPECT_EQ(HebrewNumeral(800), "ת״ת");
  EXPECT_EQ(HebrewNumeral(999), "תתקצ״ט");
  EXPECT_EQ(HebrewNumeral(0), "0");
  EXPECT_EQ(HebrewNumeral(1000), "1000");
}

}  // namespace
}  // namespace publishing
