#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "companion/folio.h"

namespace {

std::string PageOf(uint32_t day, uint32_t month, uint32_t year) {
  char text[256 + 8];
  std::memset(text, 'x', sizeof text);
  FolioGetWithCycle(day, month, year, text);
  EXPECT_EQ(std::string(text + 256, 8), "xxxxxxxx") << "the buffer ends after 256 bytes";
  return text;
}

}  // namespace

// Days of the Siyum HaShas, and the day after each.
TEST(FolioContract, AnswersThePageWithItsCycle) {
  EXPECT_EQ(PageOf(11, 9, 1923), "Berachot 2 (cycle 1)");
  EXPECT_EQ(PageOf(4, 1, 2020), "Niddah 73 (cycle 13)");
  EXPECT_EQ(PageOf(5, 1, 2020), "Berachot 2 (cycle 14)");
  EXPECT_EQ(PageOf(8, 6, 2027), "Berachot 2 (cycle 15)");
}

TEST(FolioContract, EveryDateHasAText) {
  EXPECT_EQ(PageOf(10, 9, 1923), "no Daf Yomi before 11 September 1923");
  EXPECT_EQ(PageOf(30, 2, 2026), "no such date");
  EXPECT_EQ(PageOf(0xFFFFFFFF, 0, 0xFFFFFFFF), "no such date");
  for (uint32_t year = 1583; year <= 3000; ++year) EXPECT_FALSE(PageOf(28, 2, year).empty()) << year;
}

TEST(FolioContract, ANullTextIsLeftAlone) {
  FolioGetWithCycle(5, 1, 2020, nullptr);
}
