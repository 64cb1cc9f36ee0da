// The texts as the program takes them: bounded, in their code page, and never split by it.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/lections/divided_text.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/numerals.h"
#include "tests/core/lections_days.h"

namespace {

using namespace lections;
using namespace lections_test;
using namespace std::string_view_literals;

constexpr uint32_t kAshkenaziSpelling = 2;
constexpr uint32_t kHebrewCode = 4;

// The first year from 5700 on of each of the fourteen types.
std::vector<int32_t> YearsOfAllTypes() {
  std::vector<calendar::YearType> types;
  std::vector<int32_t> years;
  for (int32_t year = 5700; types.size() < 14; ++year) {
    const calendar::YearType type = calendar::YearTypeOf(year);
    if (std::ranges::find(types, type) != types.end()) continue;
    types.push_back(type);
    years.push_back(year);
  }
  return years;
}

std::vector<Settings> AllSettings() {
  std::vector<Settings> all;
  for (int bits = 0; bits < 2 * 3 * 4; ++bits) {
    Settings settings = Of(bits % 2 == 0 ? Land::kDiaspora : Land::kIsrael, static_cast<Customs>(bits / 2 % 3));
    settings.chabad = bits / 6 % 2 != 0;
    settings.verses = settings.chabad || bits % 5 != 0;
    settings.optional = {bits / 12 != 0, bits / 12 != 0, bits % 7 == 0};
    all.push_back(settings);
  }
  return all;
}

// The days of those years that read otherwise than every day before them. Names and passages of English are all
// different (lections_languages_test.cpp), so that days with the same texts in English have the same in any language.
std::vector<calendar::Date> DaysUnlikeEachOther(Settings settings) {
  settings.language = kEnglish.code;
  std::set<std::string> known;
  std::vector<calendar::Date> days;
  for (const int32_t year : YearsOfAllTypes()) {
    for (int32_t day = calendar::JewishNewYear(year); day < calendar::JewishNewYear(year + 1); ++day) {
      const calendar::Date date = calendar::JewishFromAbsolute(day);
      const ReadingTexts texts = TextsOn(date, settings);
      if (known.insert(lections_test::Line(texts) + "\n" + texts.additional).second) days.push_back(date);
    }
  }
  return days;
}

// Every different text that the library gives in those years.
const std::set<std::string>& EveryText() {
  static const std::set<std::string> every = [] {
    std::set<std::string> found;
    for (Settings settings : AllSettings()) {
      const std::vector<calendar::Date> days = DaysUnlikeEachOther(settings);
      for (const Language* language : Languages()) {
        settings.language = language->code;
        for (const calendar::Date& day : days) {
          const ReadingTexts texts = TextsOn(day, settings);
          found.insert(texts.torah.begin(), texts.torah.end());
          found.insert(texts.haftarot.begin(), texts.haftarot.end());
          found.insert(texts.additional);
        }
      }
    }
    return found;
  }();
  return every;
}

// The width of a column of the text export, which cuts what is longer; the limit of a slot is far beyond.
TEST(EncodedText, IsDecodedToWhatItWas) {
  for (const char* text : {"", "Genesis 1:1-6:8", "Ki Sisa (Parah)", "וירא: בראשית יח:א-כב:כד", "ט״ו בשבט, א׳"}) {
    EXPECT_EQ(Decoded(Encoded(text, CodePage::kHebrew), CodePage::kHebrew), text);
  }
  EXPECT_EQ(Decoded(Encoded("Séder ÿ", CodePage::kWestern), CodePage::kWestern), "Séder ÿ");
  EXPECT_EQ(Decoded(Encoded("Řehoř, Śniadanie, ű", CodePage::kCentralEuropean), CodePage::kCentralEuropean),
            "Řehoř, Śniadanie, ű");
  EXPECT_EQ(Decoded(Encoded("Ёлка № 1", CodePage::kCyrillic), CodePage::kCyrillic), "Ёлка № 1");
  EXPECT_EQ(Decoded(Encoded("Α΄ Σαμουήλ ώ", CodePage::kGreek), CodePage::kGreek), "Α΄ Σαμουήλ ώ");
  EXPECT_EQ(Decoded("\x81\xFB", CodePage::kHebrew), "??");
  EXPECT_EQ(Decoded("\x80\x81", CodePage::kWestern), "€?");
}

TEST(LectionsTexts, FitTheirColumnWhateverTheYearAndTheSettings) {
  constexpr size_t kColumnOfTextExport = 95;
  static_assert(kColumnOfTextExport < kLongestText);
  EXPECT_GT(EveryText().size(), 1000u);
  for (const std::string& text : EveryText()) EXPECT_LE(text.size(), kColumnOfTextExport) << text;
}

TEST(LectionsTexts, AreNeverSplit) {
  EXPECT_TRUE(IsDividedAt("A; Morning: B", Dividers()[1]));
  EXPECT_FALSE(IsDividedAt("A; Morning: ", Dividers()[1]));
  for (const std::string& text : EveryText()) {
    for (const Divider& divider : Dividers()) EXPECT_FALSE(IsDividedAt(text, divider)) << text;
  }
}

// Semicolons separate the columns of exports, the others are marks of RTF; a question mark is a letter that the code
// page lacks.
TEST(LectionsTexts, HoldNoMarksThatListsAndExportsUse) {
  for (const std::string& text : EveryText()) {
    EXPECT_EQ(text.find_first_of(";+\\{}?\t\r\n"), std::string::npos) << text;
    EXPECT_TRUE(text.empty() || (text.front() != ' ' && text.back() != ' ')) << text;
    EXPECT_EQ(text.find("  "), std::string::npos) << text;
    EXPECT_EQ(text.find(": :"), std::string::npos) << text;
  }
}

TEST(LectionsTexts, AdditionalTextAndYizkorAreAscii) {
  const auto isAscii = [](std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c < 0x7F; });
  };
  for (const Language* language : Languages()) {
    EXPECT_TRUE(isAscii(language->plain.yizkor)) << language->name;
    EXPECT_LE(std::string_view(language->plain.yizkor).size(), 10u) << language->name;
    EXPECT_TRUE(isAscii(language->plain.monthAnnounced)) << language->name;
    for (const char* month : language->plain.months) EXPECT_TRUE(isAscii(month)) << language->name;
  }
}

