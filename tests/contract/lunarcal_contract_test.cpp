#include <gtest/gtest.h>

#include <string_view>

#include "tests/contract/date_filter_library.h"

namespace {

class LunarcalContract : public testing::Test {
 protected:
  DateFilterLibrary library_{"LUNARCAL.DLL"};
};

TEST_F(LunarcalContract, ReportsTheSameInterfaceVersion) {
  EXPECT_EQ(library_.getAPIVersion(), 267u);
}

TEST_F(LunarcalContract, DescribesItself) {
  char description[256];
  library_.getDescriptionString(description);
  EXPECT_STREQ(description, "Jewish calendar");
}

// 16 September 2023, by any printed calendar the first day of 5784, is the absolute day 738779.
TEST_F(LunarcalContract, ConvertsBothWays) {
  CalendarDate date;
  library_.foreignFromAbsolute(738779, &date);
  EXPECT_EQ(date.uDay, 1u);
  EXPECT_EQ(date.uMonth, 7u);
  EXPECT_EQ(date.uYear, 5784u);
  EXPECT_EQ(library_.absoluteFromForeign(&date), 738779);
  library_.foreignFromAbsolute(738778, &date);
  EXPECT_EQ(date.uDay, 29u);
  EXPECT_EQ(date.uMonth, 6u);
  EXPECT_EQ(date.uYear, 5783u);
}

TEST_F(LunarcalContract, KnowsItsMonths) {
  EXPECT_EQ(library_.getLastMonthOfYear(5784), 13u);
  EXPECT_EQ(library_.getLastMonthOfYear(5785), 12u);
  EXPECT_EQ(library_.getLastDayOfMonth(12, 5784), 30u);
  EXPECT_EQ(library_.getLastDayOfMonth(12, 5785), 29u);
  EXPECT_EQ(library_.getLastDayOfMonth(13, 5785), 0u);
}

TEST_F(LunarcalContract, NamesMonthsByYearAndLanguage) {
  char name[256];
  library_.getMonthNameEx(12, 0, name, sizeof name, 5785, 1);
  EXPECT_STREQ(name, "Adar");
  library_.getMonthNameEx(12, 0, name, sizeof name, 5784, 1);
  EXPECT_STREQ(name, "Adar I");
  library_.getMonthNameEx(13, 0, name, sizeof name, 5784, 1);
  EXPECT_STREQ(name, "Adar II");
  library_.getMonthNameEx(13, 0, name, sizeof name, 5785, 1);
  EXPECT_STREQ(name, "");
  library_.getMonthNameEx(7, 0, name, sizeof name, 5785, 3);
  EXPECT_STREQ(name, "Tischri");
}

TEST_F(LunarcalContract, DatesHolidaysInItsOwnCalendar) {
  for (uint32_t index = 0; index < library_.getHolidayCount(); ++index) {
    char name[256];
    library_.getHolidayName(index, name);
    if (std::string_view(name) != "Yom HaAtzma'ut") continue;
    CalendarDate date;
    EXPECT_NE(library_.getHolidayDate(index, 5784, &date), 0u);
    EXPECT_EQ(date.uDay, 6u);  // 14 May 2024
    EXPECT_EQ(date.uMonth, 2u);
    EXPECT_EQ(date.uYear, 5784u);
    EXPECT_EQ(library_.getHolidayFirstYear(index), 5709u);
    return;
  }
  FAIL() << "no such holiday";
}

TEST_F(LunarcalContract, SurvivesAnyArgument) {
  ExpectSurvivesAnyArgument(library_);
}
TEST_F(LunarcalContract, CutsNamesToTheirBuffer) {
  ExpectNamesAreCutToTheirBuffer(library_);
}
TEST_F(LunarcalContract, HolidaysAreConsistent) {
  ExpectHolidaysAreConsistent(library_, 5785);
}

}  // namespace
