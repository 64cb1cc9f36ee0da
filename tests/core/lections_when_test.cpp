// The kinds of days that own texts are for.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "libraries/calendar/jewish.h"
#include "libraries/lections/own_readings.h"
#include "libraries/lections/when.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using calendar::Land;
using lections_test::JewishDate;

std::vector<std::string> KeysOn(int32_t day, int32_t month, int32_t year, Land land = Land::kDiaspora,
                                bool mondayAndThursday = false) {
  const calendar::Date date = JewishDate(day, month, year);
  std::vector<std::string> keys;
  for (const When& when :
       WhensOn(date, ReadingsOn(date, land, Custom::kAshkenazi, {mondayAndThursday, false, false}))) {
    keys.push_back(KeyOf(when));
  }
  return keys;
}

using Keys = std::vector<std::string>;

// The Jewish dates of these days are those of any printed luach of 5784 to 5786.
TEST(LectionsWhen, GoesFromThePortionToTheDateOfTheYear) {
  EXPECT_EQ(KeysOn(2, 11, 2024), (Keys{"portion Noach", "occasion Rosh Chodesh Cheshvan, Shabbat", "date 1 Cheshvan",
                                       "date 1 Cheshvan 5785"}));
  EXPECT_EQ(KeysOn(1, 3, 2025), (Keys{"portion Terumah", "occasion Rosh Chodesh Adar, Shabbat",
                                      "occasion Shabbat Shekalim", "date 1 Adar", "date 1 Adar 5785"}));
  EXPECT_EQ(KeysOn(19, 10, 2024), (Keys{"occasion Shabbat Chol HaMoed", "occasion Sukkot, day 3, Shabbat",
                                        "date 17 Tishri", "date 17 Tishri 5785"}));
  EXPECT_EQ(KeysOn(25, 10, 2024),
            (Keys{"portion Vezot Haberachah", "occasion Simchat Torah", "date 23 Tishri", "date 23 Tishri 5785"}));
  EXPECT_EQ(KeysOn(2, 8, 2025)[0], "portion Devarim");
  EXPECT_EQ(KeysOn(26, 7, 2025)[0], "portion Matot-Masei");
}

// Adar of a leap year stands first; texts for Adar are for the Adar of Purim.
TEST(LectionsWhen, AdarIsTheOneOfPurim) {
  EXPECT_EQ(KeysOn(24, 3, 2024), (Keys{"occasion Purim", "date 14 Adar", "date 14 Adar 5784"}));
  EXPECT_EQ(KeysOn(23, 2, 2024), (Keys{"date 14 Adar I", "date 14 Adar I 5784"}));
  EXPECT_EQ(KeysOn(14, 3, 2025), (Keys{"occasion Purim", "date 14 Adar", "date 14 Adar 5785"}));
  EXPECT_EQ(KeysOn(10, 2, 2024)[1], "occasion Rosh Chodesh Adar I, Shabbat");
  EXPECT_EQ(KeysOn(11, 3, 2024)[0], "occasion Rosh Chodesh Adar");
}

TEST(LectionsWhen, AWeekdayIsNoneOfThePortionsDays) {
  EXPECT_EQ(KeysOn(4, 11, 2024, Land::kDiaspora, true), (Keys{"date 3 Cheshvan", "date 3 Cheshvan 5785"}));
}

TEST(LectionsWhen, EveryKindHasAKeyOfItsOwnThatIsReadBack) {
  std::set<std::string> keys;
  size_t portions = 0;
  size_t dates = 0;
  for (const When& when : EveryWhen()) {
    const std::string key = KeyOf(when);
    EXPECT_TRUE(keys.insert(key).second) << key;
    EXPECT_EQ(WhenIn(key), when) << key;
    portions += when.kind == WhenKind::kPortion ? 1 : 0;
    dates += when.kind == WhenKind::kDate ? 1 : 0;
  }
  EXPECT_EQ(portions, 54u + 7u);  // the seven pairs that are joined in some years
  EXPECT_EQ(dates, 13u * 30 - 5);
  EXPECT_TRUE(keys.contains("occasion Yom Kippur, Shabbat"));
  EXPECT_TRUE(keys.contains("occasion Chanukah, day 8"));
  EXPECT_FALSE(keys.contains("occasion Shabbat, Shabbat"));
}

