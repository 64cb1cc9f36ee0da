// The settings as the file and the number of a choice say them.
#include "libraries/lections/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lections;
using calendar::Land;
using namespace std::string_view_literals;

constexpr uint32_t kEnglishCode = 1;
constexpr uint32_t kAshkenaziCode = 2;
constexpr uint32_t kHebrewCode = 4;

// All that a user can choose, in one language.
std::vector<Settings> EverySetting(uint32_t language) {
  std::vector<Settings> every;
  for (int bits = 0; bits < 64; ++bits) {
    const auto isOn = [bits](int bit) { return (bits >> bit) % 2 != 0; };
    for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
      for (const Customs customs : {Customs::kAshkenazi, Customs::kSephardi, Customs::kBoth}) {
        every.push_back({land, customs, isOn(0), isOn(1), isOn(2), {isOn(3), isOn(4), isOn(5)}, language});
      }
    }
  }
  return every;
}

TEST(LectionsSettings, EachChoiceIsReadBackAsWritten) {
  for (const uint32_t language : {kEnglishCode, kAshkenaziCode, kHebrewCode}) {
    for (const Settings& settings : EverySetting(language)) {
      const std::vector<KeyValue> values = ValuesOf(settings);
      const auto read = [&values](std::string_view key) {
        const auto found = std::ranges::find(values, key, &KeyValue::key);
        return found == values.end() ? "" : found->value;
      };
      EXPECT_EQ(SettingsFrom(read, Land::kDiaspora), settings);
      EXPECT_EQ(SettingsFrom(read, Land::kIsrael), settings);
    }
  }
}

TEST(LectionsSettings, EveryChoiceComesBackFromItsNumber) {
  std::set<uint32_t> choices;
  const std::vector<Settings> all = EverySetting(kHebrewCode);
  for (const Settings& settings : all) {
    const uint32_t choice = ChoiceOf(settings);
    EXPECT_NE(choice, 0u);
    EXPECT_TRUE(choices.insert(choice).second) << choice;
    EXPECT_EQ(SettingsBy(choice, all.front()), settings);
    EXPECT_EQ(SettingsBy(choice, all.back()), settings);
  }
}

TEST(LectionsSettings, TheLanguageIsNoPartOfAChoiceAndStaysTheStoredOne) {
  const std::vector<Settings> hebrew = EverySetting(kHebrewCode);
  const std::vector<Settings> english = EverySetting(kEnglishCode);
  ASSERT_EQ(hebrew.size(), english.size());
  for (size_t i = 0; i < hebrew.size(); ++i) {
    EXPECT_EQ(ChoiceOf(english[i]), ChoiceOf(hebrew[i]));
    EXPECT_EQ(SettingsBy(ChoiceOf(english[i]), hebrew.front()), hebrew[i]);
  }
}

TEST(LectionsSettings, TheNumbersOfTheLanguagesBiblesBelongToTheLanguage) {
  EXPECT_FALSE(Settings().ownNumbers);
  Settings own = EverySetting(kEnglishCode).back();
  const Settings hebrew = own;
  own.ownNumbers = true;
  EXPECT_EQ(ChoiceOf(own), ChoiceOf(hebrew));
  EXPECT_EQ(SettingsBy(ChoiceOf(hebrew), own), own);
  const std::vector<KeyValue> values = ValuesOf(own);
  const auto stored = std::ranges::find(values, "OwnNumbers"sv, &KeyValue::key);
  ASSERT_NE(stored, values.end());
  EXPECT_EQ(stored->value, "1");
  const auto read = [](std::string_view key) { return key == "OwnNumbers" ? "1" : ""; };
  EXPECT_TRUE(SettingsFrom(read, Land::kDiaspora).ownNumbers);
}

TEST(LectionsSettings, ANumberThatIsNoChoiceStandsForTheStoredSettings) {
  const std::vector<Settings> all = EverySetting(kHebrewCode);
  const Settings& stored = all[all.size() / 3];
  EXPECT_EQ(SettingsBy(0, stored), stored);
  EXPECT_EQ(SettingsBy(0xFFFFFFFF, stored), stored);
  std::set<uint32_t> choices;
  for (const Settings& settings : all) choices.insert(ChoiceOf(settings));
  for (const uint32_t choice : choices) {
    for (int bit = 0; bit < 32; ++bit) {
      const uint32_t other = choice ^ (uint32_t{1} << bit);
      if (!choices.contains(other)) {
        ASSERT_EQ(SettingsBy(other, stored), stored) << other;
      }
    }
  }
}

TEST(LectionsSettings, WhatIsMissingOrMeansNothingIsTheDefault) {
  Settings defaults;
  EXPECT_EQ(defaults.customs, Customs::kBoth);
  EXPECT_TRUE(defaults.verses);
  EXPECT_FALSE(defaults.chabad || defaults.optional.mondayAndThursday || defaults.optional.shabbatAfternoon ||
               defaults.optional.triennial);
  for (const char* value : {"", "israel", "2", "-1", "4x", "99999999999", "Both "}) {
    const auto read = [value](const char*) { return value; };
    if (value != "2"sv) {
      EXPECT_EQ(SettingsFrom(read, Land::kDiaspora), defaults) << value;
    }
    EXPECT_EQ(SettingsFrom(read, Land::kIsrael).land, Land::kIsrael) << value;
  }
}

}  // namespace
