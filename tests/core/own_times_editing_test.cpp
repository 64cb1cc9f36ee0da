// Expected values are worked out by hand.
#include "libraries/ownhours/own_times_editing.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using namespace ownhours;

const Occasion kMorning = {*PackDate(8, 3, 2024), "HaNetz", "Jerusalem"};
const Occasion kEvening = {*PackDate(8, 3, 2024), "Shkia", "Jerusalem"};
const Occasion kElsewhere = {*PackDate(8, 3, 2024), "Shkia", "Haifa"};
const Entries kStored = {{kMorning, {5, 40}}, {kEvening, {17, 25}}, {kElsewhere, {17, 30}}};

TEST(OwnTimesEditing, ADateComesBackFromItsNumber) {
  for (const auto& [day, month, year] :
       {std::tuple{1u, 1u, 1u}, {31u, 12u, 9999u}, {29u, 2u, 2024u}, {1u, 12u, 2026u}}) {
    const calendar::Date date = DateOf(*PackDate(day, month, year));
    EXPECT_EQ(date, (calendar::Date{int32_t(day), int32_t(month), int32_t(year)}));
  }
}

TEST(OwnTimesEditing, AllTimesOfAFileAreListed) {
  const OwnTimes times(
      "2024-03-08 05:40 HaNetz|Jerusalem\n2024-03-08 01:01 Shkia|Haifa\nx\n"
      "2024-03-08 17:25 Shkia|Jerusalem\n2024-03-08 17:30 Shkia|Haifa\n");
  EXPECT_EQ(times.All(), kStored);
}

TEST(OwnTimesEditing, NothingIsUnsavedAtFirst) {
  Editing editing(kStored);
  EXPECT_FALSE(editing.CanUndo());
  EXPECT_TRUE(editing.Undo().empty());
  EXPECT_EQ(editing.Unsaved(), Changes());
}

TEST(OwnTimesEditing, EachStepCanBeTakenBackTheLastFirst) {
  Editing editing(kStored);
  editing.Set(kEvening, {17, 20});
  editing.Remove({kMorning, kEvening});
  EXPECT_EQ(editing.Now(), (Entries{{kElsewhere, {17, 30}}}));
  EXPECT_EQ(editing.Unsaved(), (Changes{{kMorning, std::nullopt}, {kEvening, std::nullopt}}));
  EXPECT_EQ(editing.Undo(), (std::vector<Occasion>{kMorning, kEvening}));
  EXPECT_EQ(editing.Unsaved(), (Changes{{kEvening, Time{17, 20}}}));
  EXPECT_TRUE(editing.CanUndo());
  editing.Undo();
  EXPECT_EQ(editing.Now(), kStored);
  EXPECT_FALSE(editing.CanUndo());
}

TEST(OwnTimesEditing, WhatChangesNothingIsNoStep) {
  Editing editing(kStored);
  editing.Set(kEvening, {17, 25});
  editing.Remove({});
  editing.Remove({{*PackDate(9, 3, 2024), "Shkia", "Haifa"}});
  EXPECT_FALSE(editing.CanUndo());
}

TEST(OwnTimesEditing, TimesOfAPlaceAreThoseOfItsExactName) {
  const Editing editing(kStored);
  EXPECT_EQ(editing.OfPlace("Jerusalem"), (std::vector<Occasion>{kMorning, kEvening}));
  EXPECT_TRUE(editing.OfPlace("jerusalem").empty());
}

TEST(OwnTimesEditing, RemovedTimesLeaveTheFileAndAllElseStays) {
  const std::string text = "# mine\r\n2024-03-08 05:40 HaNetz|Jerusalem\r\n2024-03-08 17:25 Shkia|Jerusalem\r\nodd\r\n";
  EXPECT_EQ(Applied({{kMorning, std::nullopt}, {kEvening, Time{17, 20}}}, text),
            "# mine\r\n2024-03-08 17:20 Shkia|Jerusalem\r\nodd\r\n");
}

// What the file says now, beside 17:25 when the change to 17:20 was begun.
TEST(OwnTimesEditing, AFileThatSaysSomethingNewIsAConflict) {
  const Changes toAnother = {{kEvening, Time{17, 20}}};
  const Changes away = {{kEvening, std::nullopt}};
  const auto conflicts = [](const Changes& changes, const Entries& file) {
    return !settings_folder::Conflicts(changes, {{kEvening, {17, 25}}}, file).empty();
  };
  EXPECT_FALSE(conflicts(toAnother, {{kEvening, {17, 25}}}));
  EXPECT_FALSE(conflicts(toAnother, {{kEvening, {17, 20}}}));
  EXPECT_TRUE(conflicts(toAnother, {{kEvening, {17, 10}}}));
  EXPECT_TRUE(conflicts(toAnother, {}));
  EXPECT_FALSE(conflicts(away, {{kEvening, {17, 25}}}));
  EXPECT_FALSE(conflicts(away, {}));
  EXPECT_TRUE(conflicts(away, {{kEvening, {17, 10}}}));
  EXPECT_FALSE(conflicts({}, {{kMorning, {5, 0}}}));
}

}  // namespace
