// What the built-in zmanim are called in Hebrew.
#include "zmanim/core/builtin_zmanim_texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/description_text.h"

namespace {

std::string Utf8Name(std::size_t zman) {
  return kBuiltInZmanimTexts[zman].hebrew;
}

}  // namespace

TEST(BuiltInZmanimTexts, AreAsTheLibraryAnswersItsOwnNames) {
  for (const BuiltInZmanText& zman : kBuiltInZmanimTexts) {
    const std::string expected = hours::DisplayHebrew(hours::EightBitFromUtf8(zman.hebrew));
    EXPECT_EQ(DisplayHebrewName(zman.hebrew), expected) << zman.hebrew;
    EXPECT_EQ(expected.find('?'), std::string::npos) << zman.hebrew;
  }
}

// zayin mem nun, then "(10.2" with its number turned round and its bracket swapped, as it stands in a name.
TEST(BuiltInZmanimTexts, NumbersAreTurnedRoundAndBracketsSwapped) {
  EXPECT_EQ(DisplayHebrewName("זמן (10.2 מעלות)"), "\xE6\xEE\xEF )2.01 \xEE\xF2\xEC\xE5\xFA(");
  EXPECT_EQ(DisplayHebrewName("א12"),
            "\xE0"
            "21");
  EXPECT_EQ(DisplayHebrewName(""), "");
}

TEST(BuiltInZmanimTexts, NamesDifferAndNoneBeginsWithADigit) {
  std::set<std::string> names;
  for (const BuiltInZmanText& zman : kBuiltInZmanimTexts) {
    EXPECT_TRUE(names.insert(zman.hebrew).second) << zman.hebrew;
    EXPECT_FALSE(zman.hebrew[0] >= '0' && zman.hebrew[0] <= '9') << zman.hebrew;
  }
}

// Columns as the strings of the program name them in English.
TEST(BuiltInZmanimTexts, ZmanimThatTheCatalogueHasTooAreCalledTheSame) {
  const std::pair<std::size_t, const char*> same[] = {
      {0, "dawn-72-min"}, {1, "tallit-11"},          {2, "tallit-10.2"},        {3, "sunrise"}, {5, "shema-gra"},
      {7, "tefila-gra"},  {10, "mincha-gedola-gra"}, {12, "mincha-ketana-gra"}, {14, "sunset"}};
  for (const auto& [zman, id] : same) {
    const hours::CatalogueZman* const known = hours::FindInCatalogue(id);
    ASSERT_NE(known, nullptr) << id;
    EXPECT_EQ(Utf8Name(zman), known->hebrew) << id;
  }
}

TEST(BuiltInZmanimTexts, RulesAreSentencesOfPlainLetters) {
  for (const BuiltInZmanText& zman : kBuiltInZmanimTexts) {
    const std::string rule = zman.rule;
    EXPECT_TRUE(rule.ends_with(".")) << rule;
    EXPECT_TRUE(std::ranges::all_of(rule, [](char c) { return c >= ' ' && c <= '~'; })) << rule;
  }
}
