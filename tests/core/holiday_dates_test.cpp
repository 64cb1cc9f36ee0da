#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string_view>
#include <utility>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/holiday.h"
#include "libraries/calendar/jewish.h"

namespace {

using namespace calendar;

const Holiday& Named(std::span<const Holiday> holidays, std::string_view name) {
  const auto found = std::ranges::find(holidays, name, [](const Holiday& h) { return std::string_view(h.name); });
  EXPECT_NE(found, holidays.end()) << name;
  return found == holidays.end() ? holidays.front() : *found;
}

std::optional<int32_t> JewishDay(std::string_view name, int32_t year) {
  return DayOfHoliday(Named(JewishHolidays(), name), year, JewishBaseDay);
}

std::optional<int32_t> GregorianDay(std::string_view name, int32_t year) {
  return DayOfHoliday(Named(GregorianHolidays(), name), year, GregorianBaseDay);
}

struct Expected {
  const char* name;
  int32_t jewishYear;
  Date gregorian;
};

void ExpectJewish(std::initializer_list<Expected> list) {
  for (const Expected& expected : list) {
    EXPECT_EQ(JewishDay(expected.name, expected.jewishYear), AbsoluteFromGregorian(expected.gregorian))
        << expected.name << ' ' << expected.jewishYear;
  }
}

void ExpectGregorian(std::initializer_list<std::pair<const char*, Date>> list) {
  for (const auto& [name, date] : list) {
    EXPECT_EQ(GregorianDay(name, date.year), AbsoluteFromGregorian(date)) << name << ' ' << date.year;
  }
}

// From printed calendars of 5784 and 5785.
TEST(JewishHolidays, FestivalsOf5784) {
  ExpectJewish({{"Rosh Hashana, first day", 5784, {16, 9, 2023}},
                {"Yom Kippur", 5784, {25, 9, 2023}},
                {"Sukkot, first day", 5784, {30, 9, 2023}},
                {"Hoshana Rabba", 5784, {6, 10, 2023}},
                {"Simchat Torah (diaspora)", 5784, {8, 10, 2023}},
                {"Tu BiShvat", 5784, {25, 1, 2024}},
                {"Purim Katan", 5784, {23, 2, 2024}},
                {"Purim", 5784, {24, 3, 2024}},
                {"Shushan Purim", 5784, {25, 3, 2024}},
                {"Pesach, first day", 5784, {23, 4, 2024}},
                {"Pesach, eighth day (diaspora)", 5784, {30, 4, 2024}},
                {"Pesach Sheni", 5784, {22, 5, 2024}},
                {"Lag BaOmer", 5784, {26, 5, 2024}},
                {"Shavuot, first day", 5784, {12, 6, 2024}},
                {"Tu BeAv", 5784, {19, 8, 2024}},
                {"Eve of Rosh Hashana", 5784, {2, 10, 2024}}});
}

TEST(JewishHolidays, ChanukahRunsOnThroughAShortKislev) {
  ExpectJewish({{"Chanukah, first day", 5784, {8, 12, 2023}}, {"Chanukah, eighth day", 5784, {15, 12, 2023}}});
  EXPECT_EQ(JewishFromAbsolute(*JewishDay("Chanukah, eighth day", 5784)), (Date{3, kTevet, 5784}));
  EXPECT_EQ(JewishFromAbsolute(*JewishDay("Chanukah, eighth day", 5785)), (Date{2, kTevet, 5785}));
}

TEST(JewishHolidays, FastsThatFallOnShabbatAreKeptOnSunday) {
  ExpectJewish({{"Fast of Gedaliah", 5785, {6, 10, 2024}},
                {"Fast of 17 Tammuz", 5782, {17, 7, 2022}},
                {"Tisha BeAv", 5782, {7, 8, 2022}},
                {"Fast of Gedaliah", 5784, {18, 9, 2023}},
                {"Tisha BeAv", 5784, {13, 8, 2024}}});
}

TEST(JewishHolidays, FastsThatMustNotBePostponedAreKeptOnThursday) {
  ExpectJewish({{"Fast of Esther", 5784, {21, 3, 2024}},
                {"Fast of Esther", 5785, {13, 3, 2025}},
                {"Fast of the Firstborn", 5781, {25, 3, 2021}},
                {"Fast of the Firstborn", 5785, {10, 4, 2025}},
                {"Fast of the Firstborn", 5784, {22, 4, 2024}}});
}

TEST(JewishHolidays, TheFastOfTevetStaysOnFriday) {
  ExpectJewish({{"Fast of 10 Tevet", 5781, {25, 12, 2020}}, {"Fast of 10 Tevet", 5785, {10, 1, 2025}}});
}

TEST(JewishHolidays, ThreeDayPurimOnlyWhenTheFifteenthIsShabbat) {
  ExpectJewish({{"Purim Meshulash, third day (walled cities)", 5781, {28, 2, 2021}},
                {"Purim Meshulash, third day (walled cities)", 5785, {16, 3, 2025}}});
  EXPECT_EQ(JewishDay("Purim Meshulash, third day (walled cities)", 5784), std::nullopt);
}

TEST(JewishHolidays, SpecialShabbatot) {
  ExpectJewish({{"Shabbat Shuva", 5784, {23, 9, 2023}},
                {"Shabbat Shira", 5784, {27, 1, 2024}},
                {"Shabbat Shekalim", 5784, {9, 3, 2024}},
                {"Shabbat Zachor", 5784, {23, 3, 2024}},
                {"Shabbat Parah", 5784, {30, 3, 2024}},
                {"Shabbat HaChodesh", 5784, {6, 4, 2024}},
                {"Shabbat HaGadol", 5784, {20, 4, 2024}},
                {"Shabbat Chazon", 5784, {10, 8, 2024}},
                {"Shabbat Nachamu", 5784, {17, 8, 2024}},
                {"Shabbat Shuva", 5785, {5, 10, 2024}},
                {"Shabbat Shira", 5785, {8, 2, 2025}},
                {"Shabbat Parah", 5785, {22, 3, 2025}},
                {"Shabbat HaChodesh", 5785, {29, 3, 2025}}});
}

TEST(JewishHolidays, SpecialShabbatotOnTheDayItself) {
  ExpectJewish({{"Shabbat Shekalim", 5785, {1, 3, 2025}},  // 1 Adar
                {"Shabbat Zachor", 5785, {8, 3, 2025}},
                {"Shabbat HaGadol", 5785, {12, 4, 2025}},  // 14 Nisan
                {"Shabbat Chazon", 5782, {6, 8, 2022}},    // 9 Av, the fast itself on Sunday
                {"Shabbat Nachamu", 5782, {13, 8, 2022}}});
}

TEST(JewishHolidays, RoshChodeshHasASecondDayWhereTheMonthBeforeHasThirty) {
  EXPECT_EQ(JewishDay("Rosh Chodesh Kislev (30 Cheshvan)", 5784), std::nullopt);
  EXPECT_EQ(JewishDay("Rosh Chodesh Tevet (30 Kislev)", 5784), std::nullopt);
  ExpectJewish({{"Rosh Chodesh Kislev (30 Cheshvan)", 5785, {1, 12, 2024}},
                {"Rosh Chodesh Kislev (1 Kislev)", 5785, {2, 12, 2024}},
                {"Rosh Chodesh Tevet (30 Kislev)", 5785, {31, 12, 2024}},
                {"Rosh Chodesh Nisan", 5785, {30, 3, 2025}}});
}

TEST(JewishHolidays, AdarsOfCommonAndLeapYearsHaveTheirOwnRoshChodesh) {
  ExpectJewish({{"Rosh Chodesh Adar I (30 Shevat)", 5784, {9, 2, 2024}},
                {"Rosh Chodesh Adar I (1 Adar I)", 5784, {10, 2, 2024}},
                {"Rosh Chodesh Adar II (30 Adar I)", 5784, {10, 3, 2024}},
                {"Rosh Chodesh Adar II (1 Adar II)", 5784, {11, 3, 2024}},
                {"Rosh Chodesh Adar (30 Shevat)", 5785, {28, 2, 2025}},
                {"Rosh Chodesh Adar (1 Adar)", 5785, {1, 3, 2025}}});
  for (const char* name : {"Rosh Chodesh Adar (30 Shevat)", "Rosh Chodesh Adar (1 Adar)"}) {
    EXPECT_EQ(JewishDay(name, 5784), std::nullopt) << name;
  }
  for (const char* name : {"Rosh Chodesh Adar I (30 Shevat)", "Rosh Chodesh Adar II (30 Adar I)",
                           "Rosh Chodesh Adar II (1 Adar II)", "Purim Katan", "Shushan Purim Katan"}) {
    EXPECT_EQ(JewishDay(name, 5785), std::nullopt) << name;
  }
}

// Dates of the State's ceremonies as the press announced them; before 5764 the law knew no Monday rule, and in 5710 the
// day was kept on Sunday.
TEST(JewishHolidays, IndependenceDayAvoidsShabbatByTheRuleOfItsYear) {
  ExpectJewish({{"Yom HaAtzma'ut", 5709, {4, 5, 1949}},
                {"Yom HaAtzma'ut", 5710, {23, 4, 1950}},
                {"Yom HaAtzma'ut", 5711, {10, 5, 1951}},
                {"Yom HaAtzma'ut", 5757, {12, 5, 1997}},
                {"Yom HaAtzma'ut", 5758, {30, 4, 1998}},
                {"Yom HaAtzma'ut", 5764, {27, 4, 2004}},
                {"Yom HaAtzma'ut", 5765, {12, 5, 2005}},
                {"Yom HaAtzma'ut", 5768, {8, 5, 2008}},
                {"Yom HaAtzma'ut", 5770, {20, 4, 2010}},
                {"Yom HaAtzma'ut", 5772, {26, 4, 2012}},
                {"Yom HaAtzma'ut", 5780, {29, 4, 2020}},
                {"Yom HaAtzma'ut", 5781, {15, 4, 2021}},
                {"Yom HaAtzma'ut", 5782, {5, 5, 2022}},
                {"Yom HaAtzma'ut", 5784, {14, 5, 2024}},
                {"Yom HaAtzma'ut", 5785, {1, 5, 2025}}});
  EXPECT_EQ(JewishDay("Yom HaAtzma'ut", 5708), std::nullopt);
}

TEST(JewishHolidays, RemembranceDayIsTheDayBeforeIndependenceDay) {
  EXPECT_EQ(JewishDay("Yom HaZikaron", 5710), std::nullopt);
  for (int32_t year = 5711; year <= 6500; ++year) {
    ASSERT_EQ(*JewishDay("Yom HaZikaron", year) + 1, *JewishDay("Yom HaAtzma'ut", year)) << year;
  }
}

TEST(JewishHolidays, HolocaustDayAvoidsTheBordersOfShabbat) {
  ExpectJewish({{"Yom HaShoah", 5711, {3, 5, 1951}},
                {"Yom HaShoah", 5713, {12, 4, 1953}},
                {"Yom HaShoah", 5764, {19, 4, 2004}},
                {"Yom HaShoah", 5781, {8, 4, 2021}},
                {"Yom HaShoah", 5782, {28, 4, 2022}},
                {"Yom HaShoah", 5784, {6, 5, 2024}},
                {"Yom HaShoah", 5785, {24, 4, 2025}}});
  EXPECT_EQ(JewishDay("Yom HaShoah", 5710), std::nullopt);
}

TEST(JewishHolidays, FurtherModernDays) {
  ExpectJewish({{"Yom Yerushalayim", 5784, {5, 6, 2024}},
                {"Sigd", 5784, {13, 11, 2023}},
                {"Sigd", 5785, {28, 11, 2024}},                        // 29 Cheshvan a Shabbat
                {"Yitzhak Rabin Memorial Day", 5781, {29, 10, 2020}},  // 12 Cheshvan a Friday
                {"Herzl Day", 5784, {19, 5, 2024}},                    // 10 Iyar a Shabbat
                {"Yom HaAliyah", 5784, {18, 4, 2024}}});
  EXPECT_EQ(JewishDay("Sigd", 5768), std::nullopt);
  EXPECT_EQ(JewishDay("Herzl Day", 5764), std::nullopt);  // the law is of 29 June 2004
  EXPECT_EQ(JewishDay("Yom HaAliyah", 5776), std::nullopt);
  EXPECT_EQ(JewishDay("Yom Yerushalayim", 5727), std::nullopt);
}

TEST(JewishHolidays, NoFastButTheTenthOfTishriFallsOnShabbat) {
  for (int32_t year = 1; year <= kLastYear; ++year) {
    for (const char* fast : {"Fast of Gedaliah", "Fast of 10 Tevet", "Fast of Esther", "Fast of the Firstborn",
                             "Fast of 17 Tammuz", "Tisha BeAv"}) {
      ASSERT_NE(WeekdayOf(*JewishDay(fast, year)), Weekday::kSaturday) << fast << ' ' << year;
    }
  }
}

TEST(JewishHolidays, EverySpecialShabbatIsAShabbat) {
  for (const Holiday& holiday : JewishHolidays()) {
    if (!std::string_view(holiday.name).starts_with("Shabbat ")) continue;
    for (int32_t year = 1; year <= kLastYear; ++year) {
      ASSERT_EQ(WeekdayOf(*DayOfHoliday(holiday, year, JewishBaseDay)), Weekday::kSaturday) << holiday.name << year;
    }
  }
}

// The mnemonic ZaTU BO DaD UBYU (Shulchan Aruch, Orach Chaim 685:6): by the weekday of 1 Adar, the days of Adar that
// are Shabbatot without one of the four portions.
TEST(JewishHolidays, ThePausesBetweenTheFourPortionsFollowTheMnemonic) {
  const std::map<Weekday, std::set<int32_t>> mnemonic = {
      {Weekday::kSaturday, {15}}, {Weekday::kMonday, {6}}, {Weekday::kWednesday, {4}}, {Weekday::kFriday, {2, 16}}};
  for (int32_t year = 1; year <= kLastYear; ++year) {
    const std::set<int32_t> portions = {*JewishDay("Shabbat Shekalim", year), *JewishDay("Shabbat Zachor", year),
                                        *JewishDay("Shabbat Parah", year), *JewishDay("Shabbat HaChodesh", year)};
    ASSERT_EQ(portions.size(), 4u) << year;
    const int32_t firstOfAdar = AbsoluteFromJewish({1, MonthsInJewishYear(year), year});
    std::set<int32_t> pauses;
    for (int32_t shabbat = *portions.begin(); shabbat < *portions.rbegin(); shabbat += 7) {
      if (!portions.contains(shabbat)) pauses.insert(shabbat - firstOfAdar + 1);
    }
    ASSERT_TRUE(mnemonic.contains(WeekdayOf(firstOfAdar))) << year;
    ASSERT_EQ(pauses, mnemonic.at(WeekdayOf(firstOfAdar))) << year;
  }
}

TEST(GregorianHolidays, NthWeekdaysAndFixedDays) {
  ExpectGregorian({{"Martin Luther King Jr. Day (US)", {15, 1, 2024}},
                   {"Washington's Birthday (US)", {19, 2, 2024}},
                   {"Mother's Day", {12, 5, 2024}},
                   {"Victoria Day (Canada)", {20, 5, 2024}},
                   {"Memorial Day (US)", {27, 5, 2024}},
                   {"Father's Day", {16, 6, 2024}},
                   {"Labor Day (US, Canada)", {2, 9, 2024}},
                   {"Columbus Day (US)", {14, 10, 2024}},
                   {"Thanksgiving (US)", {28, 11, 2024}},
                   {"Christmas Day", {25, 12, 2024}}});
}

TEST(GregorianHolidays, FollowTheRuleOfTheirYear) {
  ExpectGregorian({{"Washington's Birthday (US)", {22, 2, 1970}},
                   {"Washington's Birthday (US)", {15, 2, 1971}},
                   {"Memorial Day (US)", {30, 5, 1970}},
                   {"Memorial Day (US)", {31, 5, 1971}},
                   {"Veterans Day (US)", {25, 10, 1971}},
                   {"Veterans Day (US)", {11, 11, 1978}},
                   {"Thanksgiving (US)", {26, 11, 1863}},
                   {"Thanksgiving (US)", {30, 11, 1933}},
                   {"Thanksgiving (US)", {23, 11, 1939}},
                   {"Thanksgiving (US)", {20, 11, 1941}},
                   {"Thanksgiving (US)", {26, 11, 1942}},
                   {"King's Day (Netherlands)", {26, 4, 2014}},
                   {"King's Day (Netherlands)", {27, 4, 2015}}});
  EXPECT_EQ(GregorianDay("Juneteenth (US)", 2020), std::nullopt);
  EXPECT_EQ(GregorianDay("Thanksgiving (US)", 1862), std::nullopt);
}

TEST(GregorianHolidays, CountFromEaster) {
  ExpectGregorian({{"Good Friday", {29, 3, 2024}},
                   {"Easter Sunday", {31, 3, 2024}},
                   {"Easter Monday", {21, 4, 2025}},
                   {"Ascension Day", {9, 5, 2024}},
                   {"Whit Sunday", {19, 5, 2024}},
                   {"Whit Monday", {9, 6, 2025}}});
  EXPECT_EQ(GregorianDay("Easter Sunday", 1582), std::nullopt);
}

// What is true of every holiday of a calendar.
void ExpectSoundTable(std::span<const Holiday> holidays, BaseDay baseDay, Date (*dateFromAbsolute)(int32_t)) {
  std::set<std::string_view> names;
  for (const Holiday& holiday : holidays) {
    EXPECT_TRUE(names.insert(holiday.name).second) << holiday.name;
    EXPECT_GE(holiday.rules[0].fromYear, 1) << holiday.name;
    for (size_t i = 1; i < holiday.rules.size() && holiday.rules[i].fromYear != 0; ++i) {
      EXPECT_GT(holiday.rules[i].fromYear, holiday.rules[i - 1].fromYear) << holiday.name;
    }
    for (int32_t year = kFirstYear; year <= kLastYear; ++year) {
      const auto day = DayOfHoliday(holiday, year, baseDay);
      if (day) {
        ASSERT_EQ(dateFromAbsolute(*day).year, year) << holiday.name;
      }
      ASSERT_FALSE(day && year < holiday.rules[0].fromYear) << holiday.name << year;
    }
    for (const int32_t year :
         {0, -1, 10000, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()}) {
      EXPECT_EQ(DayOfHoliday(holiday, year, baseDay), std::nullopt) << holiday.name << year;
    }
  }
}

TEST(GregorianHolidays, FallInTheirYearFromTheirFirstYearOn) {
  ExpectSoundTable(GregorianHolidays(), GregorianBaseDay, GregorianFromAbsolute);
}

TEST(JewishHolidays, FallInTheirYearFromTheirFirstYearOn) {
  ExpectSoundTable(JewishHolidays(), JewishBaseDay, JewishFromAbsolute);
}

}  // namespace
