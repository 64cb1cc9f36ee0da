// What holds for the schedule in every year, and Yizkor.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/day_readings.h"

namespace {

using namespace lections;
using namespace calendar;

constexpr int32_t kFirstJewishYear = 5343;  // 1583
constexpr int32_t kLastJewishYear = 6760;   // 3000
constexpr Land kLands[] = {Land::kDiaspora, Land::kIsrael};
constexpr Custom kCustoms[] = {Custom::kAshkenazi, Custom::kSephardi, Custom::kChabad};
constexpr Optional kAfternoonToo = {false, true, false};

bool Has(const DayReadings& readings, Occasion occasion) {
  return std::ranges::any_of(readings.occasions, [&](const auto& named) { return named.occasion == occasion; });
}

template <typename Lines>
bool Has(const Lines& lines, Part part) {
  return std::ranges::any_of(lines, [&](const Line& line) { return line.part == part; });
}

// The custom goes round with the years, so that each is seen in each type of year.
template <typename Check>
void ForEveryYear(const Check& check) {
  for (int32_t year = kFirstJewishYear; year <= kLastJewishYear; ++year) {
    const Custom custom = kCustoms[year % 3];
    for (const Land land : kLands) {
      SCOPED_TRACE(std::to_string(year) + (land == Land::kIsrael ? " in Israel" : " in the diaspora"));
      check(year, land, custom);
      if (testing::Test::HasFailure()) return;
    }
  }
}

DayReadings Read(int32_t absoluteDay, Land land, Custom custom) {
  return ReadingsOn(JewishFromAbsolute(absoluteDay), land, custom, {});
}

TEST(LectionsSchedule, EveryOccasionHasAName) {
  ForEveryYear([](int32_t year, Land land, Custom custom) {
    for (int32_t day = JewishNewYear(year); day < JewishNewYear(year + 1); ++day) {
      ASSERT_FALSE(Has(Read(day, land, custom), Occasion::kNone)) << day;
    }
  });
}

// Yom Kippur too, which has its own.
TEST(LectionsSchedule, EveryShabbatHasOneReadingInTheAfternoonOnRequest) {
  ForEveryYear([](int32_t year, Land land, Custom custom) {
    for (int32_t day = JewishNewYear(year); day < JewishNewYear(year + 1); ++day) {
      if (WeekdayOf(day) != Weekday::kSaturday) continue;
      const DayReadings readings = ReadingsOn(JewishFromAbsolute(day), land, custom, kAfternoonToo);
      ASSERT_EQ(std::ranges::count(readings.torah, Part::kAfternoon, &Line::part), 1) << day;
    }
  });
}

TEST(LectionsSchedule, AtTheEndOfTheCalendarNoPortionIsToCome) {
  const int32_t last = AbsoluteFromJewish({29, kElul, kLastYear});
  const Optional all = {true, true, false};
  for (int32_t day = last - 13; day <= last; ++day) {
    const DayReadings readings = ReadingsOn(JewishFromAbsolute(day), Land::kDiaspora, Custom::kAshkenazi, all);
    const Weekday weekday = WeekdayOf(day);
    const int32_t daysToShabbat = static_cast<int32_t>(Weekday::kSaturday) - static_cast<int32_t>(weekday);
    if (weekday == Weekday::kSaturday) {
      EXPECT_EQ(Has(readings.torah, Part::kAfternoon), day + 7 <= last) << day;
    } else if (weekday == Weekday::kMonday || weekday == Weekday::kThursday) {
      EXPECT_EQ(readings.torah.empty(), day + daysToShabbat > last) << day;
    }
  }
}

TEST(LectionsSchedule, EveryShabbatHasTorahAndHaftarah) {
  ForEveryYear([](int32_t year, Land land, Custom custom) {
    const int32_t newYear = JewishNewYear(year);
    const int32_t first = newYear + (6 - static_cast<int32_t>(WeekdayOf(newYear)));
    for (int32_t day = first; day < JewishNewYear(year + 1); day += 7) {
      const DayReadings readings = Read(day, land, custom);
      ASSERT_TRUE(Has(readings.torah, Part::kMain)) << day;
      ASSERT_TRUE(Has(readings.haftarot, Part::kMain)) << day;
    }
  });
}

TEST(LectionsSchedule, EveryFestivalHasTorahMaftirAndHaftarah) {
  constexpr Date kFestivals[] = {{1, kTishri, 0},  {2, kTishri, 0}, {10, kTishri, 0}, {15, kTishri, 0},
                                 {22, kTishri, 0}, {15, kNisan, 0}, {21, kNisan, 0},  {6, kSivan, 0}};
  constexpr Date kSecondDays[] = {{16, kTishri, 0}, {23, kTishri, 0}, {16, kNisan, 0}, {22, kNisan, 0}, {7, kSivan, 0}};
  ForEveryYear([&](int32_t year, Land land, Custom custom) {
    std::vector<Date> dates(std::begin(kFestivals), std::end(kFestivals));
    if (land == Land::kDiaspora) dates.insert(dates.end(), std::begin(kSecondDays), std::end(kSecondDays));
    for (Date date : dates) {
      date.year = year;
      const DayReadings readings = ReadingsOn(date, land, custom, {});
      ASSERT_TRUE(Has(readings.torah, Part::kMain) && Has(readings.torah, Part::kMaftir)) << date.month;
      ASSERT_TRUE(Has(readings.haftarot, Part::kMain)) << date.month;
    }
  });
}

// Every portion once from one Simchat Torah to the next, and Vezot Haberachah on the day itself.
TEST(LectionsSchedule, EachPortionIsReadOnceACycle) {
  ForEveryYear([](int32_t year, Land land, Custom custom) {
    const int32_t simchatTorah = land == Land::kIsrael ? 22 : 23;
    const int32_t first = AbsoluteFromJewish({simchatTorah, kTishri, year}) + 1;
    const int32_t last = AbsoluteFromJewish({simchatTorah, kTishri, year + 1});
    std::map<int32_t, int> times;
    for (int32_t day = first; day <= last; ++day) {
      if (WeekdayOf(day) != Weekday::kSaturday && day != last) continue;
      const DayReadings readings = Read(day, land, custom);
      if (!readings.portion) continue;
      ++times[readings.portion->portion];
      if (readings.portion->joinedWithNext) ++times[readings.portion->Last()];
    }
    ASSERT_EQ(times.size(), static_cast<size_t>(kPortionCount));
    for (const auto& [portion, count] : times) ASSERT_EQ(count, 1) << portion;
  });
}

TEST(LectionsSchedule, SpecialShabbatotAreInTheirWeeks) {
  struct Row {
    Occasion occasion;
    int32_t firstDay;  // from 1 Nisan
    int32_t lastDay;
  };
  // On or before 1 Adar; before Purim; on or before 1 Nisan; before Pesach; between New Year and Yom Kippur.
  constexpr Row kRows[] = {{Occasion::kShabbatShekalim, -35, -29},
                           {Occasion::kShabbatZachor, -22, -17},
                           {Occasion::kShabbatParah, -13, -7},
                           {Occasion::kShabbatHaChodesh, -6, 0},
                           {Occasion::kShabbatHaGadol, 7, 13}};
  ForEveryYear([&](int32_t year, Land land, Custom custom) {
    const int32_t nisan = AbsoluteFromJewish({1, kNisan, year});
    for (const Row& row : kRows) {
      int times = 0;
      for (int32_t day = nisan - 60; day < nisan + 30; ++day) {
        if (!Has(Read(day, land, custom), row.occasion)) continue;
        ++times;
        ASSERT_TRUE(day >= nisan + row.firstDay && day <= nisan + row.lastDay) << day - nisan;
        ASSERT_EQ(WeekdayOf(day), Weekday::kSaturday);
      }
      ASSERT_EQ(times, 1) << static_cast<int>(row.occasion);
    }
    int shuva = 0;
    for (int32_t day = 3; day < 10; ++day) {
      if (Has(ReadingsOn({day, kTishri, year}, land, custom, {}), Occasion::kShabbatShuva)) ++shuva;
    }
    ASSERT_EQ(shuva, 1);
  });
}

// The verses of Rosh Chodesh are read on it whatever the day is, but on Rosh Hashana.
TEST(LectionsSchedule, RoshChodeshIsReadWheneverItFalls) {
  const Passage weekday = "Numbers 28:1-15";
  const Passage shabbat = "Numbers 28:9-15";
  ForEveryYear([&](int32_t year, Land land, Custom custom) {
    for (int32_t month = 1; month <= MonthsInJewishYear(year); ++month) {
      for (const int32_t day : {1, 30}) {
        const Date date = {day, month, year};
        if (!IsJewishDate(date) || (month == kTishri && day == 1)) continue;
        const DayReadings readings = ReadingsOn(date, land, custom, {});
        ASSERT_TRUE(Has(readings, Occasion::kRoshChodesh)) << month;
        const bool isShabbat = WeekdayOf(AbsoluteFromJewish(date)) == Weekday::kSaturday;
        ASSERT_TRUE(std::ranges::any_of(readings.torah, [&](const Line& line) {
          return line.passage[0] == (isShabbat ? shabbat : weekday)[0];
        })) << month;
      }
    }
  });
}

// Four fasts and Tisha BeAv a year, none on a Shabbat, and all five scrolls once.
TEST(LectionsSchedule, FastsAndScrollsOfEveryYear) {
  const Passage fast = "Exodus 32:11-14, 34:1-10";
  ForEveryYear([&](int32_t year, Land land, Custom custom) {
    int fasts = 0;
    std::multiset<Book> scrolls;
    for (int32_t day = JewishNewYear(year); day < JewishNewYear(year + 1); ++day) {
      const DayReadings readings = Read(day, land, custom);
      for (const Line& line : readings.torah) {
        if (line.part == Part::kScroll) scrolls.insert(line.passage[0].book);
        if (line.part != Part::kAfternoon || !(line.passage == fast)) continue;
        ++fasts;
        ASSERT_NE(WeekdayOf(day), Weekday::kSaturday);
      }
    }
    ASSERT_EQ(fasts, 5);
    const bool hasWalledCities =
        land == Land::kIsrael &&
        WeekdayOf(AbsoluteFromJewish({14, IsJewishLeapYear(year) ? kAdarII : kAdar, year})) != Weekday::kFriday;
    ASSERT_EQ(scrolls.size(), hasWalledCities ? 6u : 5u);
    ASSERT_EQ(std::set<Book>(scrolls.begin(), scrolls.end()).size(), 5u);
  });
}

// The three haftarot of rebuke and the seven of consolation, in the order of the weeks.
TEST(LectionsSchedule, TenHaftarotAroundTishaBeAv) {
  const Passage kRebuke[] = {"Jeremiah 1:1-2:3", "Jeremiah 2:4-28, 3:4", "Isaiah 1:1-27"};
  const Passage kConsolation[] = {"Isaiah 40:1-26", "Isaiah 49:14-51:3", "Isaiah 54:11-55:5", "Isaiah 51:12-52:12",
                                  "Isaiah 54:1-10", "Isaiah 60:1-22",    "Isaiah 61:10-63:9"};
  ForEveryYear([&](int32_t year, Land land, Custom) {
    const int32_t tishaBeAv = AbsoluteFromJewish({9, kAv, year});
    const int32_t chazon = tishaBeAv - (static_cast<int32_t>(WeekdayOf(tishaBeAv)) + 1) % 7;
    for (int32_t week = 0; week < 3; ++week) {
      const DayReadings readings = Read(chazon - 14 + 7 * week, land, Custom::kAshkenazi);
      ASSERT_EQ(readings.haftarot[0].passage, kRebuke[week]) << week;
    }
    for (int32_t week = 0; week < 7; ++week) {
      const int32_t day = chazon + 7 + 7 * week;
      const Date date = JewishFromAbsolute(day);
      const Passage read = Read(day, land, Custom::kAshkenazi).haftarot[0].passage;
      const bool isElulsNewMoon = date == Date{30, kAv, year};
      const bool isMadeUp = date == Date{14, kElul, year};
      const Passage expected = isElulsNewMoon ? "Isaiah 66:1-24" : isMadeUp ? "Isaiah 54:1-55:5" : kConsolation[week];
      ASSERT_EQ(read, expected) << week;
      const Passage sephardi = Read(day, land, Custom::kSephardi).haftarot[0].passage;
      ASSERT_EQ(sephardi[0], kConsolation[week][0]) << week;
    }
  });
}

TEST(LectionsSchedule, DatesThatDoNotExistHaveNoReadings) {
  for (const Date& date :
       {Date{0, kTishri, 5785}, Date{31, kTishri, 5785}, Date{1, 0, 5785}, Date{1, 13, 5785}, Date{14, kAdarII, 5785},
        Date{30, kCheshvan, 5784}, Date{1, kTishri, 0}, Date{1, kTishri, 10000}, Date{-1, -1, -1}}) {
    EXPECT_FALSE(IsJewishDate(date));
    EXPECT_TRUE(ReadingsOn(date, Land::kDiaspora, Custom::kAshkenazi, {true, true}).torah.empty());
  }
  EXPECT_FALSE(ReadingsOn({1, kTishri, 1}, Land::kDiaspora, Custom::kAshkenazi, {}).torah.empty());
  EXPECT_FALSE(ReadingsOn({2, kTishri, 9999}, Land::kIsrael, Custom::kAshkenazi, {}).torah.empty());
}

// The last Shabbat of a month's old moon: Berakhot of the month are said on the Shabbat before Rosh Chodesh.
TEST(LectionsSchedule, NewMonthIsAnnouncedOnTheShabbatBefore) {
  EXPECT_EQ(MonthAnnouncedOn({27, kKislev, 5785}), kTevet);
  EXPECT_EQ(MonthAnnouncedOn({23, kTammuz, 5785}), kAv);
  EXPECT_EQ(MonthAnnouncedOn({22, kTammuz, 5785}), 0);
  EXPECT_EQ(MonthAnnouncedOn({29, kAv, 5785}), kElul);
  EXPECT_EQ(MonthAnnouncedOn({27, kElul, 5785}), 0);   // Tishri is not announced
  EXPECT_EQ(MonthAnnouncedOn({30, kSivan, 5771}), 0);  // Shabbat and Rosh Chodesh itself
  EXPECT_EQ(MonthAnnouncedOn({23, kSivan, 5771}), kTammuz);
  EXPECT_EQ(MonthAnnouncedOn({29, kAdar, 5784}), kAdarII);
  ForEveryYear([](int32_t year, Land, Custom) {
    std::vector<int32_t> months;
    for (int32_t day = JewishNewYear(year); day < JewishNewYear(year + 1); ++day) {
      if (const int32_t month = MonthAnnouncedOn(JewishFromAbsolute(day))) months.push_back(month);
    }
    ASSERT_EQ(months.size(), static_cast<size_t>(MonthsInJewishYear(year)) - 1);
    ASSERT_EQ(std::set<int32_t>(months.begin(), months.end()).size(), months.size());
  });
}

// Dates from the rule itself, on each day of 1900 to 2100; the single ones from the calendars of those years.
TEST(LectionsYizkor, IsSaidOnFourDaysOfTheYear) {
  std::map<std::tuple<int32_t, int32_t, bool>, int> times;
  for (int32_t day = AbsoluteFromGregorian({1, 1, 1900}); day <= AbsoluteFromGregorian({31, 12, 2100}); ++day) {
    const Date date = JewishFromAbsolute(day);
    for (const Land land : kLands) {
      if (IsYizkor(date, land)) ++times[{date.month, date.day, land == Land::kIsrael}];
    }
  }
  const std::map<std::tuple<int32_t, int32_t, bool>, int> expected = {
      {{kTishri, 10, false}, 201}, {{kTishri, 10, true}, 201}, {{kTishri, 22, false}, 201}, {{kTishri, 22, true}, 201},
      {{kNisan, 22, false}, 201},  {{kNisan, 21, true}, 201},  {{kSivan, 7, false}, 201},   {{kSivan, 6, true}, 201}};
  EXPECT_EQ(times, expected);
}

TEST(LectionsYizkor, NamedDays) {
  const auto is = [](Date civil, Land land) {
    return IsYizkor(JewishFromAbsolute(AbsoluteFromGregorian(civil)), land);
  };
  EXPECT_TRUE(is({12, 10, 2024}, Land::kIsrael));    // Yom Kippur
  EXPECT_TRUE(is({24, 10, 2024}, Land::kDiaspora));  // Shemini Atzeret
  EXPECT_TRUE(is({20, 4, 2025}, Land::kDiaspora));   // eighth day of Pesach
  EXPECT_TRUE(is({19, 4, 2025}, Land::kIsrael));
  EXPECT_FALSE(is({19, 4, 2025}, Land::kDiaspora));
  EXPECT_TRUE(is({3, 6, 2025}, Land::kDiaspora));  // second day of Shavuot
  EXPECT_TRUE(is({2, 6, 2025}, Land::kIsrael));
  EXPECT_FALSE(is({3, 6, 2025}, Land::kIsrael));
}

}  // namespace
