// The customs' file: what it says comes back, and what it says wrongly leaves the default.
#include "libraries/occasions/customs.h"

#include <gtest/gtest.h>

#include <map>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/named_days.h"

namespace occasions {
namespace {

Customs From(const std::map<std::string, std::string>& texts) {
  return CustomsFrom([&](const char* key) {
    const auto found = texts.find(key);
    return found == texts.end() ? std::string() : found->second;
  });
}

Customs ThereAndBack(const Customs& customs) {
  std::map<std::string, std::string> texts;
  for (const KeyValue& value : ValuesOf(customs)) texts[value.key] = value.value;
  return From(texts);
}

TEST(OccasionCustoms, FileWithoutThemHasTheDefaults) {
  EXPECT_EQ(From({}), Customs());
  EXPECT_EQ(ThereAndBack(Customs()), Customs());
}

TEST(OccasionCustoms, EachComesBackFromItsText) {
  Customs customs;
  customs.land = LandChoice::kIsrael;
  customs.dawn = "dawn-72-min";
  customs.nightfall = "minutes-27";
  customs.nightfallOfAv = "nightfall-8.5";
  customs.chametz = "mga-16.1";
  customs.chanukah = ChanukahRule::kMinutes;
  customs.chanukahMinutes = 20;
  customs.kiddushLevanaFromDays = 7;
  customs.kiddushLevanaUntilHalfMonth = false;
  customs.selichot = SelichotCustom::kSephardi;
  customs.hiddenKinds = 1u << static_cast<int>(Kind::kOmer) | 1u << static_cast<int>(Kind::kSupplication);
  EXPECT_EQ(ThereAndBack(customs), customs);
}

TEST(OccasionCustoms, EveryChoiceThatIsOfferedComesBack) {
  for (const Choice& choice : DawnChoices()) {
    EXPECT_EQ(From({{"Dawn", choice.id}}).dawn, choice.id);
    EXPECT_FALSE(choice.text.empty());
  }
  for (const Choice& choice : NightfallChoices()) {
    EXPECT_EQ(From({{"Nightfall", choice.id}}).nightfall, choice.id);
    EXPECT_EQ(From({{"NightfallOfAv", choice.id}}).nightfallOfAv, choice.id);
  }
  for (const Choice& choice : ChametzChoices()) {
    const Customs customs = From({{"Chametz", choice.id}});
    EXPECT_EQ(customs.chametz, choice.id);
    // The catalogue's own: four proportional hours for eating, five for burning.
    EXPECT_EQ(EatingChametz(customs).reckoning.thousandthHours, 4000);
    EXPECT_EQ(BurningChametz(customs).reckoning.thousandthHours, 5000);
    EXPECT_EQ(EatingChametz(customs).reckoning.day, BurningChametz(customs).reckoning.day);
  }
  EXPECT_EQ(ChametzChoices().size(), 5u);
}

TEST(OccasionCustoms, WhatMeansNothingLeavesTheDefault) {
  for (const char* const nonsense : {"x", "-1", "181", "minutes-", "minutes--1", "minutes-181", "minutes-7x", "sunrise",
                                     "nightfall-99", "\xFF", "Israel "}) {
    const Customs customs = From({{"Land", nonsense},
                                  {"Dawn", nonsense},
                                  {"Nightfall", nonsense},
                                  {"NightfallOfAv", nonsense},
                                  {"Chametz", nonsense},
                                  {"Chanukah", nonsense},
                                  {"ChanukahMinutes", nonsense},
                                  {"KiddushLevanaFrom", nonsense},
                                  {"KiddushLevanaUntil", nonsense},
                                  {"Selichot", nonsense},
                                  {"Hidden", nonsense}});
    EXPECT_EQ(customs, Customs()) << nonsense;
  }
}

TEST(OccasionCustoms, ZmanOfAnotherKindIsNoDawnAndNoNightfall) {
  EXPECT_EQ(From({{"Dawn", "nightfall-8.5"}}).dawn, Customs().dawn);
  EXPECT_EQ(From({{"Nightfall", "dawn-16.1"}}).nightfall, Customs().nightfall);
}

TEST(OccasionCustoms, MinutesAfterSunsetAreANightfall) {
  const hours::Definition expected = {{hours::Both(hours::Minutes(27)), hours::kDayThousandthHours},
                                      hours::Rounding::kUp};
  EXPECT_EQ(NightfallOf("minutes-27"), expected);
  EXPECT_EQ(MinutesOfId("minutes-27"), 27);
}

TEST(OccasionCustoms, UnknownIdsHaveTheDefaultsZmanim) {
  EXPECT_EQ(NightfallOf("?"), hours::FindInCatalogue("nightfall-7.083")->definition);
  Customs customs;
  customs.dawn = "?";
  customs.chametz = "?";
  EXPECT_EQ(DawnOf(customs), hours::FindInCatalogue("dawn-16.1")->definition);
  EXPECT_EQ(EatingChametz(customs), hours::FindInCatalogue("chametz-eat-gra")->definition);
}

TEST(OccasionCustoms, LandIsThatOfTheReadingsUnlessChosen) {
  using calendar::Land;
  Customs customs;
  EXPECT_EQ(LandOf(customs, Land::kIsrael), Land::kIsrael);
  EXPECT_EQ(LandOf(customs, Land::kDiaspora), Land::kDiaspora);
  customs.land = LandChoice::kDiaspora;
  EXPECT_EQ(LandOf(customs, Land::kIsrael), Land::kDiaspora);
  customs.land = LandChoice::kIsrael;
  EXPECT_EQ(LandOf(customs, Land::kDiaspora), Land::kIsrael);
}

}  // namespace
}  // namespace occasions
