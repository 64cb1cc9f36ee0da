// The order of the split rules, which shows where a text holds the separators of two of them. Each expected text is cut
// by hand, rule by rule.
#include "tests/core/split_rule_cases.h"

namespace {

using namespace split_rules;

}  // namespace

TEST(SplitRulesOrder, InTheHaftarahTheAfternoonIsLookedForBeforeTheMorning) {
  EXPECT_EQ(SplitIn(kHaftarah1, "A; Afternoon: B; Morning: C"), SecondHaftarah("Afternoon: B; Morning: C"));
  EXPECT_EQ(SplitIn(kHaftarah1, "A; Morning: B; Afternoon: C"), SecondHaftarah("Morning: B"));
}

TEST(SplitRulesOrder, InTheTorahReadingTheMorningIsLookedForBeforeTheAfternoon) {
  EXPECT_EQ(SplitIn(kTorah1, "A; Morning: B; Afternoon: C"), SecondTorah("Morning: B; Afternoon: C"));
  EXPECT_EQ(SplitIn(kTorah1, "A; Afternoon: B; Morning: C"), SecondTorah("Afternoon: B"));
}

// In "A" + later separator + "B" + earlier separator + "C" the earlier rule takes the end off first; the later one then
// finds what it would find without it. Rules that leave a part of their separator behind follow below.
TEST(SplitRulesOrder, OfTwoRulesForASlotTheEarlierDividesFirst) {
  for (std::size_t late = 0; late < std::size(kRuleCases); ++late) {
    for (std::size_t early = 0; early < late; ++early) {
      const RuleCase& first = kRuleCases[early];
      const RuleCase& second = kRuleCases[late];
      const std::size_t searched = second.searched == kTorah1 ? 0 : second.searched == kHaftarah1 ? 3 : 4;
      if (first.searched != second.searched || first.expected[searched] != "A") continue;
      if (second.separator == " (sefardisk") continue;  // it begins as the separator of a rule before all these
      const Texts texts = SplitIn(first.searched, "A" + second.separator + "B" + first.separator + "C");
      EXPECT_EQ(texts[searched], second.expected[searched]) << first.separator << " before " << second.separator;
      EXPECT_EQ(texts[searched + 1], second.expected[searched + 1])
          << first.separator << " before " << second.separator;
    }
  }
}

TEST(SplitRulesOrder, WhatAnEarlierRuleLeavesOfItsSeparatorGoesWithTheLaterOnes) {
  const std::string firstWord = kGreekIntermediateMorning.substr(0, 9);
  EXPECT_EQ(SplitIn(kTorah1, "A+ Enhjv% B" + kGreekIntermediateMorning + "C"),
            (Texts{"A", "Enhjv% B" + firstWord, "t2", "h1", "h2", "h3", "x"}));
  EXPECT_EQ(SplitIn(kTorah1, "A2 ltym Ifdejn- BIvbyb FwthtnC"),
            (Texts{"A2 ltym Ifdejn- ", "Ivbyb FwthtnC", "", "h1", "h2", "h3", "x"}));
  EXPECT_EQ(SplitIn(kHaftarah1, "A; \xc9\xe7\xe5\xeb B+ Qj'km C"),
            (Texts{"t1", "t2", "t3", "A;", "\xc9\xe7\xe5\xeb B+", "Qj'km C", "x"}));
}

TEST(SplitRulesOrder, JoelIsLookedForBetweenTheRulesAroundIt) {
  EXPECT_EQ(SplitIn(kHaftarah1, "A; Joel B+ Qj'km C", kSpanish),
            (Texts{"t1", "t2", "t3", "A;", "Joel B+", "Qj'km C", "x"}));
  EXPECT_EQ(SplitIn(kHaftarah1, "A; \xc9\xe7\xe5\xeb B; Joel C", kSpanish),
            (Texts{"t1", "t2", "t3", "A;", "\xc9\xe7\xe5\xeb B;", "Joel C", "x"}));
}

// The Greek second slot is divided before the first one moves it on ...
TEST(SplitRulesOrder, TheGreekSephardiTextOfTheSecondSlotIsTakenBeforeTheFirstSlots) {
  ReadingsEntry entry = Entry();
  Put(entry, kHaftarah1, "A" + kGreekSephardi + "B");
  Put(entry, kHaftarah2, "C" + kGreekSephardi + "D");
  EXPECT_EQ(Split(entry), (Texts{"t1", "t2", "t3", "A", kGreekSephardiRest, "C", "x"}));
}

// ... the Russian one after that, and it is whole in the third.
TEST(SplitRulesOrder, TheRussianSephardiTextOfTheSecondSlotIsTakenAfterTheFirstSlots) {
  ReadingsEntry entry = Entry();
  Put(entry, kHaftarah1, "A (Ctafhlbv% B");
  Put(entry, kHaftarah2, "C (Ctafhlbv% D");
  EXPECT_EQ(Split(entry), (Texts{"t1", "t2", "t3", "A", "(Ctafhlbv% B", "C (Ctafhlbv% D", "x"}));
}
