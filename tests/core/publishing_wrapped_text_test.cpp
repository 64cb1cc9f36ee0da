#include "publishing/core/wrapped_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

using testing::ElementsAre;

// Every unit one wide, but combining characters.
int Measure(std::u16string_view text) {
  return static_cast<int>(std::count_if(text.begin(), text.end(), [](char16_t unit) { return !IsCombining(unit); }));
}

std::vector<std::u16string_view> Wrapped(std::u16string_view text, int width) {
  return WrappedText(text, width, Measure);
}

TEST(WrappedText, LinesBreakAtBlanksWhichTheyLose) {
  EXPECT_THAT(Wrapped(u"one two three", 7), ElementsAre(u"one two", u"three"));
  EXPECT_THAT(Wrapped(u"one two   three", 8), ElementsAre(u"one two", u"three"));
  EXPECT_THAT(Wrapped(u"one two three", 13), ElementsAre(u"one two three"));
  EXPECT_THAT(Wrapped(u"", 5), ElementsAre(u""));
}

TEST(WrappedText, LineEndsOfTheTextStay) {
  EXPECT_THAT(Wrapped(u"a\n\nb c", 9), ElementsAre(u"a", u"", u"b c"));
}

TEST(WrappedText, WordsThatAreTooLongBreakBetweenCharacters) {
  EXPECT_THAT(Wrapped(u"ab cdefgh", 3), ElementsAre(u"ab", u"cde", u"fgh"));
  EXPECT_THAT(Wrapped(u"שָׂרָה", 2), ElementsAre(u"שָׂרָ", u"ה"));
  EXPECT_THAT(Wrapped(u"👪👪", 3), ElementsAre(u"👪", u"👪"));
}

TEST(WrappedText, ALineHasACharacterWhateverItsWidth) {
  EXPECT_THAT(Wrapped(u"abc", 0), ElementsAre(u"a", u"b", u"c"));
  EXPECT_THAT(Wrapped(u"שָׂ👪", -5), ElementsAre(u"שָׂ", u"👪"));
}

TEST(WrappedText, LongTextsAreWrappedWithoutMeasuringThemWhole) {
  const std::u16string text(1000000, u'x');
  std::size_t measured = 0;
  const auto lines = WrappedText(text, 50, [&](std::u16string_view part) {
    measured += part.size();
    return Measure(part);
  });
  EXPECT_EQ(lines.size(), 20000u);
  EXPECT_LT(measured, 20 * text.size());
}

TEST(WrappedText, NothingButBlanksIsLost) {
  const std::u16string text = u"  Моше  בן  עמרם, abcdefghijkl\nx y  z👪 ";
  for (int width = 0; width < 20; ++width) {
    std::u16string joined;
    for (const std::u16string_view line : Wrapped(text, width)) {
      EXPECT_TRUE(Measure(line) <= std::max(width, 2)) << width;
      joined += line;
    }
    std::u16string expected = text;
    for (std::u16string* const both : {&joined, &expected}) {
      std::erase_if(*both, [](char16_t unit) { return unit == u' ' || unit == u'\n'; });
    }
    EXPECT_EQ(joined, expected) << width;
  }
}

TEST(FirstLines, AnEllipsisTellsOfMore) {
  const std::vector<std::u16string_view> lines = {u"abcde", u"fg", u"h"};
  EXPECT_THAT(FirstLines(lines, 3, 5, Measure), ElementsAre(u"abcde", u"fg", u"h"));
  EXPECT_THAT(FirstLines(lines, 2, 5, Measure), ElementsAre(u"abcde", u"fg…"));
  EXPECT_THAT(FirstLines(lines, 1, 5, Measure), ElementsAre(u"abcd…"));
}

}  // namespace
}  // namespace publishing
