// Expected values are worked out by hand.
#include "app/core/date_step.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

uint32_t LastDay(uint32_t month, uint32_t year) {
  using namespace std::chrono;
  return unsigned(year_month_day_last(std::chrono::year(int(year)), month_day_last(std::chrono::month(month))).day());
}

void ExpectStep(const CalendarDate& from, DateField field, bool up, const CalendarDate& to) {
  const CalendarDate next = StepDate(from, field, up, LastDay);
  EXPECT_EQ(next.uDay, to.uDay);
  EXPECT_EQ(next.uMonth, to.uMonth);
  EXPECT_EQ(next.uYear, to.uYear);
}

}  // namespace

TEST(DateStep, DaysRollIntoTheNextMonthAndYear) {
  ExpectStep({14, 5, 2001}, DateField::kDay, true, {15, 5, 2001});
  ExpectStep({31, 1, 2001}, DateField::kDay, true, {1, 2, 2001});
  ExpectStep({28, 2, 2001}, DateField::kDay, true, {1, 3, 2001});
  ExpectStep({28, 2, 2004}, DateField::kDay, true, {29, 2, 2004});
  ExpectStep({31, 12, 2000}, DateField::kDay, true, {1, 1, 2001});
}

TEST(DateStep, DaysRollBackIntoThePreviousMonthAndYear) {
  ExpectStep({14, 5, 2001}, DateField::kDay, false, {13, 5, 2001});
  ExpectStep({1, 3, 2001}, DateField::kDay, false, {28, 2, 2001});
  ExpectStep({1, 3, 2004}, DateField::kDay, false, {29, 2, 2004});
  ExpectStep({1, 1, 2001}, DateField::kDay, false, {31, 12, 2000});
}

TEST(DateStep, MonthsRollThroughYearsAndKeepTheDayWithinTheMonth) {
  ExpectStep({15, 12, 2000}, DateField::kMonth, true, {15, 1, 2001});
  ExpectStep({15, 1, 2001}, DateField::kMonth, false, {15, 12, 2000});
  ExpectStep({31, 1, 2001}, DateField::kMonth, true, {28, 2, 2001});
  ExpectStep({31, 5, 2001}, DateField::kMonth, false, {30, 4, 2001});
}

TEST(DateStep, YearsMakeTheLeapDayThe28th) {
  ExpectStep({29, 2, 2004}, DateField::kYear, true, {28, 2, 2005});
  ExpectStep({29, 2, 2004}, DateField::kYear, false, {28, 2, 2003});
  ExpectStep({1, 7, 2004}, DateField::kYear, true, {1, 7, 2005});
}

TEST(DateStep, AStepThatLeavesTheYearsDoesNothing) {
  ExpectStep({1, 1, 1583}, DateField::kDay, false, {1, 1, 1583});
  ExpectStep({9, 1, 1583}, DateField::kMonth, false, {9, 1, 1583});
  ExpectStep({9, 9, 1583}, DateField::kYear, false, {9, 9, 1583});
  ExpectStep({31, 12, 3000}, DateField::kDay, true, {31, 12, 3000});
  ExpectStep({9, 12, 3000}, DateField::kMonth, true, {9, 12, 3000});
  ExpectStep({9, 9, 3000}, DateField::kYear, true, {9, 9, 3000});
  ExpectStep({9, 9, 0}, DateField::kYear, false, {9, 9, 0});
}
