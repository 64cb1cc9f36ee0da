// What the selection dialog stands on: definitions in words, the list to choose from, edits of a choice, typed fields
// and the times of a day.
#include <gtest/gtest.h>

#include <set>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/choice_editing.h"
#include "libraries/hours/day_times.h"
#include "libraries/hours/definition_text.h"
#include "libraries/hours/offered_list.h"
#include "libraries/hours/own_fields.h"

namespace hours {
namespace {

using Ids = std::vector<std::string>;

std::string TextOf(const char* id) {
  return DefinitionText(FindInCatalogue(id)->definition);
}

TEST(HoursDefinitionText, SaysWhatIsReckonedAndHowItIsRounded) {
  EXPECT_EQ(TextOf("dawn-72-min"), "72 minutes before sunrise, rounded down");
  EXPECT_EQ(TextOf("dawn-16.1"), "the sun 16.1\xB0 below the horizon in the morning, rounded down");
  EXPECT_EQ(TextOf("dawn-90-zmanis"), "90 zmanis minutes before sunrise, rounded down");
  EXPECT_EQ(TextOf("sunrise"), "sunrise, to the nearest minute");
  EXPECT_EQ(TextOf("sunset-sea-level"), "sunset at sea level, to the nearest minute");
  EXPECT_EQ(TextOf("shema-gra"), "3 of the 12 hours from sunrise to sunset, rounded down");
  EXPECT_EQ(TextOf("tefila-ateret-torah"),
            "4 of the 12 hours from 72 zmanis minutes before sunrise to 40 minutes after sunset, rounded down");
  EXPECT_EQ(TextOf("shema-72-min-fixed-noon"),
            "half of the time from 72 minutes before sunrise to 12:00 of local mean time, rounded down");
  EXPECT_EQ(TextOf("shema-3-clock-hours"), "180 minutes before midday, rounded down");
  EXPECT_EQ(TextOf("candles-18-min"), "18 minutes before sunset, rounded down");
  EXPECT_EQ(TextOf("mincha-gedola-later"),
            "6.5 of the 12 hours from sunrise to sunset, but not before 30 minutes after midday, rounded up");
  EXPECT_EQ(TextOf("chametz-eat-gra"),
            "4 of the 12 hours from sunrise to sunset, on the eve of Pesach only, rounded down");
  EXPECT_EQ(TextOf("twilight-13.5-min-before-7.083"),
            "13.5 minutes before the sun 7.083\xB0 below the horizon in the evening, rounded down");
  EXPECT_EQ(
      TextOf("shema-mga-16.1"),
      "3 of the 12 hours from the sun 16.1\xB0 below the horizon in the morning to the same in the evening, rounded "
      "down");
  EXPECT_EQ(TextOf("midnight"), "midnight, rounded down");
  EXPECT_EQ(TextOf("midnight-half"), "half of the time from sunset to the next sunrise, rounded down");
  EXPECT_EQ(TextOf("midnight-fixed"), "midnight of local mean time, rounded down");
  EXPECT_EQ(TextOf("tefila-sunrise-fixed-noon"),
            "4 of the 6 hours from sunrise to 12:00 of local mean time, rounded down");
  EXPECT_EQ(TextOf("plag-fixed-noon"), "4.75 of the 6 hours from 12:00 of local mean time to sunset, rounded up");
  EXPECT_EQ(TextOf("twilight-yereim-2.1"), "the sun 2.1\xB0 above the horizon in the evening, rounded down");
  EXPECT_EQ(TextOf("twilight-two-stars"),
            "5/18 of the time from the sun 19.8\xB0 below the horizon to sunrise, after sunset, rounded down");
  EXPECT_EQ(DefinitionText({{{{BoundKind::kSun}, {BoundKind::kSun}}, 6500},
                            Rounding::kUp,
                            {},
                            false,
                            Reckoning{{{BoundKind::kTransit}, {BoundKind::kTransit}}, 0, 30000}}),
            "6.5 of the 12 hours from sunrise to sunset, but not after 30 minutes after midday, rounded up");
  EXPECT_EQ(DefinitionSentence({{{{BoundKind::kMinutes, -1000}, {BoundKind::kSun}}, 0}, Rounding::kUp}),
            "1 minute after sunrise, rounded up.");
  EXPECT_EQ(DefinitionSentence(FindInCatalogue("sunrise")->definition), "Sunrise, to the nearest minute.");
}

// Two lines of the dialog, behind the description.
TEST(HoursDefinitionText, OfTheCatalogueFitTheDialog) {
  for (const CatalogueZman& zman : Catalogue()) {
    EXPECT_LE(DefinitionText(zman.definition).size(), 165u) << zman.id;
  }
}

Choice WithOwn() {
  Choice choice = ReadChoice(
      "zman own-3\nzman sunset\nown 3 hours-gra 3 up \xC9"
      "clair's light\n");
  return choice;
}

Ids Found(const OfferedList& list, const char* typed) {
  Ids ids;
  for (const ListRow& row : list.Matching(typed)) {
    ids.push_back(row.isHeading ? "[" + OfferedList::GroupName(row.number) + "]" : list[row.number].id);
  }
  return ids;
}

TEST(HoursOfferedList, HasEveryZmanOnceUnderItsHeading) {
  const Choice choice = WithOwn();
  const OfferedList list(choice);
  const Ids all = Found(list, " . ");
  EXPECT_EQ(all.size(), Catalogue().size() + KindNames().size() + 2);
  EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size());
  EXPECT_EQ(all[0], "[Dawn]");
  EXPECT_EQ(all[all.size() - 2], "[Your own]");
  EXPECT_EQ(all.back(), "own-3");
}

TEST(HoursOfferedList, FindsByBeginningsOfWordsWhateverTheirCaseAndMarks) {
  const OfferedList list(WithOwn());
  EXPECT_EQ(Found(list, "gro shema"), (Ids{"[Latest Shema]", "shema-gra"}));
  EXPECT_EQ(Found(list, "GR\"O SHEMA"), (Ids{"[Latest Shema]", "shema-gra"}));
  EXPECT_EQ(Found(list, "baal tef"), (Ids{"[Latest Tefila]", "tefila-baal-hatanya"}));
  EXPECT_EQ(Found(list, "tucaz"), (Ids{"[Nightfall]", "nightfall-6.45"}));
  EXPECT_EQ(Found(list, "19.8\xB0 dawn"), (Ids{"[Dawn]", "dawn-19.8"}));
  EXPECT_EQ(Found(list, "19. dawn").size(), 3u);  // 19 and 19.8
  EXPECT_EQ(Found(list,
                  "\xE9"
                  "clairs"),
            (Ids{"[Your own]", "own-3"}));
  EXPECT_TRUE(Found(list, "hema").empty());
  EXPECT_TRUE(Found(list, "\xFF\xFF").empty());
  EXPECT_EQ(list.Find("own-3")->authority, "A zman of your own");
  EXPECT_EQ(list.Find("nobody"), nullptr);
}

TEST(HoursChoiceEditing, ChoosesEachOnceUpToAHundred) {
  Choice choice;
  for (const CatalogueZman& zman : Catalogue()) {
    const bool hasRoom = HasRoom(choice);
    EXPECT_EQ(Choose(choice, zman.id), hasRoom);
    EXPECT_FALSE(Choose(choice, zman.id));
  }
  EXPECT_EQ(choice.chosen.size(), 100u);
  EXPECT_TRUE(IsChosen(choice, Catalogue()[99].id));
  EXPECT_FALSE(IsChosen(choice, Catalogue()[100].id));
}

TEST(HoursChoiceEditing, MovesOneAndKeepsTheOthersInOrder) {
  Choice choice;
  choice.chosen = {"a", "b", "c", "d"};
  EXPECT_TRUE(MoveChosen(choice, 0, 2));
  EXPECT_EQ(choice.chosen, (Ids{"b", "c", "a", "d"}));
  EXPECT_TRUE(MoveChosen(choice, 3, 0));
  EXPECT_EQ(choice.chosen, (Ids{"d", "b", "c", "a"}));
  EXPECT_TRUE(MoveChosen(choice, 1, 1));
  EXPECT_FALSE(MoveChosen(choice, 1, 4));
  EXPECT_FALSE(MoveChosen(choice, 4, 1));
  EXPECT_EQ(choice.chosen, (Ids{"d", "b", "c", "a"}));
}

TEST(HoursChoiceEditing, PresetTakesThePlaceOfWhatIsChosenOnly) {
  Choice choice = WithOwn();
  EXPECT_EQ(PresetInUse(choice), std::nullopt);
  for (size_t number = 0; number < Presets().size(); ++number) {
    UsePreset(choice, Presets()[number]);
    EXPECT_EQ(PresetInUse(choice), number);
  }
  EXPECT_EQ(choice.own.size(), 1u);
  OwnZman changed = *FindOwn(choice, "own-3");
  changed.thousandths = 4000;
  ChangeOwn(choice, changed);
  EXPECT_EQ(FindOwn(choice, "own-3")->thousandths, 4000);
  EXPECT_EQ(FindOwn(choice, "sunset"), nullptr);
}

OwnTyped Typed(const char* amount, const char* form) {
  return {"Mine", "", amount, FindOwnForm(form), Rounding::kDown};
}

TEST(HoursOwnFields, AmountsAreReadWithPointOrComma) {
  for (const char* amount : {"16.1", "16,1", " 16.100\t"}) {
    const OwnAnswer answer = ReadOwn(Typed(amount, "degrees-before-sunrise"), {}, 0);
    ASSERT_TRUE(answer.zman) << amount;
    EXPECT_EQ(answer.zman->thousandths, 16100);
    EXPECT_EQ(AmountIn(amount, *FindOwnForm("degrees-before-sunrise")), 16100);
  }
  for (const char* amount : {"", ".", "1.", ".5", "1.2345", "123456", "-1", "1 2", "1,2,3", "x"}) {
    const OwnAnswer answer = ReadOwn(Typed(amount, "degrees-before-sunrise"), {}, 0);
    EXPECT_FALSE(answer.zman) << amount;
    EXPECT_EQ(answer.field, OwnField::kAmount) << amount;
  }
}

TEST(HoursOwnFields, LimitsOfEveryUnit) {
  const struct {
    const char* form;
    const char* inside[2];
    const char* outside;
  } limits[] = {{"degrees-after-sunset", {"0.001", "60"}, "60.001"},
                {"minutes-after-sunset", {"0", "360"}, "360.001"},
                {"zmanis-after-sunset", {"0", "360"}, "361"},
                {"hours-gra", {"0", "24"}, "24.001"}};
  for (const auto& limit : limits) {
    for (const char* amount : limit.inside) EXPECT_TRUE(ReadOwn(Typed(amount, limit.form), {}, 0).zman) << limit.form;
    EXPECT_EQ(ReadOwn(Typed(limit.outside, limit.form), {}, 0).field, OwnField::kAmount) << limit.form;
  }
  EXPECT_FALSE(ReadOwn(Typed("0", "degrees-after-sunset"), {}, 0).zman);
}

TEST(HoursOwnFields, DescriptionMayStayAndMayNotBeAnothers) {
  const Choice choice = ReadChoice("own 1 hours-gra 3 up Mine\nown 2 hours-gra 3 up Mine\n");
  EXPECT_TRUE(ReadOwn(Typed("1", "hours-gra"), choice, 1).zman);
  EXPECT_EQ(ReadOwn(Typed("1", "hours-gra"), choice, 0).field, OwnField::kDescription);
  EXPECT_EQ(ReadOwn(Typed("1", "hours-gra"), choice, 0).complaint,
            "Another zman is called Mine already. Write another description.");
}

// They would command the word processor that reads an exported file.
TEST(HoursOwnFields, BracesAndBackslashesAreNamedAndRefused) {
  for (const char* const sign : {"{", "}", "\\"}) {
    const std::string complaint =
        std::string(" has a \"") + sign + "\", which the name of a zman cannot have. Write it without.";
    OwnTyped typed = Typed("1", "hours-gra");
    typed.description = std::string("Fi") + sign + "rst";
    EXPECT_EQ(ReadOwn(typed, {}, 0).complaint, "The description" + complaint);
    EXPECT_EQ(ReadOwn(typed, {}, 0).field, OwnField::kDescription);
    std::swap(typed.description, typed.hebrew);
    typed.description = "First";
    EXPECT_EQ(ReadOwn(typed, {}, 0).complaint, "The Hebrew description" + complaint);
    EXPECT_EQ(ReadOwn(typed, {}, 0).field, OwnField::kHebrew);
  }
}

TEST(HoursOwnFields, ANameThatHasThemAlreadyStaysUsable) {
  const Choice choice = ReadChoice("own 1 hours-gra 3 up {Mine}|\\\xE0\nown 2 hours-gra 3 up Other\n");
  OwnTyped typed = Typed("4", "hours-gra");
  typed.description = "{Mine}";
  typed.hebrew = "\\\xE0";
  ASSERT_TRUE(ReadOwn(typed, choice, 1).zman);
  EXPECT_EQ(ReadOwn(typed, choice, 1).zman->thousandths, 4000);
  EXPECT_EQ(ReadOwn(typed, choice, 2).field, OwnField::kDescription);
  typed.description = "{Mine}!";
  EXPECT_EQ(ReadOwn(typed, choice, 1).field, OwnField::kDescription);
}

TEST(HoursOwnFields, HebrewComesBackFromUnicode) {
  EXPECT_EQ(WideHebrew("\xE0\xFA 12"), L"\u05D0\u05EA 12");
  EXPECT_EQ(NarrowHebrew(L"\u05D0\u05EA 12"), "\xE0\xFA 12");
  EXPECT_EQ(NarrowHebrew(L"\u05E8\u05F4\u05EA \u05F3"), "\xF8\"\xFA '");
  EXPECT_EQ(NarrowHebrew(L"\u05B8"), std::nullopt);
  EXPECT_EQ(NarrowHebrew(L"\t"), std::nullopt);
}

// Apia, 13 hours ahead of UTC: 15 January 2026 11:00 UTC is midnight there. Transit at 12:36:34 on the 16th (PyEphem).
TEST(HoursDayTimes, DateIsThePlaces) {
  const sun::PlaceSettings apia = {sun::SiteFromPacked(-1350, -17145, 13, 0), 0, {13 * 3600, {}}};
  constexpr double kElevenUtc = 20468 * 86400.0 + 11 * 3600;  // day 20468 is 15 January 2026
  EXPECT_EQ(DayTimes(apia, kElevenUtc - 1, stamp::Form::kTwentyFourHours).DateText(), "15.01.2026");
  DayTimes times(apia, kElevenUtc, stamp::Form::kTwentyFourHours);
  EXPECT_EQ(times.DateText(), "16.01.2026");
  EXPECT_EQ(times.TimeOf(FindInCatalogue("midday")->definition), "12:37");
  EXPECT_EQ(times.TimeOf(FindInCatalogue("midnight")->definition), "00:36");
  EXPECT_EQ(times.TimeOf(FindInCatalogue("chametz-eat-gra")->definition), "----");
  DayTimes inHalves(apia, kElevenUtc, stamp::Form::kTwelveHours);
  EXPECT_EQ(inHalves.TimeOf(FindInCatalogue("midday")->definition), "12:37 p.m.");
  EXPECT_EQ(inHalves.TimeOf(FindInCatalogue("midnight")->definition), "12:36 a.m.");
}

}  // namespace
}  // namespace hours
