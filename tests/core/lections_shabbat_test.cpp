// Readings of single Shabbatot. Where a test names no other source, the verses are those that @hebcal/leyning 10.0.0,
// an independent program, lists for the date.
#include <gtest/gtest.h>

#include "tests/core/lections_days.h"

namespace {

using namespace lections_test;

TEST(LectionsShabbat, PlainPortionHasItsVersesAndHaftarah) {
  EXPECT_EQ(InDiaspora(9, 11, 2024), "Lech Lecha: Genesis 12:1-17:27 // Isaiah 40:27-41:16");
  EXPECT_EQ(InIsrael(9, 11, 2024), "Lech Lecha: Genesis 12:1-17:27 // Isaiah 40:27-41:16");
}

TEST(LectionsShabbat, CustomsThatDifferAreListedEach) {
  EXPECT_EQ(InDiaspora(16, 11, 2024),
            "Vayera: Genesis 18:1-22:24 // Ashkenazi: II Kings 4:1-37 | Sephardi: II Kings 4:1-23");
  EXPECT_EQ(InDiaspora(16, 11, 2024, Customs::kAshkenazi), "Vayera: Genesis 18:1-22:24 // II Kings 4:1-37");
  EXPECT_EQ(InDiaspora(16, 11, 2024, Customs::kSephardi), "Vayera: Genesis 18:1-22:24 // II Kings 4:1-23");
}

TEST(LectionsShabbat, IsraelAndTheDiasporaAreAPortionApartAfterAFestivalOnShabbat) {
  EXPECT_EQ(InDiaspora(7, 5, 2016), "Acharei Mot (Machar Chodesh): Leviticus 16:1-18:30 // I Samuel 20:18-42");
  EXPECT_EQ(InIsrael(7, 5, 2016), "Kedoshim (Machar Chodesh): Leviticus 19:1-20:27 // I Samuel 20:18-42");
  EXPECT_EQ(InDiaspora(6, 6, 2020), "Nasso: Numbers 4:21-7:89 // Judges 13:2-25");
  EXPECT_EQ(InIsrael(6, 6, 2020), "Beha'alotcha: Numbers 8:1-12:16 // Zechariah 2:14-4:7");
}

TEST(LectionsShabbat, Shekalim) {
  EXPECT_EQ(InDiaspora(18, 2, 2012),
            "Mishpatim (Shabbat Shekalim): Exodus 21:1-24:18 | Maftir: Exodus 30:11-16 // "
            "Ashkenazi: II Kings 12:1-17 | Sephardi: II Kings 11:17-12:17");
  EXPECT_EQ(InIsrael(5, 3, 2011, Customs::kAshkenazi),  // a leap year: before 1 Adar II
            "Pekudei (Shabbat Shekalim): Exodus 38:21-40:38 | Maftir: Exodus 30:11-16 // II Kings 12:1-17");
}

TEST(LectionsShabbat, ShekalimOnRoshChodesh) {
  for (const std::string& read : {InDiaspora(1, 3, 2025), InIsrael(1, 3, 2025)}) {
    EXPECT_EQ(read,
              "Terumah (Shabbat Shekalim, Rosh Chodesh Adar): Exodus 25:1-27:19 | Rosh Chodesh: Numbers 28:9-15 | "
              "Maftir: Exodus 30:11-16 // Ashkenazi: II Kings 12:1-17 | Sephardi: II Kings 11:17-12:17");
  }
}

TEST(LectionsShabbat, Zachor) {
  EXPECT_EQ(InDiaspora(3, 3, 2012),
            "Tetzaveh (Shabbat Zachor): Exodus 27:20-30:10 | Maftir: Deuteronomy 25:17-19 // "
            "Ashkenazi: I Samuel 15:2-34 | Sephardi: I Samuel 15:1-34");
  EXPECT_EQ(InIsrael(19, 3, 2011, Customs::kSephardi),  // 13 Adar II, Purim being on the day after
            "Tzav (Shabbat Zachor): Leviticus 6:1-8:36 | Maftir: Deuteronomy 25:17-19 // I Samuel 15:1-34");
}

TEST(LectionsShabbat, Parah) {
  EXPECT_EQ(InDiaspora(17, 3, 2012),
            "Vayakhel-Pekudei (Shabbat Parah): Exodus 35:1-40:38 | Maftir: Numbers 19:1-22 // "
            "Ashkenazi: Ezekiel 36:16-38 | Sephardi: Ezekiel 36:16-36");
  EXPECT_EQ(InIsrael(30, 3, 2024, Customs::kAshkenazi),
            "Tzav (Shabbat Parah): Leviticus 6:1-8:36 | Maftir: Numbers 19:1-22 // Ezekiel 36:16-38");
}

TEST(LectionsShabbat, HaChodesh) {
  EXPECT_EQ(InDiaspora(29, 3, 2025),
            "Pekudei (Shabbat HaChodesh): Exodus 38:21-40:38 | Maftir: Exodus 12:1-20 // "
            "Ashkenazi: Ezekiel 45:16-46:18 | Sephardi: Ezekiel 45:18-46:15");
}

TEST(LectionsShabbat, HaChodeshOnRoshChodesh) {
  EXPECT_EQ(InIsrael(9, 4, 2016),
            "Tazria (Shabbat HaChodesh, Rosh Chodesh Nisan): Leviticus 12:1-13:59 | Rosh Chodesh: Numbers 28:9-15 | "
            "Maftir: Exodus 12:1-20 // Ashkenazi: Ezekiel 45:16-46:18 | Sephardi: Ezekiel 45:18-46:15");
}

TEST(LectionsShabbat, HaGadol) {
  EXPECT_EQ(InDiaspora(16, 4, 2011), "Acharei Mot (Shabbat HaGadol): Leviticus 16:1-18:30 // Malachi 3:4-24");
  EXPECT_EQ(InIsrael(12, 4, 2025), "Tzav (Shabbat HaGadol): Leviticus 6:1-8:36 // Malachi 3:4-24");  // Pesach's eve
}

// Sefer HaMinhagim: only when Pesach begins that night.
TEST(LectionsShabbat, ChabadReadsHaGadolsHaftarahOnThePesachEveAlone) {
  const Settings settings = Of(Land::kDiaspora, Customs::kAshkenazi, true);
  EXPECT_EQ(Read(31, 3, 2012, settings),
            "Tzav (Shabbat HaGadol): Leviticus 6:1-8:36 // "
            "Ashkenazi: Malachi 3:4-24 | Chabad: Jeremiah 7:21-28, 9:22-23");
  EXPECT_EQ(Read(12, 4, 2025, settings), "Tzav (Shabbat HaGadol): Leviticus 6:1-8:36 // Malachi 3:4-24");
}

TEST(LectionsShabbat, RoshChodesh) {
  EXPECT_EQ(InDiaspora(9, 10, 2010),
            "Noach (Rosh Chodesh Cheshvan): Genesis 6:9-11:32 | Maftir: Numbers 28:9-15 // Isaiah 66:1-24");
  EXPECT_EQ(InIsrael(5, 2, 2011),
            "Terumah (Rosh Chodesh Adar I): Exodus 25:1-27:19 | Maftir: Numbers 28:9-15 // Isaiah 66:1-24");
  EXPECT_EQ(InDiaspora(2, 7, 2011),  // 30 Sivan
            "Chukat (Rosh Chodesh Tammuz): Numbers 19:1-22:1 | Maftir: Numbers 28:9-15 // Isaiah 66:1-24");
}

TEST(LectionsShabbat, MacharChodesh) {
  EXPECT_EQ(InDiaspora(30, 11, 2024), "Toldot (Machar Chodesh): Genesis 25:19-28:9 // I Samuel 20:18-42");
  EXPECT_EQ(InDiaspora(21, 4, 2012), "Shemini (Machar Chodesh): Leviticus 9:1-11:47 // I Samuel 20:18-42");
  EXPECT_EQ(InIsrael(21, 4, 2012), "Tazria-Metzora (Machar Chodesh): Leviticus 12:1-15:33 // I Samuel 20:18-42");
}

TEST(LectionsShabbat, SpecialShabbatOverridesMacharChodesh) {
  EXPECT_EQ(InDiaspora(29, 3, 2025, Customs::kAshkenazi),  // 29 Adar
            "Pekudei (Shabbat HaChodesh): Exodus 38:21-40:38 | Maftir: Exodus 12:1-20 // Ezekiel 45:16-46:18");
}

// Rema, Orach Chaim 425:1 and Mishnah Berurah there: neither rebuke nor consolation yields to Machar Chodesh.
TEST(LectionsShabbat, WeeksOfRebukeAndConsolationOverrideMacharChodesh) {
  EXPECT_EQ(InDiaspora(26, 7, 2025, Customs::kAshkenazi),  // 1 Av
            "Matot-Masei (Rosh Chodesh Av): Numbers 30:2-36:13 | Maftir: Numbers 28:9-15 // Jeremiah 2:4-28, 3:4");
  EXPECT_EQ(InDiaspora(23, 8, 2025), "Re'eh: Deuteronomy 11:26-16:17 // Isaiah 54:11-55:5");  // 29 Av
  EXPECT_EQ(InDiaspora(7, 7, 2029, Customs::kAshkenazi), "Pinchas: Numbers 25:10-30:1 // Jeremiah 1:1-2:3");
}

// Y. Spitz, "The Double-Header Haftara" (Ohr Somayach, 2012 and 2018), on just these two Shabbatot; the Sephardi
// reading with the verses of the day's other two haftarot: United Synagogue of Conservative Judaism, "Re'eh 5772".
TEST(LectionsShabbat, ReehOnRoshChodeshElulAndItsMakingUpInKiTeitzei) {
  for (const std::string& read : {InDiaspora(18, 8, 2012), InIsrael(18, 8, 2012)}) {
    EXPECT_EQ(read,
              "Re'eh (Rosh Chodesh Elul): Deuteronomy 11:26-16:17 | Maftir: Numbers 28:9-15 // "
              "Ashkenazi: Isaiah 66:1-24 | Sephardi: Isaiah 54:11-55:5, 66:1, 66:23, I Samuel 20:18, 20:42");
  }
  EXPECT_EQ(InDiaspora(1, 9, 2012),  // 14 Elul
            "Ki Teitzei: Deuteronomy 21:10-25:19 // Ashkenazi: Isaiah 54:1-55:5 | Sephardi: Isaiah 54:1-10");
  EXPECT_EQ(InIsrael(25, 8, 2018, Customs::kAshkenazi), "Ki Teitzei: Deuteronomy 21:10-25:19 // Isaiah 54:1-55:5");
}

TEST(LectionsShabbat, KiTeitzeiMakesNothingUpInOtherYears) {
  EXPECT_EQ(InDiaspora(10, 9, 2011), "Ki Teitzei: Deuteronomy 21:10-25:19 // Isaiah 54:1-10");
}

TEST(LectionsShabbat, MaseiOnRoshChodesh) {
  EXPECT_EQ(InDiaspora(10, 7, 2021),
            "Matot-Masei (Rosh Chodesh Av): Numbers 30:2-36:13 | Maftir: Numbers 28:9-15 // "
            "Ashkenazi: Jeremiah 2:4-28, 3:4 | Sephardi: Jeremiah 2:4-28, 4:1-2, Isaiah 66:1, 66:23");
}

TEST(LectionsShabbat, ThreeOfRebuke) {
  EXPECT_EQ(InDiaspora(14, 7, 2012), "Pinchas: Numbers 25:10-30:1 // Jeremiah 1:1-2:3");  // after 17 Tammuz
  EXPECT_EQ(InDiaspora(21, 7, 2012, Customs::kAshkenazi), "Matot-Masei: Numbers 30:2-36:13 // Jeremiah 2:4-28, 3:4");
  EXPECT_EQ(InDiaspora(28, 7, 2012), "Devarim (Shabbat Chazon): Deuteronomy 1:1-3:22 // Isaiah 1:1-27");
  EXPECT_EQ(InDiaspora(16, 7, 2011), "Pinchas: Numbers 25:10-30:1 // I Kings 18:46-19:21");  // before 17 Tammuz
  EXPECT_EQ(InDiaspora(23, 7, 2011), "Matot: Numbers 30:2-32:42 // Jeremiah 1:1-2:3");
}

TEST(LectionsShabbat, PinchasAndMatotInTheTwoLandsOfOneYear) {
  EXPECT_EQ(InDiaspora(30, 7, 2016, Customs::kSephardi), "Pinchas: Numbers 25:10-30:1 // Jeremiah 1:1-2:3");
  EXPECT_EQ(InIsrael(30, 7, 2016, Customs::kSephardi), "Matot: Numbers 30:2-32:42 // Jeremiah 1:1-2:3");
  EXPECT_EQ(InDiaspora(6, 8, 2016, Customs::kSephardi), "Matot-Masei: Numbers 30:2-36:13 // Jeremiah 2:4-28, 4:1-2");
  EXPECT_EQ(InIsrael(6, 8, 2016, Customs::kSephardi), "Masei: Numbers 33:1-36:13 // Jeremiah 2:4-28, 4:1-2");
}

TEST(LectionsShabbat, SevenOfConsolation) {
  const std::string kRead[] = {
      "Vaetchanan (Shabbat Nachamu): Deuteronomy 3:23-7:11 // Isaiah 40:1-26",
      "Eikev: Deuteronomy 7:12-11:25 // Isaiah 49:14-51:3",
      "Re'eh: Deuteronomy 11:26-16:17 // Isaiah 54:11-55:5",
      "Shoftim: Deuteronomy 16:18-21:9 // Isaiah 51:12-52:12",
      "Ki Teitzei: Deuteronomy 21:10-25:19 // Isaiah 54:1-10",
      "Ki Tavo: Deuteronomy 26:1-29:8 // Isaiah 60:1-22",
      "Nitzavim-Vayeilech: Deuteronomy 29:9-31:30 // Isaiah 61:10-63:9",
  };
  const int32_t nachamu = calendar::AbsoluteFromGregorian({29, 7, 2023});
  for (int32_t week = 0; week < 7; ++week) {
    const calendar::Date date = calendar::JewishFromAbsolute(nachamu + 7 * week);
    EXPECT_EQ(Line(lections::TextsOn(date, Of(Land::kIsrael, Customs::kBoth))), kRead[week]);
  }
}

TEST(LectionsShabbat, NitzavimAlone) {
  EXPECT_EQ(InDiaspora(15, 9, 2012), "Nitzavim: Deuteronomy 29:9-30:20 // Isaiah 61:10-63:9");
}

TEST(LectionsShabbat, JoinedPortionsTakeTheSecondsHaftarah) {
  EXPECT_EQ(InDiaspora(3, 5, 2025), "Tazria-Metzora: Leviticus 12:1-15:33 // II Kings 7:3-20");
  EXPECT_EQ(InIsrael(24, 5, 2025), "Behar-Bechukotai: Leviticus 25:1-27:34 // Jeremiah 16:19-17:14");
  EXPECT_EQ(InDiaspora(4, 7, 2020), "Chukat-Balak: Numbers 19:1-25:9 // Micah 5:6-6:8");
  EXPECT_EQ(InIsrael(4, 7, 2020), "Balak: Numbers 22:2-25:9 // Micah 5:6-6:8");
}

// Rema, Orach Chaim 428:8.
TEST(LectionsShabbat, AchareiMotAndKedoshimJoined) {
  EXPECT_EQ(InDiaspora(10, 5, 2025),
            "Acharei Mot-Kedoshim: Leviticus 16:1-20:27 // Ashkenazi: Amos 9:7-15 | Sephardi: Ezekiel 20:2-20");
}

TEST(LectionsShabbat, KedoshimAloneAfterASpecialShabbat) {
  EXPECT_EQ(InDiaspora(30, 4, 2011),  // Acharei Mot was HaGadol, before Pesach
            "Kedoshim: Leviticus 19:1-20:27 // Ashkenazi: Amos 9:7-15 | Sephardi: Ezekiel 20:2-20");
  EXPECT_EQ(InDiaspora(14, 5, 2016, Customs::kAshkenazi),  // after Machar Chodesh
            "Kedoshim: Leviticus 19:1-20:27 // Amos 9:7-15");
  EXPECT_EQ(InDiaspora(11, 5, 2024),  // Acharei Mot had kept its own
            "Kedoshim: Leviticus 19:1-20:27 // Ashkenazi: Ezekiel 22:1-19 | Sephardi: Ezekiel 20:2-20");
  EXPECT_EQ(InDiaspora(4, 5, 2024),
            "Acharei Mot: Leviticus 16:1-18:30 // Ashkenazi: Amos 9:7-15 | Sephardi: Ezekiel 22:1-16");
}

TEST(LectionsShabbat, ShuvaWithVayeilechOrHaazinu) {
  EXPECT_EQ(InDiaspora(22, 9, 2012), "Vayeilech (Shabbat Shuva): Deuteronomy 31:1-30 // Hosea 14:2-10, Micah 7:18-20");
  EXPECT_EQ(InIsrael(5, 10, 2024),
            "Ha'azinu (Shabbat Shuva): Deuteronomy 32:1-52 // "
            "Ashkenazi: Hosea 14:2-10, Joel 2:15-27 | Sephardi: Hosea 14:2-10, Micah 7:18-20");
  EXPECT_EQ(InDiaspora(29, 9, 2012), "Ha'azinu: Deuteronomy 32:1-52 // II Samuel 22:1-51");  // after Yom Kippur
}

TEST(LectionsShabbat, ShabbatOfEachDayOfChanukah) {
  struct Row {
    calendar::Date civil;
    const char* read;
  };
  const Row kRows[] = {
      {{5, 12, 2026}, "Vayeshev (Chanukah, day 1): Genesis 37:1-40:23 | Maftir: Numbers 7:1-17 // Zechariah 2:14-4:7"},
      {{12, 12, 2020},
       "Vayeshev (Chanukah, day 2): Genesis 37:1-40:23 | Maftir: Numbers 7:18-23 // Zechariah 2:14-4:7"},
      {{4, 12, 2010}, "Miketz (Chanukah, day 3): Genesis 41:1-44:17 | Maftir: Numbers 7:24-29 // Zechariah 2:14-4:7"},
      {{24, 12, 2011}, "Miketz (Chanukah, day 4): Genesis 41:1-44:17 | Maftir: Numbers 7:30-35 // Zechariah 2:14-4:7"},
      {{12, 12, 2015},
       "Miketz (Rosh Chodesh Tevet, Chanukah, day 6): Genesis 41:1-44:17 | Rosh Chodesh: Numbers 28:9-15 | "
       "Maftir: Numbers 7:42-47 // Zechariah 2:14-4:7"},
      {{15, 12, 2012}, "Miketz (Chanukah, day 7): Genesis 41:1-44:17 | Maftir: Numbers 7:48-53 // Zechariah 2:14-4:7"},
      {{12, 12, 2026}, "Miketz (Chanukah, day 8): Genesis 41:1-44:17 | Maftir: Numbers 7:54-8:4 // I Kings 7:40-50"},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(InDiaspora(row.civil.day, row.civil.month, row.civil.year), row.read);
    EXPECT_EQ(InIsrael(row.civil.day, row.civil.month, row.civil.year), row.read);
  }
}

// In a year like 5781, Chanukah ends before Miketz, which then has its own haftarah.
TEST(LectionsShabbat, MiketzAfterChanukah) {
  EXPECT_EQ(InDiaspora(19, 12, 2020), "Miketz: Genesis 41:1-44:17 // I Kings 3:15-4:1");
}

TEST(LectionsShabbat, PurimOfWalledCitiesOnShabbat) {
  EXPECT_EQ(InDiaspora(15, 3, 2025, Customs::kAshkenazi), "Ki Tisa: Exodus 30:11-34:35 // I Kings 18:1-39");
  EXPECT_EQ(InIsrael(15, 3, 2025, Customs::kAshkenazi),
            "Ki Tisa: Exodus 30:11-34:35 | Maftir in walled cities: Exodus 17:8-16 // "
            "I Kings 18:1-39 | Walled cities: I Samuel 15:2-34");
}

TEST(LectionsShabbat, ChabadIsListedWhereItDiffers) {
  const Settings ashkenazi = Of(Land::kDiaspora, Customs::kAshkenazi, true);
  const Settings sephardi = Of(Land::kDiaspora, Customs::kSephardi, true);
  const Settings both = Of(Land::kDiaspora, Customs::kBoth, true);
  // Bereshit is read as by Sephardim, Beshalach as by Ashkenazim, Tzav as by neither.
  EXPECT_EQ(Read(26, 10, 2024, ashkenazi),
            "Bereshit: Genesis 1:1-6:8 // Ashkenazi: Isaiah 42:5-43:10 | Chabad: Isaiah 42:5-21");
  EXPECT_EQ(Read(26, 10, 2024, sephardi), "Bereshit: Genesis 1:1-6:8 // Isaiah 42:5-21");
  EXPECT_EQ(Read(26, 10, 2024, both),
            "Bereshit: Genesis 1:1-6:8 // Ashkenazi: Isaiah 42:5-43:10 | Sephardi, Chabad: Isaiah 42:5-21");
  EXPECT_EQ(Read(8, 2, 2025, sephardi),
            "Beshalach (Shabbat Shira): Exodus 13:17-17:16 // "
            "Sephardi: Judges 5:1-31 | Chabad: Judges 4:4-5:31");
  EXPECT_EQ(Read(28, 3, 2026, both),
            "Tzav (Shabbat HaGadol): Leviticus 6:1-8:36 // "
            "Ashkenazi, Sephardi: Malachi 3:4-24 | Chabad: Jeremiah 7:21-28, 9:22-23");
}

}  // namespace
