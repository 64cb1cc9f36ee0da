#include "libraries/solar/summer_time_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

using solar::Choice;
using solar::ClockReason;
using solar::KeyChange;
using solar::SummerTimeChoice;
using testing::ElementsAre;
using testing::IsEmpty;

std::map<std::string, std::string> texts;  // of the clock's section, by key

uint32_t ReadText(const char*, const char* key, const char* defaultValue, char* buffer, uint32_t size, const char*) {
  const auto found = texts.find(key);
  return static_cast<uint32_t>(
      std::snprintf(buffer, size, "%s", found == texts.end() ? defaultValue : found->second.c_str()));
}

int32_t ReadInt(const char*, const char*, int32_t defaultValue, const char*) {
  return defaultValue;
}

constexpr sun::SettingsReader kReader = {ReadInt, ReadText};
constexpr sun::PackedPlace kAachen = {5047, 605, 1, 0};
constexpr sun::PackedPlace kStJohns = {4734, -5243, -3, 30};
constexpr char kStJohnsKey[] = "47-34-52-43--3-30";
constexpr char kStJohnsOtherKey[] = "47-34-52-43--3--30";

class SummerTimeChoiceTest : public testing::Test {
 protected:
  SummerTimeChoiceTest() { texts.clear(); }
};

TEST_F(SummerTimeChoiceTest, WithoutSettingsTheZoneFoundIsChosen) {
  EXPECT_EQ(solar::StoredChoice(kReader, kAachen), SummerTimeChoice());
}

TEST_F(SummerTimeChoiceTest, AZoneAndNoneAreReadByThePlacesKey) {
  texts["50-47-6-5-1-0"] = "Europe/London";
  EXPECT_EQ(solar::StoredChoice(kReader, kAachen), (SummerTimeChoice{Choice::kOtherZone, "Europe/London", false}));
  texts["50-47-6-5-1-0"] = "None";
  texts["Mode"] = "off";
  EXPECT_EQ(solar::StoredChoice(kReader, kAachen), (SummerTimeChoice{Choice::kNoSummerTime, "", true}));
  texts["50-47-6-5-1-0"] = "Europe/Nowhere";
  texts["Mode"] = "Automatic";
  EXPECT_EQ(solar::StoredChoice(kReader, kAachen), SummerTimeChoice());
}

TEST_F(SummerTimeChoiceTest, TheKeyWithTheMinutesOtherSignCountsWhereTheOwnIsMissing) {
  texts[kStJohnsOtherKey] = "none";
  EXPECT_EQ(solar::StoredChoice(kReader, kStJohns).choice, Choice::kNoSummerTime);
  texts[kStJohnsKey] = "America/Halifax";
  EXPECT_EQ(solar::StoredChoice(kReader, kStJohns).zoneId, "America/Halifax");
}

TEST_F(SummerTimeChoiceTest, WhatIsStoredAlreadyIsNotWritten) {
  const SummerTimeChoice zone = {Choice::kOtherZone, "Europe/London", true};
  EXPECT_THAT(solar::ChangesFor(zone, zone, kAachen), IsEmpty());
  EXPECT_THAT(solar::ChangesFor({}, {}, kStJohns), IsEmpty());
}

TEST_F(SummerTimeChoiceTest, ADifferentChoiceIsWrittenUnderThePlacesKey) {
  const SummerTimeChoice zone = {Choice::kOtherZone, "Europe/London", false};
  const SummerTimeChoice none = {Choice::kNoSummerTime, "", false};
  EXPECT_THAT(solar::ChangesFor({}, zone, kAachen), ElementsAre(KeyChange{"50-47-6-5-1-0", "Europe/London"}));
  EXPECT_THAT(solar::ChangesFor(zone, none, kAachen), ElementsAre(KeyChange{"50-47-6-5-1-0", "none"}));
  EXPECT_THAT(solar::ChangesFor(none, {}, kAachen), ElementsAre(KeyChange{"50-47-6-5-1-0", std::nullopt}));
}

