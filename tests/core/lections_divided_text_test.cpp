// The library knows where the program divides texts: the program's own list is asked.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "libraries/lections/divided_text.h"
#include "readings/core/split_rules.h"

namespace {

using namespace lections;

using Line = char (ReadingsEntry::*)[kTextSize];

struct SearchedLine {
  uint8_t line;
  Line searched;
  Line next;
  Line afterNext;  // null: none
};
constexpr SearchedLine kLines[] = {
    {kFirstOfTorah, &ReadingsEntry::torah1, &ReadingsEntry::torah2, &ReadingsEntry::torah3},
    {kFirstOfHaftarot, &ReadingsEntry::haftarah1, &ReadingsEntry::haftarah2, &ReadingsEntry::haftarah3},
    {kSecondOfHaftarot, &ReadingsEntry::haftarah2, &ReadingsEntry::haftarah3, nullptr}};

// A separator in each of the searched lines, with another text in the next one.
TEST(LectionsDividedText, IsDividedByTheProgramAsTheTableSays) {
  for (const Divider& divider : Dividers()) {
    for (const SearchedLine& line : kLines) {
      const std::string text = "A" + std::string(divider.separator) + "BC";
      ReadingsEntry entry{};
      std::strcpy(entry.*line.searched, text.c_str());
      std::strcpy(entry.*line.next, "N");
      SplitReadings(entry, divider.language == kAnyLanguage ? 1 : divider.language);
      const bool isDivided = entry.*line.searched != text;
      EXPECT_EQ(isDivided, (divider.lines & line.line) != 0) << divider.separator;
      if (isDivided && line.afterNext) {
        EXPECT_EQ(std::string(entry.*line.afterNext), divider.movesNextDown ? "N" : "") << divider.separator;
      }
      if (!isDivided) continue;
      EXPECT_NE(std::string(entry.*line.next), "N") << divider.separator;
    }
  }
}

TEST(LectionsDividedText, AnotherLanguagesRuleAndFinnishAreLeftOut) {
  ReadingsEntry entry{};
  std::strcpy(entry.haftarah1, "A; Joel 2");
  SplitReadings(entry, 1);
  EXPECT_STREQ(entry.haftarah1, "A; Joel 2");
  std::strcpy(entry.haftarah1, "A; Morning: B");
  SplitReadings(entry, kUndividedLanguage);
  EXPECT_STREQ(entry.haftarah1, "A; Morning: B");
}

TEST(LectionsDividedText, TheUserIsToldWhereAndWhatBecomesOfTheNextLine) {
  OwnPlace place = {.when = *WhenIn("portion Noach")};
  EXPECT_EQ(DivisionRemark(place, "A; Morning: B"),
            "The program divides it at \"; Morning: \": the rest takes the next line, in place of what stands there.");
  EXPECT_EQ(DivisionRemark(place, "A (Sephardi: B)"), "");
  EXPECT_EQ(DivisionRemark(place, "A; Morning: "), "");
  place.slot = Slot::kHaftarah1;
  EXPECT_EQ(
      DivisionRemark(place, "A (Sephardi: B)"),
      "The program divides it at \" (Sephardi\": the rest takes the next line, and what stands there moves down.");
  EXPECT_EQ(
      DivisionRemark(place, "A; ve\u010Der: B"),
      "The program divides it at \"; ve\u010Der: \": the rest takes the next line, in place of what stands there.");
  EXPECT_NE(DivisionRemark(place, "A; Joel 2"), "");
  place.language = 1;
  EXPECT_EQ(DivisionRemark(place, "A; Joel 2"), "");
  place.language = kUndividedLanguage;
  EXPECT_EQ(DivisionRemark(place, "A; Morning: B"), "");
  place = {.when = place.when, .slot = Slot::kHaftarah2};
  EXPECT_EQ(DivisionRemark(place, "A (sefardi: B)"),
            "The program divides it at \" (sefardi\": the rest takes the next line, in place of what stands there.");
  place.slot = Slot::kTorah2;
  EXPECT_EQ(DivisionRemark(place, "A; Morning: B"), "");
}

}  // namespace