TEST(LectionsTexts, EveryNameIsThereInEveryLanguage) {
  for (const Language* language : Languages()) {
    for (const char* name : language->portions) EXPECT_TRUE(name && *name) << language->name;
    for (const char* name : language->books) EXPECT_TRUE(name && *name) << language->name;
    for (const char* name : language->months) EXPECT_TRUE(name && *name) << language->name;
    for (size_t i = 1; i < language->occasions.size(); ++i) {
      EXPECT_TRUE(language->occasions[i] && *language->occasions[i]) << language->name << i;
    }
    EXPECT_EQ(&LanguageOf(language->code), language);
  }
}

TEST(LectionsTexts, AshkenaziSpelling) {
  Settings settings = Of(Land::kDiaspora, Customs::kAshkenazi);
  settings.language = kAshkenaziSpelling;
  EXPECT_EQ(Read(1, 3, 2025, settings),
            "Terumah (Shabbos Shekalim, Rosh Chodesh Adar): Exodus 25:1-27:19 | Rosh Chodesh: Numbers 28:9-15 | "
            "Maftir: Exodus 30:11-16 // II Kings 12:1-17");
  EXPECT_EQ(Read(19, 10, 2024, settings),
            "Sukkos, day 3, Shabbos Chol HaMoed: Exodus 33:12-34:26 | Maftir: Numbers 29:17-22 | "
            "Scroll: Ecclesiastes // Ezekiel 38:18-39:16");
}

// windows-1255 in logical order; chapters and verses in Hebrew numerals.
TEST(LectionsTexts, Hebrew) {
  Settings settings = Of(Land::kIsrael, Customs::kBoth);
  settings.language = kHebrewCode;
  const ReadingTexts texts = TextsOn(JewishDate(16, 11, 2024), settings);
  EXPECT_EQ(texts.torah[0], Encoded("וירא: בראשית יח:א-כב:כד", CodePage::kHebrew));
  EXPECT_EQ(texts.haftarot[0], Encoded("אשכנזים: מלכים ב ד:א-לז", CodePage::kHebrew));
  EXPECT_EQ(texts.haftarot[1], Encoded("ספרדים: מלכים ב ד:א-כג", CodePage::kHebrew));
  EXPECT_EQ(texts.torah[0].substr(0, 5), "\xE5\xE9\xF8\xE0:");
  EXPECT_EQ(TextsOn(JewishDate(26, 12, 2024), settings).torah[0],
            Encoded("א׳ דחנוכה, אשכנזים: במדבר ז:א-יז", CodePage::kHebrew));
}

TEST(LectionsTexts, NewMonthIsAnnouncedInEnglishBesideHebrewAndCanBeLeftOut) {
  Settings settings = Of(Land::kIsrael, Customs::kBoth);
  EXPECT_EQ(TextsOn(JewishDate(26, 10, 2024), settings).additional, "New month announced: Cheshvan");
  EXPECT_EQ(TextsOn(JewishDate(9, 3, 2024), settings).additional, "New month announced: Adar II");
  settings.language = kHebrewCode;
  EXPECT_EQ(TextsOn(JewishDate(22, 2, 2025), settings).additional, "New month announced: Adar");
  settings.language = kAshkenaziSpelling;
  EXPECT_EQ(TextsOn(JewishDate(28, 12, 2024), settings).additional, "New month announced: Teves");
  settings.newMonth = false;
  EXPECT_EQ(TextsOn(JewishDate(28, 12, 2024), settings).additional, "");
  EXPECT_EQ(TextsOn(JewishDate(25, 10, 2024), Of(Land::kDiaspora, Customs::kBoth)).additional, "");
}

