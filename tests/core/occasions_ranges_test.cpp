// What holds of the occasions anywhere and at any time: candles and ends are those of the Shabbat times, a range is a
// slice of a longer one, and nothing is nonsense where the sun does not set, at the date line and at both ends of the
// years.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "libraries/calendar/date.h"
#include "libraries/sun/clock_in_force.h"
#include "tests/core/occasions_days.h"

namespace {

using namespace occasions;
using calendar::Land;
using calendar::Weekday;

Question InTromso() {
  return QuestionAt("Tromso", 6939, 1857, 1, 0, "Europe/Oslo");
}
Question InLongyearbyen() {
  return QuestionAt("Longyearbyen", 7813, 1538, 1, 0, "Arctic/Longyearbyen");
}
Question AtMcMurdo() {
  return QuestionAt("McMurdo", -7751, 16640, 12, 0, "Antarctica/McMurdo");
}
Question InApia() {
  return QuestionAt("Apia", -1350, -17146, 13, 0, "Pacific/Apia");
}
Question InKiritimati() {
  return QuestionAt("Kiritimati", 152, -15726, 14, 0, "Pacific/Kiritimati");
}

std::vector<Question> AllOverTheWorld() {
  Question byDegrees = InNewYork();
  byDegrees.shabbat.endsByMinutes = false;
  byDegrees.shabbat.minutesAfterDegrees = 2;
  Question elevated = InJerusalem();
  elevated.settings.elevationMetres = 754;
  return {InNewYork(),      byDegrees,   InJerusalem(), elevated,      InTromso(),
          InLongyearbyen(), AtMcMurdo(), InApia(),      InKiritimati()};
}

int32_t UnixDay(int32_t day) {
  return day - calendar::kAbsoluteDayOfUnixDay0;
}

int64_t UnixMinute(const Row& row) {
  return int64_t{UnixDay(row.day)} * 1440 + row.minute.value_or(0);
}

// Where a row stands on its day: whole days first, then by time, then what does not occur, unless it would begin a
// fast.
int32_t PlaceInDay(const Row& row) {
  const bool isFirst = row.moment == Moment::kWholeDay || row.moment == Moment::kFastBegins;
  return row.minute.value_or(isFirst ? -1 : 1440);
}

void ExpectSense(const std::vector<Row>& rows, int32_t first, int32_t last, const std::string& place) {
  std::pair before(first, -1);
  for (const Row& row : rows) {
    const std::pair now(row.day, PlaceInDay(row));
    EXPECT_LE(before, now) << place << ": " << DayText(row.day) << " " << WhatText(row);
    before = now;
    EXPECT_LE(row.day, last);
    EXPECT_GE(row.minute.value_or(0), 0);
    EXPECT_LT(row.minute.value_or(0), 1440);
    const bool isMissing = !row.minute && row.moment != Moment::kWholeDay;
    EXPECT_EQ((row.notes & (kNeverSoLow | kAlwaysLower)) != 0, isMissing)
        << place << ": " << DayText(row.day) << " " << WhatText(row);
  }
}

// The solar library's minute, since 1970-01-01 0:00 of the clock.
int64_t SunsetMinute(int32_t day, const sun::PlaceSettings& place) {
  const double sunset = sun::Sunset(sun::ComputeSunDay(UnixDay(day), place.site), place.elevationMetres).utcSeconds;
  return sun::NearestMinute(sunset, sun::ClockOffsetSeconds(place.clock, sunset));
}

// The minutes that the rule of Shabbat makes of a day's sunset.
int64_t LightingMinute(int32_t day, const Question& question) {
  return SunsetMinute(day, question.settings) - question.shabbat.candleMinutes;
}
int64_t EndMinute(int32_t day, const Question& question) {
  return SunsetMinute(day, question.settings) +
         candles::MinutesToEnd(UnixDay(day), question.settings, question.shabbat);
}

// Of the day that a row stands on, or the one before it where the sun is lowest after midnight.
template <typename MinuteOfDay>
bool IsOfDay(const Row& row, MinuteOfDay minuteOfDay, const Question& question) {
  return UnixMinute(row) == minuteOfDay(row.day, question) || UnixMinute(row) == minuteOfDay(row.day - 1, question);
}

TEST(OccasionRanges, CandlesBeforeSunsetAndEndsAreThoseOfTheShabbatTimes) {
  for (const Question& question : AllOverTheWorld()) {
    int32_t candles = 0;
    int32_t ends = 0;
    for (const Row& row : RowsBetween(question, CivilDay(2023, 1, 1), CivilDay(2026, 12, 31))) {
      if (row.moment == Moment::kCandles && (row.rule == Rule::kCandleMinutes || row.rule == Rule::kJerusalem)) {
        ++candles;
        EXPECT_TRUE(IsOfDay(row, LightingMinute, question)) << question.place << " " << DayText(row.day);
      }
      if (row.moment == Moment::kEnd) {
        ++ends;
        EXPECT_TRUE(IsOfDay(row, EndMinute, question)) << question.place << " " << DayText(row.day);
      }
    }
    EXPECT_GT(candles, 208) << question.place;
    EXPECT_GT(ends, 200) << question.place;
  }
}

TEST(OccasionRanges, WhateverIsLitForOnFridayIsLitForBeforeSunset) {
  for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
    Question question = InNewYork();
    question.land = land;
    for (const Row& row : RowsBetween(question, CivilDay(2000, 1, 1), CivilDay(2059, 12, 31))) {
      const bool isLit = row.moment == Moment::kCandles || row.moment == Moment::kLights;
      if (!isLit || calendar::WeekdayOf(row.day) != Weekday::kFriday) continue;
      EXPECT_EQ(UnixMinute(row), LightingMinute(row.day, question)) << DayText(row.day) << " " << WhatText(row);
    }
  }
}

