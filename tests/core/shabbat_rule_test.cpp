// The settings of "shabbat2.ini" as libraries read them. Expected values follow from the rules of those settings.
#include "libraries/candles/shabbat_rule.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <string>

namespace candles {
namespace {

std::map<std::string, std::string> settings;

int32_t ReadInt(const char*, const char* key, int32_t defaultValue, const char*) {
  const auto found = settings.find(key);
  return found == settings.end() ? defaultValue : std::atoi(found->second.c_str());
}

uint32_t ReadText(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                  const char* file) {
  EXPECT_STREQ(section, "Shabbat");
  EXPECT_STREQ(file, "shabbat2.ini");
  const auto found = settings.find(key);
  std::snprintf(buffer, size, "%s", found == settings.end() ? defaultValue : found->second.c_str());
  return static_cast<uint32_t>(std::strlen(buffer));
}

ShabbatRule RuleBy(std::map<std::string, std::string> texts, const char* place = "Aachen") {
  settings = std::move(texts);
  return ReadShabbatRule({ReadInt, ReadText}, place);
}

TEST(ShabbatRule, HasTheDefaultsOfThePreferences) {
  const ShabbatRule rule = RuleBy({});
  EXPECT_EQ(rule, ShabbatRule());
  EXPECT_EQ(rule.candleMinutes, 18);
  EXPECT_TRUE(rule.endsByMinutes);
  EXPECT_EQ(rule.endMinutes, 45);
  EXPECT_EQ(rule.endDegrees, 8.0);
  EXPECT_EQ(rule.minutesAfterDegrees, 0);
}

TEST(ShabbatRule, ReadsWhatThePreferencesWrite) {
  const ShabbatRule rule = RuleBy({{"CandleLighting", "22"},
                                   {"DoMinutes", "0"},
                                   {"End", "50"},
                                   {"DegreesBelowHorizon", "8.5"},
                                   {"AddMinutesAfterDegrees", "3"}});
  EXPECT_EQ(rule, (ShabbatRule{22, false, false, 50, 8.5, 3}));
}

TEST(ShabbatRule, TextThatIsNoNumberIsNoMinutesAndEmptyTextIsTheDefault) {
  EXPECT_EQ(RuleBy({{"CandleLighting", "abc"}}).candleMinutes, 0);
  EXPECT_EQ(RuleBy({{"CandleLighting", ""}}).candleMinutes, 18);
  EXPECT_EQ(RuleBy({{"CandleLighting", " -5 minutes"}}).candleMinutes, -5);
  EXPECT_EQ(RuleBy({{"End", "45.9"}}).endMinutes, 45);
  EXPECT_EQ(RuleBy({{"End", "99999999999"}}).endMinutes, 2147483647);
  EXPECT_EQ(RuleBy({{"DegreesBelowHorizon", "none"}}).endDegrees, 8.0);
}

TEST(ShabbatRule, OnlyThePlaceCalledExactlyJerusalemLightsFortyMinutesBefore) {
  EXPECT_EQ(RuleBy({{"CandleLighting", "18"}}, "Jerusalem").candleMinutes, 40);
  EXPECT_TRUE(RuleBy({}, "Jerusalem").isJerusalem);
  EXPECT_EQ(RuleBy({{"CandleLighting", "18"}}, "jerusalem").candleMinutes, 18);
  EXPECT_EQ(RuleBy({}, "Jerusalem ").candleMinutes, 18);
  EXPECT_FALSE(RuleBy({}, "jerusalem").isJerusalem);
}

TEST(ShabbatRule, EndByMinutesLooksAtNoSun) {
  const sun::PlaceSettings aachen = {sun::SiteFromPacked(5047, 606, 1, 0), 0, {3600, {}}};
  EXPECT_EQ(MinutesToEnd(20000, aachen, RuleBy({{"End", "72"}})), 72);
}

TEST(ShabbatRule, EndByDegreesAddsItsMinutes) {
  const sun::PlaceSettings jerusalem = {sun::SiteFromPacked(3147, 3513, 2, 0), 0, {7200, {}}};
  const int32_t march20 = sun::UnixDayOfDate(20, 3, 2024);
  const ShabbatRule rule = RuleBy({{"DoMinutes", "0"}, {"DegreesBelowHorizon", "8.5"}});
  ShabbatRule later = rule;
  later.minutesAfterDegrees = 7;
  const int32_t minutes = MinutesToEnd(march20, jerusalem, rule);
  // Three small stars: 36.1 minutes after sunset at the equinox in Jerusalem, rounded up.
  EXPECT_GE(minutes, 36);
  EXPECT_LE(minutes, 37);
  EXPECT_EQ(MinutesToEnd(march20, jerusalem, later), minutes + 7);
}

}  // namespace
}  // namespace candles
