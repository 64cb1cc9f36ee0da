#include "app/document_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "app/core/document_words.h"

namespace {

TEST(DocumentNames, EveryLanguageNamesTheDaysOfTheWeek) {
  for (const WordsLanguage& language : WordsLanguages()) {
    std::set<std::string> names;
    for (int32_t weekday = 0; weekday < 7; ++weekday) names.insert(WeekdayName(weekday, language.code));
    EXPECT_EQ(names.size(), 7u) << language.englishName;
    EXPECT_FALSE(names.contains("")) << language.englishName;
  }
}

// By hand; Unicode CLDR has the same.
TEST(DocumentNames, TheWeekBeginsWithSunday) {
  EXPECT_EQ(WeekdayName(0, 1), "Sunday");
  EXPECT_EQ(WeekdayName(6, 1), "Saturday");
  EXPECT_EQ(WeekdayName(5, 3), "Freitag");
  EXPECT_EQ(WeekdayName(1, 17), "понедельник");
  EXPECT_EQ(WeekdayName(0, 99), "Sunday");
  EXPECT_EQ(WeekdayName(-1, 1), "");
  EXPECT_EQ(WeekdayName(7, 1), "");
}

}  // namespace