TEST_F(SummerTimeChoiceTest, TheKeyWithTheMinutesOtherSignGoes) {
  const SummerTimeChoice none = {Choice::kNoSummerTime, "", false};
  EXPECT_THAT(solar::ChangesFor({}, none, kStJohns),
              ElementsAre(KeyChange{kStJohnsKey, "none"}, KeyChange{kStJohnsOtherKey, std::nullopt}));
  EXPECT_THAT(solar::ChangesFor(none, {}, kStJohns),
              ElementsAre(KeyChange{kStJohnsKey, std::nullopt}, KeyChange{kStJohnsOtherKey, std::nullopt}));
}

TEST_F(SummerTimeChoiceTest, SummerTimeOffIsWrittenByItself) {
  const SummerTimeChoice off = {Choice::kZoneFound, "", true};
  EXPECT_THAT(solar::ChangesFor({}, off, kAachen), ElementsAre(KeyChange{"Mode", "Off"}));
  EXPECT_THAT(solar::ChangesFor(off, {}, kAachen), ElementsAre(KeyChange{"Mode", "Automatic"}));
}

TEST_F(SummerTimeChoiceTest, AChoiceThatIsWrittenIsReadBack) {
  for (const SummerTimeChoice& stored : {SummerTimeChoice{}, SummerTimeChoice{Choice::kNoSummerTime, "", true},
                                         SummerTimeChoice{Choice::kOtherZone, "Asia/Kathmandu", false}}) {
    texts.clear();
    texts[kStJohnsOtherKey] = "America/Halifax";
    const SummerTimeChoice before = solar::StoredChoice(kReader, kStJohns);
    for (const KeyChange& change : solar::ChangesFor(before, stored, kStJohns)) {
      texts.erase(change.key);
      if (change.value) texts[change.key] = *change.value;
    }
    EXPECT_EQ(solar::StoredChoice(kReader, kStJohns), stored);
  }
}

TEST_F(SummerTimeChoiceTest, TheClockIsTheOneThatTimesAreToldIn) {
  for (const sun::PackedPlace& place :
       {kAachen, kStJohns, sun::PackedPlace{4152, -8738, -4, 0}, sun::PackedPlace{0, -3000, 0, -90}}) {
    for (const char* mode : {"", "Off"}) {
      for (const char* zone : {"", "none", "Asia/Kathmandu", "Asia/Nowhere"}) {
        texts = {{"Mode", mode}, {sun::KeyOf(place).data(), zone}};
        const sun::PlaceClock told = sun::ReadPlaceSettings(kReader, place).clock;
        const solar::ExplainedClock explained = solar::ClockBy(solar::StoredChoice(kReader, place), place);
        EXPECT_EQ(explained.clock.standardOffsetSeconds, told.standardOffsetSeconds);
        EXPECT_STREQ(explained.clock.zoneId.data(), told.zoneId.data()) << mode << zone;
      }
    }
  }
}

// 41:52 N 87:38 W is Chicago; no zone near has four hours. 65:00 S 30:00 W lies in the Weddell Sea.
TEST_F(SummerTimeChoiceTest, TheReasonIsTold) {
  const auto reasonOf = [](const SummerTimeChoice& choice, const sun::PackedPlace& place) {
    return solar::ClockBy(choice, place).reason;
  };
  EXPECT_EQ(reasonOf({}, {4043, -7401, -5, 0}), ClockReason::kStandard);
  EXPECT_EQ(reasonOf({}, {4152, -8738, -4, 0}), ClockReason::kOffsetOfNone);
  EXPECT_EQ(reasonOf({}, {-6500, -3000, -2, 0}), ClockReason::kNoZone);
  EXPECT_EQ(reasonOf({Choice::kOtherZone, "Europe/London", false}, kAachen), ClockReason::kSetByUser);
  EXPECT_EQ(reasonOf({Choice::kNoSummerTime, "", false}, kAachen), ClockReason::kNoneByUser);
  EXPECT_EQ(reasonOf({Choice::kOtherZone, "Europe/London", true}, kAachen), ClockReason::kOff);
}

}  // namespace