TEST(OccasionRanges, HolyDaysInARowHaveLightsForEachAndOneEnd) {
  for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
    Question question = InNewYork();
    question.land = land;
    int32_t lit = 0;
    int32_t ended = 0;
    bool isOpen = false;
    for (const Row& row : RowsBetween(question, CivilDay(2000, 1, 2), CivilDay(2059, 12, 27))) {
      if (row.moment == Moment::kCandles) {
        ++lit;
        isOpen = true;
      } else if (row.moment == Moment::kEnd) {
        ++ended;
        EXPECT_TRUE(isOpen) << DayText(row.day);
        isOpen = false;
      }
    }
    EXPECT_FALSE(isOpen);
    EXPECT_GT(lit, ended);
  }
}

// Any window of days has exactly those rows of a longer one that are on its days.
TEST(OccasionRanges, AnyWindowIsTheSliceOfALongerOne) {
  std::mt19937 dice(17);
  for (const Question& question : AllOverTheWorld()) {
    for (const int32_t year : {1776, 1967, 2024, 2100}) {
      const int32_t first = CivilDay(year, 1, 1);
      const std::vector<Row> all = RowsBetween(question, first, first + 800);
      for (int window = 0; window < 60; ++window) {
        const int32_t start = first + static_cast<int32_t>(dice() % 790);
        const int32_t end = start + (window % 2 == 0 ? 0 : static_cast<int32_t>(dice() % 12));
        std::vector<Row> slice;
        std::ranges::copy_if(all, std::back_inserter(slice),
                             [&](const Row& row) { return row.day >= start && row.day <= end; });
        EXPECT_EQ(RowsBetween(question, start, end), slice) << question.place << " from " << DayText(start);
      }
    }
  }
}

TEST(OccasionRanges, ARangeThatEndsBeforeItBeginsHasNothing) {
  EXPECT_TRUE(RowsBetween(InNewYork(), CivilDay(2024, 5, 2), CivilDay(2024, 5, 1)).empty());
  EXPECT_TRUE(RowsBetween(InNewYork(), CivilDay(1400, 5, 2), CivilDay(1500, 5, 1)).empty());
  EXPECT_TRUE(RowsBetween(InNewYork(), CivilDay(3001, 1, 1), CivilDay(3100, 5, 1)).empty());
}

TEST(OccasionRanges, YearsEndAt1583And3000) {
  for (const Question& question : AllOverTheWorld()) {
    const auto first = RowsBetween(question, CivilDay(1580, 1, 1), CivilDay(1583, 12, 31));
    EXPECT_EQ(first, RowsBetween(question, CivilDay(1583, 1, 1), CivilDay(1583, 12, 31))) << question.place;
    ExpectSense(first, CivilDay(1583, 1, 1), CivilDay(1583, 12, 31), question.place);
    EXPECT_GT(first.size(), 300u);
    const auto last = RowsBetween(question, CivilDay(3000, 1, 1), CivilDay(3010, 1, 1));
    EXPECT_EQ(last, RowsBetween(question, CivilDay(3000, 1, 1), CivilDay(3000, 12, 31))) << question.place;
    ExpectSense(last, CivilDay(3000, 1, 1), CivilDay(3000, 12, 31), question.place);
    EXPECT_GT(last.size(), 300u);
  }
}

