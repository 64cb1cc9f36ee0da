// A whole year in each land and custom, day by day, against files that have been read through once; how they were made,
// and how they are written anew, says tests/golden/README.md.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "libraries/lections/day_readings.h"
#include "tests/core/lections_days.h"

namespace fs = std::filesystem;

namespace {

using namespace lections_test;

struct GoldenYear {
  const char* file;
  int32_t jewishYear;
  Land land;
  Customs customs;
  bool chabad;
  uint32_t language;
};

// 5784 is a leap year that begins on a Shabbat, 5785 a common one that begins on a Thursday.
constexpr GoldenYear kYears[] = {
    {"5784_diaspora_ashkenazi.txt", 5784, Land::kDiaspora, Customs::kAshkenazi, false, 1},
    {"5784_diaspora_sephardi.txt", 5784, Land::kDiaspora, Customs::kSephardi, false, 1},
    {"5784_israel_ashkenazi.txt", 5784, Land::kIsrael, Customs::kAshkenazi, false, 1},
    {"5784_israel_sephardi.txt", 5784, Land::kIsrael, Customs::kSephardi, false, 1},
    {"5785_diaspora_all_customs.txt", 5785, Land::kDiaspora, Customs::kBoth, true, 2},
    {"5785_israel_hebrew.txt", 5785, Land::kIsrael, Customs::kBoth, false, 4},
};

// The letters of windows-1255 as UTF-8, for readers of the files.
std::string Readable(const std::string& text) {
  std::string readable;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte == 0xD7) {
      readable += "׳";
    } else if (byte >= 0xE0 && byte <= 0xFA) {
      readable += '\xD7';
      readable += static_cast<char>(byte - 0xE0 + 0x90);
    } else {
      readable += c;
    }
  }
  return readable;
}

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
    text += line + Readable(Line(texts));
    if (!texts.additional.empty()) text += " (" + texts.additional + ")";
    if (lections::IsYizkor(date, year.land)) text += " (Yizkor)";
    text += '\n';
  }
  return text;
}

// The folder in which the years are written anew, null for none.
const char* FolderToWriteTo() {
  return std::getenv("TIMES_READINGS_GOLDEN_FOLDER");
}

TEST(LectionsGolden, YearsAreAsTheyWereReadThrough) {
  const fs::path folder = fs::path(__FILE__).parent_path().parent_path() / "golden" / "lections";
  for (const GoldenYear& year : kYears) {
    if (FolderToWriteTo()) std::ofstream(fs::path(FolderToWriteTo()) / year.file, std::ios::binary) << YearText(year);
    std::ifstream file(folder / year.file, std::ios::binary);
    const std::string expected(std::istreambuf_iterator<char>(file), {});
    EXPECT_EQ(YearText(year), expected) << year.file;
  }
}

}  // namespace
