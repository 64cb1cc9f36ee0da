// Directions by DerivedBidiClass.txt and UAX #9 of Unicode 15.
#include "publishing/core/unicode.h"

#include <gtest/gtest.h>

namespace publishing {
namespace {

std::vector<char32_t> CharactersOf(std::string_view text) {
  std::vector<char32_t> characters;
  while (!text.empty()) characters.push_back(TakeCharacter(text));
  return characters;
}

TEST(Utf8, EveryCharacterComesBack) {
  for (char32_t character = 0; character <= 0x10FFFF; ++character) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    std::string text;
    AppendUtf8(text, character);
    std::string_view rest = text;
    ASSERT_EQ(TakeCharacter(rest), character);
    ASSERT_TRUE(rest.empty()) << static_cast<uint32_t>(character);
  }
}

// RFC 3629, 10: forms that are too long, halves of UTF-16 and what is beyond U+10FFFF are no characters.
TEST(Utf8, BytesThatAreNoCharacterAreReplacedOneByOne) {
  const std::vector<char32_t> one = {0xFFFD, 'x'};
  EXPECT_EQ(CharactersOf("\x80x"), one);
  EXPECT_EQ(CharactersOf("\xFFx"), one);
  EXPECT_EQ(CharactersOf("\xD7x"), one);
  const std::vector<char32_t> two = {0xFFFD, 0xFFFD};
  EXPECT_EQ(CharactersOf("\xC0\x80"), two);
  EXPECT_EQ(CharactersOf("\xE0\xA0"), two);
  const std::vector<char32_t> three = {0xFFFD, 0xFFFD, 0xFFFD};
  EXPECT_EQ(CharactersOf("\xED\xA0\x80"), three);
  const std::vector<char32_t> four = {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD};
  EXPECT_EQ(CharactersOf("\xF4\x90\x80\x80"), four);
}

TEST(Utf16, CharactersBeyondTheFirstPlaneAreTwoUnits) {
  EXPECT_EQ(Utf16Of("aя👪"), u"aя👪");
}

TEST(WidthInCharacters, PointsAndAccentsTakeNoRoom) {
  EXPECT_EQ(WidthInCharacters("שלום"), 4u);
  EXPECT_EQ(WidthInCharacters("שָׁלוֹם"), 4u);
  EXPECT_EQ(WidthInCharacters("e\u0301"), 1u);
  EXPECT_EQ(WidthInCharacters("Йосиф"), 5u);
  EXPECT_EQ(WidthInCharacters("\u200Fא"), 1u);
}

TEST(Direction, TheFirstLetterDecides) {
  EXPECT_TRUE(IsRightToLeft("שלום Moshe"));
  EXPECT_TRUE(IsRightToLeft("12. (א"));
  EXPECT_TRUE(IsRightToLeft("سلام"));
  EXPECT_FALSE(IsRightToLeft("Moshe שלום"));
  EXPECT_FALSE(IsRightToLeft("Моше"));
  EXPECT_FALSE(IsRightToLeft("12.5.2007"));
  EXPECT_FALSE(IsRightToLeft(""));
}

std::string Shown(std::string_view text) {
  std::string shown;
  for (const DirectedRun& run : RunsOf(text)) {
    shown += run.rightToLeft ? "<" : ">";
    for (const char32_t character : run.characters) AppendUtf8(shown, character);
  }
  return shown;
}

TEST(Runs, NeutralsGoWithLettersOfOneKindElseWithTheParagraph) {
  EXPECT_EQ(Shown("a, b"), ">a, b");
  EXPECT_EQ(Shown("a (אב גד) b"), ">a (<אב גד>) b");
  EXPECT_EQ(Shown("אב (cd) ef!"), "<אב (>cd) ef<!");
  EXPECT_EQ(Shown(""), "");
}

TEST(Runs, NumbersAndPointsGoWithTheLetterBefore) {
  EXPECT_EQ(Shown("ניסן 5784"), "<ניסן 5784");
  EXPECT_EQ(Shown("a ניסן 5784"), ">a <ניסן 5784");
  EXPECT_EQ(Shown("a שָ b"), ">a <שָ> b");
  EXPECT_EQ(Shown("1.5.2007"), ">1.5.2007");
}

}  // namespace
}  // namespace publishing
