// Readings of festivals, fasts and weekdays. Where a test names no other source, the verses are those that
// @hebcal/leyning 10.0.0, an independent program, lists for the date.
#include <gtest/gtest.h>

#include "tests/core/lections_days.h"

namespace {

using namespace lections_test;

TEST(LectionsFestival, RoshHashana) {
  EXPECT_EQ(InDiaspora(3, 10, 2024),
            "Rosh Hashana, day 1: Genesis 21:1-34 | Maftir: Numbers 29:1-6 // I Samuel 1:1-2:10");
  EXPECT_EQ(InIsrael(4, 10, 2024), "Rosh Hashana, day 2: Genesis 22:1-24 | Maftir: Numbers 29:1-6 // Jeremiah 31:2-20");
  EXPECT_EQ(InIsrael(19, 9, 2020),
            "Rosh Hashana, day 1, Shabbat: Genesis 21:1-34 | Maftir: Numbers 29:1-6 // I Samuel 1:1-2:10");
}

TEST(LectionsFestival, YomKippurMorningAndAfternoon) {
  constexpr char kRead[] =
      "Leviticus 16:1-34 | Maftir: Numbers 29:7-11 | Afternoon: Leviticus 18:1-30 // "
      "Morning: Isaiah 57:14-58:14 | Afternoon: Jonah 1:1-4:11, Micah 7:18-20";
  EXPECT_EQ(InDiaspora(26, 9, 2012), std::string("Yom Kippur: ") + kRead);
  EXPECT_EQ(InIsrael(12, 10, 2024), std::string("Yom Kippur, Shabbat: ") + kRead);
}

TEST(LectionsFestival, SukkotsFirstDays) {
  EXPECT_EQ(InDiaspora(17, 10, 2024),
            "Sukkot, day 1: Leviticus 22:26-23:44 | Maftir: Numbers 29:12-16 // Zechariah 14:1-21");
  EXPECT_EQ(InDiaspora(18, 10, 2024),
            "Sukkot, day 2: Leviticus 22:26-23:44 | Maftir: Numbers 29:12-16 // I Kings 8:2-21");
  EXPECT_EQ(InDiaspora(3, 10, 2020),
            "Sukkot, day 1, Shabbat: Leviticus 22:26-23:44 | Maftir: Numbers 29:12-16 // Zechariah 14:1-21");
}

// For Israel the luach of Rabbi Y. M. Tucazinsky: each day the offering of that day alone (Orach Chaim 663:1).
TEST(LectionsFestival, CholHaMoedOfSukkotInBothLands) {
  struct Row {
    int32_t day;
    const char* diaspora;
    const char* israel;
  };
  const Row kRows[] = {
      {2, "Sukkot, day 3, Chol HaMoed: Numbers 29:17-25", "Sukkot, day 3, Chol HaMoed: Numbers 29:20-22"},
      {3, "Sukkot, day 4, Chol HaMoed: Numbers 29:20-28", "Sukkot, day 4, Chol HaMoed: Numbers 29:23-25"},
      {4, "Sukkot, day 5, Chol HaMoed: Numbers 29:23-31", "Sukkot, day 5, Chol HaMoed: Numbers 29:26-28"},
      {5, "Sukkot, day 6, Chol HaMoed: Numbers 29:26-34", "Sukkot, day 6, Chol HaMoed: Numbers 29:29-31"},
      {6, "Sukkot, day 7, Hoshana Rabba: Numbers 29:26-34", "Sukkot, day 7, Hoshana Rabba: Numbers 29:32-34"},
  };
  for (const Row& row : kRows) {  // October 2023; the first day was a Shabbat, 30 September
    EXPECT_EQ(InDiaspora(row.day, 10, 2023), row.diaspora);
    EXPECT_EQ(InIsrael(row.day, 10, 2023), row.israel);
  }
  EXPECT_EQ(InIsrael(1, 10, 2023), "Sukkot, day 2, Chol HaMoed: Numbers 29:17-19");
}

TEST(LectionsFestival, ShabbatCholHaMoedOfSukkotTakesItsMaftirByTheDay) {
  struct Row {
    calendar::Date civil;
    const char* day;
    const char* diaspora;
    const char* israel;
  };
  const Row kRows[] = {{{19, 10, 2024}, "3", "29:17-22", "29:20-22"},
                       {{25, 9, 2021}, "5", "29:23-28", "29:26-28"},
                       {{6, 10, 2012}, "6", "29:26-31", "29:29-31"}};
  for (const Row& row : kRows) {
    const std::string before =
        std::string("Sukkot, day ") + row.day + ", Shabbat Chol HaMoed: Exodus 33:12-34:26 | Maftir: Numbers ";
    const std::string after = " | Scroll: Ecclesiastes // Ezekiel 38:18-39:16";
    EXPECT_EQ(InDiaspora(row.civil.day, row.civil.month, row.civil.year), before + row.diaspora + after);
    EXPECT_EQ(InIsrael(row.civil.day, row.civil.month, row.civil.year), before + row.israel + after);
  }
}

// 16 Tishri is a Shabbat in no year of the fixed calendar, 18 Tishri neither.
TEST(LectionsFestival, SheminiAtzeretAndSimchatTorah) {
  EXPECT_EQ(InDiaspora(24, 10, 2024),
            "Shemini Atzeret: Deuteronomy 14:22-16:17 | Maftir: Numbers 29:35-30:1 // I Kings 8:54-66");
  EXPECT_EQ(InDiaspora(25, 10, 2024),
            "Vezot Haberachah (Simchat Torah): Deuteronomy 33:1-34:12, Genesis 1:1-2:3 | Maftir: Numbers 29:35-30:1 "
            "// Ashkenazi: Joshua 1:1-18 | Sephardi: Joshua 1:1-9");
  EXPECT_EQ(InIsrael(24, 10, 2024, Customs::kAshkenazi),
            "Vezot Haberachah (Simchat Torah): Deuteronomy 33:1-34:12, Genesis 1:1-2:3 | Maftir: Numbers 29:35-30:1 "
            "// Joshua 1:1-18");
  EXPECT_EQ(InIsrael(25, 10, 2024), "");
}

// Rema, Orach Chaim 663:2; in Israel, where the eighth day is Simchat Torah, on the first day.
TEST(LectionsFestival, EcclesiastesWithoutAShabbatBetween) {
  EXPECT_EQ(InDiaspora(10, 10, 2020),
            "Shemini Atzeret, Shabbat: Deuteronomy 14:22-16:17 | "
            "Maftir: Numbers 29:35-30:1 | Scroll: Ecclesiastes // I Kings 8:54-66");
  EXPECT_EQ(InIsrael(3, 10, 2020),
            "Sukkot, day 1, Shabbat: Leviticus 22:26-23:44 | Maftir: Numbers 29:12-16 | "
            "Scroll: Ecclesiastes // Zechariah 14:1-21");
  EXPECT_EQ(InIsrael(10, 10, 2020, Customs::kSephardi),
            "Vezot Haberachah (Simchat Torah, Shabbat): Deuteronomy 33:1-34:12, Genesis 1:1-2:3 | "
            "Maftir: Numbers 29:35-30:1 // Joshua 1:1-9");
}

// The days' own offerings alone: Orach Chaim 684:1; with the next day's: Rema there.
TEST(LectionsFestival, WeekdaysOfChanukahDifferByCustomAndLand) {
  EXPECT_EQ(InDiaspora(2, 12, 2010), "Chanukah, day 1, Ashkenazi: Numbers 7:1-17 | Sephardi: Numbers 6:22-7:17");
  EXPECT_EQ(InDiaspora(3, 12, 2010), "Chanukah, day 2, Ashkenazi: Numbers 7:18-29 | Sephardi: Numbers 7:18-23");
  EXPECT_EQ(InIsrael(3, 12, 2010), "Chanukah, day 2: Numbers 7:18-23");
  EXPECT_EQ(InDiaspora(23, 12, 2011, Customs::kAshkenazi), "Chanukah, day 3: Numbers 7:24-35");
  EXPECT_EQ(InDiaspora(5, 12, 2010, Customs::kAshkenazi), "Chanukah, day 4: Numbers 7:30-41");
  EXPECT_EQ(InDiaspora(6, 12, 2010, Customs::kSephardi), "Chanukah, day 5: Numbers 7:36-41");
  EXPECT_EQ(InDiaspora(17, 12, 2020, Customs::kAshkenazi), "Chanukah, day 7: Numbers 7:48-59");
  EXPECT_EQ(InDiaspora(9, 12, 2010), "Chanukah, day 8: Numbers 7:54-8:4");
}

TEST(LectionsFestival, RoshChodeshInChanukah) {
  EXPECT_EQ(InDiaspora(7, 12, 2010), "Rosh Chodesh Tevet, Chanukah, day 6: Numbers 28:1-15, 7:42-47");
  EXPECT_EQ(InIsrael(8, 12, 2010), "Rosh Chodesh Tevet, Chanukah, day 7: Numbers 28:1-15, 7:48-53");
}

TEST(LectionsFestival, RoshChodeshOnWeekdays) {
  EXPECT_EQ(InDiaspora(3, 7, 2011), "Rosh Chodesh Tammuz: Numbers 28:1-15");
  EXPECT_EQ(InIsrael(28, 4, 2025), "Rosh Chodesh Iyar: Numbers 28:1-15");       // 30 Nisan
  EXPECT_EQ(InDiaspora(9, 2, 2024), "Rosh Chodesh Adar I: Numbers 28:1-15");    // 30 Shevat of a leap year
  EXPECT_EQ(InDiaspora(10, 3, 2024), "Rosh Chodesh Adar II: Numbers 28:1-15");  // 30 Adar I
  EXPECT_EQ(InDiaspora(28, 2, 2025), "Rosh Chodesh Adar: Numbers 28:1-15");     // 30 Shevat of a common year
}

TEST(LectionsFestival, FastsMorningAndAfternoon) {
  constexpr char kRead[] =
      ": Exodus 32:11-14, 34:1-10 | Afternoon: Exodus 32:11-14, 34:1-10 // Afternoon, Ashkenazi: Isaiah 55:6-56:8";
  EXPECT_EQ(InDiaspora(18, 9, 2023), std::string("Fast of Gedaliah") + kRead);
  EXPECT_EQ(InIsrael(10, 1, 2025), std::string("Fast of 10 Tevet") + kRead);  // a Friday
  EXPECT_EQ(InDiaspora(13, 3, 2025), std::string("Fast of Esther") + kRead);
  EXPECT_EQ(InDiaspora(21, 3, 2024), std::string("Fast of Esther") + kRead);  // Adar II
  EXPECT_EQ(InIsrael(13, 7, 2025), std::string("Fast of 17 Tammuz") + kRead);
}

// Orach Chaim 566:3 and the siddurim: Sephardim read no haftarah on the afternoon of the four fasts.
TEST(LectionsFestival, SephardimHaveNoHaftarahOnFastAfternoons) {
  EXPECT_EQ(InDiaspora(13, 3, 2025, Customs::kSephardi),
            "Fast of Esther: Exodus 32:11-14, 34:1-10 | Afternoon: Exodus 32:11-14, 34:1-10");
  EXPECT_EQ(InDiaspora(13, 3, 2025, Customs::kAshkenazi),
            "Fast of Esther: Exodus 32:11-14, 34:1-10 | Afternoon: Exodus 32:11-14, 34:1-10 // "
            "Afternoon: Isaiah 55:6-56:8");
}

TEST(LectionsFestival, FastsThatWouldBeOnShabbatAreMoved) {
  constexpr char kRead[] = ": Exodus 32:11-14, 34:1-10 | Afternoon: Exodus 32:11-14, 34:1-10";
  EXPECT_EQ(InDiaspora(6, 10, 2024, Customs::kSephardi), std::string("Fast of Gedaliah") + kRead);   // 4 Tishri
  EXPECT_EQ(InDiaspora(17, 3, 2011, Customs::kSephardi), std::string("Fast of Esther") + kRead);     // 11 Adar II
  EXPECT_EQ(InDiaspora(17, 7, 2022, Customs::kSephardi), std::string("Fast of 17 Tammuz") + kRead);  // 18 Tammuz
  EXPECT_EQ(InDiaspora(16, 7, 2022), "Balak: Numbers 22:2-25:9 // Micah 5:6-6:8");                   // 17 Tammuz
}

// The Sephardi afternoon: Orach Chaim 559:9 with Beit Yosef.
TEST(LectionsFestival, TishaBeAv) {
  constexpr char kRead[] =
      "Tisha BeAv: Deuteronomy 4:25-40 | Afternoon: Exodus 32:11-14, 34:1-10 | Scroll: Lamentations // "
      "Morning: Jeremiah 8:13-9:23 | Afternoon, Ashkenazi: Isaiah 55:6-56:8 | "
      "Afternoon, Sephardi: Hosea 14:2-10, Micah 7:18-20";
  EXPECT_EQ(InDiaspora(13, 8, 2024), kRead);
  EXPECT_EQ(InIsrael(3, 8, 2025), kRead);
  EXPECT_EQ(InDiaspora(7, 8, 2022), kRead);                                                              // 10 Av
  EXPECT_EQ(InDiaspora(6, 8, 2022), "Devarim (Shabbat Chazon): Deuteronomy 1:1-3:22 // Isaiah 1:1-27");  // 9 Av
}

TEST(LectionsFestival, PurimInItsThreeForms) {
  EXPECT_EQ(InDiaspora(24, 3, 2024), "Purim: Exodus 17:8-16 | Scroll: Esther");
  EXPECT_EQ(InIsrael(24, 3, 2024), "Purim: Exodus 17:8-16 | Scroll: Esther");
  EXPECT_EQ(InIsrael(25, 3, 2024), "Shushan Purim, walled cities: Exodus 17:8-16 | Scroll: Esther");
  EXPECT_EQ(InDiaspora(25, 3, 2024), "");
  // The three-day Purim: the scroll on Friday, the Torah reading on Shabbat, nothing on Sunday.
  EXPECT_EQ(InIsrael(14, 3, 2025), "Purim: Exodus 17:8-16 | Scroll: Esther");
  EXPECT_EQ(InIsrael(16, 3, 2025), "");
  EXPECT_EQ(InDiaspora(23, 2, 2024), "");  // 14 Adar I
}

TEST(LectionsFestival, PesachsFirstDays) {
  EXPECT_EQ(InDiaspora(13, 4, 2025),
            "Pesach, day 1: Exodus 12:21-51 | Maftir: Numbers 28:16-25 // "
            "Ashkenazi: Joshua 3:5-7, 5:2-6:1, 6:27 | Sephardi: Joshua 5:2-6:1, 6:27");
  EXPECT_EQ(InDiaspora(14, 4, 2025),
            "Pesach, day 2: Leviticus 22:26-23:44 | Maftir: Numbers 28:16-25 // "
            "II Kings 23:1-9, 23:21-25");
  EXPECT_EQ(InDiaspora(7, 4, 2012, Customs::kSephardi),
            "Pesach, day 1, Shabbat: Exodus 12:21-51 | Maftir: Numbers 28:16-25 // Joshua 5:2-6:1, 6:27");
}

TEST(LectionsFestival, CholHaMoedOfPesach) {
  EXPECT_EQ(InDiaspora(15, 4, 2025), "Pesach, day 3, Chol HaMoed: Exodus 13:1-16, Numbers 28:19-25");
  EXPECT_EQ(InDiaspora(16, 4, 2025), "Pesach, day 4, Chol HaMoed: Exodus 22:24-23:19, Numbers 28:19-25");
  EXPECT_EQ(InDiaspora(17, 4, 2025), "Pesach, day 5, Chol HaMoed: Exodus 34:1-26, Numbers 28:19-25");
  EXPECT_EQ(InDiaspora(18, 4, 2025), "Pesach, day 6, Chol HaMoed: Numbers 9:1-14, 28:19-25");
  EXPECT_EQ(InIsrael(14, 4, 2025), "Pesach, day 2, Chol HaMoed: Leviticus 22:26-23:44, Numbers 28:19-25");
  EXPECT_EQ(InIsrael(15, 4, 2025), "Pesach, day 3, Chol HaMoed: Exodus 13:1-16, Numbers 28:19-25");
}

// Orach Chaim 490:5: when Shabbat is the third day, its own passage is not read twice. The rule names no land.
TEST(LectionsFestival, WeekdaysOfPesachAreShiftedWhenTheThirdDayIsShabbat) {
  for (const auto& read : {InDiaspora, InIsrael}) {
    EXPECT_EQ(read(11, 4, 2020, Customs::kBoth),
              "Pesach, day 3, Shabbat Chol HaMoed: Exodus 33:12-34:26 | Maftir: Numbers 28:19-25 | "
              "Scroll: Song of Songs // Ezekiel 37:1-14");
    EXPECT_EQ(read(12, 4, 2020, Customs::kBoth), "Pesach, day 4, Chol HaMoed: Exodus 13:1-16, Numbers 28:19-25");
    EXPECT_EQ(read(13, 4, 2020, Customs::kBoth), "Pesach, day 5, Chol HaMoed: Exodus 22:24-23:19, Numbers 28:19-25");
    EXPECT_EQ(read(14, 4, 2020, Customs::kBoth), "Pesach, day 6, Chol HaMoed: Numbers 9:1-14, 28:19-25");
  }
}

TEST(LectionsFestival, ShabbatCholHaMoedOfPesachOnTheFifthDay) {
  EXPECT_EQ(InIsrael(23, 4, 2011),
            "Pesach, day 5, Shabbat Chol HaMoed: Exodus 33:12-34:26 | Maftir: Numbers 28:19-25 "
            "| Scroll: Song of Songs // Ezekiel 37:1-14");
  EXPECT_EQ(InIsrael(22, 4, 2011), "Pesach, day 4, Chol HaMoed: Exodus 22:24-23:19, Numbers 28:19-25");
}

TEST(LectionsFestival, PesachsLastDays) {
  EXPECT_EQ(InDiaspora(25, 4, 2011),
            "Pesach, day 7: Exodus 13:17-15:26 | Maftir: Numbers 28:19-25 // II Samuel 22:1-51");
  EXPECT_EQ(InDiaspora(26, 4, 2011),
            "Pesach, day 8: Deuteronomy 15:19-16:17 | Maftir: Numbers 28:19-25 // Isaiah 10:32-12:6");
  EXPECT_EQ(InIsrael(26, 4, 2011), "");
}

// Rema, Orach Chaim 490:9; where no Shabbat lies within the days, on the last in the diaspora, on the first in Israel.
TEST(LectionsFestival, SongOfSongsOnTheShabbatOfPesach) {
  EXPECT_EQ(InDiaspora(14, 4, 2012),
            "Pesach, day 8, Shabbat: Deuteronomy 14:22-16:17 | Maftir: Numbers 28:19-25 | "
            "Scroll: Song of Songs // Isaiah 10:32-12:6");
  EXPECT_EQ(InIsrael(7, 4, 2012, Customs::kSephardi),
            "Pesach, day 1, Shabbat: Exodus 12:21-51 | Maftir: Numbers 28:16-25 | Scroll: Song of Songs // "
            "Joshua 5:2-6:1, 6:27");
  EXPECT_EQ(InIsrael(14, 4, 2012, Customs::kSephardi), "Shemini: Leviticus 9:1-11:47 // II Samuel 6:1-19");
  for (const std::string& read : {InDiaspora(19, 4, 2025), InIsrael(19, 4, 2025)}) {
    EXPECT_EQ(read,
              "Pesach, day 7, Shabbat: Exodus 13:17-15:26 | Maftir: Numbers 28:19-25 | "
              "Scroll: Song of Songs // II Samuel 22:1-51");
  }
}

TEST(LectionsFestival, Shavuot) {
  EXPECT_EQ(InDiaspora(2, 6, 2025),
            "Shavuot, day 1: Exodus 19:1-20:23 | Maftir: Numbers 28:26-31 // Ezekiel 1:1-28, 3:12");
  EXPECT_EQ(InDiaspora(3, 6, 2025),
            "Shavuot, day 2: Deuteronomy 15:19-16:17 | Maftir: Numbers 28:26-31 | "
            "Scroll: Ruth // Ashkenazi: Habakkuk 3:1-19 | Sephardi: Habakkuk 2:20-3:19");
  EXPECT_EQ(InDiaspora(30, 5, 2020, Customs::kAshkenazi),
            "Shavuot, day 2, Shabbat: Deuteronomy 14:22-16:17 | Maftir: Numbers 28:26-31 | "
            "Scroll: Ruth // Habakkuk 3:1-19");
  EXPECT_EQ(InIsrael(2, 6, 2025),
            "Shavuot: Exodus 19:1-20:23 | Maftir: Numbers 28:26-31 | Scroll: Ruth // Ezekiel 1:1-28, 3:12");
  EXPECT_EQ(InIsrael(30, 5, 2020, Customs::kAshkenazi), "Nasso: Numbers 4:21-7:89 // Judges 13:2-25");
}

TEST(LectionsFestival, PlainWeekdaysHaveNoReadings) {
  EXPECT_EQ(InDiaspora(11, 11, 2024), "");  // a Monday
  EXPECT_EQ(InIsrael(13, 11, 2024), "");
}

TEST(LectionsFestival, MondaysAndThursdaysOnRequest) {
  Settings settings = Of(Land::kDiaspora, Customs::kBoth);
  settings.optional.mondayAndThursday = true;
  EXPECT_EQ(Read(11, 11, 2024, settings), "Vayera: Genesis 18:1-14");
  EXPECT_EQ(Read(14, 11, 2024, settings), "Vayera: Genesis 18:1-14");
  EXPECT_EQ(Read(12, 11, 2024, settings), "");
  EXPECT_EQ(Read(17, 10, 2022, settings),
            "Shemini Atzeret: Deuteronomy 14:22-16:17 | Maftir: Numbers 29:35-30:1 // "
            "I Kings 8:54-66");                                                    // a Monday, but a festival
  EXPECT_EQ(Read(2, 12, 2024, settings), "Rosh Chodesh Kislev: Numbers 28:1-15");  // a Monday too
  EXPECT_EQ(Read(28, 4, 2025, settings), "Rosh Chodesh Iyar: Numbers 28:1-15");
  EXPECT_EQ(Read(1, 5, 2025, settings), "Tazria-Metzora: Leviticus 12:1-13:5");  // joined: the first one's beginning
}

TEST(LectionsFestival, ShabbatAfternoonsOnRequest) {
  Settings settings = Of(Land::kDiaspora, Customs::kAshkenazi);
  settings.optional.shabbatAfternoon = true;
  EXPECT_EQ(Read(9, 11, 2024, settings),
            "Lech Lecha: Genesis 12:1-17:27 | Afternoon, Vayera: Genesis 18:1-14 // Isaiah 40:27-41:16");
  EXPECT_EQ(Read(19, 10, 2024, settings),
            "Sukkot, day 3, Shabbat Chol HaMoed: Exodus 33:12-34:26 | "
            "Maftir: Numbers 29:17-22 | Afternoon, Vezot Haberachah: "
            "Deuteronomy 33:1-17 / Scroll: Ecclesiastes // Ezekiel 38:18-39:16");
  EXPECT_EQ(Read(12, 10, 2024, settings),  // Yom Kippur has its own
            "Yom Kippur, Shabbat: Leviticus 16:1-34 | Maftir: Numbers 29:7-11 | Afternoon: Leviticus 18:1-30 // "
            "Morning: Isaiah 57:14-58:14 | Afternoon: Jonah 1:1-4:11, Micah 7:18-20");
}

}  // namespace
