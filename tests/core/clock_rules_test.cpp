#include "libraries/sun/clock_rules.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "tests/core/clock_reference_moments.h"

namespace {

using sun::UtcOffsetSeconds;

constexpr int64_t kDay = 86400;

TEST(ClockRules, AgreeWithAnIndependentReaderAroundChanges) {
  for (const Change& change : kChanges) {
    SCOPED_TRACE(std::string(change.zoneId) + " " + std::to_string(change.moment));
    EXPECT_EQ(UtcOffsetSeconds(change.zoneId, change.moment - 1), change.before);
    EXPECT_EQ(UtcOffsetSeconds(change.zoneId, change.moment), change.after);
  }
}

TEST(ClockRules, AgreeWithAnIndependentReaderFarFromChanges) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(std::string(sample.zoneId) + " " + std::to_string(sample.moment));
    EXPECT_EQ(UtcOffsetSeconds(sample.zoneId, sample.moment), sample.offset);
  }
}

// Israel's law of 2013: summer time from the Friday before the last Sunday of March, 2:00, to the last Sunday of
// October, 2:00 summer time.
TEST(ClockRules, IsraelsSummerTimeStartsOnFridayAndEndsOnSunday) {
  constexpr int64_t kStart = 1806019200;  // Friday 26 March 2027 0:00Z
  constexpr int64_t kEnd = 1824937200;    // Saturday 30 October 2027 23:00Z
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kStart - 1), 7200);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kStart), 10800);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kEnd - 1), 10800);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", kEnd), 7200);
}

TEST(ClockRules, SamoaJumpsAcrossTheDateLine) {
  constexpr int64_t kJump = 1325239200;  // 30 December 2011 10:00Z: the 30th, a Friday, was left out
  EXPECT_EQ(UtcOffsetSeconds("Pacific/Apia", kJump - 1), -10 * 3600);
  EXPECT_EQ(UtcOffsetSeconds("Pacific/Apia", kJump), 14 * 3600);
}

// Ireland's law calls the winter's clock the exception; the offsets are the neighbours' all the same.
TEST(ClockRules, DublinKeepsLondonsTime) {
  for (int64_t moment = 94694400; moment < 7258118400; moment += kDay) {  // 1973 to 2199
    ASSERT_EQ(UtcOffsetSeconds("Europe/Dublin", moment), UtcOffsetSeconds("Europe/London", moment)) << moment;
  }
}

TEST(ClockRules, KathmanduMovesByAQuarterOfAnHour) {
  constexpr int64_t kMove = 504901800;  // 1 January 1986 0:00 by the old clock
  EXPECT_EQ(UtcOffsetSeconds("Asia/Kathmandu", kMove - 1), 19800);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Kathmandu", kMove), 20700);
}

TEST(ClockRules, LinksAnswerAsTheirTargets) {
  constexpr const char* kLinks[][2] = {{"Asia/Calcutta", "Asia/Kolkata"},   {"Israel", "Asia/Jerusalem"},
                                       {"Asia/Tel_Aviv", "Asia/Jerusalem"}, {"US/Eastern", "America/New_York"},
                                       {"America/Godthab", "America/Nuuk"}, {"Europe/Kiev", "Europe/Kyiv"}};
  for (const auto& [link, target] : kLinks) {
    ASSERT_TRUE(sun::IsKnownZone(link)) << link;
    for (int64_t moment = 0; moment < 99 * 365 * kDay; moment += 11 * kDay) {
      ASSERT_EQ(UtcOffsetSeconds(link, moment), UtcOffsetSeconds(target, moment)) << link << " " << moment;
    }
  }
}

TEST(ClockRules, ZoneNamesAreMatchedExactly) {
  EXPECT_TRUE(sun::IsKnownZone("America/Argentina/Buenos_Aires"));
  EXPECT_TRUE(sun::IsKnownZone("UTC"));
  for (const char* name : {"asia/jerusalem", "Asia/Jerusalem ", "Asia", "", "zzz"}) {
    EXPECT_FALSE(sun::IsKnownZone(name)) << name;
  }
}

TEST(ClockRules, UnknownZonesAndMomentsBefore1970HaveNoOffset) {
  EXPECT_EQ(UtcOffsetSeconds("Asia/Nowhere", 0), std::nullopt);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", -1), std::nullopt);
  EXPECT_EQ(UtcOffsetSeconds("Asia/Jerusalem", std::numeric_limits<int64_t>::min()), std::nullopt);
}

// 292 277 026 596-12-04T15:30:07Z, by the 400-year cycle a 4 December like that of 2196: summer in Sydney.
TEST(ClockRules, TheRemotestMomentStillFollowsTheStandingRule) {
  EXPECT_EQ(UtcOffsetSeconds("Asia/Kolkata", std::numeric_limits<int64_t>::max()), 19800);
  EXPECT_EQ(UtcOffsetSeconds("Australia/Sydney", std::numeric_limits<int64_t>::max()), 39600);
}

}  // namespace
