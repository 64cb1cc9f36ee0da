// Moments and offsets: CPython's zoneinfo, tz release 2025b, whose rules for these zones are those of the table's
// release.
#include "libraries/solar/clock_texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>

#include "libraries/sun/clock_rules.h"

namespace {

using solar::Choice;
using solar::SummerTimeChoice;
using stamp::Form;

constexpr int64_t kNovember2026 = 1795344300;  // Sunday 22 November 2026 10:45 UTC
constexpr sun::PackedPlace kChicago = {4152, -8738, -6, 0};
constexpr sun::PackedPlace kChicagoAtFour = {4152, -8738, -4, 0};

solar::ExplainedClock ClockOf(const char* zoneId, const sun::PackedPlace& place) {
  return solar::ClockBy({Choice::kOtherZone, zoneId, false}, place);
}

std::string LineOf(const SummerTimeChoice& choice, const sun::PackedPlace& place) {
  return solar::LineText(solar::ClockBy(choice, place), place, kNovember2026);
}

TEST(ClockTexts, OffsetsAreHoursAndMinutesFromGreenwich) {
  EXPECT_EQ(solar::OffsetText(0), "GMT");
  EXPECT_EQ(solar::OffsetText(3600), "GMT+1");
  EXPECT_EQ(solar::OffsetText(-12600), "GMT-3:30");
  EXPECT_EQ(solar::OffsetText(-1800), "GMT-0:30");
}

TEST(ClockTexts, APlaceIsItsNumbers) {
  EXPECT_EQ(solar::PlaceText({4734, -5243, -3, 30}),
            "47\xB0"
            "34' N, 52\xB0"
            "43' W, standard time GMT-3:30");
  EXPECT_EQ(solar::PlaceText({-5, 9, 0, 0}),
            "0\xB0"
            "05' S, 0\xB0"
            "09' E, standard time GMT");
}

TEST(ClockTexts, MomentsAreInTheFormOfTimes) {
  EXPECT_EQ(solar::MomentText(kNovember2026, 3600, Form::kTwentyFourHours), "Sunday, 22 November 2026, 11:45");
  EXPECT_EQ(solar::MomentText(kNovember2026, 14 * 3600, Form::kTwelveHours), "Monday, 23 November 2026, 12:45 a.m.");
}

TEST(ClockTexts, TheZoneFoundIsNamedInItsChoice) {
  EXPECT_EQ(solar::FoundText(solar::ClockBy({}, kChicago)), "The zone &found for this place: America/Chicago");
  EXPECT_EQ(solar::FoundText(solar::ClockBy({}, kChicagoAtFour)),
            "The zone &found for this place: none, standard time all year");
}

TEST(ClockTexts, TheTimeThereIsInTheClockInForce) {
  const auto jerusalem = ClockOf("Asia/Jerusalem", {3147, 3514, 2, 0});
  EXPECT_EQ(solar::NowText(jerusalem.clock, 1792882799, Form::kTwentyFourHours),
            "Sunday, 25 October 2026, 01:59 (GMT+3)");
  EXPECT_EQ(solar::NowText(jerusalem.clock, 1792882800, Form::kTwentyFourHours),
            "Sunday, 25 October 2026, 01:00 (GMT+2)");
}

TEST(ClockTexts, TheNextTwoChangesAreToldByTheClockBeforeThem) {
  const auto jerusalem = ClockOf("Asia/Jerusalem", {3147, 3514, 2, 0});
  const auto texts = solar::NextChangesText(jerusalem.clock, 1774569599, Form::kTwentyFourHours);
  EXPECT_EQ(texts.next, "Friday, 27 March 2026, 02:00: from GMT+2 to GMT+3");
  EXPECT_EQ(texts.second, "Sunday, 25 October 2026, 02:00: from GMT+3 to GMT+2");
}

TEST(ClockTexts, WhereNoChangeComesTheySaySo) {
  const auto phoenix = ClockOf("America/Phoenix", {3327, -11204, -7, 0});
  EXPECT_EQ(solar::NextChangesText(phoenix.clock, kNovember2026, Form::kTwentyFourHours).next,
            "none; this clock stays as it is");
  const auto standard = solar::ClockBy({Choice::kNoSummerTime, "", false}, kChicago);
  EXPECT_EQ(solar::NextChangesText(standard.clock, kNovember2026, Form::kTwentyFourHours).second, "none");
  const auto kathmandu = ClockOf("Asia/Kathmandu", {2743, 8519, 5, 45});
  EXPECT_EQ(solar::NextChangesText(kathmandu.clock, 504901799, Form::kTwentyFourHours).second,
            "none; the clock then stays as it is");
}

TEST(ClockTexts, AnOffsetThatNoZoneThereHasIsAWarning) {
  EXPECT_EQ(solar::WarningText(solar::ClockBy({}, kChicagoAtFour), kChicagoAtFour),
            "No zone near here has GMT-4; times are told without summer time. The zone here is America/Chicago "
            "(GMT-6).");
  EXPECT_EQ(solar::WarningText(ClockOf("Europe/London", {5047, 605, 1, 0}), {5047, 605, 1, 0}),
            "The standard time of Europe/London is GMT, not GMT+1 as given for this place. Times follow the zone.");
  EXPECT_EQ(solar::WarningText(solar::ClockBy({}, kChicago), kChicago), "");
  EXPECT_EQ(solar::WarningText(solar::ClockBy({Choice::kNoSummerTime, "", false}, kChicagoAtFour), kChicagoAtFour), "");
}

TEST(ClockTexts, TheLineTellsZoneAndSummerTime) {
  EXPECT_EQ(LineOf({}, kChicago), "Clock: America/Chicago, summer time from March to November");
  EXPECT_EQ(LineOf({}, {-3352, 15113, 10, 0}), "Clock: Australia/Sydney, summer time from October to April");
  EXPECT_EQ(LineOf({}, {3327, -11204, -7, 0}), "Clock: America/Phoenix, no summer time");
  EXPECT_EQ(LineOf({Choice::kOtherZone, "Europe/London", false}, kChicago),
            "Clock: Europe/London (your choice), summer time from March to October; its standard time is GMT, not "
            "GMT-6");
}

TEST(ClockTexts, TheLineTellsWhyThereIsNoSummerTime) {
  EXPECT_EQ(LineOf({}, kChicagoAtFour),
            "No zone near here has GMT-4; times will be told without summer time. The zone here is America/Chicago "
            "(GMT-6).");
  EXPECT_EQ(LineOf({}, {-6500, -3000, -2, 0}), "No zone is known near here; times will be told in GMT-2 all year.");
  EXPECT_EQ(LineOf({Choice::kNoSummerTime, "", false}, kChicago),
            "Clock: GMT-6 all year; you have chosen no summer time here");
  EXPECT_EQ(LineOf({Choice::kZoneFound, "", true}, kChicago), "Clock: GMT-6 all year; summer time is off everywhere");
}

// Kathmandu's move of 1986 was the only one to come.
TEST(ClockTexts, TheLineTellsASingleChange) {
  const sun::PackedPlace kathmandu = {2743, 8519, 5, 45};
  EXPECT_EQ(solar::LineText(solar::ClockBy({}, kathmandu), kathmandu, 504901799),
            "Clock: Asia/Kathmandu, GMT+5:45 from January 1986 on");
}

TEST(ClockTexts, EveryWordOfASearchMustBeInTheName) {
  const auto names = [](const char* typed) {
    std::vector<std::string> found;
    for (const size_t zone : solar::ZonesMatching(typed)) found.emplace_back(sun::ZoneId(zone));
    return found;
  };
  EXPECT_THAT(names("new york"), testing::ElementsAre("America/New_York"));
  EXPECT_THAT(names(" york_AMERICA"), testing::ElementsAre("America/New_York"));
  EXPECT_THAT(names("europe/lon"), testing::ElementsAre("Europe/London"));
  EXPECT_THAT(names("?"), testing::IsEmpty());
  EXPECT_EQ(names("").size(), sun::ZoneCount());
}

}  // namespace
