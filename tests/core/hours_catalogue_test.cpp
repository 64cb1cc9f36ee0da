#include "libraries/hours/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "libraries/hours/choice.h"
#include "libraries/hours/description_text.h"

namespace hours {
namespace {

TEST(HoursCatalogue, HasAtLeastAHundredZmanim) {
  EXPECT_GE(Catalogue().size(), 100u);
}

TEST(HoursCatalogue, IdsAreUniqueAndPlain) {
  std::set<std::string> ids;
  for (const CatalogueZman& zman : Catalogue()) {
    const std::string id = zman.id;
    EXPECT_TRUE(ids.insert(id).second) << id;
    EXPECT_EQ(id.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789.-"), std::string::npos) << id;
    EXPECT_FALSE(id.starts_with("own-")) << id;
    EXPECT_EQ(FindInCatalogue(id), &zman);
  }
  EXPECT_EQ(FindInCatalogue("dawn"), nullptr);
  EXPECT_EQ(FindInCatalogue(""), nullptr);
}

TEST(HoursCatalogue, DescriptionsAreUniqueAndShortInBothLanguages) {
  std::set<std::string> descriptions;
  std::set<std::string> hebrew;
  for (const CatalogueZman& zman : Catalogue()) {
    for (const std::string& text : {EightBitFromUtf8(zman.description), EightBitFromUtf8(zman.hebrew)}) {
      EXPECT_FALSE(text.empty()) << zman.id;
      EXPECT_LE(text.size(), kMostDescriptionBytes) << zman.id;
      EXPECT_EQ(text, CleanDescription(text)) << zman.id;
      EXPECT_EQ(text.find('?'), std::string::npos) << zman.id << ": a character that has no byte";
    }
    EXPECT_TRUE(descriptions.insert(EightBitFromUtf8(zman.description)).second) << zman.id;
    EXPECT_TRUE(hebrew.insert(EightBitFromUtf8(zman.hebrew)).second) << zman.id;
  }
}

TEST(HoursCatalogue, KindsComeInTheirOrderAndNoneIsEmpty) {
  const auto catalogue = Catalogue();
  EXPECT_TRUE(std::ranges::is_sorted(catalogue, {}, &CatalogueZman::kind));
  for (size_t kind = 0; kind < KindNames().size(); ++kind) {
    EXPECT_TRUE(std::ranges::find(catalogue, static_cast<Kind>(kind), &CatalogueZman::kind) != catalogue.end()) << kind;
    EXPECT_STRNE(KindNames()[kind], "");
  }
}

// Drawn from right to left, a number at the start is torn from the words behind it.
TEST(HoursCatalogue, NoHebrewNameBeginsWithADigit) {
  for (const CatalogueZman& zman : Catalogue()) EXPECT_FALSE(zman.hebrew[0] >= '0' && zman.hebrew[0] <= '9') << zman.id;
}

// The restriction that a zman begins or ends decides: see "rounding" in the help.
TEST(HoursCatalogue, DeadlinesGoDownAndOnsetsUp) {
  for (const CatalogueZman& zman : Catalogue()) {
    const std::string id = zman.id;
    Rounding expected = Rounding::kUp;
    switch (zman.kind) {
      case Kind::kDawn:
      case Kind::kShema:
      case Kind::kTefila:
      case Kind::kChametz:
      case Kind::kCandles:
      case Kind::kBeinHashmashot:
      case Kind::kMidnight: expected = Rounding::kDown; break;
      case Kind::kSunrise:
      case Kind::kSunset:
      case Kind::kMidday: expected = Rounding::kNearest; break;
      case Kind::kMincha: expected = id.starts_with("samuch") ? Rounding::kDown : Rounding::kUp; break;
      case Kind::kTallit:
      case Kind::kPlag:
      case Kind::kNightfall: break;
    }
    EXPECT_EQ(zman.definition.rounding, expected) << id;
    EXPECT_EQ(zman.definition.isForPesachEve, zman.kind == Kind::kChametz) << id;
  }
}

TEST(HoursPresets, NameZmanimOfTheCatalogueOnceEach) {
  for (const Preset& preset : Presets()) {
    std::set<std::string> ids;
    for (const char* id : preset.ids) {
      EXPECT_NE(FindInCatalogue(id), nullptr) << preset.name << ": " << id;
      EXPECT_TRUE(ids.insert(id).second) << preset.name << ": " << id;
    }
  }
}

TEST(HoursPresets, TheDefaultIsABalancedListWithTheNineteenInIt) {
  const auto usual = Presets().front().ids;
  const auto nineteen = Presets().back().ids;
  EXPECT_EQ(usual.size(), 25u);
  EXPECT_EQ(nineteen.size(), 19u);
  for (const char* id : nineteen) {
    EXPECT_TRUE(std::ranges::any_of(usual, [id](const char* other) { return std::string(other) == id; })) << id;
  }
}

std::string Reversed(std::string text) {
  std::ranges::reverse(text);
  return text;
}

// "Alot 16.1 (degrees)" as it must stand on paper, from left to right: what is read first stands at the right.
TEST(HoursHebrew, ReversedItReadsRightFromLeftToRight) {
  const std::string logical = EightBitFromUtf8("עלות 16.1 (מעלות)");
  EXPECT_EQ(logical, "\xF2\xEC\xE5\xFA 16.1 (\xEE\xF2\xEC\xE5\xFA)");
  EXPECT_EQ(Reversed(DisplayHebrew(logical)), "(\xFA\xE5\xEC\xF2\xEE) 16.1 \xFA\xE5\xEC\xF2");
}

TEST(HoursHebrew, IsStoredInReadingOrderWithNumbersReversedAndBracketsSwapped) {
  EXPECT_EQ(DisplayHebrew("\xE0 (10.2 \xE1)"), "\xE0 )2.01 \xE1(");
  EXPECT_EQ(DisplayHebrew("\xE0 7.083. \xE1"), "\xE0 380.7. \xE1");
  EXPECT_EQ(DisplayHebrew("\xE0 [<{\xE1}>]"), "\xE0 ]>}\xE1{<[");
  EXPECT_EQ(DisplayHebrew("\xE2\xF8\"\xE0"), "\xE2\xF8\"\xE0");
  EXPECT_EQ(DisplayHebrew("\xE0 1-2 3/4"), "\xE0 2-1 4/3");
}

TEST(HoursHebrew, LatinWordsKeepTheirOwnDirection) {
  EXPECT_EQ(Reversed(DisplayHebrew("\xE0 My own 3 (a) \xE1")), "\xE1 (My own 3 (a \xE0");
  EXPECT_EQ(Reversed(DisplayHebrew("My dawn (72)")), "My dawn (72)");
  EXPECT_EQ(DisplayHebrew(""), "");
}

TEST(HoursHebrew, CharactersWithoutAByteBecomeQuestionMarks) {
  EXPECT_EQ(EightBitFromUtf8("a\xC2\xB0\xC3\xBC"), "a\xB0\xFC");
  EXPECT_EQ(EightBitFromUtf8("\xE2\x82\xAC\xF0\x9F\x98\x80"), "?????");
  EXPECT_EQ(EightBitFromUtf8("\xD7"), "?");
  EXPECT_EQ(EightBitFromUtf8("\xD7x\xC2\x80"), "?x?");
}

TEST(HoursDescription, IsCleanedOfWhatALineCannotHold) {
  EXPECT_EQ(CleanDescription("  My\tdawn|\r\n "), "Mydawn");
  EXPECT_EQ(CleanDescription(std::string(60, 'x')), std::string(48, 'x'));
  EXPECT_EQ(CleanDescription(std::string(47, 'x') + " yy"), std::string(47, 'x'));
  EXPECT_EQ(CleanDescription(" | "), "");
}

}  // namespace
}  // namespace hours
