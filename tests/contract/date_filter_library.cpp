#include "tests/contract/date_filter_library.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace {

constexpr uint32_t kNumbers[] = {0, 1, 13, 14, 9999, 10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
constexpr uint32_t kEnglish = 1;

}  // namespace

void ExpectSurvivesAnyArgument(const DateFilterLibrary& library) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  char name[256];
  for (const uint32_t month : kNumbers) {
    for (const uint32_t year : kNumbers) {
      library.getMonthName(month, year, name);
      const uint32_t days = library.getLastDayOfMonth(month, year);
      EXPECT_EQ(days == 0, name[0] == '\0') << month << ' ' << year;
      const uint32_t months = library.getLastMonthOfYear(year);
      EXPECT_TRUE(months == 12 || months == 13);
      for (const uint32_t day : kNumbers) {
        const CalendarDate date = {day, month, year};
        CalendarDate back;
        library.foreignFromAbsolute(library.absoluteFromForeign(&date), &back);
        EXPECT_TRUE(back.uDay >= 1 && back.uDay <= 31 && back.uYear >= 1 && back.uYear <= 9999);
        EXPECT_GE(library.getLastDayOfMonth(back.uMonth, back.uYear), back.uDay);
      }
    }
  }
  for (const int32_t day : {kLeast, -1373428, 0, kMost}) {
    CalendarDate date;
    library.foreignFromAbsolute(day, &date);
    EXPECT_TRUE(date.uYear >= 1 && date.uYear <= 9999) << day;
  }
  library.getDescriptionString(nullptr);
  library.getMonthName(1, 2024, nullptr);
  library.getMonthNameEx(1, 0, nullptr, 256, 2024, kEnglish);
  library.foreignFromAbsolute(738000, nullptr);
  EXPECT_EQ(library.absoluteFromForeign(nullptr), 0);
  EXPECT_NE(library.getHolidayName(0, nullptr), 0u);
  EXPECT_NE(library.getHolidayNameEx(0, nullptr, 256, kEnglish), 0u);
  EXPECT_NE(library.getHolidayDate(0, 2024, nullptr), 0u);
}

void ExpectNamesAreCutToTheirBuffer(const DateFilterLibrary& library) {
  char full[256];
  library.getMonthName(7, 5785, full);
  const std::string_view whole = full;
  for (uint32_t size = 1; size <= whole.size() + 2; ++size) {
    char name[32];
    std::memset(name, '#', sizeof name);
    library.getMonthNameEx(7, 0, name, size, 5785, kEnglish);
    EXPECT_EQ(std::string_view(name), whole.substr(0, size - 1));
    EXPECT_EQ(name[size], '#');
  }
  char untouched = '#';
  library.getMonthNameEx(7, 0, &untouched, 0, 5785, kEnglish);
  EXPECT_NE(library.getHolidayNameEx(0, &untouched, 0, kEnglish), 0u);
  EXPECT_EQ(untouched, '#');
  char beginning[4];
  EXPECT_NE(library.getHolidayNameEx(0, beginning, sizeof beginning, kEnglish), 0u);
  library.getHolidayName(0, full);
  EXPECT_EQ(std::string_view(beginning), std::string_view(full).substr(0, 3));
}

void ExpectHolidaysAreConsistent(const DateFilterLibrary& library, uint32_t year) {
  const uint32_t count = library.getHolidayCount();
  EXPECT_GT(count, 0u);
  for (uint32_t index = 0; index < count; ++index) {
    char name[256] = "";
    char otherLanguage[256] = "";
    EXPECT_NE(library.getHolidayName(index, name), 0u);
    EXPECT_NE(name[0], '\0');
    EXPECT_NE(library.getHolidayNameEx(index, otherLanguage, sizeof otherLanguage, 3), 0u);
    EXPECT_STREQ(name, otherLanguage);
    const uint32_t firstYear = library.getHolidayFirstYear(index);
    EXPECT_TRUE(firstYear >= 1 && firstYear <= year) << name;
    CalendarDate date = {77, 77, 77};
    if (library.getHolidayDate(index, year, &date) != 0) {
      EXPECT_EQ(date.uYear, year) << name;
      EXPECT_LE(date.uDay, library.getLastDayOfMonth(date.uMonth, year)) << name;
    } else {
      EXPECT_EQ(date.uDay, 77u) << name;
    }
    EXPECT_EQ(library.getHolidayDate(index, firstYear - 1, &date), 0u) << name;
    EXPECT_EQ(library.getHolidayDate(index, 0xFFFFFFFF, &date), 0u) << name;
  }
  for (const uint32_t index : {count, 0x80000000u, 0xFFFFFFFFu}) {
    char name[256] = "left over";
    CalendarDate date = {77, 77, 77};
    EXPECT_EQ(library.getHolidayName(index, name), 0u);
    EXPECT_STREQ(name, "");
    EXPECT_EQ(library.getHolidayDate(index, year, &date), 0u);
    EXPECT_EQ(date.uDay, 77u);
    EXPECT_EQ(library.getHolidayFirstYear(index), 0u);
  }
}
