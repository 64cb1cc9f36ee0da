#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/holiday.h"

namespace {

using namespace calendar;

// From @hebcal/core 6.9.3, an independent program: holidays that move, or that not every year has.
TEST(JewishHolidays, AgreeWithAnIndependentProgram) {
  struct Row {
    std::string_view name;
    int32_t jewishYear;
    Date gregorian;
  };
  // clang-format off
  constexpr Row kRows[] = {
      {"Shabbat Shekalim", 5709, {26, 2, 1949}},
      {"Tisha BeAv", 5709, {4, 8, 1949}},
      {"Fast of 10 Tevet", 5710, {30, 12, 1949}},
      {"Shabbat Zachor", 5710, {25, 2, 1950}},
      {"Purim Meshulash, third day (walled cities)", 5710, {5, 3, 1950}},
      {"Shabbat HaGadol", 5710, {1, 4, 1950}},
      {"Fast of 17 Tammuz", 5710, {2, 7, 1950}},
      {"Rosh Chodesh Adar II (30 Adar I)", 5711, {8, 3, 1951}},
      {"Yom HaAtzma'ut", 5711, {10, 5, 1951}},
      {"Tisha BeAv", 5713, {21, 7, 1953}},
      {"Rosh Chodesh Adar I (30 Shevat)", 5727, {10, 2, 1967}},
      {"Shabbat Shira", 5728, {10, 2, 1968}},
      {"Pesach, eighth day (diaspora)", 5728, {20, 4, 1968}},
      {"Yom HaZikaron", 5736, {4, 5, 1976}},
      {"Fast of Gedaliah", 5737, {27, 9, 1976}},
      {"Yom HaAtzma'ut", 5756, {24, 4, 1996}},
      {"Yom HaShoah", 5757, {5, 5, 1997}},
      {"Yom HaShoah", 5758, {23, 4, 1998}},
      {"Rosh Chodesh Adar II (1 Adar II)", 5763, {5, 3, 2003}},
      {"Yom HaShoah", 5764, {19, 4, 2004}},
      {"Ben-Gurion Day", 5765, {21, 11, 2004}},
      {"Fast of the Firstborn", 5765, {21, 4, 2005}},
      {"Yom HaZikaron", 5765, {11, 5, 2005}},
      {"Shabbat Shuva", 5768, {15, 9, 2007}},
      {"Chanukah, eighth day", 5768, {12, 12, 2007}},
      {"Yom Yerushalayim", 5768, {2, 6, 2008}},
      {"Fast of Gedaliah", 5772, {2, 10, 2011}},
      {"Yom HaZikaron", 5772, {25, 4, 2012}},
      {"Yitzhak Rabin Memorial Day", 5774, {16, 10, 2013}},
      {"Fast of the Firstborn", 5774, {14, 4, 2014}},
      {"Yom HaZikaron", 5774, {5, 5, 2014}},
      {"Rosh Chodesh Kislev (1 Kislev)", 5777, {1, 12, 2016}},
      {"Fast of Esther", 5777, {9, 3, 2017}},
      {"Rosh Chodesh Adar (30 Shevat)", 5780, {25, 2, 2020}},
      {"Yom HaShoah", 5780, {21, 4, 2020}},
      {"Yom HaAtzma'ut", 5780, {29, 4, 2020}},
      {"Shabbat Nachamu", 5780, {1, 8, 2020}},
      {"Sigd", 5781, {16, 11, 2020}},
      {"Shabbat HaChodesh", 5781, {13, 3, 2021}},
      {"Yitzhak Rabin Memorial Day", 5782, {18, 10, 2021}},
      {"Herzl Day", 5782, {11, 5, 2022}},
      {"Shabbat Parah", 5784, {30, 3, 2024}},
      {"Yom HaAtzma'ut", 5784, {14, 5, 2024}},
      {"Shabbat Chazon", 5784, {10, 8, 2024}},
      {"Rosh Chodesh Adar (1 Adar)", 5785, {1, 3, 2025}},
      {"Yom HaShoah", 5785, {24, 4, 2025}},
      {"Yom HaAtzma'ut", 5785, {1, 5, 2025}},
      {"Rosh Chodesh Tevet (30 Kislev)", 5786, {20, 12, 2025}},
      {"Yom HaAliyah", 5786, {28, 3, 2026}},
      {"Herzl Day", 5786, {27, 4, 2026}},
      {"Ben-Gurion Day", 5787, {16, 11, 2026}},
      {"Yom HaZikaron", 5787, {11, 5, 2027}},
      {"Fast of 17 Tammuz", 5787, {22, 7, 2027}},
      {"Rosh Chodesh Tevet (1 Tevet)", 5788, {31, 12, 2027}},
      {"Rosh Chodesh Kislev (30 Cheshvan)", 5798, {8, 11, 2037}},
      {"Fast of Esther", 5798, {18, 3, 2038}},
      {"Rosh Chodesh Adar I (1 Adar I)", 5801, {2, 2, 2041}},
      {"Fast of 10 Tevet", 6000, {5, 1, 2240}},
  };
  // clang-format on
  for (const Row& row : kRows) {
    const auto holiday = std::ranges::find(JewishHolidays(), row.name, &Holiday::name);
    ASSERT_NE(holiday, JewishHolidays().end()) << row.name;
    EXPECT_EQ(DayOfHoliday(*holiday, row.jewishYear, JewishBaseDay), AbsoluteFromGregorian(row.gregorian))
        << row.name << ' ' << row.jewishYear;
  }
}

}  // namespace
