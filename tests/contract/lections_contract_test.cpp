#include "companion/lections.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "companion/profile.h"
#include "tests/contract/dialog_driver.h"
#include "tests/contract/region.h"
#include "tests/contract/settings_home.h"

namespace {

constexpr uint32_t kTishri = 7;
constexpr uint32_t kCheshvan = 8;
constexpr uint32_t kTevet = 10;
constexpr uint32_t kNisan = 1;
constexpr size_t kTextSize = 256;  // the program's, with the ending zero

LectionsReadings Read(uint32_t day, uint32_t month, uint32_t year) {
  LectionsReadings readings;
  std::memset(&readings, 'x', sizeof readings);
  LectionsGetReadings(day, month, year, &readings);
  return readings;
}

LectionsReadings ReadBy(uint32_t choice, uint32_t day, uint32_t month, uint32_t year) {
  LectionsReadings readings;
  std::memset(&readings, 'x', sizeof readings);
  LectionsGetReadingsBy(choice, day, month, year, &readings);
  return readings;
}

void Write(const char* key, const char* value) {
  ProfileWriteString("Readings", key, value, "lections.ini");
}

bool IsEmpty(const LectionsReadings& readings) {
  const auto* bytes = reinterpret_cast<const char*>(&readings);
  return std::all_of(bytes, bytes + sizeof readings, [](char c) { return c == '\0'; });
}

// What the last test left is forgotten after 50 ms.
class LectionsContract : public testing::Test {
 protected:
  void SetUp() override {
    home_.Put("lections.ini", "[Readings]\r\nLanguage=4\r\n");
    ASSERT_TRUE(Eventually([] { return LectionsGetLanguage() == 4; }));
    home_.Put("lections.ini", "");
    ASSERT_TRUE(Eventually([] { return LectionsGetLanguage() == 1; }));
  }

