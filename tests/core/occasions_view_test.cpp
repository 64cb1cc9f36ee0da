// Which days the list of occasions shows, and what of it is still to come.
#include <gtest/gtest.h>

#include "libraries/calendar/jewish.h"
#include "libraries/occasions/shown_days.h"
#include "tests/core/occasions_places.h"

namespace occasions {
namespace {

// Rosh Hashana of 5787 is 12 September 2026, that of 5788 is 2 October 2027 (published calendars).
TEST(ShownDays, AYearOfEitherCalendarIsItsDaysAndAJewishOneItsEveToo) {
  EXPECT_EQ(DaysOfYear(Span::kJewishYear, 5787), (Days{DayOf(11, 9, 2026), DayOf(1, 10, 2027)}));
  EXPECT_EQ(DaysOfYear(Span::kCivilYear, 2026), (Days{DayOf(1, 1, 2026), DayOf(31, 12, 2026)}));
}

TEST(ShownDays, EveryDayOfAYearThatCanBeListedHasOccasions) {
  for (const Span span : {Span::kJewishYear, Span::kCivilYear}) {
    const YearLimits limits = YearLimitsOf(span);
    EXPECT_GE(DaysOfYear(span, limits.first).first, DayOf(1, 1, 1583));
    EXPECT_LE(DaysOfYear(span, limits.last).last, DayOf(31, 12, 3000));
  }
  // The years beside them are not all there.
  EXPECT_LT(DaysOfYear(Span::kJewishYear, 5343).first, DayOf(1, 1, 1583));
  EXPECT_GT(DaysOfYear(Span::kJewishYear, 6761).last, DayOf(31, 12, 3000));
}

TEST(ShownDays, TheYearOfADayIsBroughtIntoTheLimits) {
  EXPECT_EQ(YearOfDay(Span::kJewishYear, DayOf(11, 9, 2026)), 5786);
  EXPECT_EQ(YearOfDay(Span::kJewishYear, DayOf(12, 9, 2026)), 5787);
  EXPECT_EQ(YearOfDay(Span::kCivilYear, DayOf(12, 9, 2026)), 2026);
  EXPECT_EQ(YearOfDay(Span::kJewishYear, DayOf(1, 1, 1583)), 5344);
  EXPECT_EQ(YearOfDay(Span::kJewishYear, DayOf(31, 12, 3000)), 6760);
  EXPECT_EQ(YearOfDay(Span::kCivilYear, DayOf(1, 1, 1500)), 1583);
}

TEST(ShownDays, AMomentIsToComeUntilItsMinuteAndADayUntilItIsOver) {
  const ClockMoment now = {1000, 600};
  const auto row = [](int32_t day, Moment moment, std::optional<int32_t> minute) {
    return Row{.day = day, .moment = moment, .minute = minute};
  };
  EXPECT_TRUE(IsToCome(row(1000, Moment::kCandles, 600), now));
  EXPECT_FALSE(IsToCome(row(1000, Moment::kCandles, 599), now));
  EXPECT_TRUE(IsToCome(row(1001, Moment::kCandles, 0), now));
  EXPECT_FALSE(IsToCome(row(999, Moment::kCandles, 1439), now));
  EXPECT_TRUE(IsToCome(row(1000, Moment::kWholeDay, {}), now));
  EXPECT_FALSE(IsToCome(row(999, Moment::kWholeDay, {}), now));
  EXPECT_FALSE(IsToCome(row(1001, Moment::kFastBegins, {}), now)) << "does not occur";
}

}  // namespace
}  // namespace occasions
