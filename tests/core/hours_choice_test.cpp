#include "libraries/hours/choice.h"

#include <gtest/gtest.h>

#include <set>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/description_text.h"

namespace hours {
namespace {

using Ids = std::vector<std::string>;

Ids DefaultIds() {
  const auto ids = Presets().front().ids;
  return {ids.begin(), ids.end()};
}

OwnZman Own(const char* form, int32_t thousandths, const char* description, const char* hebrew = "") {
  return {1, FindOwnForm(form), thousandths, Rounding::kDown, description, hebrew};
}

TEST(HoursChoice, WithoutAFileIsTheDefault) {
  EXPECT_EQ(ReadChoice("").chosen, DefaultIds());
  EXPECT_EQ(ReadChoice("# zman sunset\nzman nobody\nrubbish").chosen, DefaultIds());
  EXPECT_TRUE(ReadChoice("").own.empty());
  EXPECT_EQ(ChosenZmanim(ReadChoice("")).size(), 25u);
}

TEST(HoursChoice, KeepsTheOrderOfTheLines) {
  EXPECT_EQ(ReadChoice("zman sunset\r\nzman dawn-72-min\rzman sunset\nzman shema-gra").chosen,
            (Ids{"sunset", "dawn-72-min", "shema-gra"}));
  EXPECT_EQ(ReadChoice("\xEF\xBB\xBFzman sunset\n").chosen, Ids{"sunset"});
}

TEST(HoursChoice, HoldsAtMostAHundred) {
  std::string text;
  for (const CatalogueZman& zman : Catalogue()) text.append("zman ").append(zman.id).append("\n");
  const Choice choice = ReadChoice(text);
  EXPECT_EQ(choice.chosen.size(), 100u);
  EXPECT_EQ(choice.chosen.back(), Catalogue()[99].id);
  EXPECT_EQ(ChosenZmanim(choice).size(), 100u);

  Choice tooMany;
  for (const CatalogueZman& zman : Catalogue()) tooMany.chosen.emplace_back(zman.id);
  EXPECT_EQ(ChosenZmanim(tooMany).size(), 100u);
  EXPECT_EQ(ReadChoice(Applied(tooMany, "")), choice);
}

TEST(HoursChoice, OwnZmanimAreChosenByTheirNumberWhereverTheirLineStands) {
  const Choice choice =
      ReadChoice("zman own-7\nzman own-8\nzman sunset\nown 7 degrees-before-sunrise 11.5 up My|\xE0\n");
  EXPECT_EQ(choice.chosen, (Ids{"own-7", "sunset"}));
  ASSERT_EQ(choice.own.size(), 1u);
  EXPECT_EQ(choice.own[0], (OwnZman{7, FindOwnForm("degrees-before-sunrise"), 11500, Rounding::kUp, "My", "\xE0"}));
  const auto zmanim = ChosenZmanim(choice);
  EXPECT_EQ(zmanim[0].description, "My");
  EXPECT_EQ(zmanim[0].hebrew, "\xE0");
  const Definition expected = {{{{BoundKind::kDegrees, 11500}, {BoundKind::kDegrees, 11500}}, 0}, Rounding::kUp};
  EXPECT_EQ(zmanim[0].definition, expected);
}

TEST(HoursChoice, FirstOfSeveralLinesWithANumberCounts) {
  const Choice choice = ReadChoice("own 7 hours-gra 3 up a\nown 7 hours-gra 4 up b\nown 8 hours-gra 4 up b\n");
  ASSERT_EQ(choice.own.size(), 2u);
  EXPECT_EQ(choice.own[0].description, "a");
}

TEST(HoursChoice, DamagedLinesArePassedOverAndSurvive) {
  const char* const damaged[] = {"own 1",
                                 "own 1 hours-gra 3 up",
                                 "own 1 hours-gra 3 up ",
                                 "own 1 hours-gra 3 up |\xE0",
                                 "own 0 hours-gra 3 up a",
                                 "own 01 hours-gra 3 up a",
                                 "own 1000 hours-gra 3 up a",
                                 "own -1 hours-gra 3 up a",
                                 "own 99999999999 hours-gra 3 up a",
                                 "own 1 hours 3 up a",
                                 "own 1 hours-gra 3, up a",
                                 "own 1 hours-gra 3. up a",
                                 "own 1 hours-gra .5 up a",
                                 "own 1 hours-gra 3.0001 up a",
                                 "own 1 hours-gra 24.001 up a",
                                 "own 1 hours-gra -3 up a",
                                 "own 1 degrees-before-sunrise 0 up a",
                                 "own 1 degrees-before-sunrise 60.001 up a",
                                 "own 1 minutes-after-sunset 360.5 up a",
                                 "own 1 minutes-after-sunset 123456 up a",
                                 "own 1 hours-gra 3 sideways a",
                                 "own 1 hours-gra 3 later up a",
                                 "own 1 hours-gra 3 later hours-gra up a",
                                 "own 1 hours-gra 3 later hours-gra 4 a",
                                 "own 1 hours-gra 3 later hours 4 up a",
                                 "own 1 hours-gra 3 later hours-gra 25 up a",
                                 "own 1 hours-gra 3 later hours-gra 4 later hours-gra 5 up a",
                                 "own 1 hours-gra 3 Later hours-gra 4 up a",
                                 " own 1 hours-gra 3 up a",
                                 "own  1 hours-gra 3 up a",
                                 "OWN 1 hours-gra 3 up a",
                                 "zman",
                                 "zman ",
                                 "zman  sunset",
                                 "zman sunset ",
                                 "zman Sunset",
                                 "zman own-1",
                                 "zman of-a-later-version",
                                 "# own 1 hours-gra 3 up a"};
  for (const char* line : damaged) {
    const std::string text = std::string("zman sunrise\n").append(line).append("\nzman plag-gra\n");
    EXPECT_EQ(ReadChoice(text).chosen, (Ids{"sunrise", "plag-gra"})) << line;
    EXPECT_TRUE(ReadChoice(text).own.empty()) << line;

    Choice choice = ReadChoice(text);
    choice.chosen = {"midday"};
    EXPECT_EQ(Applied(choice, text), std::string("zman midday\n").append(line).append("\n"));
  }
}

TEST(HoursChoice, UnchangedItLeavesTheTextAsItIs) {
  const std::string text = "# mine\r\nzman sunset\r\n# and\r\nown 3 hours-gra 03.50 up a \r\nzman sunset\r\nzman own-3";
  EXPECT_EQ(Applied(ReadChoice(text), text), text);
}

TEST(HoursChoice, WhatIsWrittenIsReadBack) {
  Choice choice;
  choice.chosen = {"sunset", "own-2", "dawn-16.1", "own-1"};
  int32_t thousandths = 125;
  for (const OwnForm& form : OwnForms()) {
    const std::string id = AddOwn(choice, Own(form.word, thousandths, form.label, "\xE0"));
    EXPECT_EQ(id, OwnId(static_cast<uint32_t>(choice.own.size())));
    thousandths += 77;
  }
  for (const char* text : {"", "\xEF\xBB\xBF# comment", "zman sunset\nown 1 hours-gra 3 up a\nrubbish\rzman midday"}) {
    const std::string written = Applied(choice, text);
    EXPECT_EQ(ReadChoice(written), choice) << text;
    EXPECT_EQ(Applied(choice, written), written);
  }
  EXPECT_EQ(Applied({{"sunset"}, {}}, "# comment"), "# comment\r\nzman sunset\r\n");
  EXPECT_EQ(Applied({{"sunset"}, {}}, "# comment\n"), "# comment\nzman sunset\n");
}

TEST(HoursChoice, TwoTimesOfAZmanAreReadAndWritten) {
  const std::string text =
      "zman own-1\nown 1 hours-gra 6.5 later minutes-after-midday 30 up Mincha|\xEE\n"
      "own 2 degrees-after-sunset 8.5 earlier minutes-after-sunset 72 up later\n";
  const Choice choice = ReadChoice(text);
  ASSERT_EQ(choice.own.size(), 2u);
  const OwnForm* const midday = FindOwnForm("minutes-after-midday");
  EXPECT_EQ(choice.own[0], (OwnZman{1, FindOwnForm("hours-gra"), 6500, Rounding::kUp, "Mincha", "\xEE",
                                    OwnOther{true, midday, 30000}}));
  EXPECT_EQ(choice.own[1].other, (OwnOther{false, FindOwnForm("minutes-after-sunset"), 72000}));
  EXPECT_EQ(choice.own[1].description, "later");
  Choice changed = choice;
  changed.own[0].description = "Other";
  const std::string written = Applied(changed, text);
  EXPECT_EQ(written,
            "zman own-1\nown 1 hours-gra 6.5 later minutes-after-midday 30 up Other|\xEE\n"
            "own 2 degrees-after-sunset 8.5 earlier minutes-after-sunset 72 up later\n");
  EXPECT_EQ(ReadChoice(written), changed);
}

TEST(HoursChoice, EmptyOneIsTheDefaultAgain) {
  const std::string written = Applied({}, "# mine\nzman sunset\n");
  EXPECT_EQ(written, "# mine\n");
  EXPECT_EQ(ReadChoice(written).chosen, DefaultIds());
}

TEST(HoursChoice, AddedZmanGetsTheFirstFreeNumberAndACleanDescription) {
  Choice choice = ReadChoice("zman own-2\nzman sunset\nown 2 hours-gra 3 up a\n");
  EXPECT_EQ(AddOwn(choice, Own("hours-gra", 3000, " My|dawn ")), "own-1");
  EXPECT_EQ(AddOwn(choice, Own("hours-gra", 3000, "b")), "own-3");
  EXPECT_EQ(choice.own[1].description, "Mydawn");
  RemoveOwn(choice, 2);
  EXPECT_EQ(choice.chosen, Ids{"sunset"});
  EXPECT_EQ(choice.own.size(), 2u);
  while (choice.own.size() < kMostOwnNumber) AddOwn(choice, Own("hours-gra", 3000, "c"));
  EXPECT_EQ(AddOwn(choice, Own("hours-gra", 3000, "c")), "");
  EXPECT_EQ(choice.own.size(), kMostOwnNumber);
}

TEST(HoursChoice, DescriptionsStayUniqueWhateverUsersCallTheirs) {
  Choice choice;
  AddOwn(choice, Own("hours-gra", 3000, "Shkia", "\xE0"));
  AddOwn(choice, Own("hours-gra", 4000, "Shkia", "\xE0"));
  AddOwn(choice, Own("hours-gra", 5000, "Shkia (2)"));
  AddOwn(choice, Own("hours-gra", 6000, std::string(48, 'x').c_str()));
  AddOwn(choice, Own("hours-gra", 6000, std::string(48, 'x').c_str()));
  const auto offered = OfferedZmanim(choice);
  EXPECT_EQ(offered.size(), Catalogue().size() + 5);
  std::set<std::string> descriptions;
  std::set<std::string> hebrew;
  for (const OfferedZman& one : offered) {
    EXPECT_TRUE(descriptions.insert(one.zman.description).second) << one.zman.description;
    EXPECT_TRUE(hebrew.insert(one.zman.hebrew).second) << one.zman.hebrew;
    EXPECT_LE(one.zman.description.size(), 48u);
    EXPECT_LE(one.zman.hebrew.size(), 48u);
  }
  const size_t first = Catalogue().size();
  EXPECT_EQ(offered[first].zman.description, "Shkia (2)");
  EXPECT_EQ(offered[first + 1].zman.description, "Shkia (3)");
  EXPECT_EQ(offered[first + 2].zman.description, "Shkia (2) (2)");
  EXPECT_EQ(offered[first + 4].zman.description, std::string(44, 'x') + " (2)");
  EXPECT_EQ(offered[first + 1].zman.hebrew, "\xE0 (2)");
  EXPECT_EQ(offered[first + 2].zman.hebrew, "Shkia (2)");  // no Hebrew given: the description serves
}

// In windows-1252, e with an acute accent has the code of yod and u with a diaeresis lies behind tav.
TEST(HoursChoice, AccentsAreLeftOutWhereADescriptionServesForTheHebrewName) {
  Choice choice;
  AddOwn(choice, Own("hours-gra", 3000, "Caf\xE9 M\xFCnchen"));
  const auto offered = OfferedZmanim(choice);
  EXPECT_EQ(offered.back().zman.description, "Caf\xE9 M\xFCnchen");
  EXPECT_EQ(offered.back().zman.hebrew, "Cafe Munchen");
}

TEST(HoursOwnForms, HaveUniqueWordsAndTakeTheirLimits) {
  std::set<std::string> words;
  for (const OwnForm& form : OwnForms()) {
    EXPECT_TRUE(words.insert(form.word).second) << form.word;
    EXPECT_EQ(FindOwnForm(form.word), &form);
    EXPECT_TRUE(IsAmount(form.unit, MostThousandths(form.unit)));
    EXPECT_FALSE(IsAmount(form.unit, MostThousandths(form.unit) + 1));
    EXPECT_FALSE(IsAmount(form.unit, -1));
  }
  EXPECT_EQ(FindOwnForm("hours"), nullptr);
}

TEST(HoursOwnForms, ReckonOnTheSideThatTheySay) {
  const auto boundOf = [](const char* form) { return DefinitionOf(Own(form, 1500, "a")).reckoning; };
  EXPECT_EQ(boundOf("minutes-before-sunrise").day.start, (Bound{BoundKind::kMinutes, 1500}));
  EXPECT_EQ(boundOf("minutes-after-sunrise").day.start, (Bound{BoundKind::kMinutes, -1500}));
  EXPECT_EQ(boundOf("minutes-after-sunrise").thousandthHours, 0);
  EXPECT_EQ(boundOf("minutes-before-sunset").day.end, (Bound{BoundKind::kMinutes, -1500}));
  EXPECT_EQ(boundOf("zmanis-after-sunset").day.end, (Bound{BoundKind::kProportionalMinutes, 1500}));
  EXPECT_EQ(boundOf("zmanis-after-sunset").thousandthHours, 12000);
  EXPECT_EQ(boundOf("degrees-before-sunset").day.end, (Bound{BoundKind::kDegrees, -1500}));
  EXPECT_EQ(boundOf("minutes-before-midday").thousandthMinutes, -1500);
  EXPECT_EQ(boundOf("minutes-after-fixed-midnight").thousandthMinutes, 1500);
  EXPECT_EQ(boundOf("hours-gra-fixed-noon").thousandthHours, 3000);
  EXPECT_EQ(boundOf("hours-gra-fixed-noon").day.end, (Bound{BoundKind::kMeanNoon}));
  EXPECT_EQ(boundOf("hours-gra").thousandthHours, 1500);
  EXPECT_EQ(SuggestedRounding(*FindOwnForm("degrees-after-sunset"), 1), Rounding::kUp);
  EXPECT_EQ(SuggestedRounding(*FindOwnForm("degrees-before-sunrise"), 1), Rounding::kDown);
  EXPECT_EQ(SuggestedRounding(*FindOwnForm("hours-gra"), 4000), Rounding::kDown);
  EXPECT_EQ(SuggestedRounding(*FindOwnForm("hours-gra"), 9500), Rounding::kUp);
  EXPECT_EQ(SuggestedRounding(*FindOwnForm("minutes-after-midday"), 30000), Rounding::kUp);
  EXPECT_EQ(SuggestedRounding(*FindOwnForm("minutes-before-midday"), 30000), Rounding::kDown);
  for (const char* form : {"minutes-after-midnight", "minutes-after-half-night", "hours-night"}) {
    EXPECT_EQ(SuggestedRounding(*FindOwnForm(form), 10000), Rounding::kDown) << form;
  }
}

TEST(HoursNumbers, AreWrittenAsTheyAreRead) {
  for (const auto& [thousandths, text] :
       {std::pair{0, "0"}, {1, "0.001"}, {16100, "16.1"}, {7083, "7.083"}, {72000, "72"}, {10, "0.01"}}) {
    EXPECT_EQ(NumberText(thousandths), text);
    EXPECT_EQ(ThousandthsIn(text), thousandths);
  }
  EXPECT_EQ(ThousandthsIn("007.50"), 7500);
  for (const char* text : {"", ".", "1.", ".5", "1,5", "1.2345", "123456", "-1", "+1", "1e2", " 1", "1 ", "1.2.3"}) {
    EXPECT_EQ(ThousandthsIn(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace hours
