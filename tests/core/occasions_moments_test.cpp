// Moments that no calendar to compare with tells, in New York. PyEphem's sun there (40 degrees 43' north, 74 degrees
// west, no refraction but the horizon's 34'): sunrise of 8 April 2009 6:27:56, 7.083 degrees on 21 April 2024 20:17:26,
// lower culmination 29 September 2024 0:46:14, sunset 2 October 2024 18:35:28, 16.1 and 7.083 degrees on 11 November
// 2024 5:14:39 and 17:16:05.
#include <gtest/gtest.h>

#include "tests/core/occasions_days.h"

namespace occasions {
namespace {

std::string TimeOn(int32_t year, int32_t month, int32_t day, Occasion occasion, Moment moment, int32_t number = 0) {
  const int32_t civil = CivilDay(year, month, day);
  return TimeText(TheRow(RowsBetween(InNewYork(), civil, civil), occasion, moment, number));
}

TEST(OccasionMoments, SunIsBlessedFromSunriseToTheNearestMinute) {
  EXPECT_EQ(TimeOn(2009, 4, 8, Occasion::kBlessingOfTheSun, Moment::kFrom), "06:28");
}

TEST(OccasionMoments, ChametzIsSearchedForFromNightfallRoundedUp) {
  EXPECT_EQ(TimeOn(2024, 4, 21, Occasion::kSearchForChametz, Moment::kFrom), "20:18");
}

TEST(OccasionMoments, SelichotAreSaidFromMidnightRoundedUp) {
  EXPECT_EQ(TimeOn(2024, 9, 29, Occasion::kSelichot, Moment::kFrom), "00:47");
}

TEST(OccasionMoments, EruvTavshilinIsMadeBeforeCandleLighting) {
  EXPECT_EQ(TimeOn(2024, 10, 2, Occasion::kEruvTavshilin, Moment::kUntil), "18:17");
}

TEST(OccasionMoments, FastsOfBehabAreFromDawnRoundedDownToNightfallRoundedUp) {
  EXPECT_EQ(TimeOn(2024, 11, 11, Occasion::kBehab, Moment::kFastBegins, 1), "05:14");
  EXPECT_EQ(TimeOn(2024, 11, 11, Occasion::kBehab, Moment::kFastEnds, 1), "17:17");
}

}  // namespace
}  // namespace occasions
