// Occasions that printed calendars explain every time. Unless a test says more, its dates are those of the civil
// calendars of these years, as Hebcal has them too; weekdays follow from the weekday of the New Year or of Pesach that
// is named.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "libraries/sun/clock_in_force.h"
#include "tests/core/occasions_days.h"

namespace {

using namespace occasions;
using calendar::Land;
using Texts = std::vector<std::string>;

// Of some occasions on civil days, both ends included.
Texts Days(const Question& question, int32_t first, int32_t last, const Wanted& wanted) {
  return DaysOf(RowsBetween(question, first, last), wanted);
}

// Of a Jewish year.
Texts DaysOfYear(const Question& question, int32_t year, const Wanted& wanted) {
  return DaysOf(RowsOfJewishYear(question, year), wanted);
}

// The same with their times.
Texts Times(const Question& question, int32_t first, int32_t last, const Wanted& wanted) {
  Texts texts;
  for (const Row& row : RowsBetween(question, first, last)) {
    if (std::ranges::find(wanted, row.occasion) == wanted.end()) continue;
    texts.push_back(DayText(row.day) + " " + TimeText(row) + " " + WhatText(row));
  }
  return texts;
}

Question In(Land land) {
  Question question = InNewYork();
  question.land = land;
  return question;
}

constexpr Occasion kShabbat = Occasion::kShabbat;
constexpr Occasion kEruv = Occasion::kEruvTavshilin;

// Sunset in Jerusalem (by the formulas of NOAA): 2 October 2024 18:22:27, 3 October 18:21:11, 4 October 18:19:55, 5
// October 18:18:39; forty minutes before it, 45 after it.
TEST(OccasionCases, RoshHashanaOnThursdayAndFridayMakesThreeDays) {
  EXPECT_EQ(
      Times(InJerusalem(), CivilDay(2024, 10, 2), CivilDay(2024, 10, 5), {Occasion::kRoshHashana, kShabbat, kEruv}),
      (Texts{"2024-10-02 Wed 17:42 eruv-tavshilin until", "2024-10-02 Wed 17:42 rosh-hashana 1 candles",
             "2024-10-03 Thu - rosh-hashana 1", "2024-10-03 Thu 19:06 rosh-hashana 2 candles",
             "2024-10-04 Fri - rosh-hashana 2", "2024-10-04 Fri 17:40 shabbat candles",
             "2024-10-05 Sat 19:04 shabbat end"}));
}

TEST(OccasionCases, AYomTovOfFridayRunsIntoShabbat) {
  EXPECT_EQ(Days(InJerusalem(), CivilDay(2026, 5, 21), CivilDay(2026, 5, 23), {Occasion::kShavuot, kShabbat, kEruv}),
            (Texts{"2026-05-21 Thu eruv-tavshilin until", "2026-05-21 Thu shavuot 1 candles",
                   "2026-05-22 Fri shavuot 1", "2026-05-22 Fri shabbat candles", "2026-05-23 Sat shabbat end"}));
}

TEST(OccasionCases, YomTovThatFollowsShabbatIsLitForFromAFlameAsShabbatEnds) {
  const auto rows = RowsBetween(InNewYork(), CivilDay(2025, 4, 11), CivilDay(2025, 4, 14));
  EXPECT_EQ(DaysOf(rows, {Occasion::kPesach, kShabbat}),
            (Texts{"2025-04-11 Fri shabbat candles", "2025-04-12 Sat pesach 1 candles", "2025-04-13 Sun pesach 1",
                   "2025-04-13 Sun pesach 2 candles", "2025-04-14 Mon pesach 2", "2025-04-14 Mon pesach 2 end"}));
  const Row lighting = TheRow(rows, Occasion::kPesach, Moment::kCandles, 1);
  EXPECT_EQ(lighting.rule, Rule::kFromFlame);
  EXPECT_EQ(TimeText(lighting), "20:18");  // sunset is at 19:32:37 (NOAA), 45 minutes more
}

TEST(OccasionCases, OnTheEveOfPesachThatIsAShabbatChametzGoesOnFridayAndTheFirstbornFastOnThursday) {
  EXPECT_EQ(Days(InNewYork(), CivilDay(2025, 4, 9), CivilDay(2025, 4, 13),
                 {Occasion::kSearchForChametz, Occasion::kChametz, Occasion::kFastOfFirstborn}),
            (Texts{"2025-04-10 Thu fast-of-firstborn fast-begins", "2025-04-10 Thu fast-of-firstborn fast-ends",
                   "2025-04-10 Thu search-for-chametz from", "2025-04-11 Fri chametz burning-ends",
                   "2025-04-12 Sat chametz eating-ends", "2025-04-12 Sat chametz burning-ends"}));
}

TEST(OccasionCases, OnAnotherEveOfPesachTheFirstbornFastUntilTheSeder) {
  EXPECT_EQ(Days(InNewYork(), CivilDay(2026, 3, 30), CivilDay(2026, 4, 1),
                 {Occasion::kSearchForChametz, Occasion::kChametz, Occasion::kFastOfFirstborn}),
            (Texts{"2026-03-31 Tue search-for-chametz from", "2026-04-01 Wed fast-of-firstborn fast-begins",
                   "2026-04-01 Wed chametz eating-ends", "2026-04-01 Wed chametz burning-ends"}));
}

TEST(OccasionCases, The9thOfAvThatIsAShabbatIsKeptFromItsSunsetOnSunday) {
  const auto rows = RowsBetween(InJerusalem(), CivilDay(2022, 8, 5), CivilDay(2022, 8, 13));
  EXPECT_EQ(DaysOf(rows, {Occasion::kTishaBeAv, Occasion::kShabbatChazon, Occasion::kShabbatNachamu}),
            (Texts{"2022-08-06 Sat shabbat-chazon", "2022-08-06 Sat tisha-beav fast-begins",
                   "2022-08-07 Sun tisha-beav fast-ends", "2022-08-13 Sat shabbat-nachamu"}));
  const Row begin = TheRow(rows, Occasion::kTishaBeAv, Moment::kFastBegins);
  EXPECT_EQ(TimeText(begin), "19:32");  // sunset is at 19:31:39 (NOAA)
  EXPECT_NE(begin.notes & kFromShabbatToSunday, 0);
}

// Rosh Hashana on Thursday, 17 Tammuz and 9 Av on Shabbat, Purim on Sunday.
TEST(OccasionCases, FastsThatAreAShabbatAreKeptOnSundayAndThatOfEstherOnThursday) {
  EXPECT_EQ(Days(InNewYork(), CivilDay(2024, 10, 4), CivilDay(2024, 10, 7), {Occasion::kFastOfGedaliah}),
            (Texts{"2024-10-06 Sun fast-of-gedaliah fast-begins", "2024-10-06 Sun fast-of-gedaliah fast-ends"}));
  EXPECT_EQ(Days(InNewYork(), CivilDay(2022, 7, 15), CivilDay(2022, 7, 18), {Occasion::kSeventeenthOfTammuz}),
            (Texts{"2022-07-17 Sun 17-tammuz fast-begins", "2022-07-17 Sun 17-tammuz fast-ends"}));
  EXPECT_EQ(
      Days(InNewYork(), CivilDay(2024, 3, 20), CivilDay(2024, 3, 24), {Occasion::kFastOfEsther, Occasion::kPurim}),
      (Texts{"2024-03-21 Thu fast-of-esther fast-begins", "2024-03-21 Thu fast-of-esther fast-ends",
             "2024-03-24 Sun purim"}));
}

TEST(OccasionCases, The10thOfTevetThatIsAFridayEndsInShabbat) {
  const auto rows = RowsBetween(InNewYork(), CivilDay(2023, 12, 22), CivilDay(2023, 12, 22));
  EXPECT_EQ(DaysOf(rows), (Texts{"2023-12-22 Fri 10-tevet fast-begins", "2023-12-22 Fri shabbat candles",
                                 "2023-12-22 Fri 10-tevet fast-ends"}));
  EXPECT_NE(TheRow(rows, Occasion::kTenthOfTevet, Moment::kFastEnds).notes & kOnFriday, 0);
}

TEST(OccasionCases, PurimOfWalledCitiesIsThreeDaysWhenItIsAShabbat) {
  EXPECT_EQ(Days(InJerusalem(), CivilDay(2025, 3, 13), CivilDay(2025, 3, 17),
                 {Occasion::kFastOfEsther, Occasion::kPurim, Occasion::kShushanPurim, Occasion::kPurimMeshulash}),
            (Texts{"2025-03-13 Thu fast-of-esther fast-begins", "2025-03-13 Thu fast-of-esther fast-ends",
                   "2025-03-14 Fri purim", "2025-03-15 Sat shushan-purim", "2025-03-16 Sun purim-meshulash"}));
  EXPECT_EQ(DaysOfYear(InJerusalem(), 5786, {Occasion::kPurimMeshulash}), Texts());
}

TEST(OccasionCases, LightsOfFridayAreBeforeItsCandlesAndThoseOfSaturdayNightAfterTheEnd) {
  const auto friday = RowsBetween(InNewYork(), CivilDay(2009, 12, 11), CivilDay(2009, 12, 11));
  EXPECT_EQ(DaysOf(friday, {Occasion::kChanukah, kShabbat}),
            (Texts{"2009-12-11 Fri chanukah 1 lights", "2009-12-11 Fri shabbat candles"}));
  const Row first = TheRow(friday, Occasion::kChanukah, Moment::kLights, 1);
  EXPECT_EQ(first.minute, TheRow(friday, kShabbat, Moment::kCandles).minute);
  EXPECT_EQ(first.rule, Rule::kBeforeCandles);

  const auto saturday = RowsBetween(InNewYork(), CivilDay(2016, 12, 24), CivilDay(2016, 12, 24));
  const Row light = TheRow(saturday, Occasion::kChanukah, Moment::kLights, 1);
  EXPECT_EQ(light.minute, TheRow(saturday, kShabbat, Moment::kEnd).minute);
  EXPECT_EQ(light.rule, Rule::kAfterShabbat);
}

// Kislev of 5777 has 29 days, of 5786 it has 30; the eighth day is 3 or 2 Tevet.
TEST(OccasionCases, ChanukahLastsEightDaysWhateverTheLengthOfKislev) {
  for (const auto& [year, first, last] : {std::tuple(5777, CivilDay(2016, 12, 25), CivilDay(2017, 1, 1)),
                                          std::tuple(5786, CivilDay(2025, 12, 15), CivilDay(2025, 12, 22))}) {
    const auto rows = RowsOfJewishYear(InNewYork(), year);
    EXPECT_EQ(TheRow(rows, Occasion::kChanukah, Moment::kWholeDay, 1).day, first);
    EXPECT_EQ(TheRow(rows, Occasion::kChanukah, Moment::kLights, 1).day, first - 1);
    EXPECT_EQ(TheRow(rows, Occasion::kChanukah, Moment::kWholeDay, 8).day, last);
    EXPECT_EQ(TheRow(rows, Occasion::kChanukah, Moment::kLights, 8).day, last - 1);
    EXPECT_EQ(FindRow(rows, Occasion::kChanukah, Moment::kWholeDay, 9), nullptr);
    EXPECT_EQ(DaysOf(rows, {Occasion::kChanukah}).size(), 16u);
  }
}

// In 5785 Rosh Hashana, and in the diaspora Sukkot and Shemini Atzeret too, are Thursday and Friday; in 5786 Pesach is
// Thursday and Friday in the diaspora, Shavuot is Friday.
TEST(OccasionCases, AnEruvTavshilinIsMadeBeforeAYomTovThatRunsIntoFriday) {
  EXPECT_EQ(DaysOf(RowsBetween(In(Land::kDiaspora), CivilDay(2024, 10, 1), CivilDay(2025, 9, 20)), {kEruv}),
            (Texts{"2024-10-02 Wed eruv-tavshilin until", "2024-10-16 Wed eruv-tavshilin until",
                   "2024-10-23 Wed eruv-tavshilin until"}));
  EXPECT_EQ(DaysOf(RowsBetween(In(Land::kIsrael), CivilDay(2024, 10, 1), CivilDay(2025, 9, 20)), {kEruv}),
            (Texts{"2024-10-02 Wed eruv-tavshilin until"}));
  EXPECT_EQ(DaysOfYear(In(Land::kDiaspora), 5786, {kEruv}),
            (Texts{"2026-04-01 Wed eruv-tavshilin until", "2026-05-21 Thu eruv-tavshilin until"}));
  EXPECT_EQ(DaysOfYear(In(Land::kIsrael), 5786, {kEruv}), (Texts{"2026-05-21 Thu eruv-tavshilin until"}));
}

TEST(OccasionCases, TheOmerIsCountedFromTheSecondNightOfPesachToTheNightBeforeShavuots) {
  const Texts omer = DaysOfYear(InJerusalem(), 5785, {Occasion::kOmer});
  ASSERT_EQ(omer.size(), 49u);
  EXPECT_EQ(omer.front(), "2025-04-13 Sun omer 1 count");
  EXPECT_EQ(omer.back(), "2025-05-31 Sat omer 49 count");
}

// Rosh Hashana 26 September 2022 is a Monday, 23 September 2025 a Tuesday, 3 October 2024 a Thursday, 16 September 2023
// a Shabbat. Midnight is twelve hours after noon, which is at 12:56 of summer time less the 3 to 10 minutes of
// September's equation of time: on Sunday.
TEST(OccasionCases, SelichotOfAshkenazimBeginInTheNightOfASundayFourDaysBeforeRoshHashanaAtLeast) {
  const Wanted selichot = {Occasion::kSelichot};
  EXPECT_EQ(DaysOfYear(InNewYork(), 5782, selichot), (Texts{"2022-09-18 Sun selichot from"}));
  EXPECT_EQ(DaysOfYear(InNewYork(), 5785, selichot), (Texts{"2025-09-14 Sun selichot from"}));
  EXPECT_EQ(DaysOfYear(InNewYork(), 5784, selichot), (Texts{"2024-09-29 Sun selichot from"}));
  EXPECT_EQ(DaysOfYear(InNewYork(), 5783, selichot), (Texts{"2023-09-10 Sun selichot from"}));
}

TEST(OccasionCases, SelichotOfSephardimBeginOn2ElulOrTheSundayAfterIt) {
  Question question = InJerusalem();
  question.customs.selichot = SelichotCustom::kSephardi;
  EXPECT_EQ(DaysOfYear(question, 5785, {Occasion::kSelichot}), (Texts{"2025-08-26 Tue selichot"}));
  EXPECT_EQ(DaysOfYear(question, 5783, {Occasion::kSelichot}), (Texts{"2023-08-20 Sun selichot"}));
}

// The season of Tishri is on 24 September of the Julian calendar at 3:00 + 6 hours x (year mod 4), from 18:00 (years
// that leave 3) the next day; 59 days on it is 22 or 23 November, the evening before 21 or 22. The Gregorian date is 12
// days later in 1899, 13 from 1900 to February 2100, 14 then.
TEST(OccasionCases, TalUmatarBeginsInTheDiasporaOnTheEveningOf4Or5DecemberAndADayLaterFrom2100On) {
  const auto inYear = [](int32_t year) {
    const Texts days = Days(InNewYork(), CivilDay(year, 10, 1), CivilDay(year, 12, 31), {Occasion::kTalUmatar});
    return days.size() == 1 ? days.front().substr(5, 5) : std::to_string(days.size());
  };
  EXPECT_EQ(inYear(1899), "12-04");
  EXPECT_EQ(inYear(1900), "12-04");
  EXPECT_EQ(inYear(2019), "12-05");
  EXPECT_EQ(inYear(2020), "12-04");
  EXPECT_EQ(inYear(2025), "12-04");
  EXPECT_EQ(inYear(2027), "12-05");
  EXPECT_EQ(inYear(2098), "12-04");
  EXPECT_EQ(inYear(2099), "12-05");
  EXPECT_EQ(inYear(2100), "12-05");
  EXPECT_EQ(inYear(2102), "12-05");
  EXPECT_EQ(inYear(2103), "12-06");
}

TEST(OccasionCases, TalUmatarBeginsInIsraelAsThe7thOfCheshvanDoesAndAFridayIsNoted) {
  EXPECT_EQ(DaysOfYear(InJerusalem(), 5786, {Occasion::kTalUmatar}), (Texts{"2025-10-28 Tue tal-umatar"}));
  const auto rows = RowsBetween(InNewYork(), CivilDay(2020, 12, 4), CivilDay(2020, 12, 4));
  EXPECT_EQ(TheRow(rows, Occasion::kTalUmatar, Moment::kWholeDay).notes, kOnFriday);
}

TEST(OccasionCases, TheSunIsBlessedEvery28Years) {
  EXPECT_EQ(Days(InJerusalem(), CivilDay(1970, 1, 1), CivilDay(2060, 1, 1), {Occasion::kBlessingOfTheSun}),
            (Texts{"1981-04-08 Wed blessing-of-the-sun from", "2009-04-08 Wed blessing-of-the-sun from",
                   "2037-04-08 Wed blessing-of-the-sun from"}));
}

// Knesset: the Independence Day Law of 1949 with its changes, the laws of Memorial Days of 1959 and 1963, Jerusalem
// Day.
TEST(OccasionCases, ModernDaysAreKeptByTheLawOfTheirTime) {
  struct Case {
    int32_t jewishYear;
    Texts days;
  };
  const Case cases[] = {
      {5708, {}},
      {5709, {"1949-05-04 Wed yom-haatzmaut"}},  // 5 Iyar
      {5750, {"1990-04-22 Sun yom-hashoah", "1990-04-29 Sun yom-hazikaron", "1990-04-30 Mon yom-haatzmaut"}},
      {5757, {"1997-05-05 Mon yom-hashoah", "1997-05-11 Sun yom-hazikaron", "1997-05-12 Mon yom-haatzmaut"}},
      {5764, {"2004-04-19 Mon yom-hashoah", "2004-04-26 Mon yom-hazikaron", "2004-04-27 Tue yom-haatzmaut"}},
      {5776, {"2016-05-05 Thu yom-hashoah", "2016-05-11 Wed yom-hazikaron", "2016-05-12 Thu yom-haatzmaut"}},
      {5780, {"2020-04-21 Tue yom-hashoah", "2020-04-28 Tue yom-hazikaron", "2020-04-29 Wed yom-haatzmaut"}},
      {5785, {"2025-04-24 Thu yom-hashoah", "2025-04-30 Wed yom-hazikaron", "2025-05-01 Thu yom-haatzmaut"}},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(DaysOfYear(InJerusalem(), one.jewishYear,
                         {Occasion::kYomHaShoah, Occasion::kYomHaZikaron, Occasion::kYomHaAtzmaut}),
              one.days)
        << one.jewishYear;
  }
  EXPECT_EQ(DaysOfYear(InJerusalem(), 5727, {Occasion::kYomYerushalayim}), Texts());
  EXPECT_EQ(DaysOfYear(InJerusalem(), 5728, {Occasion::kYomYerushalayim}), (Texts{"1968-05-26 Sun yom-yerushalayim"}));
}

TEST(OccasionCases, EveryMonthIsAnnouncedButTishri) {
  for (int32_t year = 5757; year < 5817; ++year) {
    int32_t announced = 0;
    for (const Row& row : RowsOfJewishYear(InNewYork(), year)) {
      if (row.occasion != Occasion::kShabbatMevarchim) continue;
      ++announced;
      EXPECT_NE(row.number, calendar::kTishri);
      EXPECT_EQ(calendar::WeekdayOf(row.day), calendar::Weekday::kSaturday);
    }
    EXPECT_EQ(announced, calendar::MonthsInJewishYear(year) - 1) << year;
  }
}

// Cheshvan 5786 has 29 days, Kislev 30.
TEST(OccasionCases, RoshChodeshIsOneDayOrTwo) {
  EXPECT_EQ(
      Days(InNewYork(), CivilDay(2025, 11, 1), CivilDay(2025, 12, 31), {Occasion::kRoshChodesh}),
      (Texts{"2025-11-21 Fri rosh-chodesh 9", "2025-12-20 Sat rosh-chodesh 10", "2025-12-21 Sun rosh-chodesh 10"}));
}

// The molad of Tishri 5786 is 22 September 2025, 12:10 and 7 parts of Jerusalem's mean time, which is 2:20:56.4 ahead
// of UTC: 9:49:26.9 UTC, 5:49:27 in New York.
TEST(OccasionCases, TheMoladStandsOnTheClockOfThePlace) {
  EXPECT_EQ(Times(InNewYork(), CivilDay(2025, 9, 22), CivilDay(2025, 9, 22), {Occasion::kMolad}),
            (Texts{"2025-09-22 Mon 05:49 molad 7 instant"}));
  EXPECT_EQ(Times(InJerusalem(), CivilDay(2025, 9, 22), CivilDay(2025, 9, 22), {Occasion::kMolad}),
            (Texts{"2025-09-22 Mon 12:49 molad 7 instant"}));
}

// Three days after that molad it is 5:49 of 25 September, which is after dawn (5:25); half a month after it, 0:11:28 of
// 7 October. The molad of Tammuz, 15 June 2026, 6:46 and 16 parts, is 0:25:57 in New York, and so is three days later.
// Half a month after that of Cheshvan, 22 October 0:54 and 8 parts, it is 5 November 11:55: until dawn, 5:08.
TEST(OccasionCases, KiddushLevanaIsAtNight) {
  const auto rows = RowsOfJewishYear(InNewYork(), 5786);
  const auto textOf = [&rows](Moment moment, int32_t month) {
    const Row row = TheRow(rows, Occasion::kKiddushLevana, moment, month);
    return DayText(row.day) + " " + TimeText(row);
  };
  EXPECT_EQ(textOf(Moment::kFrom, calendar::kTishri), "2025-09-25 Thu 19:21");  // nightfall, 7.083 degrees (Hebcal)
  EXPECT_EQ(textOf(Moment::kUntil, calendar::kTishri), "2025-10-07 Tue 00:11");
  EXPECT_EQ(textOf(Moment::kFrom, calendar::kTammuz), "2026-06-18 Thu 00:26");
  EXPECT_EQ(textOf(Moment::kUntil, calendar::kCheshvan), "2025-11-05 Wed 05:08");
  EXPECT_EQ(TheRow(rows, Occasion::kKiddushLevana, Moment::kFrom, calendar::kTishri).rule, Rule::kFirstNight);
  EXPECT_EQ(TheRow(rows, Occasion::kKiddushLevana, Moment::kFrom, calendar::kTammuz).rule, Rule::kSinceMolad);
  EXPECT_EQ(TheRow(rows, Occasion::kKiddushLevana, Moment::kUntil, calendar::kCheshvan).rule, Rule::kLastNight);
}

// 1 Iyar 5785 is Tuesday, 29 April 2025; 1 Cheshvan Shabbat, 2 November 2024, so that the first Shabbat after it is a
// week later.
TEST(OccasionCases, BehabIsMondayThursdayAndMondayAfterTheFirstShabbatBehindRoshChodesh) {
  Texts begins;
  for (const Row& row : RowsOfJewishYear(InNewYork(), 5785)) {
    if (row.occasion != Occasion::kBehab || row.moment != Moment::kFastBegins) continue;
    begins.push_back(DayText(row.day) + " " + std::to_string(row.number));
  }
  EXPECT_EQ(begins, (Texts{"2024-11-11 Mon 1", "2024-11-14 Thu 2", "2024-11-18 Mon 3", "2025-05-05 Mon 1",
                           "2025-05-08 Thu 2", "2025-05-12 Mon 3"}));
}

TEST(OccasionCases, YomKippurIsAFastFromItsCandlesToItsEnd) {
  const auto rows = RowsBetween(InNewYork(), CivilDay(2024, 10, 11), CivilDay(2024, 10, 12));
  const auto minuteOf = [&rows](Occasion occasion, Moment moment) { return TheRow(rows, occasion, moment).minute; };
  EXPECT_EQ(minuteOf(Occasion::kFastOfYomKippur, Moment::kFastBegins),
            minuteOf(Occasion::kYomKippur, Moment::kCandles));
  EXPECT_EQ(minuteOf(Occasion::kFastOfYomKippur, Moment::kFastEnds), minuteOf(Occasion::kYomKippur, Moment::kEnd));
}

// 6.45 degrees: 20:41:56 in New York, 7.083 degrees: 20:45:47 (Hebcal).
TEST(OccasionCases, The9thOfAvMayEndByANightfallOfItsOwn) {
  Question question = InNewYork();
  const auto endIn = [&question] {
    const auto rows = RowsBetween(question, CivilDay(2025, 8, 3), CivilDay(2025, 8, 3));
    return TimeText(TheRow(rows, Occasion::kTishaBeAv, Moment::kFastEnds));
  };
  EXPECT_EQ(endIn(), "20:46");
  question.customs.nightfallOfAv = "nightfall-6.45";
  EXPECT_EQ(endIn(), "20:42");
}

// The season of Tishri 5770 is on 7 October 2009 at 9:00 in the mean time of Jerusalem, 6:39:04 UTC; the others are 91
// days 7.5 hours later each.
TEST(OccasionCases, TheSeasonsStandOnTheClockOfThePlace) {
  EXPECT_EQ(Times(InJerusalem(), CivilDay(2009, 10, 1), CivilDay(2010, 9, 1), {Occasion::kTekufa}),
            (Texts{"2009-10-07 Wed 08:39 tekufa 7 instant", "2010-01-06 Wed 16:09 tekufa 10 instant",
                   "2010-04-08 Thu 00:39 tekufa 1 instant", "2010-07-08 Thu 08:09 tekufa 4 instant"}));
}

TEST(OccasionCases, TimesOfTheUsersOwnForAFridayAreThoseOfItsCandlesLightsAndEnd) {
  Question question = InNewYork();
  question.ownTimes = [](int32_t friday) -> std::optional<candles::Times> {
    if (friday != CivilDay(2025, 12, 19)) return std::nullopt;
    return candles::Times{15, 50, 17, 40};
  };
  const auto rows = RowsBetween(question, CivilDay(2025, 12, 19), CivilDay(2025, 12, 20));
  EXPECT_EQ(TimeText(TheRow(rows, kShabbat, Moment::kCandles)), "15:50");
  EXPECT_EQ(TimeText(TheRow(rows, Occasion::kChanukah, Moment::kLights, 6)), "15:50");
  EXPECT_EQ(TimeText(TheRow(rows, kShabbat, Moment::kEnd)), "17:40");
  EXPECT_EQ(TimeText(TheRow(rows, Occasion::kChanukah, Moment::kLights, 7)), "17:40");
  EXPECT_EQ(TheRow(rows, kShabbat, Moment::kCandles).rule, Rule::kOwnTime);
}

TEST(OccasionCases, KindsThatAreHiddenAreNotThere) {
  Question question = InNewYork();
  const auto all = RowsOfJewishYear(question, 5785);
  question.customs.hiddenKinds = 1u << static_cast<int>(Kind::kOmer) | 1u << static_cast<int>(Kind::kFast);
  const auto shown = RowsOfJewishYear(question, 5785);
  const auto hidden = std::ranges::count_if(
      all, [](const Row& row) { return KindOf(row.occasion) == Kind::kOmer || KindOf(row.occasion) == Kind::kFast; });
  EXPECT_GT(hidden, 49);
  EXPECT_EQ(shown.size() + static_cast<size_t>(hidden), all.size());
}

}  // namespace
