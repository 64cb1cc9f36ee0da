// The molad and the tekufot. Announced moladot are those of the printed calendars of 5785 (Tishri: Thursday, 21 minutes
// and 13 chalakim after 3 at night; Shevat: Wednesday, 17 minutes and 17 chalakim after 6 in the morning); the rest is
// computed by hand.
#include "libraries/calendar/molad.h"

#include <gtest/gtest.h>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/calendar/tekufa.h"

namespace calendar {
namespace {

// From 0:00 of the absolute day 0.
int64_t CivilParts(const Date& date, int64_t hour, int64_t minute, int64_t chalakim) {
  return AbsoluteFromGregorian(date) * kPartsPerDay + Parts(hour, minute * 18 + chalakim);
}

int64_t FromMidnight(int32_t month, int32_t year) {
  return MoladParts(month, year) - Parts(6, 0);
}

TEST(Molad, IsTheOneThatIsAnnounced) {
  EXPECT_EQ(FromMidnight(kTishri, 5785), CivilParts({3, 10, 2024}, 3, 21, 13));
  EXPECT_EQ(FromMidnight(kShevat, 5785), CivilParts({29, 1, 2025}, 6, 17, 17));
}

TEST(Molad, FirstOfAllWasBaharad) {
  // The evening before Monday, 1 Tishri 1, at 5 hours 204 parts after 18:00.
  EXPECT_EQ(MoladParts(kTishri, 1), JewishNewYear(1) * kPartsPerDay + Parts(5, 204));
}

TEST(Molad, MonthsFollowOneAnotherOverTheTurnOfTheYearAndTheThirteenthMonth) {
  for (int32_t year = 5770; year < 5789; ++year) {
    int64_t before = MoladParts(kTishri, year);
    const int32_t last = MonthsInJewishYear(year);
    for (int32_t step = 1; step <= last; ++step) {
      const int32_t index = kTishri + step;
      const bool isNextYear = step == last;
      const int32_t month = isNextYear ? static_cast<int32_t>(kTishri) : index <= last ? index : index - last;
      const int64_t molad = MoladParts(month, isNextYear ? year + 1 : year);
      EXPECT_EQ(molad - before, kPartsPerMonth) << year << " " << month;
      before = molad;
    }
  }
}

TEST(Tekufa, SeasonsAreThoseOfShmuel) {
  const auto minuteOf = [](const Date& date, int64_t hour, int64_t minute) {
    return AbsoluteFromGregorian(date) * kMinutesPerDay + hour * 60 + minute;
  };
  EXPECT_EQ(TekufaMinute(Tekufa::kTishri, 5770), minuteOf({7, 10, 2009}, 9, 0));
  // 91 days 7.5 hours later, and twice that.
  EXPECT_EQ(TekufaMinute(Tekufa::kTevet, 5770), minuteOf({6, 1, 2010}, 16, 30));
  EXPECT_EQ(TekufaMinute(Tekufa::kNisan, 5770), minuteOf({8, 4, 2010}, 0, 0));
  EXPECT_EQ(TekufaMinute(Tekufa::kTishri, 5771), minuteOf({7, 10, 2010}, 15, 0));
}

TEST(Tekufa, BelongsToTheNextDayFromSixInTheEvening) {
  // 21:00 on 7 October 2011; 18:00 on Tuesday, 7 April 2009, before the blessing of the sun.
  EXPECT_EQ(TekufaDay(Tekufa::kTishri, 5772), AbsoluteFromGregorian({8, 10, 2011}));
  EXPECT_EQ(TekufaDay(Tekufa::kNisan, 5769), AbsoluteFromGregorian({8, 4, 2009}));
  EXPECT_EQ(TekufaDay(Tekufa::kTishri, 5771), AbsoluteFromGregorian({7, 10, 2010}));
}

}  // namespace
}  // namespace calendar
