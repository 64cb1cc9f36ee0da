#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>

#include "libraries/lections/triennial.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using namespace lections_test;
using calendar::Portion;
using calendar::WeeklyPortion;

std::string ReadTriennial(int32_t day, int32_t month, int32_t year, Land land = Land::kDiaspora) {
  Settings settings = Of(land, Customs::kAshkenazi);
  settings.optional.triennial = true;
  return TextsOn(JewishDate(day, month, year), settings).torah[0];
}

TEST(LectionsTriennial, YearsOfTheCycle) {
  EXPECT_EQ(TriennialYear(5744), 1);
  EXPECT_EQ(TriennialYear(5784), 2);
  EXPECT_EQ(TriennialYear(5785), 3);
  EXPECT_EQ(TriennialYear(5743), 3);
  EXPECT_EQ(TriennialYear(5742), 2);
}

// @hebcal/triennial 6.0.2, an independent program; so is all below.
TEST(LectionsTriennial, ThirdsOfAPortion) {
  EXPECT_EQ(ReadTriennial(29, 10, 2022), "Noach: Genesis 6:9-8:14");
  EXPECT_EQ(ReadTriennial(21, 10, 2023), "Noach: Genesis 8:15-10:32");
  EXPECT_EQ(ReadTriennial(2, 11, 2024), "Noach (Rosh Chodesh Cheshvan): Genesis 11:1-32");
}

TEST(LectionsTriennial, JoinedAndSeparatePortionsOfACycle) {
  // Together in 5783, separately in 5784 and 5785.
  EXPECT_EQ(ReadTriennial(18, 3, 2023), "Vayakhel-Pekudei (Shabbat HaChodesh): Exodus 35:1-37:16");
  EXPECT_EQ(ReadTriennial(9, 3, 2024), "Vayakhel (Shabbat Shekalim): Exodus 35:1-36:19");
  EXPECT_EQ(ReadTriennial(16, 3, 2024), "Pekudei: Exodus 38:21-39:21");
  EXPECT_EQ(ReadTriennial(22, 3, 2025), "Vayakhel (Shabbat Parah): Exodus 36:20-38:20");
  EXPECT_EQ(ReadTriennial(29, 3, 2025), "Pekudei (Shabbat HaChodesh): Exodus 39:22-40:38");
}

TEST(LectionsTriennial, ShortPortionsAreReadWhole) {
  EXPECT_EQ(ReadTriennial(5, 10, 2024), "Ha'azinu (Shabbat Shuva): Deuteronomy 32:1-52");
  EXPECT_EQ(ReadTriennial(15, 9, 2012), "Nitzavim: Deuteronomy 29:9-30:20");
  EXPECT_EQ(ReadTriennial(28, 9, 2024), "Nitzavim-Vayeilech: Deuteronomy 30:1-31:6");
}

TEST(LectionsTriennial, FestivalsAndHaftarotStayWhole) {
  Settings settings = Of(Land::kDiaspora, Customs::kAshkenazi);
  settings.optional.triennial = true;
  EXPECT_EQ(Read(19, 10, 2024, settings),
            "Sukkot, day 3, Shabbat Chol HaMoed: Exodus 33:12-34:26 | "
            "Maftir: Numbers 29:17-22 | Scroll: Ecclesiastes // Ezekiel 38:18-39:16");
  EXPECT_EQ(Read(16, 11, 2024, settings), "Vayera: Genesis 21:1-22:24 // II Kings 4:1-37");
}

bool IsWithin(const Verses& part, const Verses& whole) {
  const auto first = [](const Verses& verses) { return std::pair(verses.chapter, verses.verse); };
  const auto last = [](const Verses& verses) { return std::pair(verses.lastChapter, verses.lastVerse); };
  return part.book == whole.book && first(part) >= first(whole) && last(part) <= last(whole) &&
         first(part) <= last(part);
}

// Every portion of every year has its part: none is left whole but those that always are.
TEST(LectionsTriennial, EveryPartIsWithinItsPortion) {
  for (int32_t year = 5343; year <= 6760; ++year) {
    for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
      const int32_t newYear = calendar::JewishNewYear(year);
      const int32_t first = newYear + 6 - static_cast<int32_t>(calendar::WeekdayOf(newYear));
      for (int32_t day = first; day < calendar::JewishNewYear(year + 1); day += 7) {
        const std::optional<WeeklyPortion> read = calendar::PortionOnShabbat(day, land);
        if (!read) continue;
        const Passage part = TriennialOf(*read, year, land);
        const Passage whole = TorahOf(*read);
        ASSERT_TRUE(IsWithin(part[0], whole[0])) << year << " portion " << read->portion;
        const bool isAlwaysWhole = !read->joinedWithNext && read->portion >= calendar::kNitzavim;
        ASSERT_EQ(part == whole, isAlwaysWhole) << year << " portion " << read->portion;
      }
    }
  }
}

// The first year begins where the portion does, the third ends where it does.
TEST(LectionsTriennial, ThreeYearsGoFromTheBeginningToTheEnd) {
  for (int32_t number = calendar::kBereshit; number < calendar::kNitzavim; ++number) {
    const WeeklyPortion read = {static_cast<Portion>(number), false};
    const Passage whole = TorahOf(read);
    const Passage third = TriennialOf(read, 5746, Land::kDiaspora);
    if (third == whole) continue;  // joined in that year
    EXPECT_EQ(std::pair(third[0].lastChapter, third[0].lastVerse), std::pair(whole[0].lastChapter, whole[0].lastVerse))
        << number;
    const Passage first = TriennialOf(read, 5744, Land::kDiaspora);
    if (first == whole) continue;
    EXPECT_EQ(std::pair(first[0].chapter, first[0].verse), std::pair(whole[0].chapter, whole[0].verse)) << number;
  }
}

}  // namespace
