#include "companion/datecore.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

std::string MonthName(uint32_t month, uint32_t year, uint32_t language) {
  char name[256] = "?";
  LunarGetMonthNameEx(month, 0, name, sizeof name, year, language);
  return name;
}

}  // namespace

// 16 September 2023, by any printed calendar the first day of 5784, is the day number 738779.
TEST(DatecoreContract, ConvertsAGregorianDateToAJewishOne) {
  const CalendarDate gregorian{16, 9, 2023};
  ASSERT_EQ(CivilAbsoluteFromDate(&gregorian), 738779);
  CalendarDate jewish{};
  LunarDateFromAbsolute(738779, &jewish);
  EXPECT_EQ(jewish.uDay, 1u);
  EXPECT_EQ(jewish.uMonth, 7u);
  EXPECT_EQ(jewish.uYear, 5784u);
}

TEST(DatecoreContract, NullDatesAreHarmless) {
  EXPECT_EQ(CivilAbsoluteFromDate(nullptr), 0);
  LunarDateFromAbsolute(738779, nullptr);
}

// Unicode CLDR 48.
TEST(DatecoreContract, NamesTishriInEveryLanguage) {
  const struct {
    uint32_t language;
    const char* name;
  } names[] = {{1, "Tishri"},
               {3, "Tischri"},
               {4, "\xFA\xF9\xF8\xE9"},
               {5, "tichri"},
               {6, "tishri"},
               {7,
                "ti\x9Ar\xED"
                "kuu"},
               {8, "Tishr\xED"},
               {9, "Tisjrie"},
               {10, "tishri"},
               {11, "tishri"},
               {12, "Tishri"},
               {14, "Tisri"},
               {20, "Tishri"},
               {21, "Tiszri"},
               {99, "Tishri"}};
  for (const auto& row : names) EXPECT_EQ(MonthName(7, 5784, row.language), row.name) << row.language;
}

TEST(DatecoreContract, TheYearDecidesWhichAdarItIs) {
  EXPECT_EQ(MonthName(12, 5785, 1), "Adar");
  EXPECT_EQ(MonthName(12, 5784, 1), "Adar I");
  EXPECT_EQ(MonthName(13, 5784, 1), "Adar II");
  EXPECT_EQ(MonthName(13, 5785, 1), "");
}

TEST(DatecoreContract, AMonthNameIsCutToItsBuffer) {
  char name[5] = "????";
  LunarGetMonthNameEx(7, 0, name, sizeof name, 5784, 1);
  EXPECT_STREQ(name, "Tish");
  LunarGetMonthNameEx(7, 0, name, 0, 5784, 1);
  EXPECT_STREQ(name, "Tish");
  LunarGetMonthNameEx(7, 0, nullptr, 9, 5784, 1);
}

TEST(DatecoreContract, AnswersTheJewishHolidays) {
  const uint32_t count = LunarGetHolidayCount();
  bool found = false;
  for (uint32_t index = 0; index < count; ++index) {
    char name[256];
    ASSERT_NE(LunarGetHolidayNameEx(index, name, sizeof name, 1), 0u);
    if (std::strcmp(name, "Yom Kippur") != 0) continue;
    found = true;
    EXPECT_EQ(LunarGetHolidayFirstYear(index), 1u);
    CalendarDate date{};
    ASSERT_NE(LunarGetHolidayDate(index, 5784, &date), 0u);
    EXPECT_EQ(date.uDay, 10u);
    EXPECT_EQ(date.uMonth, 7u);
    EXPECT_EQ(date.uYear, 5784u);
  }
  EXPECT_TRUE(found);
  char name[8] = "?";
  EXPECT_EQ(LunarGetHolidayNameEx(count, name, sizeof name, 1), 0u);
  EXPECT_STREQ(name, "");
  EXPECT_EQ(LunarGetHolidayFirstYear(count), 0u);
  CalendarDate untouched{5, 5, 5};
  EXPECT_EQ(LunarGetHolidayDate(count, 5784, &untouched), 0u);
  EXPECT_EQ(untouched.uDay, 5u);
}
