#include "libraries/calendar/portion_schedule.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"

namespace {

using namespace calendar;

using Read = std::optional<WeeklyPortion>;

constexpr Read kFestival = std::nullopt;
constexpr Land kLands[] = {Land::kDiaspora, Land::kIsrael};

// The Jewish years that lie, in part, between 1583 and 3000.
constexpr int32_t kFirst = 5343;
constexpr int32_t kLast = 6761;

constexpr Read One(Portion portion) {
  return WeeklyPortion{portion, false};
}

constexpr Read Joined(Portion first) {
  return WeeklyPortion{first, true};
}

Read On(const Date& gregorian, Land land) {
  return PortionOnShabbat(AbsoluteFromGregorian(gregorian), land);
}

constexpr int32_t ShabbatOnOrBefore(int32_t day) {
  return day - (static_cast<int32_t>(WeekdayOf(day)) + 1) % 7;
}

constexpr int32_t ShabbatOnOrAfter(int32_t day) {
  return ShabbatOnOrBefore(day + 6);
}

int32_t SimchatTorah(int32_t year, Land land) {
  return AbsoluteFromJewish({land == Land::kIsrael ? 22 : 23, kTishri, year});
}

int32_t Pesach(int32_t year) {
  return AbsoluteFromJewish({15, kNisan, year});
}

int32_t Shavuot(int32_t year) {
  return AbsoluteFromJewish({6, kSivan, year});
}

bool PesachIsOnShabbat(int32_t year) {
  return WeekdayOf(Pesach(year)) == Weekday::kSaturday;
}

// What is asked of a year in a land.
template <typename Check>
void ForEveryYear(Check check) {
  for (const Land land : kLands) {
    for (int32_t year = kFirst; year <= kLast; ++year) {
      SCOPED_TRACE(testing::Message() << year << (land == Land::kIsrael ? " Israel" : " diaspora"));
      check(year, land);
      if (testing::Test::HasFailure()) return;
    }
  }
}

TEST(PortionSchedule, EachPortionIsReadOnceACycleInOrder) {
  for (const Land land : kLands) {
    int32_t expected = kBereshit;
    int32_t year = kFirst;
    for (int32_t day = ShabbatOnOrAfter(SimchatTorah(kFirst, land) + 1); day < JewishNewYear(kLast + 1); day += 7) {
      const Read read = PortionOnShabbat(day, land);
      if (!read) continue;
      ASSERT_EQ(read->portion, expected) << day;
      if (expected == kBereshit) {
        ASSERT_EQ(day, ShabbatOnOrAfter(SimchatTorah(year++, land) + 1));
      }
      expected = read->Last() + 1;
      if (expected == kVezotHaberakhah) expected = kBereshit;
    }
    EXPECT_EQ(year, kLast + 1);
  }
}

TEST(PortionSchedule, OnlyFestivalsAndCholHaMoedDisplaceAPortion) {
  for (const Land land : kLands) {
    const int32_t secondDay = land == Land::kDiaspora ? 1 : 0;
    for (int32_t day = ShabbatOnOrAfter(JewishNewYear(kFirst)); day < JewishNewYear(kLast + 1); day += 7) {
      const Date date = JewishFromAbsolute(day);
      const bool tishri =
          date.month == kTishri && (date.day <= 2 || date.day == 10 || (date.day >= 15 && date.day <= 22 + secondDay));
      const bool pesach = date.month == kNisan && date.day >= 15 && date.day <= 21 + secondDay;
      const bool shavuot = date.month == kSivan && date.day >= 6 && date.day <= 6 + secondDay;
      ASSERT_EQ(PortionOnShabbat(day, land).has_value(), !tishri && !pesach && !shavuot) << day;
    }
  }
}

// The reasons behind the table: which weekdays a year's festivals take away (Tur, Orach Chaim 428).
TEST(PortionSchedule, PairsAreJoinedForWantOfShabbatot) {
  ForEveryYear([](int32_t year, Land land) {
    const YearType type = YearTypeOf(year);
    const Weekday nextNewYear = WeekdayOf(JewishNewYear(year + 1));
    const bool israel = land == Land::kIsrael;
    const bool beginsOnThursday = type.newYear == Weekday::kThursday;
    const bool secondDayOfShavuotIsOnShabbat = WeekdayOf(Shavuot(year)) == Weekday::kFriday;
    std::set<Portion> expected;
    if (!type.leap && !(beginsOnThursday && type.length == YearLength::kFull)) expected.insert(kVayakhel);
    if (!type.leap) expected.insert({kTazria, kAchareiMot});
    if (!type.leap && !(israel && PesachIsOnShabbat(year))) expected.insert(kBehar);
    if (!israel && secondDayOfShavuotIsOnShabbat) expected.insert(kChukat);
    if (!type.leap || !(beginsOnThursday || (israel && PesachIsOnShabbat(year)))) expected.insert(kMatot);
    if (nextNewYear == Weekday::kThursday || nextNewYear == Weekday::kSaturday) expected.insert(kNitzavim);

    std::set<Portion> joined;
    for (int32_t day = ShabbatOnOrAfter(JewishNewYear(year)); day < JewishNewYear(year + 1); day += 7) {
      const Read read = PortionOnShabbat(day, land);
      if (read && read->joinedWithNext) joined.insert(read->portion);
    }
    ASSERT_EQ(joined, expected);
  });
}

// "Tzumu vetzalu", "kumu vetik'u" (Shulchan Aruch, Orach Chaim 428:4): Vaetchanan follows the fast, Nitzavim precedes
// Rosh Hashana.
TEST(PortionSchedule, DevarimVaetchananAndNitzavimKeepTheirShabbatot) {
  ForEveryYear([](int32_t year, Land land) {
    const int32_t chazon = ShabbatOnOrBefore(AbsoluteFromJewish({9, kAv, year}));
    ASSERT_EQ(PortionOnShabbat(chazon, land), One(kDevarim));
    ASSERT_EQ(PortionOnShabbat(chazon + 7, land), One(kVaetchanan));
    const Read last = PortionOnShabbat(ShabbatOnOrBefore(JewishNewYear(year + 1) - 1), land);
    ASSERT_TRUE(last);
    ASSERT_EQ(last->portion, kNitzavim);
  });
}

// "Pikdu ufischu", in a leap year "sigru ufischu" (ibid.); a leap year that begins on a Thursday has a Shabbat more.
TEST(PortionSchedule, TzavOrMetzoraIsReadBeforePesach) {
  ForEveryYear([](int32_t year, Land land) {
    const YearType type = YearTypeOf(year);
    const Portion inLeapYear = type.newYear == Weekday::kThursday ? kAchareiMot : kMetzora;
    ASSERT_EQ(PortionOnShabbat(ShabbatOnOrBefore(Pesach(year) - 1), land), One(type.leap ? inLeapYear : kTzav));
  });
}

// "Menu ve'itzru" (ibid.), but Nasso in leap years that begin on a Thursday, and in Israel in those whose Pesach begins
// on Shabbat.
TEST(PortionSchedule, BamidbarOrNassoIsReadBeforeShavuot) {
  ForEveryYear([](int32_t year, Land land) {
    const YearType type = YearTypeOf(year);
    const bool aShabbatMore =
        type.leap && (type.newYear == Weekday::kThursday || (land == Land::kIsrael && PesachIsOnShabbat(year)));
    ASSERT_EQ(PortionOnShabbat(ShabbatOnOrBefore(Shavuot(year) - 1), land), One(aShabbatMore ? kNasso : kBamidbar));
  });
}

// The diaspora falls behind on the eighth day of Pesach or the second of Shavuot, and catches up by joining a pair.
TEST(PortionSchedule, IsraelAndDiasporaPartAndMeetAgain) {
  for (int32_t year = kFirst; year <= kLast; ++year) {
    std::set<int32_t> apart;
    for (int32_t day = ShabbatOnOrAfter(JewishNewYear(year)); day < JewishNewYear(year + 1); day += 7) {
      if (PortionOnShabbat(day, Land::kIsrael) != PortionOnShabbat(day, Land::kDiaspora)) apart.insert(day);
    }
    const bool shavuotIsOnFriday = WeekdayOf(Shavuot(year)) == Weekday::kFriday;
    ASSERT_EQ(!apart.empty(), PesachIsOnShabbat(year) || shavuotIsOnFriday) << year;
    if (apart.empty()) continue;

    Portion meeting = IsJewishLeapYear(year) ? kMatot : kBehar;
    if (shavuotIsOnFriday) meeting = kChukat;
    ASSERT_EQ(*apart.begin(), shavuotIsOnFriday ? Shavuot(year) + 1 : Pesach(year) + 7) << year;
    ASSERT_EQ(PortionOnShabbat(*apart.rbegin(), Land::kDiaspora), Joined(meeting)) << year;
    ASSERT_EQ(PortionOnShabbat(*apart.rbegin(), Land::kIsrael), One(static_cast<Portion>(meeting + 1))) << year;
    ASSERT_EQ(*apart.rbegin() - *apart.begin(), 7 * static_cast<int32_t>(apart.size() - 1)) << year;
  }
}

// Common years. Bulletins and articles of their weeks name the portions: torahfax.net (5777, 5778),
// israelnationalnews.com (5783), the Halocho blog (5769), azamra.org (5785), congregations' calendars (5770, 5781).
TEST(PortionSchedule, PublishedDatesOfCommonYears) {
  struct Row {
    Date gregorian;
    Read diaspora;
    Read israel;
  };
  for (const Row& row : {
           Row{{8, 10, 2016}, One(kVayeilech), One(kVayeilech)},  // 5777, Monday, short
           Row{{16, 9, 2017}, Joined(kNitzavim), Joined(kNitzavim)},
           Row{{27, 5, 2023}, kFestival, One(kNasso)},  // 5783, Monday, full
           Row{{3, 6, 2023}, One(kNasso), One(kBehaalotcha)}, Row{{1, 7, 2023}, Joined(kChukat), One(kBalak)},
           Row{{4, 7, 2009}, Joined(kChukat), One(kBalak)},  // 5769, Tuesday, regular
           Row{{7, 4, 2018}, kFestival, One(kShmini)},       // 5778, Thursday, regular
           Row{{14, 4, 2018}, One(kShmini), Joined(kTazria)}, Row{{14, 7, 2018}, Joined(kMatot), Joined(kMatot)},
           Row{{2, 11, 2024}, One(kNoach), One(kNoach)},  // 5785, Thursday, full
           Row{{26, 7, 2025}, Joined(kMatot), Joined(kMatot)},
           Row{{13, 3, 2021}, Joined(kVayakhel), Joined(kVayakhel)},  // 5781, Saturday, short
           Row{{4, 9, 2010}, Joined(kNitzavim), Joined(kNitzavim)},   // 5770, Saturday, full
       }) {
    EXPECT_EQ(On(row.gregorian, Land::kDiaspora), row.diaspora) << row.gregorian.day << '.' << row.gregorian.month;
    EXPECT_EQ(On(row.gregorian, Land::kIsrael), row.israel) << row.gregorian.day << '.' << row.gregorian.month;
  }
}

// Leap years, from israelnationalnews.com and bethshalompgh.org (5779), etzion.org.il and torahfax.net (5776),
// chabad.org (5782), tiferetisrael.org (5774), hebcal.com (5784), aish.com (5760); 5749 and 5765 counted by hand from
// Bereshit on 8 October 1988 and 9 October 2004.
TEST(PortionSchedule, PublishedDatesOfLeapYears) {
  struct Row {
    Date gregorian;
    Read diaspora;
    Read israel;
  };
  for (const Row& row : {
           Row{{15, 4, 1989}, One(kMetzora), One(kMetzora)},  // 5749, Monday, short
           Row{{15, 7, 1989}, Joined(kChukat), One(kBalak)},
           Row{{30, 4, 2016}, kFestival, One(kAchareiMot)},  // 5776, Monday, full
           Row{{7, 5, 2016}, One(kAchareiMot), One(kKedoshim)},
           Row{{6, 8, 2016}, Joined(kMatot), One(kMasei)},
           Row{{1, 10, 2016}, One(kNitzavim), One(kNitzavim)},
           Row{{13, 4, 2019}, One(kMetzora), One(kMetzora)},  // 5779, Monday, full
           Row{{20, 7, 2019}, One(kBalak), One(kPinchas)},
           Row{{27, 7, 2019}, One(kPinchas), One(kMatot)},
           Row{{3, 8, 2019}, Joined(kMatot), One(kMasei)},
           Row{{23, 4, 2022}, kFestival, One(kAchareiMot)},  // 5782, Tuesday, regular
           Row{{30, 7, 2022}, Joined(kMatot), One(kMasei)},
           Row{{23, 4, 2005}, One(kAchareiMot), One(kAchareiMot)},  // 5765, Thursday, short
           Row{{26, 4, 2014}, One(kKedoshim), One(kKedoshim)},      // 5774, Thursday, full
           Row{{31, 5, 2014}, One(kNasso), One(kNasso)},
           Row{{19, 7, 2014}, One(kMatot), One(kMatot)},
           Row{{20, 9, 2014}, Joined(kNitzavim), Joined(kNitzavim)},
           Row{{23, 9, 2023}, One(kHaazinu), One(kHaazinu)},  // 5784, Saturday, short
           Row{{28, 9, 2024}, Joined(kNitzavim), Joined(kNitzavim)},
           Row{{15, 7, 2000}, Joined(kChukat), One(kBalak)},  // 5760, Saturday, full
       }) {
    EXPECT_EQ(On(row.gregorian, Land::kDiaspora), row.diaspora) << row.gregorian.day << '.' << row.gregorian.month;
    EXPECT_EQ(On(row.gregorian, Land::kIsrael), row.israel) << row.gregorian.day << '.' << row.gregorian.month;
  }
}

TEST(PortionSchedule, OnAWeekdayNoPortionIsRead) {
  const int32_t shabbat = AbsoluteFromGregorian({26, 7, 2025});
  for (int32_t day = shabbat + 1; day < shabbat + 7; ++day) EXPECT_EQ(PortionOnShabbat(day, Land::kIsrael), kFestival);
}

TEST(PortionSchedule, ThePortionOfTheWeekLastsUntilItsShabbat) {
  for (const Land land : kLands) {
    for (int32_t day = JewishNewYear(kFirst); day < JewishNewYear(kLast); ++day) {
      const Read today = PortionOfWeek(day, land);
      const Read onShabbat = PortionOnShabbat(day, land);
      const Date date = JewishFromAbsolute(day);
      ASSERT_TRUE(today) << day;
      if (onShabbat) {
        ASSERT_EQ(today, onShabbat) << day;
      } else if (day == SimchatTorah(date.year, land)) {
        ASSERT_EQ(today, One(kVezotHaberakhah)) << day;
        ASSERT_EQ(PortionOfWeek(day + 1, land), One(kBereshit)) << day;
      } else {
        ASSERT_EQ(today, PortionOfWeek(day + 1, land)) << day;
      }
    }
  }
}

// From @hebcal/leyning 10.0.0, an independent program: the weekday readings of Tishri.
TEST(PortionSchedule, AfterHaazinuTheWeekBelongsToVezotHaberakhah) {
  const auto inTishri = [](int32_t day, int32_t year) {
    return PortionOfWeek(AbsoluteFromJewish({day, kTishri, year}), Land::kDiaspora);
  };
  EXPECT_EQ(inTishri(6, 5784), One(kHaazinu));
  EXPECT_EQ(inTishri(13, 5784), One(kVezotHaberakhah));
  EXPECT_EQ(inTishri(24, 5784), One(kBereshit));
  EXPECT_EQ(inTishri(5, 5785), One(kVezotHaberakhah));
  EXPECT_EQ(inTishri(12, 5785), One(kVezotHaberakhah));
  EXPECT_EQ(inTishri(26, 5785), One(kNoach));
}

TEST(PortionSchedule, TheWeekOfPesachLooksToTheShabbatAfterIt) {
  const int32_t fifthDay = AbsoluteFromJewish({19, kNisan, 5782});  // Wednesday; the eighth day is a Shabbat
  EXPECT_EQ(PortionOfWeek(fifthDay, Land::kIsrael), One(kAchareiMot));
  EXPECT_EQ(PortionOfWeek(fifthDay + 3, Land::kDiaspora), One(kAchareiMot));
  EXPECT_EQ(PortionOfWeek(fifthDay + 4, Land::kIsrael), One(kKedoshim));
}

TEST(PortionSchedule, DaysOfAPortionAreThoseOnWhichItIsRead) {
  ForEveryYear([](int32_t year, Land land) {
    std::map<int32_t, std::vector<int32_t>> days;
    days[kVezotHaberakhah] = {SimchatTorah(year, land)};
    for (int32_t day = ShabbatOnOrAfter(JewishNewYear(year)); day < JewishNewYear(year + 1); day += 7) {
      const Read read = PortionOnShabbat(day, land);
      if (!read) continue;
      days[read->portion].push_back(day);
      if (read->joinedWithNext) days[read->Last()].push_back(day);
    }
    for (int32_t portion = 0; portion < kPortionCount; ++portion) {
      ASSERT_EQ(DaysOfPortion(static_cast<Portion>(portion), year, land), days[portion]) << portion;
      if (portion != kVayeilech) {
        ASSERT_EQ(days[portion].size(), 1u) << portion;
      }
    }
  });
}

// The new years of 5777, 5778, 5782 and 5784 are a Monday, Thursday, Tuesday and Saturday.
TEST(PortionSchedule, VayeilechIsReadTwiceInSomeYearsAndNotAtAllInOthers) {
  const std::vector<int32_t> of5777 = {AbsoluteFromGregorian({8, 10, 2016}), AbsoluteFromGregorian({16, 9, 2017})};
  EXPECT_EQ(DaysOfPortion(kVayeilech, 5777, Land::kIsrael), of5777);
  EXPECT_EQ(DaysOfPortion(kVayeilech, 5778, Land::kIsrael), std::vector<int32_t>{});
  EXPECT_EQ(DaysOfPortion(kVayeilech, 5782, Land::kIsrael).size(), 1u);
  EXPECT_EQ(DaysOfPortion(kVayeilech, 5784, Land::kIsrael).size(), 1u);
}

TEST(PortionSchedule, VezotHaberakhahIsReadOnSimchatTorah) {
  EXPECT_EQ(DaysOfPortion(kVezotHaberakhah, 5784, Land::kDiaspora),
            std::vector<int32_t>{AbsoluteFromGregorian({8, 10, 2023})});
  EXPECT_EQ(DaysOfPortion(kVezotHaberakhah, 5784, Land::kIsrael),
            std::vector<int32_t>{AbsoluteFromGregorian({7, 10, 2023})});
}

TEST(PortionSchedule, OutsideTheYearsOfTheCalendarNothingIsRead) {
  const int32_t firstDay = JewishNewYear(kFirstYear);
  const int32_t lastDay = JewishNewYear(kLastYear) + DaysInJewishYear(kLastYear) - 1;
  for (const Land land : kLands) {
    EXPECT_EQ(PortionOfWeek(firstDay, land), One(kVayeilech));  // a Monday
    EXPECT_EQ(PortionOnShabbat(ShabbatOnOrBefore(firstDay), land), kFestival);
    EXPECT_EQ(PortionOfWeek(firstDay - 1, land), kFestival);
    const int32_t lastShabbat = ShabbatOnOrBefore(lastDay);
    ASSERT_NE(lastShabbat, lastDay);
    EXPECT_EQ(PortionOfWeek(lastShabbat, land)->portion, kNitzavim);
    EXPECT_EQ(PortionOfWeek(lastDay, land), kFestival);
    EXPECT_EQ(PortionOnShabbat(lastShabbat + 7, land), kFestival);
    for (const int32_t day : {std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()}) {
      EXPECT_EQ(PortionOnShabbat(day, land), kFestival);
      EXPECT_EQ(PortionOfWeek(day, land), kFestival);
    }
    EXPECT_TRUE(DaysOfPortion(kBereshit, 0, land).empty());
    EXPECT_TRUE(DaysOfPortion(kBereshit, 10000, land).empty());
    EXPECT_EQ(DaysOfPortion(kBereshit, kLastYear, land).size(), 1u);
  }
}

}  // namespace
