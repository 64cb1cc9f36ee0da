// The rules that divide joined readings. Each expected text is cut by hand by the rule's description.
#include "tests/core/split_rule_cases.h"

namespace {

using namespace split_rules;

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
