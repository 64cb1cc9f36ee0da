// The rules that divide joined readings. Each expected text is cut by hand by the rule's description.
#include "readings/core/split_rules.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

constexpr uint32_t kEnglish = 1;

using Slot = char (ReadingsEntry::*)[kTextSize];

void Put(ReadingsEntry& entry, Slot slot, const std::string& text) {
  ASSERT_LT(text.size(), kTextSize);
  std::strcpy(entry.*slot, text.c_str());
}

// An entry whose slots hold what tells them apart.
ReadingsEntry Entry() {
  ReadingsEntry entry{};
  Put(entry, &ReadingsEntry::torah1, "t1");
  Put(entry, &ReadingsEntry::torah2, "t2");
  Put(entry, &ReadingsEntry::torah3, "t3");
  Put(entry, &ReadingsEntry::haftarah1, "h1");
  Put(entry, &ReadingsEntry::haftarah2, "h2");
  Put(entry, &ReadingsEntry::haftarah3, "h3");
  Put(entry, &ReadingsEntry::extraText, "x");
  return entry;
}

using Texts = std::vector<std::string>;

Texts TextsOf(const ReadingsEntry& entry) {
  return {entry.torah1, entry.torah2, entry.torah3, entry.haftarah1, entry.haftarah2, entry.haftarah3, entry.extraText};
}

Texts Split(ReadingsEntry entry, uint32_t language = kEnglish) {
  SplitReadings(entry, language);
  return TextsOf(entry);
}

Texts SplitIn(Slot slot, const std::string& text, uint32_t language = kEnglish) {
  ReadingsEntry entry = Entry();
  Put(entry, slot, text);
  return Split(entry, language);
}

constexpr Slot kTorah1 = &ReadingsEntry::torah1;
constexpr Slot kHaftarah1 = &ReadingsEntry::haftarah1;
constexpr Slot kHaftarah2 = &ReadingsEntry::haftarah2;

// What a rule makes of "A" + separator + "B".
struct RuleCase {
  std::string separator;
  Slot searched;
  Texts expected;
};

Texts SecondHaftarah(const std::string& rest) {
  return {"t1", "t2", "t3", "A", rest, "h3", "x"};
}
Texts SecondHaftarahKeepingTheOther(const std::string& first, const std::string& rest) {
  return {"t1", "t2", "t3", first, rest, "h2", "x"};
}
Texts ThirdHaftarah(const std::string& rest) {
  return {"t1", "t2", "t3", "h1", "A", rest, "x"};
}
Texts SecondTorah(const std::string& rest) {
  return {"A", rest, "t3", "h1", "h2", "h3", "x"};
}
Texts SecondTorahKeepingTheOther(const std::string& first, const std::string& rest) {
  return {first, rest, "t2", "h1", "h2", "h3", "x"};
}

const std::string kCzechEvening =
    "; ve\xe8"
    "er: ";
const std::string kGreekEvening = "; \xe2\xf1\xdc\xe4\xf5: ";
const std::string kGreekMorning = "; \xf0\xf1\xf9\xdf: ";
const std::string kGreekSephardi = " (\xd3\xe5\xf6\xe1\xf1\xe4\xe9:";
const std::string kGreekSephardiRest = "(\xd3\xe5\xf6\xe1\xf1\xe4\xe9:B";
const std::string kGreekIntermediateMorning = "\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6, \xf0\xf1\xf9\xdf: ";
const std::string kGreekReplacedOr =
    " \xe1\xed\xf4\xe9\xea\xe1\xf4\xdc\xf3\xf4\xe1\xf3\xe7 \xde \xf3\xf5\xec\xf0\xeb\xde\xf1\xf9\xec\xe1 ";

