#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "libraries/calendar/jewish.h"
#include "libraries/calendar/month_names.h"

namespace {

using namespace calendar;

constexpr uint32_t kGerman = 3;
constexpr uint32_t kHebrew = 4;
constexpr uint32_t kFinnish = 7;
constexpr uint32_t kDutch = 9;
constexpr uint32_t kCzech = 15;
constexpr uint32_t kGreek = 16;
constexpr uint32_t kRussian = 17;
constexpr uint32_t kPolish = 21;

TEST(MonthNames, TheTwelfthJewishMonthIsAdarOrAdarI) {
  EXPECT_STREQ(JewishMonthName(kAdar, 5785, kEnglish), "Adar");
  EXPECT_STREQ(JewishMonthName(kAdar, 5784, kEnglish), "Adar I");
  EXPECT_STREQ(JewishMonthName(kAdarII, 5784, kEnglish), "Adar II");
  EXPECT_STREQ(JewishMonthName(kAdar, 5784, kDutch), "Adar A");
}

TEST(MonthNames, MonthsStandInTheirNumbering) {
  EXPECT_STREQ(JewishMonthName(kNisan, 5784, kEnglish), "Nisan");
  EXPECT_STREQ(JewishMonthName(kTishri, 5784, kEnglish), "Tishri");
  EXPECT_STREQ(JewishMonthName(kTishri, 5784, kGerman), "Tischri");
  EXPECT_STREQ(GregorianMonthName(1, 2024, kEnglish), "January");
  EXPECT_STREQ(GregorianMonthName(12, 2024, kGerman), "Dezember");
}

TEST(MonthNames, AMonthThatTheYearLacksHasNone) {
  EXPECT_STREQ(JewishMonthName(kAdarII, 5785, kEnglish), "");
  EXPECT_STREQ(JewishMonthName(0, 5784, kEnglish), "");
  EXPECT_STREQ(JewishMonthName(14, 5784, kEnglish), "");
  EXPECT_STREQ(GregorianMonthName(13, 2024, kEnglish), "");
  EXPECT_STREQ(GregorianMonthName(std::numeric_limits<int32_t>::min(), 2024, kEnglish), "");
}

TEST(MonthNames, LettersBeyondAsciiAreBytesOfTheLanguagesCodePage) {
  EXPECT_STREQ(GregorianMonthName(3, 2024, kGerman), "M\xE4rz");
  EXPECT_STREQ(JewishMonthName(kTishri, 5784, kFinnish), "ti\x9Ar\xEDkuu");
  EXPECT_STREQ(GregorianMonthName(9, 2024, kPolish), "wrzesie\xF1");
  EXPECT_STREQ(JewishMonthName(kTishri, 5784, kHebrew), "\xFA\xF9\xF8\xE9");
  EXPECT_STREQ(JewishMonthName(kAdar, 5784, kHebrew), "\xE0\xE3\xF8 \xE0\xD7");
  EXPECT_STREQ(GregorianMonthName(9, 2024, kCzech), "z\xE1\xF8\xED");
  EXPECT_STREQ(GregorianMonthName(10, 2024, kGreek), "\xCF\xEA\xF4\xFE\xE2\xF1\xE9\xEF\xF2");
  EXPECT_STREQ(JewishMonthName(kElul, 5784, kGreek), "\xB8\xEB\xEF\xF5\xEB");
  EXPECT_STREQ(JewishMonthName(kTishri, 5784, kRussian), "\xD2\xE8\xF8\xF0\xE5\xE9");
}

TEST(MonthNames, AnUnknownLanguageAnswersEnglish) {
  for (const uint32_t language : {0u, 2u, 13u, 22u, 0xFFFFFFFFu}) {
    EXPECT_STREQ(JewishMonthName(kCheshvan, 5784, language), "Cheshvan");
    EXPECT_STREQ(GregorianMonthName(5, 2024, language), "May");
  }
}

TEST(MonthNames, EveryLanguageOfTheExportsNamesEveryMonth) {
  for (const uint32_t language : {1u, 3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u, 11u, 12u, 14u, 15u, 16u, 17u, 20u, 21u}) {
    for (int32_t month = 1; month <= 13; ++month) {
      EXPECT_GE(std::strlen(JewishMonthName(month, 5784, language)), 2u) << language << ' ' << month;
    }
    for (int32_t month = 1; month <= 12; ++month) {
      EXPECT_GE(std::strlen(GregorianMonthName(month, 2024, language)), 3u) << language << ' ' << month;
    }
  }
}

}  // namespace