TEST(OccasionRanges, AnyDayNumbersMeanDaysOfTheYears) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  EXPECT_TRUE(RowsBetween(InNewYork(), kMost, kLeast).empty());
  EXPECT_TRUE(RowsBetween(InNewYork(), kMost, kMost).empty());
  EXPECT_TRUE(RowsBetween(InNewYork(), kLeast, kLeast).empty());
  EXPECT_EQ(RowsBetween(InNewYork(), CivilDay(3000, 12, 1), kMost),
            RowsBetween(InNewYork(), CivilDay(3000, 12, 1), CivilDay(3000, 12, 31)));
}

// The sun does not set in Tromso from 20 May to 22 July, in Longyearbyen from 19 April to 23 August, at McMurdo from
// October to February; it does not rise in Tromso from 27 November to 15 January (their almanacs).
TEST(OccasionRanges, WhereTheSunDoesNotSetOrRiseCandlesAreByItsExtremePointAndSaySo) {
  struct Case {
    Question question;
    int32_t first;
    int32_t last;
    uint16_t note;
  };
  const Case cases[] = {{InTromso(), CivilDay(2024, 6, 1), CivilDay(2024, 7, 15), kSunDoesNotSet},
                        {InTromso(), CivilDay(2024, 3, 1), CivilDay(2024, 4, 30), 0},
                        {InTromso(), CivilDay(2024, 12, 5), CivilDay(2025, 1, 8), kSunDoesNotRise},
                        {InLongyearbyen(), CivilDay(2024, 5, 1), CivilDay(2024, 8, 15), kSunDoesNotSet},
                        {AtMcMurdo(), CivilDay(2024, 11, 10), CivilDay(2025, 1, 31), kSunDoesNotSet}};
  for (const Case& one : cases) {
    int32_t candles = 0;
    for (const Row& row : RowsBetween(one.question, one.first, one.last)) {
      if (row.moment != Moment::kCandles || row.rule != Rule::kCandleMinutes) continue;
      ++candles;
      EXPECT_TRUE(row.minute.has_value());
      EXPECT_EQ(row.notes & (kSunDoesNotSet | kSunDoesNotRise), one.note)
          << one.question.place << " " << DayText(row.day);
    }
    EXPECT_GE(candles, 4) << one.question.place;
  }
}

// In Tromso the sun is never 7 degrees below the horizon from 24 April to 19 August (90 - 69.65 - its declination),
// nor 16.1 degrees from the beginning of April to the middle of September.
TEST(OccasionRanges, WhatNeedsANightHasNoTimeWhereThereIsNone) {
  const auto rows = RowsBetween(InTromso(), CivilDay(2024, 5, 1), CivilDay(2024, 8, 15));
  for (const Row& row : rows) {
    const bool isNights = row.rule == Rule::kDawn || row.rule == Rule::kNightfall || row.rule == Rule::kNightfallOfAv;
    if (!isNights) continue;
    EXPECT_EQ(TimeText(row), "----") << DayText(row.day) << " " << WhatText(row);
  }
  EXPECT_EQ(TimeText(TheRow(rows, Occasion::kSeventeenthOfTammuz, Moment::kFastBegins)), "----");
  EXPECT_EQ(TimeText(TheRow(rows, Occasion::kOmer, Moment::kCount, 30)), "----");
  const Row ends = TheRow(rows, Occasion::kTishaBeAv, Moment::kFastEnds);
  EXPECT_EQ(DayText(ends.day), "2024-08-13 Tue");
}

// From 15 November to 28 January the sun is more than 7.083 degrees below Longyearbyen's horizon all day (90 - 78.22 -
// its declination), so what begins with nightfall has no time; the moon may be blessed at any hour.
TEST(OccasionRanges, WhereTheSunIsLowerAllDayThatIsToldAndTheMoonMayBeBlessed) {
  const auto rows = RowsBetween(InLongyearbyen(), CivilDay(2025, 12, 1), CivilDay(2026, 1, 10));
  const Row light = TheRow(rows, Occasion::kChanukah, Moment::kLights, 1);
  EXPECT_EQ(TimeText(light), "----");
  EXPECT_EQ(light.notes, kAlwaysLower);
  int32_t limits = 0;
  for (const Row& row : rows) {
    if (row.occasion != Occasion::kKiddushLevana) continue;
    ++limits;
    EXPECT_TRUE(row.minute) << DayText(row.day);
    EXPECT_EQ(row.rule, Rule::kSinceMolad) << DayText(row.day);
  }
  EXPECT_GE(limits, 2);
}

