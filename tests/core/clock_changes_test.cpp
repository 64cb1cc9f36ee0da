// The changes of clocks in their order.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <limits>
#include <string>

#include "libraries/sun/clock_rules.h"
#include "libraries/sun/zone_of_place.h"
#include "tests/core/clock_reference_moments.h"
#include "tests/core/clock_years.h"

namespace {

using sun::ClockChange;
using sun::NextClockChange;

int64_t StartOfYear(int32_t year) {
  using namespace std::chrono;
  return sys_seconds{sys_days{std::chrono::year{year} / January / 1}}.time_since_epoch().count();
}

TEST(ClockChanges, AreTheReferencesInTheirOrderInEachYear) {
  for (const ClockYear& year : kClockYears) {
    SCOPED_TRACE(std::string(year.zoneId) + " " + std::to_string(year.year));
    int64_t moment = StartOfYear(year.year) - 1;
    int32_t before = year.offsetAtStart;
    EXPECT_EQ(sun::UtcOffsetSeconds(year.zoneId, moment + 1), before);
    for (const ClockStep& step : year.steps) {
      EXPECT_EQ(NextClockChange(year.zoneId, moment), (ClockChange{step.moment, before, step.offsetAfter}));
      EXPECT_EQ(sun::UtcOffsetSeconds(year.zoneId, step.moment - 1), before);
      EXPECT_EQ(sun::UtcOffsetSeconds(year.zoneId, step.moment), step.offsetAfter);
      moment = step.moment;
      before = step.offsetAfter;
    }
    const auto next = NextClockChange(year.zoneId, moment);
    EXPECT_TRUE(!next || next->unixSeconds >= StartOfYear(year.year + 1));
    EXPECT_EQ(sun::UtcOffsetSeconds(year.zoneId, StartOfYear(year.year + 1) - 1), before);
  }
}

TEST(ClockChanges, PlacesOfTheReferenceHaveItsZones) {
  for (const ClockYear& year : kClockYears) {
    const sun::PackedPlace& place = year.place;
    const char* const found = sun::FindZone(place.latitude, place.longitude, place.zoneHours, place.zoneMinutes).zoneId;
    EXPECT_STREQ(found, year.zoneId);
  }
}

TEST(ClockChanges, TheNextIsTheReferencesByTheTableAndByTheStandingRule) {
  for (const Change& change : kChanges) {
    SCOPED_TRACE(std::string(change.zoneId) + " " + std::to_string(change.moment));
    const ClockChange expected = {change.moment, change.before, change.after};
    EXPECT_EQ(NextClockChange(change.zoneId, change.moment - 1), expected);
    const auto later = NextClockChange(change.zoneId, change.moment);
    EXPECT_TRUE(!later || later->unixSeconds > change.moment);
    EXPECT_TRUE(!later || later->offsetBefore == change.after);
  }
}

// Kathmandu's last change was in 1986; Phoenix, without summer time since 1968, has had none at all since 1970.
TEST(ClockChanges, WhereNoneComesThereIsNone) {
  EXPECT_EQ(NextClockChange("Asia/Kathmandu", 504901799), (ClockChange{504901800, 19800, 20700}));
  EXPECT_EQ(NextClockChange("Asia/Kathmandu", 504901800), std::nullopt);
  EXPECT_EQ(NextClockChange("America/Phoenix", 0), std::nullopt);
  EXPECT_EQ(NextClockChange("Asia/Nowhere", 0), std::nullopt);
}

// British Standard Time held all year until 31 October 1971, 2:00 UTC.
TEST(ClockChanges, MomentsBefore1970CountAsItsFirst) {
  constexpr ClockChange kEndOfStandardTime = {57722400, 3600, 0};
  EXPECT_EQ(NextClockChange("Europe/London", 0), kEndOfStandardTime);
  EXPECT_EQ(NextClockChange("Europe/London", std::numeric_limits<int64_t>::min()), kEndOfStandardTime);
}

TEST(ClockChanges, AtTheEndOfAllMomentsThereIsNone) {
  constexpr int64_t kMost = std::numeric_limits<int64_t>::max();
  EXPECT_EQ(NextClockChange("Australia/Sydney", kMost), std::nullopt);
  const auto last = NextClockChange("Australia/Sydney", kMost - int64_t{200} * 86400);
  ASSERT_TRUE(last);
  EXPECT_EQ(last->offsetBefore, 36000);
  EXPECT_EQ(last->offsetAfter, 39600);
}

TEST(ClockChanges, ZonesAreListedByTheirNames) {
  ASSERT_GT(sun::ZoneCount(), 500u);
  for (size_t i = 0; i < sun::ZoneCount(); ++i) {
    ASSERT_TRUE(sun::IsKnownZone(sun::ZoneId(i))) << i;
    ASSERT_TRUE(i == 0 || sun::ZoneId(i - 1) < sun::ZoneId(i)) << i;
  }
  EXPECT_EQ(sun::ZoneId(sun::ZoneCount()), "");
}

}  // namespace