TEST(LectionsTexts, WithoutVersesNamesAndBooksRemain) {
  Settings settings = Of(Land::kDiaspora, Customs::kBoth);
  settings.verses = false;
  EXPECT_EQ(Read(9, 11, 2024, settings), "Lech Lecha // Isaiah");
  EXPECT_EQ(Read(16, 11, 2024, settings), "Vayera // II Kings");  // the customs differ in verses alone
  EXPECT_EQ(Read(5, 10, 2024, settings), "Ha'azinu (Shabbat Shuva) // Ashkenazi: Hosea, Joel | Sephardi: Hosea, Micah");
  EXPECT_EQ(Read(3, 6, 2025, settings), "Shavuot, day 2 | Maftir: Numbers | Scroll: Ruth // Habakkuk");
  EXPECT_EQ(Read(27, 12, 2024, settings), "Chanukah, day 2");
}

TEST(LectionsNumerals, DecimalAndHebrew) {
  struct Row {
    int number;
    const char* hebrew;
  };
  for (const Row& row : {Row{1, "א"}, Row{10, "י"}, Row{14, "יד"}, Row{15, "טו"}, Row{16, "טז"}, Row{17, "יז"},
                         Row{20, "כ"}, Row{89, "פט"}, Row{115, "קטו"}, Row{119, "קיט"}, Row{250, "רנ"}}) {
    EXPECT_EQ(Number(row.number, Numerals::kHebrew), row.hebrew);
    EXPECT_EQ(Number(row.number, Numerals::kDecimal), std::to_string(row.number));
  }
}

TEST(LectionsEncodedText, KnowsTheLettersOfItsCodePage) {
  EXPECT_EQ(Encoded("אבת \"'", CodePage::kHebrew), "\xE0\xE1\xFA \"'");
  EXPECT_EQ(Encoded("א׳ ״", CodePage::kHebrew), "\xE0\xD7 \xD8");
  EXPECT_EQ(Encoded("Säule é", CodePage::kWestern), "S\xE4ule \xE9");
  EXPECT_EQ(Encoded("א", CodePage::kWestern), "?");
  EXPECT_EQ(Encoded("ä–", CodePage::kHebrew), "?\x96");
  EXPECT_EQ(Encoded("č ž", CodePage::kCentralEuropean), "\xE8 \x9E");  // CP1250.TXT
  EXPECT_EQ(Encoded("Бо ё", CodePage::kCyrillic), "\xC1\xEE \xB8");    // CP1251.TXT
  EXPECT_EQ(Encoded("Βώ΄", CodePage::kGreek), "\xC2\xFE\xB4");         // CP1253.TXT
  EXPECT_TRUE(IsEncodable("œuvre", CodePage::kWestern));
  EXPECT_FALSE(IsEncodable("œuvre", CodePage::kCentralEuropean));
  EXPECT_FALSE(IsEncodable("\xD7", CodePage::kHebrew));
  EXPECT_EQ(Encoded("\xD7", CodePage::kHebrew), "?");
  EXPECT_EQ(Encoded("\xE2\x82z\xFF", CodePage::kWestern), "??z?");
  EXPECT_EQ(Encoded("", CodePage::kHebrew), "");
  // A brace, a backslash and a line feed in more bytes than they need.
  for (const char* overlong : {"\xC1\xBB", "\xC1\x9C", "\xC0\x8A", "\xE0\x81\xBB"}) {
    EXPECT_EQ(Encoded(overlong, CodePage::kWestern), "?") << overlong;
    EXPECT_FALSE(IsEncodable(overlong, CodePage::kWestern)) << overlong;
  }
}

TEST(LectionsPassage, IsReadAsTheTablesWriteIt) {
  constexpr Passage kPassage = "Hosea 14:2-10, Micah 7:18-20, 7:22, Ruth";
  ASSERT_EQ(kPassage.size(), 4u);
  EXPECT_EQ(kPassage[0], (Verses{Book::kHosea, 14, 2, 14, 10}));
  EXPECT_EQ(kPassage[1], (Verses{Book::kMicah, 7, 18, 7, 20}));
  EXPECT_EQ(kPassage[2], (Verses{Book::kMicah, 7, 22, 7, 22}));
  EXPECT_EQ(kPassage[3], Verses{Book::kRuth});
  EXPECT_EQ(PassageText(kPassage, LanguageOf(1), true), "Hosea 14:2-10, Micah 7:18-20, 7:22, Ruth");
  EXPECT_EQ(PassageText(kPassage, LanguageOf(1), false), "Hosea, Micah, Ruth");
  EXPECT_EQ(Passage("Isaiah 27:6-28:13")[0], (Verses{Book::kIsaiah, 27, 6, 28, 13}));
  EXPECT_TRUE(Passage("").empty());
  for (const char* wrong : {"Isaia 1:1", "Isaiah 1", "Isaiah 1:", "Isaiah 1:1-", "Isaiah 1:1x", "Isaiah 300:1"}) {
    EXPECT_THROW(Passage{wrong}, std::invalid_argument) << wrong;
  }
}

}  // namespace
