#include "libraries/hours/choice_merge.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "libraries/hours/catalogue.h"

namespace hours {
namespace {

using Ids = std::vector<std::string>;

OwnZman Own(uint32_t number, const std::string& description) {
  return {number, FindOwnForm("hours-gra"), 3000, Rounding::kUp, description, ""};
}

Choice Chosen(Ids ids, std::vector<OwnZman> own = {}) {
  return {std::move(ids), std::move(own)};
}

// What the user is asked, in words; and the answers.
class Asked {
 public:
  explicit Asked(std::optional<Side> answer = std::nullopt) : answer_(answer) {}

  std::optional<Choice> Merge(const Choice& base, const Choice& mine, const Choice& theirs) {
    return MergedChoice(base, mine, theirs, [this](const MergeConflict& conflict) {
      const auto name = [](const OwnZman* zman) { return zman ? zman->description : std::string("-"); };
      questions_.push_back(name(conflict.mine) + "|" + name(conflict.theirs));
      return answer_;
    });
  }
  const std::vector<std::string>& Questions() const { return questions_; }

 private:
  std::optional<Side> answer_;
  std::vector<std::string> questions_;
};

const Ids kNothing = {};
const std::string kOfTheChoice = "-|-";

// The ids that are chosen in the merge that needs no decision.
Ids Merged(const Ids& base, const Ids& mine, const Ids& theirs) {
  Asked asked;
  const auto merged = asked.Merge(Chosen(base), Chosen(mine), Chosen(theirs));
  EXPECT_EQ(asked.Questions(), kNothing);
  return merged ? merged->chosen : Ids{"?"};
}

TEST(HoursChoiceMerge, OneSideThatChangedNothingTakesTheOthersChange) {
  const Choice before = Chosen({"sunrise", "own-2"}, {Own(2, "Two")});
  const Choice after = Chosen({"own-3", "sunset", "sunrise"}, {Own(3, "Three"), Own(1, "One")});
  Asked asked;
  EXPECT_EQ(asked.Merge(before, after, before), after);
  EXPECT_EQ(asked.Merge(before, before, after), after);
  EXPECT_EQ(asked.Merge(before, after, after), after);
  EXPECT_EQ(asked.Questions(), kNothing);
}

TEST(HoursChoiceMerge, WhatEitherAddsOrRemovesCounts) {
  EXPECT_EQ(Merged({"a", "b"}, {"a", "b", "mine"}, {"a", "b", "theirs"}), (Ids{"a", "b", "theirs", "mine"}));
  EXPECT_EQ(Merged({"a", "b"}, {"a", "b", "mine"}, {"theirs", "a", "b"}), (Ids{"theirs", "a", "b", "mine"}));
  EXPECT_EQ(Merged({"a", "b", "c"}, {"a", "c"}, {"a", "b"}), Ids{"a"});
  EXPECT_EQ(Merged({"a"}, {"a", "same"}, {"same", "a"}), (Ids{"a", "same"}));
  EXPECT_EQ(Merged({"a", "b"}, {"b", "mine"}, {"a", "b", "x", "y"}), (Ids{"b", "x", "y", "mine"}));
}

TEST(HoursChoiceMerge, TheOrderIsThatOfTheSideThatChangedIt) {
  EXPECT_EQ(Merged({"a", "b", "c"}, {"c", "a", "b"}, {"a", "b", "c", "x"}), (Ids{"c", "x", "a", "b"}));
  EXPECT_EQ(Merged({"a", "b", "c"}, {"a", "b", "c", "x"}, {"c", "b", "a"}), (Ids{"c", "x", "b", "a"}));
  EXPECT_EQ(Merged({"a", "b", "c"}, {"c", "b", "a", "x"}, {"c", "b", "a", "y"}), (Ids{"c", "b", "a", "y", "x"}));
}

TEST(HoursChoiceMerge, TwoOrdersAreAskedAbout) {
  const Choice base = Chosen({"a", "b", "c"});
  const Choice mine = Chosen({"c", "a", "b", "x"});
  const Choice theirs = Chosen({"b", "a", "c", "y"});
  for (const auto& [side, expected] : {std::pair(Side::kMine, mine), std::pair(Side::kTheirs, theirs)}) {
    Asked asked(side);
    EXPECT_EQ(asked.Merge(base, mine, theirs), expected);
    EXPECT_EQ(asked.Questions(), Ids{kOfTheChoice});
  }
  EXPECT_EQ(Asked().Merge(base, mine, theirs), std::nullopt);
}

TEST(HoursChoiceMerge, TwoPresetsAreAskedAbout) {
  Choice mine;
  Choice theirs;
  mine.chosen.assign(Presets()[1].ids.begin(), Presets()[1].ids.end());
  theirs.chosen.assign(Presets()[2].ids.begin(), Presets()[2].ids.end());
  Asked asked(Side::kMine);
  EXPECT_EQ(asked.Merge(Chosen({"sunrise"}), mine, theirs), mine);
  EXPECT_EQ(asked.Questions(), Ids{kOfTheChoice});
}

TEST(HoursChoiceMerge, ToChooseNothingOrTooMuchIsAskedAbout) {
  Asked nothing(Side::kTheirs);
  EXPECT_EQ(nothing.Merge(Chosen({"a", "b"}), Chosen({"a"}), Chosen({"b"})), Chosen({"b"}));
  EXPECT_EQ(nothing.Questions(), Ids{kOfTheChoice});

  Ids base;
  for (size_t i = 0; i < kMostChosen - 1; ++i) base.emplace_back(Catalogue()[i].id);
  Ids mine = base;
  Ids theirs = base;
  mine.push_back("x");
  theirs.push_back("y");
  Asked tooMuch(Side::kMine);
  EXPECT_EQ(tooMuch.Merge(Chosen(base), Chosen(mine), Chosen(theirs)), Chosen(mine));
  EXPECT_EQ(tooMuch.Questions(), Ids{kOfTheChoice});
}

TEST(HoursChoiceMerge, BothSidesNewZmanimStayUnderNumbersOfTheirOwn) {
  const Choice base = Chosen({"a"}, {Own(1, "Old")});
  const Choice mine = Chosen({"a", "own-2", "own-3"}, {Own(1, "Old"), Own(2, "Mine"), Own(3, "Both")});
  const Choice theirs = Chosen({"a", "own-2", "own-3"}, {Own(1, "Old"), Own(2, "Both"), Own(3, "Theirs")});
  Asked asked;
  // "Both" has their number; mine moves to the first free one, 4.
  EXPECT_EQ(asked.Merge(base, mine, theirs), Chosen({"a", "own-4", "own-2", "own-3"},
                                                    {Own(1, "Old"), Own(2, "Both"), Own(3, "Theirs"), Own(4, "Mine")}));
  EXPECT_EQ(asked.Questions(), kNothing);
}

TEST(HoursChoiceMerge, WithoutANumberLeftTheUserDecides) {
  std::vector<OwnZman> own;
  for (uint32_t number = 1; number < kMostOwnNumber; ++number) own.push_back(Own(number, std::to_string(number)));
  const Choice base = Chosen({"a"}, own);
  Choice mine = base;
  Choice theirs = base;
  mine.own.push_back(Own(kMostOwnNumber, "Mine"));
  theirs.own.push_back(Own(kMostOwnNumber, "Theirs"));
  Asked asked(Side::kTheirs);
  EXPECT_EQ(asked.Merge(base, mine, theirs), theirs);
  EXPECT_EQ(asked.Questions(), Ids{"Mine|Theirs"});
}

// A zman that one deleted goes from the choice with it; where it is kept all the same, whoever kept it says whether it
// is chosen.
TEST(HoursChoiceMerge, AZmanKeptAgainstADeletionStaysChosen) {
  const Choice base = Chosen({"a", "own-1"}, {Own(1, "Old")});
  const Choice changed = Chosen({"a", "own-1"}, {Own(1, "New")});
  const Choice deleted = Chosen({"a"});
  EXPECT_EQ(Asked(Side::kMine).Merge(base, changed, deleted), changed);
  EXPECT_EQ(Asked(Side::kTheirs).Merge(base, changed, deleted), deleted);
  EXPECT_EQ(Asked(Side::kMine).Merge(base, deleted, changed), deleted);
  EXPECT_EQ(Asked(Side::kTheirs).Merge(base, deleted, changed), changed);
}

// Every combination of one own zman (absent, or one of three texts) in base, mine and theirs, and of every answer. What
// is to come of it follows from who changed it.
TEST(HoursChoiceMerge, EveryCombinationOfOneOwnZman) {
  constexpr std::array<const char*, 4> kTexts = {nullptr, "One", "Two", "Three"};
  const auto with = [](const char* text) {
    return Chosen({"a"}, text ? std::vector{Own(1, text)} : std::vector<OwnZman>());
  };
  for (const char* base : kTexts) {
    for (const char* mine : kTexts) {
      for (const char* theirs : kTexts) {
        for (const std::optional<Side> answer : {std::optional(Side::kMine), std::optional(Side::kTheirs), {}}) {
          SCOPED_TRACE(std::string(base ? base : "-") + (mine ? mine : "-") + (theirs ? theirs : "-"));
          Asked asked(answer);
          const auto merged = asked.Merge(with(base), with(mine), with(theirs));
          const bool areBothNew = !base && mine && theirs && mine != theirs;
          const bool isConflict = base && mine != base && theirs != base && mine != theirs;
          EXPECT_EQ(asked.Questions().size(), isConflict ? 1u : 0u);
          if (isConflict && !answer) {
            EXPECT_EQ(merged, std::nullopt);
          } else if (areBothNew) {
            EXPECT_EQ(merged, Chosen({"a"}, {Own(1, theirs), Own(2, mine)}));
          } else {
            const bool isMine = isConflict ? answer == Side::kMine : mine != base;
            EXPECT_EQ(merged, with(isMine ? mine : theirs));
          }
        }
      }
    }
  }
}

// Every three choices out of three zmanim in every order: each of the zmanim is chosen just when it should be, once,
// and what nobody moved keeps its order.
TEST(HoursChoiceMerge, EveryCombinationOfThreeChosenZmanim) {
  std::vector<Ids> choices;
  for (int members = 1; members < 8; ++members) {
    Ids ids;
    for (int i = 0; i < 3; ++i) {
      if (members >> i & 1) ids.push_back(std::string(1, static_cast<char>('a' + i)));
    }
    do choices.push_back(ids);
    while (std::ranges::next_permutation(ids).found);
  }
  ASSERT_EQ(choices.size(), 15u);  // 3 of one, 6 of two, 6 of three
  const auto has = [](const Ids& ids, const std::string& id) { return std::ranges::find(ids, id) != ids.end(); };
  for (const Ids& base : choices) {
    for (const Ids& mine : choices) {
      for (const Ids& theirs : choices) {
        SCOPED_TRACE(testing::PrintToString(base) + testing::PrintToString(mine) + testing::PrintToString(theirs));
        Asked asked(Side::kMine);
        const Ids merged = asked.Merge(Chosen(base), Chosen(mine), Chosen(theirs))->chosen;
        if (theirs == base || !asked.Questions().empty()) {
          EXPECT_EQ(merged, mine);
          continue;
        }
        if (mine == base) {
          EXPECT_EQ(merged, theirs);
        }
        for (const std::string id : {"a", "b", "c"}) {
          const bool isMineChanged = has(mine, id) != has(base, id);
          EXPECT_EQ(std::ranges::count(merged, id), has(isMineChanged ? mine : theirs, id) ? 1 : 0) << id;
        }
      }
    }
  }
}

}  // namespace
}  // namespace hours