// 8.5 degrees are passed in Longyearbyen's afternoons of early November, when the sun does not rise.
TEST(OccasionRanges, EndByDegreesThatOccurNeedsNoExplanationInPolarNight) {
  Question question = InLongyearbyen();
  question.shabbat.endsByMinutes = false;
  question.shabbat.endDegrees = 8.5;
  const auto rows = RowsBetween(question, CivilDay(2025, 11, 1), CivilDay(2025, 11, 8));
  EXPECT_EQ(rows.back().moment, Moment::kEnd);
  EXPECT_EQ(rows.back().notes & (kSunDoesNotRise | kSunDoesNotSet | kLowestPoint), 0);
}

TEST(OccasionRanges, MomentThatDoesNotOccurStandsBehindThoseOfItsDay) {
  // 10 Tevet 5786 has a dawn in Longyearbyen, but no nightfall.
  const auto rows = RowsBetween(InLongyearbyen(), CivilDay(2025, 12, 30), CivilDay(2025, 12, 30));
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].moment, Moment::kFastBegins);
  EXPECT_EQ(rows[1].moment, Moment::kFastEnds);
  EXPECT_EQ(TimeText(rows[1]), "----");
}

// London has no dawn of 16.1 degrees in June, but nights. Half a day before Hebcal's noon of 5 June 2031 is 00:59:11,
// at most some seconds off the sun's lowest point.
TEST(OccasionRanges, TheMoonIsBlessedUntilTheSunsLowestPointInANightWithoutDawn) {
  const Question london = QuestionAt("London", 5131, -8, 0, 0, "Europe/London");
  const int32_t day = CivilDay(2031, 6, 5);
  const std::vector<Row> rows = RowsBetween(london, day, day);
  const Row until = TheRow(rows, Occasion::kKiddushLevana, Moment::kUntil, calendar::kSivan);
  EXPECT_EQ(until.rule, Rule::kLastNight);
  EXPECT_TRUE(until.notes & kLowestPoint);
  ASSERT_TRUE(until.minute);
  EXPECT_NEAR(*until.minute, 59, 1);
}

TEST(OccasionRanges, TwentyYearsMakeSenseEverywhere) {
  for (const Question& question : AllOverTheWorld()) {
    const int32_t first = CivilDay(2000, 1, 1);
    const int32_t last = CivilDay(2019, 12, 31);
    const auto rows = RowsBetween(question, first, last);
    ExpectSense(rows, first, last, question.place);
    const auto candles = std::ranges::count_if(rows, [](const Row& row) { return row.moment == Moment::kCandles; });
    EXPECT_NEAR(static_cast<double>(candles), 20 * 61.0, 60) << question.place;
  }
}

// Kiritimati and Apia are east of the date line: Friday is the same Friday as in Melbourne.
TEST(OccasionRanges, BeyondTheDateLineFridayIsTheCivilFriday) {
  for (const Question& question : {InKiritimati(), InApia()}) {
    for (const Row& row : RowsBetween(question, CivilDay(2024, 1, 1), CivilDay(2024, 12, 31))) {
      if (row.occasion != Occasion::kShabbat || row.moment != Moment::kCandles) continue;
      EXPECT_EQ(calendar::WeekdayOf(row.day), Weekday::kFriday);
      EXPECT_GT(row.minute.value_or(0), 17 * 60);
      EXPECT_LT(row.minute.value_or(0), 19 * 60 + 30);
    }
  }
}

// The date line was moved across Apia at the end of 2011 and across Kiritimati at the end of 1994.
TEST(OccasionRanges, CandlesOfShabbatAreOnFridayBeforeTheDateLineWasMovedToo) {
  for (const Question& question : {InKiritimati(), InApia()}) {
    for (const Row& row : RowsBetween(question, CivilDay(1975, 1, 1), CivilDay(2012, 12, 31))) {
      if (row.occasion != Occasion::kShabbat) continue;
      const Weekday expected = row.moment == Moment::kCandles ? Weekday::kFriday : Weekday::kSaturday;
      EXPECT_EQ(calendar::WeekdayOf(row.day), expected) << question.place << " " << DayText(row.day);
    }
  }
}

// What settings may hold; whole days too many do not matter.
TEST(OccasionRanges, AnyNumbersOfMinutesAreThoseOfADay) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  for (const int32_t minutes : {kLeast, -1440, 1440, kMost}) {
    for (const bool byMinutes : {false, true}) {
      Question question = InNewYork();
      question.shabbat = {.candleMinutes = minutes, .endsByMinutes = byMinutes};
      question.shabbat.endMinutes = question.shabbat.minutesAfterDegrees = minutes;
      const auto rows = RowsBetween(question, CivilDay(2024, 1, 1), CivilDay(2024, 12, 31));
      ExpectSense(rows, CivilDay(2024, 1, 1), CivilDay(2024, 12, 31), std::to_string(minutes));
    }
  }
}

}  // namespace