  const Region region_{Region::kGermany};
  SettingsHome home_;
};

TEST_F(LectionsContract, RecordHasItsFieldsWhereTheProgramLooks) {
  EXPECT_EQ(sizeof(LectionsReadings), 1804u);
  EXPECT_EQ(offsetof(LectionsReadings, torah2), 260u);
  EXPECT_EQ(offsetof(LectionsReadings, torah3), 520u);
  EXPECT_EQ(offsetof(LectionsReadings, haftarah1), 780u);
  EXPECT_EQ(offsetof(LectionsReadings, haftarah2), 1036u);
  EXPECT_EQ(offsetof(LectionsReadings, haftarah3), 1292u);
  EXPECT_EQ(offsetof(LectionsReadings, extraText), 1548u);
  EXPECT_EQ(sizeof(LectionsFont), 268u);
}

TEST_F(LectionsContract, FillsEverySlotOfAShabbat) {
  const LectionsReadings readings = Read(1, 12, 5785);  // 1 March 2025
  EXPECT_STREQ(readings.torah1, "Terumah (Shabbat Shekalim, Rosh Chodesh Adar): Exodus 25:1-27:19");
  EXPECT_STREQ(readings.torah2, "Rosh Chodesh: Numbers 28:9-15");
  EXPECT_STREQ(readings.torah3, "Maftir: Exodus 30:11-16");
  EXPECT_STREQ(readings.haftarah1, "Ashkenazi: II Kings 12:1-17");
  EXPECT_STREQ(readings.haftarah2, "Sephardi: II Kings 11:17-12:17");
  EXPECT_STREQ(readings.haftarah3, "");
  EXPECT_STREQ(readings.extraText, "");
  EXPECT_STREQ(Read(24, kTishri, 5785).extraText, "New month announced: Cheshvan");
}

TEST_F(LectionsContract, DayWithoutReadingsIsEmptyThroughout) {
  EXPECT_TRUE(IsEmpty(Read(2, kCheshvan, 5785)));  // a Sunday
}

TEST_F(LectionsContract, DateThatDoesNotExistHasNoReadings) {
  for (const uint32_t number : {0u, 31u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_TRUE(IsEmpty(Read(number, kTishri, 5785))) << number;
    EXPECT_TRUE(IsEmpty(Read(1, number, 5785))) << number;
    EXPECT_EQ(LectionsIsYizkor(number, kTishri, 5785), 0) << number;
  }
  for (const uint32_t year : {0u, 10000u, 0xFFFFFFFFu}) {
    EXPECT_TRUE(IsEmpty(Read(1, kTishri, year))) << year;
    EXPECT_EQ(LectionsIsYizkor(10, kTishri, year), 0) << year;
  }
  EXPECT_TRUE(IsEmpty(Read(14, 13, 5785)));  // no leap year
}

TEST_F(LectionsContract, NullPointersAreIgnored) {
  LectionsGetReadings(1, kTishri, 5785, nullptr);
  LectionsGetYizkor(nullptr);
  LectionsGetFont2(nullptr);
}

TEST_F(LectionsContract, LandIsFirstThatOfTheRegion) {
  EXPECT_STREQ(Read(25, kTishri, 5785).torah1, "");  // 27 October 2024
  EXPECT_STRNE(Read(23, kTishri, 5785).torah1, "");
  EXPECT_NE(LectionsIsYizkor(22, kNisan, 5785), 0);
  {
    const Region israel(Region::kIsrael);
    EXPECT_TRUE(Eventually([] { return LectionsIsYizkor(22, kNisan, 5785) == 0; }));
    EXPECT_NE(LectionsIsYizkor(21, kNisan, 5785), 0);
    EXPECT_STREQ(Read(23, kTishri, 5785).torah1, "");
    Write("Land", "Diaspora");
    EXPECT_TRUE(Eventually([] { return LectionsIsYizkor(22, kNisan, 5785) != 0; }));
  }
  Write("Land", "Israel");
  EXPECT_TRUE(Eventually([] { return LectionsIsYizkor(22, kNisan, 5785) == 0; }));
}

TEST_F(LectionsContract, YizkorIsSaidOnFourDays) {
  EXPECT_NE(LectionsIsYizkor(10, kTishri, 5785), 0);
  EXPECT_NE(LectionsIsYizkor(22, kTishri, 5785), 0);
  EXPECT_NE(LectionsIsYizkor(7, 3, 5785), 0);
  EXPECT_EQ(LectionsIsYizkor(6, 3, 5785), 0);
  EXPECT_EQ(LectionsIsYizkor(23, kTishri, 5785), 0);
}

TEST_F(LectionsContract, WordForYizkorIsShort) {
  for (const char* language : {"1", "2", "4"}) {
    Write("Language", language);
    const uint32_t code = static_cast<uint32_t>(language[0] - '0');
    ASSERT_TRUE(Eventually([code] { return LectionsGetLanguage() == code; }));
    char text[256];
    LectionsGetYizkor(text);
    EXPECT_STREQ(text, "Yizkor");
  }
}

TEST_F(LectionsContract, EnglishIsInTheProgramsOwnFont) {
  LectionsFont font;
  LectionsGetFont2(&font);
  EXPECT_NE(font.UseDefaultFont, 0u);
}

TEST_F(LectionsContract, HebrewIsInAFontWithHebrewLetters) {
  Write("Language", "4");
  ASSERT_TRUE(Eventually([] { return LectionsGetLanguage() == 4; }));
  LectionsFont font;
  LectionsGetFont2(&font);
  EXPECT_EQ(font.UseDefaultFont, 0u);
  EXPECT_STREQ(font.FaceName, "Times New Roman");
  EXPECT_EQ(font.PointSize, 12u);
  EXPECT_EQ(font.CharSet, static_cast<uint32_t>(HEBREW_CHARSET));
  // Noach, in windows-1255.
  EXPECT_EQ(std::string(Read(1, kCheshvan, 5785).torah1).substr(0, 3), "\xF0\xE7 ");
}

struct LanguageRow {
  uint32_t code;
  uint32_t charset;     // 0: the program's own font
  const char* vayechi;  // the beginning of its text, in the language's code page
};
// The codes are those that settings files hold; charsets as Windows numbers them, names by Unicode's CP1250.TXT to
// CP1255.TXT.
constexpr LanguageRow kLanguageRows[] = {{1, 0, "Vayechi: Genesis 47:"},
                                         {2, 0, "Vayechi: Genesis 47:"},
                                         {3, 0, "Wajechi: 1. Mose 47,"},
                                         {4, HEBREW_CHARSET, "\xe5\xe9\xe7\xe9: \xe1\xf8\xe0\xf9\xe9\xfa \xee\xe6:"},
                                         {5, 0, "Vay\xe9'hi: Gen\xe8se 47,"},
                                         {6, 0, "Vajechi: 1. Mosebog 47,"},
                                         {7, 0, "Vajechi: 1. Moos. 47:"},
                                         {8, 0, "Vajechi: 1 Mosebok 47:"},
                                         {9, 0, "Wajechi: Genesis 47:"},
                                         {10, 0, "Vayej\xed: G\xe9nesis 47:"},
                                         {11, 0, "Vajechi: 1. Mosebok 47,"},
                                         {12, 0, "Vayechi: G\xeanesis 47:"},
                                         {14, EASTEUROPE_CHARSET, "V\xe1jchi: 1M\xf3zes 47:"},
                                         {15, EASTEUROPE_CHARSET, "Vajechi: Genesis 47,"},
                                         {16, GREEK_CHARSET, "\xc2\xe1\xe3\xe5\xf7\xdf: \xc3\xdd\xed\xe5\xf3\xe7 47:"},
                                         {17, RUSSIAN_CHARSET, "\xc2\xe0\xe5\xf5\xe8: \xc1\xfb\xf2\xe8\xe5 47:"},
                                         {20, 0, "Vaych\xec: Genesi 47,"},
                                         {21, EASTEUROPE_CHARSET, "Wajechi: Rodzaju 47,"}};

TEST_F(LectionsContract, EveryLanguageHasItsCodeItsFontAndItsLetters) {
  for (const LanguageRow& row : kLanguageRows) {
    Write("Language", std::to_string(row.code).c_str());
    EXPECT_TRUE(Eventually([&row] { return LectionsGetLanguage() == row.code; })) << row.code;
    LectionsFont font;
    LectionsGetFont2(&font);
    EXPECT_EQ(font.UseDefaultFont != 0, row.charset == 0) << row.code;
    EXPECT_EQ(font.CharSet, row.charset) << row.code;
    EXPECT_STREQ(font.FaceName, "Times New Roman") << row.code;
    EXPECT_EQ(font.PointSize, 12u) << row.code;
    EXPECT_TRUE(std::string(Read(16, kTevet, 5767).torah1).starts_with(row.vayechi))  // 6 January 2007
        << row.code << ' ' << Read(16, kTevet, 5767).torah1;
  }
}

// Whatever the language, no text fills its field to the end.
TEST_F(LectionsContract, TextsEndWithinTheirFieldsInEveryLanguage) {
  Write("Chabad", "1");
  Write("MondayThursday", "1");
  Write("ShabbatAfternoon", "1");
  for (const LanguageRow& row : kLanguageRows) {
    Write("Language", std::to_string(row.code).c_str());
    ASSERT_TRUE(Eventually([&row] { return LectionsGetLanguage() == row.code; })) << row.code;
    for (uint32_t month = 1; month <= 13; ++month) {
      for (uint32_t day = 1; day <= 30; ++day) {
        const LectionsReadings readings = Read(day, month, 5784);  // a leap year
        for (const char* text : {readings.torah1, readings.torah2, readings.torah3, readings.haftarah1,
                                 readings.haftarah2, readings.haftarah3, readings.extraText}) {
          EXPECT_LT(strnlen(text, kTextSize), kTextSize) << row.code << ": " << day << '.' << month;
        }
      }
    }
  }
}

TEST_F(LectionsContract, UnknownLanguageIsEnglish) {
  Write("Custom", "Ashkenazi");
  Write("Language", "99");
  EXPECT_TRUE(Eventually([] { return std::strcmp(Read(15, kCheshvan, 5785).haftarah1, "II Kings 4:1-37") == 0; }));
  EXPECT_EQ(LectionsGetLanguage(), 1u);
}

TEST_F(LectionsContract, ChangedSettingsCountSoon) {
  EXPECT_STREQ(Read(15, kCheshvan, 5785).haftarah1, "Ashkenazi: II Kings 4:1-37");
  EXPECT_STREQ(Read(15, kCheshvan, 5785).haftarah2, "Sephardi: II Kings 4:1-23");
  Write("Custom", "Sephardi");
  EXPECT_TRUE(Eventually([] { return std::strcmp(Read(15, kCheshvan, 5785).haftarah1, "II Kings 4:1-23") == 0; }));
  Write("Verses", "0");
  EXPECT_TRUE(Eventually([] { return std::strcmp(Read(15, kCheshvan, 5785).haftarah1, "II Kings") == 0; }));
  EXPECT_STREQ(Read(15, kCheshvan, 5785).torah1, "Vayera");
}

TEST_F(LectionsContract, AChoiceIsKeptWhileLandAndCustomsChange) {
  const uint32_t choice = LectionsGetChoice();
  EXPECT_NE(choice, 0u);
  Write("Land", "Israel");
  Write("Custom", "Sephardi");
  Write("Verses", "0");
  ASSERT_TRUE(Eventually([choice] { return LectionsGetChoice() != choice; }));
  ASSERT_TRUE(Eventually([] { return std::strcmp(Read(15, kCheshvan, 5785).haftarah1, "II Kings") == 0; }));
  EXPECT_STREQ(Read(23, kTishri, 5785).torah1, "");

  const LectionsReadings vayera = ReadBy(choice, 15, kCheshvan, 5785);
  EXPECT_STREQ(vayera.haftarah1, "Ashkenazi: II Kings 4:1-37");
  EXPECT_STREQ(vayera.haftarah2, "Sephardi: II Kings 4:1-23");
  EXPECT_STRNE(ReadBy(choice, 23, kTishri, 5785).torah1, "");  // Simchat Torah of the diaspora
  EXPECT_EQ(LectionsIsYizkor(22, kNisan, 5785), 0);
  EXPECT_NE(LectionsIsYizkorBy(choice, 22, kNisan, 5785), 0);
}

// The words are those of the texts above, in German those of "language_german.cpp".
TEST_F(LectionsContract, NamesTheCustoms) {
  char text[256] = "untouched";
  EXPECT_EQ(LectionsGetCustomName(3, text), 0);
  EXPECT_EQ(LectionsGetCustomName(0xFFFFFFFF, text), 0);
  EXPECT_STREQ(text, "untouched");
  EXPECT_EQ(LectionsGetCustomName(0, nullptr), 0);
  EXPECT_NE(LectionsGetCustomName(0, text), 0);
  EXPECT_STREQ(text, "Ashkenazi");
  EXPECT_NE(LectionsGetCustomName(1, text), 0);
  EXPECT_STREQ(text, "Sephardi");
  EXPECT_NE(LectionsGetCustomName(2, text), 0);
  EXPECT_STREQ(text, "Chabad");
  Write("Language", "3");
  EXPECT_TRUE(Eventually([&] { return LectionsGetCustomName(1, text) != 0 && std::string(text) == "Sefardim"; }));
}

TEST_F(LectionsContract, TellsWhetherVersesAreNumberedAsInTheLanguagesBibles) {
  EXPECT_EQ(LectionsHasOwnNumbers(), 0);
  const uint32_t choice = LectionsGetChoice();
  Write("OwnNumbers", "1");
  EXPECT_TRUE(Eventually([] { return LectionsHasOwnNumbers() != 0; }));
  EXPECT_EQ(LectionsGetChoice(), choice);
  constexpr uint32_t kKislev = 9;
  EXPECT_STREQ(ReadBy(choice, 13, kKislev, 5785).torah1, "Vayishlach: Genesis 32:3-36:43");
}

TEST_F(LectionsContract, ChoiceIsAnsweredInTheLanguageStoredNow) {
  Write("Custom", "Ashkenazi");
  ASSERT_TRUE(Eventually([] { return std::strcmp(Read(15, kCheshvan, 5785).haftarah2, "") == 0; }));
  const uint32_t choice = LectionsGetChoice();
  Write("Custom", "Both");
  Write("Language", "4");
  ASSERT_TRUE(Eventually([] { return LectionsGetLanguage() == 4; }));
  // Noach, in windows-1255.
  const LectionsReadings noach = ReadBy(choice, 1, kCheshvan, 5785);
  EXPECT_EQ(std::string(noach.torah1).substr(0, 3), "\xF0\xE7 ");
  EXPECT_STREQ(ReadBy(choice, 15, kCheshvan, 5785).haftarah2, "");
}

TEST_F(LectionsContract, ANumberThatIsNoChoiceIsTheStoredOne) {
  Write("Land", "Israel");
  ASSERT_TRUE(Eventually([] { return LectionsIsYizkor(22, kNisan, 5785) == 0; }));
  for (const uint32_t number : {0u, 1u, 0xFFFFFFFFu}) {
    const LectionsReadings expected = Read(1, 12, 5785);
    const LectionsReadings readings = ReadBy(number, 1, 12, 5785);
    EXPECT_EQ(std::memcmp(&readings, &expected, sizeof readings), 0) << number;
    EXPECT_EQ(LectionsIsYizkorBy(number, 22, kNisan, 5785), 0) << number;
    EXPECT_NE(LectionsIsYizkorBy(number, 21, kNisan, 5785), 0) << number;
  }
}

TEST_F(LectionsContract, AnswersByAChoiceForAnyArguments) {
  const uint32_t choice = LectionsGetChoice();
  LectionsGetReadingsBy(choice, 1, kTishri, 5785, nullptr);
  for (const uint32_t number : {0u, 31u, 0xFFFFFFFFu}) {
    EXPECT_TRUE(IsEmpty(ReadBy(choice, number, kTishri, 5785))) << number;
    EXPECT_EQ(LectionsIsYizkorBy(choice, 10, kTishri, number == 31 ? 10000 : number), 0) << number;
  }
}

TEST_F(LectionsContract, ReadingWritesNothing) {
  std::filesystem::remove_all(home_.Folder());
  Read(1, kTishri, 5785);
  LectionsGetLanguage();
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

}  // namespace
