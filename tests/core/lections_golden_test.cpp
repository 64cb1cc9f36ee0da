// A whole year in each land and custom, day by day, against files that have been read through once; how they were made,
// and how they are written anew, says tests/golden/README.md.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "libraries/lections/day_readings.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/language.h"
#include "tests/core/lections_days.h"

namespace fs = std::filesystem;

namespace {

using namespace lections_test;

struct GoldenYear {
  std::string file;
  int32_t jewishYear;
  Land land;
  Customs customs;
  bool chabad;
  uint32_t language;
};

// 5784 is a leap year that begins on a Shabbat, 5785 a common one that begins on a Thursday.
const std::vector<GoldenYear> kYears = {
    {"5784_diaspora_ashkenazi.txt", 5784, Land::kDiaspora, Customs::kAshkenazi, false, 1},
    {"5784_diaspora_sephardi.txt", 5784, Land::kDiaspora, Customs::kSephardi, false, 1},
    {"5784_israel_ashkenazi.txt", 5784, Land::kIsrael, Customs::kAshkenazi, false, 1},
    {"5784_israel_sephardi.txt", 5784, Land::kIsrael, Customs::kSephardi, false, 1},
    {"5785_diaspora_all_customs.txt", 5785, Land::kDiaspora, Customs::kBoth, true, 2},
    {"5785_israel_hebrew.txt", 5785, Land::kIsrael, Customs::kBoth, false, 4},
};

std::string YearText(const GoldenYear& year) {
  Settings settings = Of(year.land, year.customs, year.chabad);
  settings.language = year.language;
  std::string text;
  for (int32_t day = calendar::JewishNewYear(year.jewishYear); day < calendar::JewishNewYear(year.jewishYear + 1);
       ++day) {
    const calendar::Date date = calendar::JewishFromAbsolute(day);
    const lections::ReadingTexts texts = lections::TextsOn(date, settings);
    if (texts.torah[0].empty()) continue;
    const calendar::Date civil = calendar::GregorianFromAbsolute(day);
    char line[32];
    std::snprintf(line, sizeof line, "%04d-%02d-%02d ", civil.year, civil.month, civil.day);
    text += line + lections::Decoded(Line(texts), lections::LanguageOf(year.language).codePage);
    if (!texts.additional.empty()) text += " (" + texts.additional + ")";
    if (lections::IsYizkor(date, year.land)) text += " (Yizkor)";
    text += '\n';
  }
  return text;
}

// Each language but English and Hebrew in both lands: "5784_diaspora_danish.txt".
std::vector<GoldenYear> YearsOfLanguages() {
  std::vector<GoldenYear> years;
  for (const lections::Language* language : lections::Languages()) {
    if (std::ranges::any_of(kYears, [&](const GoldenYear& one) { return one.language == language->code; })) continue;
    std::string name = language->name;
    name[0] = static_cast<char>(name[0] - 'A' + 'a');
    years.push_back({"5784_diaspora_" + name + ".txt", 5784, Land::kDiaspora, Customs::kBoth, true, language->code});
    years.push_back({"5784_israel_" + name + ".txt", 5784, Land::kIsrael, Customs::kBoth, true, language->code});
  }
  return years;
}

// The folder in which the years are written anew, null for none.
const char* FolderToWriteTo() {
  return std::getenv("TIMES_READINGS_GOLDEN_FOLDER");
}

void CompareWithFiles(const std::vector<GoldenYear>& years) {
  const fs::path folder = fs::path(SOURCES) / "tests" / "golden" / "lections";
  for (const GoldenYear& year : years) {
    if (FolderToWriteTo()) std::ofstream(fs::path(FolderToWriteTo()) / year.file, std::ios::binary) << YearText(year);
    std::ifstream file(folder / year.file, std::ios::binary);
    const std::string expected(std::istreambuf_iterator<char>(file), {});
    EXPECT_EQ(YearText(year), expected) << year.file;
  }
}

TEST(LectionsGolden, YearsAreAsTheyWereReadThrough) {
  CompareWithFiles(kYears);
}

TEST(LectionsGolden, YearsOfEveryLanguageAreAsTheyWereReadThrough) {
  CompareWithFiles(YearsOfLanguages());
}

}  // namespace