// Every separator once, in the order of the rules; the two that are searched in several slots, once for each.
const RuleCase kRuleCases[] = {
    {"; Afternoon: ", kHaftarah1, SecondHaftarah("Afternoon: B")},
    {"; Morning: ", kHaftarah1, SecondHaftarah("Morning: B")},
    {kCzechEvening, kHaftarah1,
     SecondHaftarah("ve\xe8"
                    "er: B")},
    {kGreekEvening, kHaftarah1, SecondHaftarah("\xe2\xf1\xdc\xe4\xf5: B")},
    {kGreekMorning, kHaftarah1, SecondHaftarah("\xf0\xf1\xf9\xdf: B")},
    {"; Abends: ", kHaftarah1, SecondHaftarah("Abends: B")},
    {"; Morgends: ", kHaftarah1, SecondHaftarah("Morgends: B")},
    {"+ Enhjv% ", kHaftarah1, SecondHaftarah("Enhjv% B")},
    {"+ Dtxthjv% ", kHaftarah1, SecondHaftarah("Dtxthjv% B")},
    {" (Sephardi", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(SephardiB")},
    {" (sefardi", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(sefardiB")},
    {" (Sefardisch", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(SefardischB")},
    {" (Seph\xe2radim", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(Seph\xe2radimB")},
    {" (sefardisk", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(sefardiskB")},
    {kGreekSephardi, kHaftarah2, ThirdHaftarah(kGreekSephardiRest)},
    {kGreekSephardi, kHaftarah1, SecondHaftarahKeepingTheOther("A", kGreekSephardiRest)},
    {" (Ctafhlbv%", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(Ctafhlbv%B")},
    {" (Ctafhlbv%", kHaftarah2, ThirdHaftarah("(Ctafhlbv%B")},
    {" (sefardi", kHaftarah2, ThirdHaftarah("(sefardiB")},
    {"; Morning: ", kTorah1, SecondTorah("Morning: B")},
    {kCzechEvening, kTorah1,
     SecondTorah("ve\xe8"
                 "er: B")},
    {"; Afternoon: ", kTorah1, SecondTorah("Afternoon: B")},
    {"; middag: ", kTorah1, SecondTorah("middag: B")},
    {"; Morgens: ", kTorah1, SecondTorah("Morgens: B")},
    {"; Abends: ", kTorah1, SecondTorah("Abends: B")},
    {kGreekMorning, kTorah1, SecondTorah("\xf0\xf1\xf9\xdf: B")},
    {kGreekEvening, kTorah1, SecondTorah("\xe2\xf1\xdc\xe4\xf5: B")},
    {kGreekIntermediateMorning, kTorah1,
     SecondTorahKeepingTheOther("A\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6", "\xf0\xf1\xf9\xdf: B")},
    {"+ Enhjv% ", kTorah1, SecondTorah("Enhjv% B")},
    {"+ Dtxthjv% ", kTorah1, SecondTorah("Dtxthjv% B")},
    // The character after the separator stays, the one after that goes; nothing is left here.
    {"Ivbyb Fwthtn", kTorah1, {"AIvbyb FwthtnB", "", "t3", "h1", "h2", "h3", "x"}},
    {"; eftermiddag: ", kTorah1, SecondTorah("eftermiddag: B")},
    {" (Jgnfwbz%", kHaftarah1, SecondHaftarahKeepingTheOther("A", "(Jgnfwbz%B")},
    {kGreekReplacedOr, kHaftarah1, SecondHaftarahKeepingTheOther("A", kGreekReplacedOr.substr(1) + "B")},
    {" n\xe1hrada nebo ", kHaftarah1, SecondHaftarahKeepingTheOther("A", "n\xe1hrada nebo B")},
    {"+ Qj'km ", kHaftarah1, SecondHaftarahKeepingTheOther("A+", "Qj'km B")},
    {"; \xc9\xe7\xe5\xeb ", kHaftarah1, SecondHaftarahKeepingTheOther("A;", "\xc9\xe7\xe5\xeb B")},
    {"2 ltym Ifdejn- ", kTorah1, SecondTorahKeepingTheOther("A2 ltym Ifdejn- ", "")},
};

}  // namespace

TEST(SplitRules, EveryRuleDividesItsSlot) {
  for (const RuleCase& rule : kRuleCases) {
    EXPECT_EQ(SplitIn(rule.searched, "A" + rule.separator + "B"), rule.expected) << rule.separator;
  }
}

// " (sefardisk" alone is not among them: its beginning is the separator of an earlier rule.
TEST(SplitRules, ASeparatorAtTheVeryEndDividesNothing) {
  for (const RuleCase& rule : kRuleCases) {
    if (rule.separator == " (sefardisk") continue;
    ReadingsEntry entry = Entry();
    Put(entry, rule.searched, "A" + rule.separator);
    EXPECT_EQ(Split(entry), TextsOf(entry)) << rule.separator;
  }
}

TEST(SplitRules, TextsInFinnishStayAsTheLibraryGaveThem) {
  for (const RuleCase& rule : kRuleCases) {
    ReadingsEntry entry = Entry();
    Put(entry, rule.searched, "A" + rule.separator + "B");
    EXPECT_EQ(Split(entry, kFinnish), TextsOf(entry)) << rule.separator;
  }
}

TEST(SplitRules, JoelDividesInSpanishAlone) {
  EXPECT_EQ(SplitIn(kHaftarah1, "Os 14:2-10; Joel 2:15-27", kSpanish),
            SecondHaftarahKeepingTheOther("Os 14:2-10;", "Joel 2:15-27"));
  EXPECT_EQ(SplitIn(kHaftarah1, "Os 14:2-10; Joel 2:15-27")[3], "Os 14:2-10; Joel 2:15-27");
  EXPECT_EQ(SplitIn(kHaftarah1, "Os 14:2-10; Joel ", kSpanish)[3], "Os 14:2-10; Joel ");
}

TEST(SplitRules, TheRestAfterTheKeptCharacterBeginsBehindTheNext) {
  EXPECT_EQ(SplitIn(kTorah1, "Ivbyb Fwthtn% Dtxthjv"),
            (Texts{"Ivbyb Fwthtn%", "Dtxthjv", "t3", "h1", "h2", "h3", "x"}));
  EXPECT_EQ(SplitIn(kTorah1, "2 ltym Ifdejn- + Rest"),
            (Texts{"2 ltym Ifdejn- ", " Rest", "t2", "h1", "h2", "h3", "x"}));
}

TEST(SplitRules, OnlyTheFirstPlaceDivides) {
  EXPECT_EQ(SplitIn(kTorah1, "A; Morning: B; Morning: C"),
            (Texts{"A", "Morning: B; Morning: C", "t3", "h1", "h2", "h3", "x"}));
}

TEST(SplitRules, CaseCounts) {
  EXPECT_EQ(SplitIn(kTorah1, "A; morning: B")[0], "A; morning: B");
}

TEST(SplitRules, ASlotThatARuleDoesNotSearchIsLeftAlone) {
  EXPECT_EQ(SplitIn(&ReadingsEntry::torah2, "A; Morning: B")[1], "A; Morning: B");
  EXPECT_EQ(SplitIn(&ReadingsEntry::haftarah3, "A (Sephardi B")[5], "A (Sephardi B");
  EXPECT_EQ(SplitIn(&ReadingsEntry::extraText, "A; Morning: B")[6], "A; Morning: B");
  EXPECT_EQ(SplitIn(kHaftarah1, "A; Morgens: B")[3], "A; Morgens: B");
  EXPECT_EQ(SplitIn(kTorah1, "A (Sephardi B")[0], "A (Sephardi B");
}

TEST(SplitRules, TheMorningServiceReadsAsItsOwnTorahText) {
  EXPECT_EQ(SplitIn(kTorah1, "Exodus 32:11-14; Morning: Exodus 34:1-10")[1], "Morning: Exodus 34:1-10");
}

TEST(SplitRules, TheSephardiHaftarahMovesTheSecondOneOn) {
  ReadingsEntry entry = Entry();
  Put(entry, kHaftarah1, "Isaiah 42:5-43:10 (Sephardi 42:5-21)");
  Put(entry, kHaftarah2, "C");
  EXPECT_EQ(Split(entry), (Texts{"t1", "t2", "t3", "Isaiah 42:5-43:10", "(Sephardi 42:5-21)", "C", "x"}));
}

// The afternoon's Haftarah is cut off first, over the second one; then the Sephardi one moves it on.
TEST(SplitRules, AnEarlierRuleLeavesTheLaterOneWhatRemains) {
  EXPECT_EQ(SplitIn(kHaftarah1, "A (Sephardi B); Afternoon: C"),
            (Texts{"t1", "t2", "t3", "A", "(Sephardi B)", "Afternoon: C", "x"}));
}

// Rule 11 makes the second slot; rule 19 then looks into it and finds no separator at its start, which has no blank.
TEST(SplitRules, TheMovedRestIsSearchedAgain) {
  EXPECT_EQ(SplitIn(kHaftarah1, "A (sefardi B (sefardi C"),
            (Texts{"t1", "t2", "t3", "A", "(sefardi B", "(sefardi C", "x"}));
}

TEST(SplitRules, ATextThatFillsItsSlotIsDividedWithinBounds) {
  const std::string separator = "; Morning: ";
  const std::string longText = std::string(kTextSize - 1 - separator.size() - 1, 'a') + separator + "B";
  ASSERT_EQ(longText.size(), kTextSize - 1);
  EXPECT_EQ(SplitIn(kTorah1, longText)[1], "Morning: B");
  const std::string startsSo = separator + std::string(kTextSize - 1 - separator.size(), 'b');
  const Texts texts = SplitIn(kTorah1, startsSo);
  EXPECT_EQ(texts[0], "");
  EXPECT_EQ(texts[1], startsSo.substr(2));
}
