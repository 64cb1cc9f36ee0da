#include <gtest/gtest.h>

#include <string_view>

#include "tests/contract/date_filter_library.h"

namespace {

class CivilcalContract : public testing::Test {
 protected:
  CalendarDate DateOf(int32_t absoluteDay) {
    CalendarDate date;
    library_.foreignFromAbsolute(absoluteDay, &date);
    return date;
  }

  DateFilterLibrary library_{"CIVILCAL.DLL"};
};

TEST_F(CivilcalContract, ReportsInterfaceVersion267) {
  EXPECT_EQ(library_.getAPIVersion(), 267u);
}

TEST_F(CivilcalContract, DescribesItself) {
  char description[256];
  library_.getDescriptionString(description);
  EXPECT_STREQ(description, "Gregorian calendar");
}

TEST_F(CivilcalContract, ConvertsBothWaysAndFridaysLeaveFiveOverSevens) {
  const CalendarDate friday = {5, 1, 2024};
  const int32_t absolute = library_.absoluteFromForeign(&friday);
  EXPECT_EQ(absolute % 7, 5);
  EXPECT_EQ(absolute, 738890);  // by CPython's date.toordinal
  const CalendarDate back = DateOf(absolute);
  EXPECT_EQ(back.uDay, 5u);
  EXPECT_EQ(back.uMonth, 1u);
  EXPECT_EQ(back.uYear, 2024u);
}

TEST_F(CivilcalContract, ClampsWhatLiesOutsideItsYears) {
  EXPECT_EQ(DateOf(0).uYear, 1u);
  EXPECT_EQ(DateOf(INT32_MIN).uYear, 1u);
  EXPECT_EQ(DateOf(INT32_MAX).uYear, 9999u);
  EXPECT_EQ(DateOf(INT32_MAX).uMonth, 12u);
  EXPECT_EQ(DateOf(INT32_MAX).uDay, 31u);
}

TEST_F(CivilcalContract, KnowsItsMonths) {
  EXPECT_EQ(library_.getLastDayOfMonth(2, 2024), 29u);
  EXPECT_EQ(library_.getLastDayOfMonth(2, 2100), 28u);
  EXPECT_EQ(library_.getLastDayOfMonth(13, 2024), 0u);
  EXPECT_EQ(library_.getLastMonthOfYear(2024), 12u);
  char name[256];
  library_.getMonthName(5, 2024, name);
  EXPECT_STREQ(name, "May");
  library_.getMonthNameEx(5, 0, name, sizeof name, 2024, 20);
  EXPECT_STREQ(name, "maggio");
}

TEST_F(CivilcalContract, DatesThanksgiving) {
  for (uint32_t index = 0; index < library_.getHolidayCount(); ++index) {
    char name[256];
    library_.getHolidayName(index, name);
    if (std::string_view(name) != "Thanksgiving (US)") continue;
    CalendarDate date;
    EXPECT_NE(library_.getHolidayDate(index, 2024, &date), 0u);
    EXPECT_EQ(date.uDay, 28u);
    EXPECT_EQ(date.uMonth, 11u);
    EXPECT_EQ(library_.getHolidayFirstYear(index), 1863u);
    return;
  }
  FAIL() << "no such holiday";
}

TEST_F(CivilcalContract, SurvivesAnyArgument) {
  ExpectSurvivesAnyArgument(library_);
}
TEST_F(CivilcalContract, CutsNamesToTheirBuffer) {
  ExpectNamesAreCutToTheirBuffer(library_);
}
TEST_F(CivilcalContract, HolidaysAreConsistent) {
  ExpectHolidaysAreConsistent(library_, 2024);
}

}  // namespace
