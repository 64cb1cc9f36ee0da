// The daily page of Talmud, its text and its days.
#include <gtest/gtest.h>

#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/folio/folio_core.h"
#include "tests/core/daf_yomi_reference_days.h"

namespace {

struct Tractate {
  const char* name;
  int firstLeaf;
  int lastLeaf;
};

// The last leaves as the tables of printed calendars have them.
constexpr Tractate kTractates[] = {
    {"Berachot", 2, 64},     {"Shabbat", 2, 157},     {"Eruvin", 2, 105},      {"Pesachim", 2, 121},
    {"Shekalim", 2, 22},     {"Yoma", 2, 88},         {"Sukkah", 2, 56},       {"Beitzah", 2, 40},
    {"Rosh Hashana", 2, 35}, {"Taanit", 2, 31},       {"Megillah", 2, 32},     {"Moed Katan", 2, 29},
    {"Chagigah", 2, 27},     {"Yevamot", 2, 122},     {"Ketubot", 2, 112},     {"Nedarim", 2, 91},
    {"Nazir", 2, 66},        {"Sotah", 2, 49},        {"Gittin", 2, 90},       {"Kiddushin", 2, 82},
    {"Bava Kamma", 2, 119},  {"Bava Metzia", 2, 119}, {"Bava Batra", 2, 176},  {"Sanhedrin", 2, 113},
    {"Makkot", 2, 24},       {"Shevuot", 2, 49},      {"Avodah Zarah", 2, 76}, {"Horayot", 2, 14},
    {"Zevachim", 2, 120},    {"Menachot", 2, 110},    {"Chullin", 2, 142},     {"Bechorot", 2, 61},
    {"Arachin", 2, 34},      {"Temurah", 2, 34},      {"Keritot", 2, 28},      {"Meilah", 2, 22},
    {"Kinnim", 23, 25},      {"Tamid", 26, 33},       {"Midot", 34, 37},       {"Niddah", 2, 73},
};

int32_t DayOf(int32_t number) {
  return calendar::AbsoluteFromGregorian({number % 100, number / 100 % 100, number / 10000});
}

std::string TextOf(int32_t absoluteDay) {
  const calendar::Date date = calendar::GregorianFromAbsolute(absoluteDay);
  return folio::LeafText(static_cast<uint32_t>(date.day), static_cast<uint32_t>(date.month),
                         static_cast<uint32_t>(date.year));
}

std::string Expected(const Tractate& tractate, int leaf, int cycle) {
  return std::string(tractate.name) + " " + std::to_string(leaf) + " (cycle " + std::to_string(cycle) + ")";
}

}  // namespace

// A widespread port (kosher-zmanim 0.9.0) answers otherwise in the seventh cycle, from 29 April 1969 on: it gives that
// cycle the 22 leaves of Shekalim that the eighth was the first to have, and so is days ahead until the eighth begins.
TEST(DafYomi, EveryTractateOfFifteenCyclesBeginsAndEndsOnTheDaysOfAnIndependentProgram) {
  static_assert(std::size(kTractates) == folio_test::kTractates);
  int checked = 0;
  for (int cycle = 1; cycle <= folio_test::kReferenceCycles; ++cycle) {
    const auto& firstDays = folio_test::kFirstDays[static_cast<std::size_t>(cycle - 1)];
    for (std::size_t i = 0; i < firstDays.size(); ++i) {
      const bool isLast = i + 1 == firstDays.size();
      const bool isLastCycle = cycle == folio_test::kReferenceCycles;
      const int32_t next = !isLast       ? firstDays[i + 1]
                           : isLastCycle ? folio_test::kFirstDayOfCycle16
                                         : folio_test::kFirstDays[static_cast<std::size_t>(cycle)][0];
      Tractate tractate = kTractates[i];
      if (cycle < 8 && tractate.name == std::string("Shekalim")) tractate.lastLeaf = 13;
      EXPECT_EQ(TextOf(DayOf(firstDays[i])), Expected(tractate, tractate.firstLeaf, cycle)) << firstDays[i];
      EXPECT_EQ(TextOf(DayOf(next) - 1), Expected(tractate, tractate.lastLeaf, cycle)) << "before " << next;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 600);
}

// From the announcements of the Siyum HaShas.
TEST(DafYomi, CyclesBeginOnTheDaysThatTheWorldCelebrated) {
  EXPECT_EQ(folio::LeafText(11, 9, 1923), "Berachot 2 (cycle 1)");
  EXPECT_EQ(folio::LeafText(2, 2, 1931), "Niddah 73 (cycle 1)");
  EXPECT_EQ(folio::LeafText(24, 6, 1975), "Berachot 2 (cycle 8)");
  EXPECT_EQ(folio::LeafText(2, 3, 2005), "Berachot 2 (cycle 12)");
  EXPECT_EQ(folio::LeafText(3, 8, 2012), "Berachot 2 (cycle 13)");
  EXPECT_EQ(folio::LeafText(4, 1, 2020), "Niddah 73 (cycle 13)");
  EXPECT_EQ(folio::LeafText(5, 1, 2020), "Berachot 2 (cycle 14)");
  EXPECT_EQ(folio::LeafText(8, 6, 2027), "Berachot 2 (cycle 15)");
}

TEST(DafYomi, EveryDayGoesOnWhereTheDayBeforeStopped) {
  std::optional<folio::Leaf> before;
  const int32_t end = calendar::AbsoluteFromGregorian({1, 1, 3001});
  for (int32_t day = calendar::AbsoluteFromGregorian({11, 9, 1923}); day < end; ++day) {
    const std::optional<folio::Leaf> leaf = folio::LeafOf(day);
    ASSERT_TRUE(leaf) << day;
    if (before && before->tractate == leaf->tractate) {
      ASSERT_EQ(leaf->number, before->number + 1) << day;
      ASSERT_EQ(leaf->cycle, before->cycle) << day;
    } else if (before) {
      ASSERT_EQ(leaf->cycle, before->cycle + (leaf->tractate == std::string("Berachot") ? 1 : 0)) << day;
    }
    before = leaf;
  }
}

TEST(DafYomi, ADayBeforeTheFirstCycleHasATextThatSaysSo) {
  EXPECT_EQ(folio::LeafText(10, 9, 1923), "no Daf Yomi before 11 September 1923");
  EXPECT_EQ(folio::LeafText(1, 1, 1583), "no Daf Yomi before 11 September 1923");
  EXPECT_EQ(folio::LeafText(1, 1, 1), "no Daf Yomi before 11 September 1923");
}

TEST(DafYomi, ADateThatDoesNotExistHasATextThatSaysSo) {
  for (const auto& [day, month, year] :
       {std::array{29u, 2u, 2023u}, std::array{31u, 4u, 2026u}, std::array{0u, 1u, 2026u}, std::array{1u, 13u, 2026u},
        std::array{1u, 0u, 2026u}, std::array{1u, 1u, 0u}, std::array{0u, 0u, 0u},
        std::array{0xFFFFFFFFu, 0xFFFFFFFFu, 0xFFFFFFFFu}, std::array{1u, 1u, 0xFFFFFFFFu}}) {
    EXPECT_EQ(folio::LeafText(day, month, year), "no such date") << day << "." << month << "." << year;
  }
  EXPECT_EQ(folio::LeafText(29, 2, 2024), "Bava Kamma 119 (cycle 14)");  // day 1,516 of a cycle begun on 5 January 2020
}
