#include "libraries/calendar/jewish.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <tuple>

#include "libraries/calendar/gregorian.h"

namespace {

using namespace calendar;

struct Pair {
  Date jewish;
  Date gregorian;
};

void ExpectPair(const Pair& pair) {
  const int32_t absolute = AbsoluteFromGregorian(pair.gregorian);
  EXPECT_EQ(JewishFromAbsolute(absolute), pair.jewish) << pair.gregorian.year << '-' << pair.gregorian.month;
  EXPECT_EQ(AbsoluteFromJewish(pair.jewish), absolute) << pair.jewish.year << '/' << pair.jewish.month;
}

// Dates as E. M. Reingold and N. Dershowitz publish them, "Calendrical Calculations", table of sample dates.
TEST(JewishCalendar, AgreesWithPublishedDayNumbers) {
  constexpr struct {
    int32_t absolute;
    Date date;
  } kDates[] = {
      {-214193, {10, 5, 3174}}, {-61387, {25, 9, 3593}}, {25469, {3, 7, 3831}},    {49217, {9, 7, 3896}},
      {171307, {18, 10, 4230}}, {210155, {4, 3, 4336}},  {253427, {13, 8, 4455}},  {369740, {6, 2, 4773}},
      {400085, {23, 2, 4856}},  {434355, {7, 1, 4950}},  {452605, {8, 13, 5000}},  {470160, {21, 1, 5048}},
      {524156, {7, 11, 5196}},  {544676, {3, 1, 5252}},  {567118, {1, 7, 5314}},   {569477, {27, 12, 5320}},
      {601716, {20, 3, 5408}},  {613424, {3, 4, 5440}},  {645554, {4, 4, 5528}},   {671401, {12, 1, 5599}},
      {704424, {19, 5, 5689}},  {709409, {14, 1, 5703}}, {727274, {12, 13, 5752}}, {728714, {5, 12, 5756}},
      {744313, {12, 8, 5799}},  {764652, {5, 5, 5854}},
  };
  for (const auto& [absolute, date] : kDates) {
    EXPECT_EQ(AbsoluteFromJewish(date), absolute);
    EXPECT_EQ(JewishFromAbsolute(absolute), date) << absolute;
  }
}

// From printed calendars (luchot) of these years.
TEST(JewishCalendar, AgreesWithPrintedCalendars) {
  for (const Pair& pair : {
           Pair{{1, kTishri, 5784}, {16, 9, 2023}},
           Pair{{14, kNisan, 5783}, {5, 4, 2023}},
           Pair{{15, kNisan, 5765}, {24, 4, 2005}},
           Pair{{5, kIyar, 5708}, {14, 5, 1948}},
           Pair{{28, kIyar, 5727}, {7, 6, 1967}},
           Pair{{10, kTishri, 5734}, {6, 10, 1973}},
           Pair{{14, kAdarII, 5784}, {24, 3, 2024}},
           Pair{{14, kAdar, 5784}, {23, 2, 2024}},
           Pair{{9, kAv, 5782}, {6, 8, 2022}},
           Pair{{25, kKislev, 5785}, {26, 12, 2024}},
           Pair{{1, kTishri, 5786}, {23, 9, 2025}},
       }) {
    ExpectPair(pair);
  }
}

// From ICU 78.2 via Node's Intl (calendar "hebrew").
TEST(JewishCalendar, AgreesWithAnIndependentLibrary) {
  // clang-format off
  constexpr Pair kPairs[] = {
      {{18, 2, 5353}, {20, 5, 1593}}, {{1, 9, 5362}, {25, 11, 1601}}, {{4, 7, 5365}, {28, 9, 1604}},
      {{15, 9, 5372}, {21, 11, 1611}}, {{1, 12, 5384}, {21, 2, 1624}}, {{24, 4, 5387}, {8, 7, 1627}},
      {{10, 11, 5388}, {15, 1, 1628}}, {{10, 4, 5394}, {6, 7, 1634}}, {{18, 6, 5394}, {11, 9, 1634}},
      {{19, 9, 5404}, {30, 11, 1643}}, {{27, 2, 5404}, {2, 6, 1644}}, {{24, 3, 5406}, {7, 6, 1646}},
      {{2, 4, 5407}, {5, 7, 1647}}, {{27, 11, 5434}, {3, 2, 1674}}, {{30, 8, 5435}, {29, 11, 1674}},
      {{19, 11, 5437}, {22, 1, 1677}}, {{25, 5, 5438}, {13, 8, 1678}}, {{22, 3, 5453}, {26, 6, 1693}},
      {{22, 11, 5470}, {23, 1, 1710}}, {{13, 9, 5483}, {22, 11, 1722}}, {{29, 2, 5492}, {24, 5, 1732}},
      {{22, 12, 5498}, {14, 3, 1738}}, {{13, 6, 5513}, {12, 9, 1753}}, {{14, 5, 5521}, {14, 8, 1761}},
      {{23, 12, 5530}, {20, 3, 1770}}, {{27, 4, 5535}, {25, 7, 1775}}, {{6, 12, 5538}, {5, 3, 1778}},
      {{1, 5, 5541}, {23, 7, 1781}}, {{8, 13, 5559}, {15, 3, 1799}}, {{27, 2, 5559}, {1, 6, 1799}},
      {{3, 6, 5560}, {24, 8, 1800}}, {{11, 13, 5567}, {21, 3, 1807}}, {{6, 8, 5572}, {24, 10, 1811}},
      {{28, 11, 5577}, {14, 2, 1817}}, {{14, 1, 5618}, {29, 3, 1858}}, {{18, 2, 5626}, {3, 5, 1866}},
      {{16, 11, 5646}, {22, 1, 1886}}, {{18, 3, 5654}, {22, 6, 1894}}, {{23, 9, 5676}, {30, 11, 1915}},
      {{1, 5, 5676}, {31, 7, 1916}}, {{16, 2, 5679}, {16, 5, 1919}}, {{9, 6, 5681}, {12, 9, 1921}},
      {{2, 5, 5684}, {2, 8, 1924}}, {{12, 2, 5713}, {27, 4, 1953}}, {{25, 1, 5715}, {17, 4, 1955}},
      {{5, 11, 5721}, {22, 1, 1961}}, {{3, 3, 5726}, {22, 5, 1966}}, {{21, 7, 5730}, {3, 10, 1969}},
      {{27, 5, 5743}, {6, 8, 1983}}, {{22, 3, 5744}, {22, 6, 1984}}, {{11, 11, 5752}, {16, 1, 1992}},
      {{16, 5, 5761}, {5, 8, 2001}}, {{28, 8, 5765}, {12, 11, 2004}}, {{20, 11, 5775}, {9, 2, 2015}},
      {{29, 3, 5775}, {16, 6, 2015}}, {{3, 4, 5787}, {8, 7, 2027}}, {{30, 3, 5793}, {27, 6, 2033}},
      {{28, 4, 5811}, {8, 7, 2051}}, {{29, 10, 5818}, {25, 1, 2058}}, {{5, 3, 5826}, {29, 5, 2066}},
      {{9, 8, 5831}, {14, 10, 2070}}, {{2, 9, 5837}, {28, 11, 2076}}, {{10, 7, 5847}, {18, 9, 2086}},
      {{6, 11, 5860}, {16, 1, 2100}}, {{19, 6, 5867}, {8, 9, 2107}}, {{13, 11, 5874}, {20, 1, 2114}},
      {{3, 8, 5884}, {23, 10, 2123}}, {{15, 1, 5885}, {19, 4, 2125}}, {{23, 1, 5885}, {27, 4, 2125}},
      {{27, 8, 5897}, {22, 11, 2136}}, {{21, 2, 5897}, {12, 5, 2137}}, {{25, 2, 5899}, {24, 5, 2139}},
      {{7, 7, 5903}, {26, 9, 2142}}, {{13, 9, 5910}, {13, 12, 2149}}, {{27, 10, 5913}, {24, 1, 2153}},
      {{11, 11, 5928}, {21, 1, 2168}}, {{22, 4, 5928}, {28, 7, 2168}}, {{17, 12, 5932}, {13, 3, 2172}},
      {{19, 10, 5939}, {29, 12, 2178}}, {{9, 4, 5947}, {16, 7, 2187}}, {{1, 8, 5956}, {4, 11, 2195}},
      {{21, 11, 5956}, {21, 2, 2196}}, {{27, 11, 5969}, {2, 2, 2209}}, {{2, 1, 5981}, {26, 3, 2221}},
      {{11, 9, 6004}, {24, 11, 2243}}, {{1, 5, 6016}, {23, 7, 2256}}, {{9, 11, 6018}, {15, 1, 2258}},
      {{13, 5, 6021}, {10, 8, 2261}}, {{17, 3, 6023}, {25, 6, 2263}}, {{13, 7, 6027}, {13, 10, 2266}},
      {{20, 8, 6035}, {21, 11, 2274}}, {{14, 11, 6037}, {19, 1, 2277}}, {{12, 2, 6053}, {19, 5, 2293}},
      {{14, 4, 6068}, {4, 7, 2308}}, {{26, 11, 6071}, {15, 2, 2311}}, {{18, 4, 6089}, {17, 7, 2329}},
      {{25, 10, 6094}, {1, 1, 2334}}, {{20, 6, 6109}, {5, 9, 2349}}, {{28, 7, 6112}, {19, 10, 2351}},
      {{21, 4, 6119}, {18, 7, 2359}}, {{23, 6, 6120}, {5, 9, 2360}}, {{14, 13, 6124}, {19, 3, 2364}},
      {{12, 10, 6132}, {21, 12, 2371}}, {{25, 5, 6133}, {16, 8, 2373}}, {{1, 7, 6134}, {20, 9, 2373}},
      {{12, 7, 6146}, {16, 10, 2385}}, {{5, 9, 6160}, {5, 12, 2399}}, {{23, 10, 6164}, {6, 1, 2404}},
      {{23, 1, 6166}, {12, 4, 2406}}, {{13, 10, 6167}, {25, 12, 2406}}, {{21, 11, 6171}, {15, 2, 2411}},
      {{22, 7, 6177}, {13, 10, 2416}}, {{3, 6, 6181}, {31, 8, 2421}}, {{20, 8, 6183}, {5, 11, 2422}},
      {{23, 6, 6184}, {17, 9, 2424}}, {{19, 4, 6191}, {30, 6, 2431}}, {{1, 7, 6194}, {15, 9, 2433}},
      {{13, 7, 6197}, {25, 9, 2436}}, {{13, 10, 6198}, {10, 1, 2438}}, {{13, 9, 6204}, {6, 12, 2443}},
      {{8, 9, 6210}, {24, 11, 2449}}, {{6, 3, 6211}, {7, 6, 2451}}, {{1, 2, 6212}, {22, 4, 2452}},
      {{28, 5, 6212}, {15, 8, 2452}}, {{14, 1, 6219}, {18, 4, 2459}}, {{21, 11, 6225}, {17, 2, 2465}},
      {{8, 12, 6241}, {10, 3, 2481}}, {{23, 4, 6242}, {10, 7, 2482}}, {{4, 5, 6251}, {9, 8, 2491}},
      {{18, 1, 6254}, {23, 4, 2494}}, {{24, 8, 6260}, {27, 11, 2499}}, {{8, 2, 6260}, {8, 5, 2500}},
      {{27, 1, 6267}, {10, 4, 2507}}, {{6, 10, 6284}, {15, 12, 2523}}, {{2, 5, 6306}, {31, 7, 2546}},
      {{15, 7, 6307}, {11, 10, 2546}}, {{21, 6, 6307}, {7, 9, 2547}}, {{6, 4, 6320}, {1, 7, 2560}},
      {{6, 10, 6322}, {14, 12, 2561}}, {{24, 11, 6333}, {28, 1, 2573}}, {{11, 3, 6341}, {13, 6, 2581}},
      {{15, 8, 6346}, {29, 10, 2585}}, {{11, 6, 6367}, {26, 8, 2607}}, {{27, 11, 6368}, {6, 2, 2608}},
      {{15, 3, 6372}, {7, 6, 2612}}, {{14, 1, 6374}, {15, 4, 2614}}, {{8, 8, 6375}, {2, 11, 2614}},
      {{11, 12, 6388}, {10, 3, 2628}}, {{12, 10, 6407}, {12, 1, 2647}}, {{27, 2, 6431}, {28, 5, 2671}},
      {{10, 1, 6436}, {15, 4, 2676}}, {{12, 5, 6446}, {25, 7, 2686}}, {{7, 6, 6458}, {6, 9, 2698}},
      {{3, 12, 6461}, {6, 3, 2701}}, {{22, 7, 6463}, {6, 10, 2702}}, {{12, 1, 6474}, {18, 4, 2714}},
      {{2, 1, 6492}, {20, 3, 2732}}, {{18, 6, 6492}, {31, 8, 2732}}, {{29, 12, 6525}, {13, 3, 2765}},
      {{18, 6, 6536}, {25, 9, 2776}}, {{24, 2, 6539}, {2, 6, 2779}}, {{24, 6, 6543}, {13, 9, 2783}},
      {{21, 11, 6545}, {22, 2, 2785}}, {{4, 8, 6569}, {16, 10, 2808}}, {{29, 5, 6570}, {20, 8, 2810}},
      {{25, 1, 6572}, {27, 4, 2812}}, {{1, 3, 6578}, {27, 5, 2818}}, {{25, 9, 6579}, {15, 12, 2818}},
      {{1, 10, 6580}, {9, 12, 2819}}, {{25, 2, 6585}, {3, 6, 2825}}, {{30, 1, 6587}, {18, 4, 2827}},
      {{26, 5, 6588}, {27, 8, 2828}}, {{16, 10, 6589}, {13, 1, 2829}}, {{9, 6, 6591}, {8, 9, 2831}},
      {{11, 8, 6596}, {25, 10, 2835}}, {{22, 3, 6604}, {29, 6, 2844}}, {{20, 4, 6604}, {27, 7, 2844}},
      {{27, 3, 6607}, {1, 7, 2847}}, {{16, 11, 6630}, {9, 2, 2870}}, {{9, 7, 6631}, {26, 9, 2870}},
      {{15, 9, 6641}, {8, 12, 2880}}, {{8, 6, 6641}, {24, 8, 2881}}, {{14, 5, 6647}, {25, 7, 2887}},
      {{4, 4, 6657}, {26, 6, 2897}}, {{28, 7, 6658}, {16, 10, 2897}}, {{23, 8, 6664}, {4, 11, 2903}},
      {{13, 12, 6665}, {11, 3, 2905}}, {{10, 2, 6666}, {26, 4, 2906}}, {{17, 10, 6672}, {29, 12, 2911}},
      {{24, 3, 6676}, {16, 6, 2916}}, {{21, 10, 6686}, {27, 12, 2925}}, {{28, 11, 6705}, {3, 2, 2945}},
      {{20, 3, 6717}, {10, 6, 2957}}, {{10, 11, 6719}, {9, 2, 2959}}, {{24, 8, 6727}, {28, 11, 2966}},
      {{11, 6, 6727}, {7, 9, 2967}}, {{12, 9, 6729}, {24, 11, 2968}}, {{2, 3, 6737}, {9, 6, 2977}},
      {{6, 5, 6749}, {30, 7, 2989}}, {{15, 6, 6750}, {27, 8, 2990}},
  };
  // clang-format on
  for (const Pair& pair : kPairs) ExpectPair(pair);
}

TEST(JewishCalendar, TheFirstDayIsTheMondayOfBaharad) {
  EXPECT_EQ(JewishNewYear(1), -1373427);
  EXPECT_EQ(YearTypeOf(1).newYear, Weekday::kMonday);
}

// Walks from day to day by the months' lengths alone.
TEST(JewishCalendar, EveryDayOfEveryYearConvertsBothWays) {
  Date date{1, kTishri, 1};
  const int32_t lastDay = JewishNewYear(kLastYear) + DaysInJewishYear(kLastYear) - 1;
  for (int32_t absolute = JewishNewYear(1); absolute <= lastDay; ++absolute) {
    ASSERT_EQ(AbsoluteFromJewish(date), absolute);
    ASSERT_EQ(JewishFromAbsolute(absolute), date) << absolute;
    if (++date.day <= DaysInJewishMonth(date.month, date.year)) continue;
    date.day = 1;
    if (date.month == kElul) ++date.year;
    date.month = date.month == MonthsInJewishYear(date.year) ? kNisan : date.month + 1;
  }
  EXPECT_EQ(date, (Date{1, kTishri, 10000}));
}

// The fourteen signs as every handbook of the calendar lists them (Kiddush haChodesh 8:7-10 gives the reasons).
TEST(JewishCalendar, AllFourteenYearTypesOccurAndNoOther) {
  using enum Weekday;
  using enum YearLength;
  using Type = std::tuple<Weekday, YearLength, bool>;
  const std::set<Type> expected = {{kMonday, kShort, false},     {kMonday, kFull, false},   {kTuesday, kRegular, false},
                                   {kThursday, kRegular, false}, {kThursday, kFull, false}, {kSaturday, kShort, false},
                                   {kSaturday, kFull, false},    {kMonday, kShort, true},   {kMonday, kFull, true},
                                   {kTuesday, kRegular, true},   {kThursday, kShort, true}, {kThursday, kFull, true},
                                   {kSaturday, kShort, true},    {kSaturday, kFull, true}};
  std::set<Type> found;
  for (int32_t year = kFirstYear; year <= kLastYear; ++year) {
    const YearType type = YearTypeOf(year);
    found.emplace(type.newYear, type.length, type.leap);
  }
  EXPECT_EQ(found, expected);
}

// By the printed calendars, whose signs add the weekday of Pesach: זח"ג, הש"א, גכ"ה.
TEST(JewishCalendar, YearTypesOfKnownYears) {
  EXPECT_EQ(YearTypeOf(5784), (YearType{Weekday::kSaturday, YearLength::kShort, true}));
  EXPECT_EQ(YearTypeOf(5785), (YearType{Weekday::kThursday, YearLength::kFull, false}));
  EXPECT_EQ(YearTypeOf(5786), (YearType{Weekday::kTuesday, YearLength::kRegular, false}));
}

// The molad of each year by hand from BaHaRaD; the dates from printed calendars.
TEST(JewishCalendar, EachPostponementMovesTheNewYear) {
  // Molad zaken alone: Monday 18 h 187 p, to Tuesday.
  EXPECT_EQ(JewishNewYear(5786), AbsoluteFromGregorian({23, 9, 2025}));
  // Lo ADU alone: Friday 11 h 882 p, to Saturday.
  EXPECT_EQ(JewishNewYear(5784), AbsoluteFromGregorian({16, 9, 2023}));
  // Molad zaken leads to a Friday, so two days: Thursday 20 h 701 p, to Saturday.
  EXPECT_EQ(JewishNewYear(5781), AbsoluteFromGregorian({19, 9, 2020}));
  // GaTaRaD: Tuesday 17 h 976 p of a common year, to Thursday.
  EXPECT_EQ(JewishNewYear(5745), AbsoluteFromGregorian({27, 9, 1984}));
  // BeTUTaKPaT: Monday 16 h 876 p after a leap year, to Tuesday.
  EXPECT_EQ(JewishNewYear(5766), AbsoluteFromGregorian({4, 10, 2005}));
  // None: Tuesday 5 h 497 p.
  EXPECT_EQ(JewishNewYear(5782), AbsoluteFromGregorian({7, 9, 2021}));
}

TEST(JewishCalendar, LeapYearsFollowTheNineteenYearCycle) {
  // 5777 = 19 * 304 + 1 opens a cycle.
  for (int32_t place = 1; place <= 19; ++place) {
    const bool leap = std::set{3, 6, 8, 11, 14, 17, 19}.contains(place);
    EXPECT_EQ(IsJewishLeapYear(5776 + place), leap) << place;
    EXPECT_EQ(MonthsInJewishYear(5776 + place), leap ? 13 : 12);
  }
}

TEST(JewishCalendar, LengthsOfTheChangingMonths) {
  EXPECT_EQ(DaysInJewishMonth(kCheshvan, 5785), 30);  // full
  EXPECT_EQ(DaysInJewishMonth(kKislev, 5785), 30);
  EXPECT_EQ(DaysInJewishMonth(kCheshvan, 5786), 29);  // regular
  EXPECT_EQ(DaysInJewishMonth(kKislev, 5786), 30);
  EXPECT_EQ(DaysInJewishMonth(kCheshvan, 5784), 29);  // short
  EXPECT_EQ(DaysInJewishMonth(kKislev, 5784), 29);
  EXPECT_EQ(DaysInJewishMonth(kAdar, 5784), 30);  // Adar I
  EXPECT_EQ(DaysInJewishMonth(kAdarII, 5784), 29);
  EXPECT_EQ(DaysInJewishMonth(kAdar, 5785), 29);
  EXPECT_EQ(DaysInJewishMonth(kAdarII, 5785), 0);
  EXPECT_EQ(DaysInJewishYear(5784), 383);
  EXPECT_EQ(DaysInJewishYear(5785), 355);
  EXPECT_EQ(DaysInJewishYear(5786), 354);
}

TEST(JewishCalendar, WhatLiesOutsideIsClamped) {
  constexpr int32_t kLeast = std::numeric_limits<int32_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
  EXPECT_EQ(AbsoluteFromJewish({kLeast, kLeast, kLeast}), AbsoluteFromJewish({1, kNisan, 1}));
  EXPECT_EQ(AbsoluteFromJewish({kMost, kMost, kMost}), AbsoluteFromJewish({29, kAdar, 9999}));
  EXPECT_EQ(AbsoluteFromJewish({14, kAdarII, 5785}), AbsoluteFromJewish({14, kAdar, 5785}));
  EXPECT_EQ(AbsoluteFromJewish({30, kCheshvan, 5784}), AbsoluteFromJewish({29, kCheshvan, 5784}));
  EXPECT_EQ(JewishFromAbsolute(kLeast), (Date{1, kTishri, 1}));
  EXPECT_EQ(JewishFromAbsolute(kMost), (Date{29, kElul, 9999}));
  EXPECT_EQ(DaysInJewishMonth(kLeast, 5784), 0);
  EXPECT_EQ(DaysInJewishMonth(kMost, kMost), 0);
  EXPECT_EQ(JewishNewYear(0), JewishNewYear(1));
}

}  // namespace
