// The week that the choice of a language shows.
#include "libraries/lections/sample_week.h"

#include <gtest/gtest.h>

#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using namespace lections_test;

int32_t Day(int32_t day, int32_t month, int32_t year) {
  return calendar::AbsoluteFromGregorian({day, month, year});
}

// Sunday 1 to Shabbat 7 June 2025: Shavuot on Monday and Tuesday, Naso on Shabbat; the readings of the printed
// chumashim.
TEST(LectionsSampleWeek, HasTheDaysWithReadingsFromSundayToShabbat) {
  const Settings settings = Of(Land::kDiaspora, Customs::kAshkenazi);
  const std::string week =
      "02.06.2025\n"
      "Shavuot, day 1: Exodus 19:1-20:23\n"
      "Maftir: Numbers 28:26-31\n"
      "Ezekiel 1:1-28, 3:12\n"
      "\n"
      "03.06.2025\n"
      "Shavuot, day 2: Deuteronomy 15:19-16:17\n"
      "Maftir: Numbers 28:26-31\n"
      "Scroll: Ruth\n"
      "Habakkuk 3:1-19\n"
      "\n"
      "07.06.2025\n"
      "Nasso: Numbers 4:21-7:89\n"
      "Judges 13:2-25";
  for (int32_t day = 1; day <= 7; ++day) EXPECT_EQ(SampleWeek(Day(day, 6, 2025), settings), week) << day;
  EXPECT_NE(SampleWeek(Day(31, 5, 2025), settings), week);
  EXPECT_NE(SampleWeek(Day(8, 6, 2025), settings), week);
}

TEST(LectionsSampleWeek, AWeekWithoutFestivalsShowsItsMondayAndThursdayToo) {
  Settings settings = Of(Land::kIsrael, Customs::kSephardi);
  const std::string week = SampleWeek(Day(6, 11, 2024), settings);
  EXPECT_EQ(week,
            "04.11.2024\n"
            "Lech Lecha: Genesis 12:1-13\n"
            "\n"
            "07.11.2024\n"
            "Lech Lecha: Genesis 12:1-13\n"
            "\n"
            "09.11.2024\n"
            "Lech Lecha: Genesis 12:1-17:27\n"
            "Isaiah 40:27-41:16");
  settings.optional.mondayAndThursday = true;
  EXPECT_EQ(SampleWeek(Day(6, 11, 2024), settings), week);
}

TEST(LectionsSampleWeek, IsInTheLettersOfTheLanguage) {
  Settings settings = Of(Land::kIsrael, Customs::kAshkenazi);
  settings.language = 4;
  const std::string week = SampleWeek(Day(16, 11, 2024), settings);
  EXPECT_NE(week.find("16.11.2024\nוירא: בראשית יח:א-כב:כד\nמלכים ב ד:א-לז"), std::string::npos) << week;
}

TEST(LectionsSampleWeek, HasTheNumbersOfTheLanguagesBibles) {
  Settings settings = Of(Land::kDiaspora, Customs::kAshkenazi);
  EXPECT_NE(SampleWeek(Day(14, 12, 2024), settings).find("Vayishlach: Genesis 32:4-36:43"), std::string::npos);
  settings.ownNumbers = true;
  EXPECT_NE(SampleWeek(Day(14, 12, 2024), settings).find("Vayishlach: Genesis 32:3-36:43"), std::string::npos);
}

}  // namespace
