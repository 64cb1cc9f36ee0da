// Expected values are worked out by hand.
#include "app/core/range_check.h"

#include <gtest/gtest.h>

#include <chrono>

namespace {

uint32_t LastDay(uint32_t month, uint32_t year) {
  using namespace std::chrono;
  return unsigned(year_month_day_last(std::chrono::year(int(year)), month_day_last(std::chrono::month(month))).day());
}

int32_t Absolute(const CalendarDate& date) {
  return static_cast<int32_t>(date.uYear * 372 + date.uMonth * 31 + date.uDay);  // in order, which is all that counts
}

constexpr DateRules kRules{LastDay, Absolute};

void ExpectFault(const char* start, const char* end, const char* message, RangeField field) {
  const RangeCheck check = CheckRange(start, end, kRules);
  ASSERT_TRUE(check.fault.has_value()) << start << " - " << end;
  EXPECT_EQ(check.fault->message, message);
  EXPECT_EQ(check.fault->field, field) << message;
}

}  // namespace

TEST(ParseDate, TakesDatesWithAndWithoutLeadingZeros) {
  for (const char* text : {"1.1.2000", "01.01.2000", "0001.001.02000"}) {
    const auto date = ParseDate(text);
    ASSERT_TRUE(date.has_value()) << text;
    EXPECT_EQ(date->uDay, 1u);
    EXPECT_EQ(date->uMonth, 1u);
    EXPECT_EQ(date->uYear, 2000u);
  }
}

TEST(ParseDate, TakesNothingElse) {
  for (const char* text : {"1.1.2000 ", " 1.1.2000", "1/1/2000", "1. 1.2000", "1.1", "1", "", "1.1.2000.", "-1.1.2000",
                           "1.1.2000x", "1-1-2000", "+1.1.2000", "1.1,2000"}) {
    EXPECT_FALSE(ParseDate(text).has_value()) << text;
  }
}

TEST(ParseDate, AnEmptyRunOfDigitsIsZero) {
  const auto date = ParseDate("..");
  ASSERT_TRUE(date.has_value());
  EXPECT_EQ(date->uDay + date->uMonth + date->uYear, 0u);
}

TEST(ParseDate, ANumberBeyondThirtyTwoBitsIsTheLargest) {
  EXPECT_EQ(ParseDate("4294967297.1.2000")->uDay, UINT32_MAX);
  EXPECT_EQ(ParseDate("99999999999999999999999999.1.2000")->uDay, UINT32_MAX);
}

TEST(CheckRange, TakesBothDates) {
  const RangeCheck check = CheckRange("1.3.2007", "02.04.2008", kRules);
  EXPECT_FALSE(check.fault.has_value());
  EXPECT_EQ(check.range.start.uMonth, 3u);
  EXPECT_EQ(check.range.end.uYear, 2008u);
}

TEST(CheckRange, ARangeOfOneDayIsAccepted) {
  EXPECT_FALSE(CheckRange("1.1.2000", "1.1.2000", kRules).fault);
}
TEST(CheckRange, TheLimitsOfYearsAreAccepted) {
  EXPECT_FALSE(CheckRange("1.1.1583", "31.12.3000", kRules).fault);
}
TEST(CheckRange, TheLeapDayIsAccepted) {
  EXPECT_FALSE(CheckRange("29.2.2000", "29.2.2004", kRules).fault);
}

TEST(CheckRange, EachFaultHasItsMessageAndField) {
  ExpectFault("1/1/2000", "1.1.2000", "Start date is not a valid date", RangeField::kStart);
  ExpectFault("1.1.2000", "1.1.2000 ", "End date is not a valid date", RangeField::kEnd);
  ExpectFault("1.13.2000", "1.1.2000", "Start month must be in the range 1-12", RangeField::kStart);
  ExpectFault("1.1.2000", "1.0.2000", "End month must be in the range 1-12", RangeField::kEnd);
  ExpectFault("1.1.1582", "1.1.2000", "Start year must be in the range 1583-3000", RangeField::kStart);
  ExpectFault("1.1.2000", "1.1.3001", "End year must be in the range 1583-3000", RangeField::kEnd);
  ExpectFault("31.2.2001", "1.1.2002", "Start day must be in the range 1-28", RangeField::kStart);
  ExpectFault("1.1.2000", "0.4.2001", "End day must be in the range 1-30", RangeField::kEnd);
  ExpectFault("2.1.2000", "1.1.2000", "The end date must be later than the start date", RangeField::kStart);
}

TEST(CheckRange, TheFirstFaultOfTheOrderIsReported) {
  ExpectFault("x", "x", "Start date is not a valid date", RangeField::kStart);
  ExpectFault("1.13.1582", "x", "End date is not a valid date", RangeField::kEnd);
  ExpectFault("40.13.1582", "40.13.1582", "Start month must be in the range 1-12", RangeField::kStart);
  ExpectFault("40.12.1582", "40.13.1582", "End month must be in the range 1-12", RangeField::kEnd);
  ExpectFault("40.12.1582", "40.12.1582", "Start year must be in the range 1583-3000", RangeField::kStart);
  ExpectFault("40.12.2000", "40.12.1582", "End year must be in the range 1583-3000", RangeField::kEnd);
  ExpectFault("40.12.2000", "40.12.1999", "Start day must be in the range 1-31", RangeField::kStart);
  ExpectFault("31.12.2000", "40.12.1999", "End day must be in the range 1-31", RangeField::kEnd);
}
