#include "libraries/persons/personal_date.h"

#include <gtest/gtest.h>

#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"

namespace persons {
namespace {

using calendar::Date;
using enum calendar::JewishMonth;

constexpr Kind kAllKinds[] = {Kind::kBirthday, Kind::kYahrzeit, Kind::kWedding, Kind::kOther};
constexpr AdarCustom kAllCustoms[] = {AdarCustom::kAdarI, AdarCustom::kAdarII, AdarCustom::kBoth};

// The Jewish dates on which something is kept in a year.
std::vector<Date> Kept(const Date& event, Kind kind, int32_t year, AdarCustom adar = AdarCustom::kAdarI) {
  std::vector<Date> dates;
  for (const Observance& day : KeptInJewishYear(event, kind, adar, year)) {
    dates.push_back(calendar::JewishFromAbsolute(day.absoluteDay));
  }
  return dates;
}

std::vector<Date> Birthday(const Date& event, int32_t year) {
  return Kept(event, Kind::kBirthday, year, AdarCustom::kAdarII);
}

std::vector<Date> Yahrzeit(const Date& event, int32_t year, AdarCustom adar = AdarCustom::kAdarI) {
  return Kept(event, Kind::kYahrzeit, year, adar);
}

using Dates = std::vector<Date>;

constexpr EventDate Gregorian(int32_t day, int32_t month, int32_t year, bool afterSunset = false) {
  return {Calendar::kGregorian, {day, month, year}, afterSunset};
}
constexpr EventDate Jewish(int32_t day, int32_t month, int32_t year, bool afterSunset = false) {
  return {Calendar::kJewish, {day, month, year}, afterSunset};
}

constexpr int32_t kCommonYear = 5783;
constexpr int32_t kLeapYear = 5784;

TEST(PersonalDate, YearsHaveTheLengthsUsedHere) {
  // By Hebcal: 5781 has neither 30 Cheshvan nor 30 Kislev; 5782 (leap) has 30 Kislev alone; 5783 has both; 5784 (leap)
  // has neither; 5785 has both; 5786 has 30 Kislev alone.
  EXPECT_EQ(calendar::YearTypeOf(5781).length, calendar::YearLength::kShort);
  EXPECT_EQ(calendar::YearTypeOf(5782).length, calendar::YearLength::kRegular);
  EXPECT_EQ(calendar::YearTypeOf(5783).length, calendar::YearLength::kFull);
  EXPECT_EQ(calendar::YearTypeOf(5784).length, calendar::YearLength::kShort);
  EXPECT_EQ(calendar::YearTypeOf(5785).length, calendar::YearLength::kFull);
  EXPECT_EQ(calendar::YearTypeOf(5786).length, calendar::YearLength::kRegular);
}

// The example in Hebcal's documentation: 2 March 2014 was 30 Adar I 5774; in 5780, a common year, the yahrzeit is on 30
// Shevat, the birthday on 1 Nisan.
TEST(PersonalDate, ThirtiethOfAdarIInACommonYear) {
  const Date event = JewishDateOf(Gregorian(2, 3, 2014));
  EXPECT_EQ(event, (Date{30, kAdar, 5774}));
  EXPECT_EQ(Yahrzeit(event, 5780), (Dates{{30, kShevat, 5780}}));
  EXPECT_EQ(Birthday(event, 5780), (Dates{{1, kNisan, 5780}}));
  EXPECT_EQ(Yahrzeit(event, 5784), (Dates{{30, kAdar, 5784}}));
  EXPECT_EQ(Birthday(event, 5784), (Dates{{30, kAdar, 5784}}));
}

// Shulchan Aruch, Orach Chaim 55:10: of two boys born in a leap year on 29 Adar I and 1 Adar II, the younger comes of
// age first when the thirteenth year is a common one.
TEST(PersonalDate, TheYoungerOfTwoBoysMayComeOfAgeFirst) {
  const Date elder = {29, kAdar, 5784};
  const Date younger = {1, kAdarII, 5784};
  EXPECT_FALSE(calendar::IsJewishLeapYear(5797));
  EXPECT_EQ(ComesOfAge(elder, 13), calendar::AbsoluteFromJewish({29, kAdar, 5797}));
  EXPECT_EQ(ComesOfAge(younger, 13), calendar::AbsoluteFromJewish({1, kAdar, 5797}));
}

// The same place: who was born in a common year comes of age in Adar II of a leap year; who was born in one of the
// Adars of a leap year, in the same one of a leap year.
TEST(PersonalDate, ComingOfAgeInALeapYearFollowsTheAdarOfBirth) {
  EXPECT_EQ(ComesOfAge({10, kAdar, 5766}, 13), calendar::AbsoluteFromJewish({10, kAdarII, 5779}));
  EXPECT_EQ(ComesOfAge({10, kAdar, 5772}, 12), calendar::AbsoluteFromJewish({10, kAdarII, 5784}));
  EXPECT_EQ(ComesOfAge({10, kAdar, 5776}, 8), calendar::AbsoluteFromJewish({10, kAdar, 5784}));
  EXPECT_EQ(ComesOfAge({10, kAdarII, 5776}, 8), calendar::AbsoluteFromJewish({10, kAdarII, 5784}));
}

TEST(PersonalDate, ComingOfAgeIsUnknownWithoutAYearAndBeyondTheLast) {
  EXPECT_EQ(ComesOfAge({10, kTishri, kUnknownYear}, 13), std::nullopt);
  EXPECT_TRUE(ComesOfAge({10, kTishri, kLastJewishYear - 13}, 13));
  EXPECT_EQ(ComesOfAge({10, kTishri, kLastJewishYear - 12}, 13), std::nullopt);
}

// "Calendrical Calculations", the Hebrew birthday: that of the 30th is on the next day where the month has but 29.
TEST(PersonalDate, BirthdaysOnTheThirtiethMoveToTheNextMonth) {
  EXPECT_EQ(Birthday({30, kCheshvan, 5779}, 5781), (Dates{{1, kKislev, 5781}}));
  EXPECT_EQ(Birthday({30, kCheshvan, 5779}, 5783), (Dates{{30, kCheshvan, 5783}}));
  EXPECT_EQ(Birthday({30, kKislev, 5780}, 5781), (Dates{{1, kTevet, 5781}}));
  EXPECT_EQ(Birthday({30, kKislev, 5780}, 5782), (Dates{{30, kKislev, 5782}}));
}

// The same work, the Hebrew yahrzeit. 5779, 5780 and 5783 have both days, 5784 neither.
TEST(PersonalDate, YahrzeitOnTheThirtiethGoesByTheFirstAnniversary) {
  ASSERT_EQ(calendar::YearTypeOf(5779).length, calendar::YearLength::kFull);
  ASSERT_EQ(calendar::YearTypeOf(5780).length, calendar::YearLength::kFull);
  EXPECT_EQ(Yahrzeit({30, kCheshvan, 5783}, 5784), (Dates{{29, kCheshvan, 5784}}));
  EXPECT_EQ(Yahrzeit({30, kCheshvan, 5783}, 5785), (Dates{{30, kCheshvan, 5785}}));
  EXPECT_EQ(Yahrzeit({30, kCheshvan, 5783}, 5786), (Dates{{29, kCheshvan, 5786}}));
  EXPECT_EQ(Yahrzeit({30, kKislev, 5783}, 5784), (Dates{{29, kKislev, 5784}}));
  EXPECT_EQ(Yahrzeit({30, kKislev, 5783}, 5785), (Dates{{30, kKislev, 5785}}));

  EXPECT_EQ(Yahrzeit({30, kCheshvan, 5779}, 5780), (Dates{{30, kCheshvan, 5780}}));
  EXPECT_EQ(Yahrzeit({30, kCheshvan, 5779}, 5781), (Dates{{1, kKislev, 5781}}));
  EXPECT_EQ(Yahrzeit({30, kKislev, 5779}, 5781), (Dates{{1, kTevet, 5781}}));
}

TEST(PersonalDate, ThirtiethOfAnUnknownYearCountsAsKeptAtTheFirstAnniversary) {
  EXPECT_EQ(Yahrzeit({30, kCheshvan, kUnknownYear}, 5781), (Dates{{1, kKislev, 5781}}));
  EXPECT_EQ(Yahrzeit({30, kCheshvan, kUnknownYear}, 5783), (Dates{{30, kCheshvan, 5783}}));
  EXPECT_EQ(Yahrzeit({30, kAdar, kUnknownYear}, kCommonYear), (Dates{{30, kShevat, kCommonYear}}));
  EXPECT_EQ(Yahrzeit({30, kAdar, kUnknownYear}, kLeapYear), (Dates{{30, kAdar, kLeapYear}}));
}

// Every Adar of the event in every year that it can be kept in.
TEST(PersonalDate, AdarInAllCombinations) {
  constexpr int32_t kEventCommon = 5780;
  constexpr int32_t kEventLeap = 5779;
  ASSERT_TRUE(calendar::IsJewishLeapYear(kEventLeap) && !calendar::IsJewishLeapYear(kEventCommon));
  ASSERT_TRUE(calendar::IsJewishLeapYear(kLeapYear) && !calendar::IsJewishLeapYear(kCommonYear));
  const Date adar = {7, kAdar, kEventCommon};
  EXPECT_EQ(Yahrzeit(adar, kCommonYear), (Dates{{7, kAdar, kCommonYear}}));
  EXPECT_EQ(Yahrzeit(adar, kLeapYear, AdarCustom::kAdarI), (Dates{{7, kAdar, kLeapYear}}));
  EXPECT_EQ(Yahrzeit(adar, kLeapYear, AdarCustom::kAdarII), (Dates{{7, kAdarII, kLeapYear}}));
  EXPECT_EQ(Yahrzeit(adar, kLeapYear, AdarCustom::kBoth), (Dates{{7, kAdar, kLeapYear}, {7, kAdarII, kLeapYear}}));
  EXPECT_EQ(Birthday(adar, kLeapYear), (Dates{{7, kAdarII, kLeapYear}}));
  for (const AdarCustom custom : kAllCustoms) {
    for (const Kind kind : kAllKinds) {
      EXPECT_EQ(Kept(adar, kind, kCommonYear, custom), (Dates{{7, kAdar, kCommonYear}}));
      const Date adarI = {7, kAdar, kEventLeap};
      EXPECT_EQ(Kept(adarI, kind, kCommonYear, custom), (Dates{{7, kAdar, kCommonYear}}));
      EXPECT_EQ(Kept(adarI, kind, kLeapYear, custom), (Dates{{7, kAdar, kLeapYear}}));
      const Date adarII = {7, kAdarII, kEventLeap};
      EXPECT_EQ(Kept(adarII, kind, kCommonYear, custom), (Dates{{7, kAdar, kCommonYear}}));
      EXPECT_EQ(Kept(adarII, kind, kLeapYear, custom), (Dates{{7, kAdarII, kLeapYear}}));
    }
  }
}

TEST(PersonalDate, AdarIsAMatterOfCustomOnlyWhereTheYearOfTheEventHadOne) {
  EXPECT_TRUE(IsAdarByCustom({7, kAdar, 5780}));
  EXPECT_FALSE(IsAdarByCustom({7, kAdar, 5779}));
  EXPECT_FALSE(IsAdarByCustom({7, kAdarII, 5779}));
  EXPECT_FALSE(IsAdarByCustom({7, kNisan, 5780}));
  EXPECT_TRUE(IsAdarByCustom({29, kAdar, kUnknownYear}));
  EXPECT_FALSE(IsAdarByCustom({30, kAdar, kUnknownYear}));
  EXPECT_FALSE(IsAdarByCustom({7, kAdarII, kUnknownYear}));
}

TEST(PersonalDate, CustomOfAllIsThatOfYahrzeitAlone) {
  for (const Kind kind : kAllKinds) {
    const bool isYahrzeit = kind == Kind::kYahrzeit;
    EXPECT_EQ(CustomOf(kind, std::nullopt, AdarCustom::kBoth), isYahrzeit ? AdarCustom::kBoth : AdarCustom::kAdarII);
    EXPECT_EQ(CustomOf(kind, AdarCustom::kAdarI, AdarCustom::kBoth), AdarCustom::kAdarI);
  }
}

// 29 February 2020 was 4 Adar 5780 (Hebcal), so after sunset 5 Adar.
TEST(PersonalDate, AfterSunsetIsTheNextJewishDay) {
  EXPECT_EQ(JewishDateOf(Gregorian(29, 2, 2020)), (Date{4, kAdar, 5780}));
  EXPECT_EQ(JewishDateOf(Gregorian(29, 2, 2020, true)), (Date{5, kAdar, 5780}));
  EXPECT_EQ(GregorianDateOf(Jewish(4, kAdar, 5780)), (Date{29, 2, 2020}));
  EXPECT_EQ(GregorianDateOf(Jewish(5, kAdar, 5780, true)), (Date{29, 2, 2020}));
  EXPECT_EQ(JewishDateOf(Jewish(5, kAdar, 5780, true)), (Date{5, kAdar, 5780}));
  EXPECT_EQ(GregorianDateOf(Gregorian(29, 2, 2020, true)), (Date{29, 2, 2020}));
  // New Year's eve: 18 September 2020 was 29 Elul 5780.
  EXPECT_EQ(JewishDateOf(Gregorian(18, 9, 2020, true)), (Date{1, kTishri, 5781}));
}

TEST(PersonalDate, OfALeapDayIsKeptEveryYear) {
  const Date event = JewishDateOf(Gregorian(29, 2, 2020));
  for (int32_t year = 2021; year <= 2060; ++year) {
    const Observances kept = KeptInGregorianYear(event, Kind::kBirthday, AdarCustom::kAdarII, year);
    ASSERT_EQ(kept.size(), 1u) << year;
    EXPECT_EQ(kept[0].years, year - 2020);
    EXPECT_EQ(calendar::JewishFromAbsolute(kept[0].absoluteDay).day, 4);
  }
}

TEST(PersonalDate, ExistsWithinItsYears) {
  EXPECT_TRUE(IsDate(Gregorian(29, 2, 2020)));
  EXPECT_FALSE(IsDate(Gregorian(29, 2, 2019)));
  EXPECT_FALSE(IsDate(Gregorian(31, 12, 1582)));
  EXPECT_TRUE(IsDate(Gregorian(1, 1, 1583)));
  EXPECT_TRUE(IsDate(Gregorian(31, 12, 3000, true)));
  EXPECT_FALSE(IsDate(Gregorian(1, 1, 3001)));
  EXPECT_FALSE(IsDate(Gregorian(0, 1, 2020)));
  EXPECT_FALSE(IsDate(Gregorian(1, 13, 2020)));
  EXPECT_FALSE(IsDate(Gregorian(1, 1, kUnknownYear)));
  EXPECT_TRUE(IsDate(Jewish(1, kTishri, 1)));
  EXPECT_TRUE(IsDate(Jewish(29, kElul, 6761)));
  EXPECT_FALSE(IsDate(Jewish(1, kTishri, 6762)));
  EXPECT_FALSE(IsDate(Jewish(30, kKislev, 5784)));
  EXPECT_FALSE(IsDate(Jewish(1, kAdarII, 5783)));
  EXPECT_FALSE(IsDate(Jewish(-1, kAdar, 5783)));
  EXPECT_TRUE(IsDate(Jewish(30, kAdar, kUnknownYear)));
  EXPECT_TRUE(IsDate(Jewish(30, kKislev, kUnknownYear)));
  EXPECT_FALSE(IsDate(Jewish(30, kTevet, kUnknownYear)));
  EXPECT_FALSE(IsDate(Jewish(30, kAdarII, kUnknownYear)));
  EXPECT_FALSE(IsDate(Jewish(1, 14, kUnknownYear)));
  EXPECT_FALSE(IsDate(Jewish(1, 0, kUnknownYear)));
}

TEST(PersonalDate, GregorianDateIsUnknownOutsideItsYears) {
  EXPECT_EQ(GregorianDateOf(Jewish(20, kTevet, 4965)), std::nullopt) << "1204";
  EXPECT_EQ(GregorianDateOf(Jewish(1, kNisan, kUnknownYear)), std::nullopt);
  EXPECT_EQ(GregorianDateOf(Jewish(29, kElul, 6761)), std::nullopt) << "3001";
  const EventDate first = {Calendar::kJewish, JewishDateOf(Gregorian(1, 1, 1583)), false};
  EXPECT_EQ(GregorianDateOf(first), (Date{1, 1, 1583}));
  EXPECT_EQ(GregorianDateOf({Calendar::kJewish, first.date, true}), std::nullopt);
}

TEST(PersonalDate, IsNotKeptBeforeItself) {
  const Date event = {10, kShevat, 5780};
  EXPECT_TRUE(Kept(event, Kind::kWedding, 5779).empty());
  EXPECT_EQ(Kept(event, Kind::kWedding, 5780), (Dates{event}));
  EXPECT_EQ(KeptInJewishYear(event, Kind::kWedding, AdarCustom::kBoth, 5780)[0].years, 0);
  EXPECT_EQ(KeptInJewishYear(event, Kind::kWedding, AdarCustom::kBoth, 5783)[0].years, 3);
  // An Adar that is kept twice in leap years has its own day once.
  EXPECT_EQ(Kept({7, kAdar, 5780}, Kind::kYahrzeit, 5780, AdarCustom::kBoth).size(), 1u);
  const Observances unknown = KeptInJewishYear({10, kShevat, kUnknownYear}, Kind::kYahrzeit, AdarCustom::kBoth, 5783);
  EXPECT_EQ(unknown[0].years, std::nullopt);
}

// By Hebcal: 20 Tevet 5781 = 4 January 2021, 20 Tevet 5782 = 24 December 2021, 20 Tevet 5783 = 13 January 2023.
TEST(PersonalDate, TevetMayBeKeptTwiceInAGregorianYearOrNotAtAll) {
  const Date event = {20, kTevet, 5770};
  const auto in = [&event](int32_t year) {
    Dates dates;
    for (const Observance& day : KeptInGregorianYear(event, Kind::kYahrzeit, AdarCustom::kAdarI, year)) {
      dates.push_back(calendar::GregorianFromAbsolute(day.absoluteDay));
    }
    return dates;
  };
  EXPECT_EQ(in(2021), (Dates{{4, 1, 2021}, {24, 12, 2021}}));
  EXPECT_EQ(in(2022), (Dates{}));
  EXPECT_EQ(in(2023), (Dates{{13, 1, 2023}}));
}

TEST(PersonalDate, NextIsTheFirstOnOrAfterADay) {
  const Date event = {7, kAdar, 5780};
  const auto next = [&event](const Date& from, AdarCustom adar) {
    const auto day = NextKept(event, Kind::kYahrzeit, adar, calendar::AbsoluteFromJewish(from));
    return day ? calendar::JewishFromAbsolute(day->absoluteDay) : Date{};
  };
  EXPECT_EQ(next({7, kAdar, 5784}, AdarCustom::kBoth), (Date{7, kAdar, 5784}));
  EXPECT_EQ(next({8, kAdar, 5784}, AdarCustom::kBoth), (Date{7, kAdarII, 5784}));
  EXPECT_EQ(next({8, kAdar, 5784}, AdarCustom::kAdarI), (Date{7, kAdar, 5785}));
  EXPECT_EQ(next({8, kAdarII, 5784}, AdarCustom::kBoth), (Date{7, kAdar, 5785}));
  EXPECT_EQ(next({1, kTishri, 5770}, AdarCustom::kBoth), event) << "an event to come is its own next";
  EXPECT_EQ(next({8, kAdarII, kLastJewishYear}, AdarCustom::kBoth), Date{}) << "no year follows";
}

// Properties over every day of two cycles of 19 years, kept in the years of the two that follow.
TEST(PersonalDate, EveryDayOfTwoCyclesIsKeptOnceAYearCloseToItsDate) {
  constexpr int32_t kFirst = 5682;  // the first year of the 300th cycle
  constexpr int32_t kYears = 38;
  for (int32_t day = calendar::JewishNewYear(kFirst); day < calendar::JewishNewYear(kFirst + kYears); ++day) {
    const Date event = calendar::JewishFromAbsolute(day);
    for (const Kind kind : {Kind::kBirthday, Kind::kYahrzeit}) {
      for (int32_t year = event.year + 1; year <= event.year + kYears; ++year) {
        const Dates kept = Kept(event, kind, year, AdarCustom::kAdarII);
        ASSERT_EQ(kept.size(), 1u);
        ASSERT_EQ(kept[0].year, year);
        const bool isSame = kept[0].day == event.day;
        if (event.day < 30) {
          ASSERT_TRUE(isSame) << day << ' ' << year;
          const bool isAdar = event.month >= kAdar;
          ASSERT_TRUE(isAdar ? kept[0].month >= kAdar : kept[0].month == event.month);
        } else {
          // The 30th where there is one; else the 29th, the 1st of the next month, or 30 Shevat: never further away.
          const bool exists = calendar::DaysInJewishMonth(event.month, year) == 30;
          ASSERT_EQ(isSame && kept[0].month == event.month, exists) << day << ' ' << year;
          ASSERT_TRUE(isSame || kept[0].day == 29 || kept[0].day == 1) << day << ' ' << year;
        }
      }
    }
  }
}

TEST(PersonalDate, BothCalendarsAgreeOnEveryDayOfTwoCycles) {
  for (int32_t day = calendar::JewishNewYear(5682); day < calendar::JewishNewYear(5720); ++day) {
    for (const bool afterSunset : {false, true}) {
      const EventDate civil = {Calendar::kGregorian, calendar::GregorianFromAbsolute(day), afterSunset};
      ASSERT_TRUE(IsDate(civil));
      const EventDate jewish = {Calendar::kJewish, JewishDateOf(civil), afterSunset};
      ASSERT_TRUE(IsDate(jewish));
      ASSERT_EQ(GregorianDateOf(jewish), civil.date);
      ASSERT_EQ(calendar::AbsoluteFromJewish(jewish.date), day + (afterSunset ? 1 : 0));
    }
  }
}

// What is kept in the Gregorian years is what is kept in the Jewish years, none left out and none twice.
TEST(PersonalDate, GregorianAndJewishYearsHaveTheSameDays) {
  for (int32_t eventDay = calendar::JewishNewYear(5760); eventDay < calendar::JewishNewYear(5763); ++eventDay) {
    const Date event = calendar::JewishFromAbsolute(eventDay);
    std::vector<int32_t> byJewish;
    std::vector<int32_t> byGregorian;
    const int32_t first = calendar::AbsoluteFromGregorian({1, 1, 2000});
    const int32_t last = calendar::AbsoluteFromGregorian({31, 12, 2039});
    for (int32_t year = 5760; year <= 5800; ++year) {
      for (const Observance& day : KeptInJewishYear(event, Kind::kYahrzeit, AdarCustom::kBoth, year)) {
        if (day.absoluteDay >= first && day.absoluteDay <= last) byJewish.push_back(day.absoluteDay);
      }
    }
    for (int32_t year = 2000; year <= 2039; ++year) {
      for (const Observance& day : KeptInGregorianYear(event, Kind::kYahrzeit, AdarCustom::kBoth, year)) {
        byGregorian.push_back(day.absoluteDay);
      }
    }
    ASSERT_EQ(byGregorian, byJewish);
  }
}

}  // namespace
}  // namespace persons