// Every day of a cycle is at least a kind that can be chosen.
TEST(LectionsWhen, NoDayHasAKindThatIsMissing) {
  const std::set<When> every(EveryWhen().begin(), EveryWhen().end());
  for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
    for (int32_t day = calendar::JewishNewYear(5786); day < calendar::JewishNewYear(5805); ++day) {
      const calendar::Date date = calendar::JewishFromAbsolute(day);
      for (const When& when : WhensOn(date, ReadingsOn(date, land, Custom::kSephardi, {}))) {
        EXPECT_TRUE(IsOfOneYear(when) || every.contains(when)) << KeyOf(when);
      }
    }
  }
}

TEST(LectionsWhen, KeysThatAreNoneAreRefused) {
  for (const char* key : {"", "portion", "portion ", "portion Noah", "occasion Noach", "date 31 Av", "date 30 Elul",
                          "date 30 Adar", "date 0 Av", "date 15 Av 0", "date 15 Av 10000", "date 15 Av 5787 ",
                          "date 15 Av +5787", "date 15 Av 05787", "portion Noach 5787", "date 1 Adar I 5786",
                          "date 30 Cheshvan 5784", "portion Lech Lecha-Vayera", "date 7 adar"}) {
    EXPECT_FALSE(WhenIn(key)) << key;
  }
  EXPECT_EQ(WhenIn("date 1 Adar I 5784"), WhenOfDate(1, kAdarIOfLeapYears, 5784));  // a leap year
  EXPECT_EQ(WhenIn("date 30 Cheshvan 5785"), WhenOfDate(30, calendar::kCheshvan, 5785));
}

// 5787 begins on 12 September 2026, a Shabbat.
TEST(LectionsWhen, TheNextDaysAreThoseOfTheLand) {
  const int32_t from = calendar::AbsoluteFromGregorian({22, 11, 2026});
  const auto next = [&](const char* key, Land land, size_t count) {
    std::vector<calendar::Date> dates;
    for (const int32_t day : NextDaysOf(*WhenIn(key), land, from, count)) {
      dates.push_back(calendar::GregorianFromAbsolute(day));
    }
    return dates;
  };
  using Dates = std::vector<calendar::Date>;
  EXPECT_EQ(next("portion Vayishlach", Land::kDiaspora, 1), (Dates{{28, 11, 2026}}));
  EXPECT_EQ(next("date 15 Av 5787", Land::kIsrael, 3), (Dates{{18, 8, 2027}}));
  EXPECT_TRUE(next("portion Chukat-Balak", Land::kIsrael, 1).empty());
  EXPECT_EQ(next("portion Chukat-Balak", Land::kDiaspora, 3).size(), 3u);
  EXPECT_EQ(next("occasion Purim", Land::kDiaspora, 3), (Dates{{23, 3, 2027}, {12, 3, 2028}, {1, 3, 2029}}));
}

// Every date of two years, a leap year and a plain one, is the day that its own name says.
TEST(LectionsWhen, ADateOfOneYearComesOnItsDayAlone) {
  for (const int32_t year : {5787, 5788}) {
    for (int32_t day = calendar::JewishNewYear(year); day < calendar::JewishNewYear(year + 1); ++day) {
      const Whens whens = WhensOn(calendar::JewishFromAbsolute(day), {});
      const When& once = whens[whens.size() - 1];
      ASSERT_TRUE(IsOfOneYear(once));
      EXPECT_EQ(NextDaysOf(once, Land::kDiaspora, day, 3), std::vector<int32_t>{day}) << KeyOf(once);
      EXPECT_EQ(NextDaysOf(once, Land::kDiaspora, day + 1, 3), std::vector<int32_t>{day}) << KeyOf(once);  // passed
      EXPECT_EQ(WhenIn(KeyOf(once)), once);
    }
  }
}

}  // namespace
