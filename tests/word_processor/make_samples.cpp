// Writes one RTF file of every layout and form into a folder: make_samples FOLDER. The readings are those of a whole
// year in English and Hebrew and of some weeks in a language of every code page, with a file of their texts in UTF-8
// for each; the zmanim have both marks and a Hebrew legend as the zmanim library describes them. Those
// for all word processors come in every number that makes tables of another kind.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/hours/description_text.h"
#include "libraries/lections/encoded_text.h"
#include "libraries/lections/language.h"
#include "libraries/lections/reading_texts.h"
#include "output/text_sink.h"
#include "readings/core/readings_export.h"
#include "readings/core/split_rules.h"
#include "shabbat/core/shabbat_export.h"
#include "zmanim/core/zmanim_export.h"

namespace {

namespace fs = std::filesystem;

constexpr int kDays = 31;
constexpr int kDaysOfAYear = 365;
constexpr int kSomeWeeks = 20 * 7;

void Format24(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d", hour, minute);
}
void Format12(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d %s", (hour + 11) % 12 + 1, minute, hour < 12 ? "a.m." : "p.m.");
}

void Save(const fs::path& file, const StringSink& sink) {
  std::ofstream(file, std::ios::binary) << sink.text();
}

const std::string kForAll = "_for_all";  // in the names of the files in that form

void SaveShabbatTimes(const fs::path& folder) {
  std::vector<ShabbatTimeEntry> entries;
  for (uint32_t week = 0; week < 4; ++week) entries.push_back({5 + 7 * week, 1, 2007, 16, 27 + week, 16, 45, 17, 31});
  ShabbatExport data{.title = "Times / Readings of {Aachen}",
                     .dateTitle = "Date",
                     .candleTitle = "Candle Lighting",
                     .endTitle = "End of Shabbat",
                     .entries = entries,
                     .formatTime = Format24,
                     .amPm = false};
  const std::pair<std::string, RtfLayout> layouts[] = {{"shabbat_same_row", RtfLayout::kSameRow},
                                                       {"shabbat_three_columns", RtfLayout::kThreeColumns},
                                                       {"shabbat_two_columns", RtfLayout::kTwoColumns}};
  for (const auto& [name, layout] : layouts) {
    for (const RtfForm form : {RtfForm::kUsual, RtfForm::kForAllWordProcessors}) {
      data.rtfForm = form;
      StringSink sink;
      WriteShabbatRtf(sink, data, layout);
      Save(folder / (name + (form == RtfForm::kUsual ? "" : kForAll) + ".rtf"), sink);
    }
  }
}

// Twelve zmanim of January 2007; the third does not occur on the first day, the fourth is not known.
std::vector<ZmanimDay> ZmanimDays() {
  std::vector<ZmanimDay> days;
  for (uint32_t day = 1; day <= kDays; ++day) {
    ZmanimDay record{{day, 1, 2007}, {}};
    for (int32_t zman = 0; zman < static_cast<int32_t>(kMostZmanim); ++zman) {
      record.times[zman] = {6 + zman % 12, static_cast<int32_t>(day)};
    }
    days.push_back(record);
  }
  days[0].times[2] = kNoTime;
  days[0].times[3] = {kUnknownTimeHour, 0};
  return days;
}

void SaveZmanim(const fs::path& folder) {
  const std::vector<ZmanimDay> days = ZmanimDays();
  ZmanimExport data{.location = "Aachen",
                    .dateTitle = "Date",
                    .names = {},
                    .hebrew = false,
                    .hebrewNames = {},
                    .hebrewFont = "DisplayHebrew1",
                    .vilnaGaon = "GR\"O = Vilna Gaon",
                    .magenAvraham = "M\"A = Magen Avraham",
                    .days = days,
                    .formatTime = Format24,
                    .amPm = false};
  for (int zman = 1; zman <= 12; ++zman) {
    data.names.push_back("Zman " + std::to_string(zman));
    data.hebrewNames.emplace_back();
  }
  data.hebrewNames[0] = hours::DisplayHebrew(hours::EightBitFromUtf8("עלות השחר (72 דקות)"));
  data.hebrewNames[1] = hours::DisplayHebrew(hours::EightBitFromUtf8("סוף זמן קריאת שמע {מג\"א}"));
  const auto save = [&](const char* name, ZmanimRtfLayout layout) {
    StringSink sink;
    WriteZmanimRtf(sink, data, layout);
    Save(folder / name, sink);
  };
  save("zmanim_columns.rtf", ZmanimRtfLayout::kRowPerColumn);
  save("zmanim_days.rtf", ZmanimRtfLayout::kRowPerDay);
  data.hebrew = true;
  save("zmanim_columns_hebrew.rtf", ZmanimRtfLayout::kRowPerColumn);
  save("zmanim_days_hebrew.rtf", ZmanimRtfLayout::kRowPerDay);
  data.formatTime = Format12;
  data.amPm = true;
  data.names.resize(7);
  data.hebrewNames.resize(7);
  save("zmanim_days_12_hours.rtf", ZmanimRtfLayout::kRowPerDay);
}

// Two weeks in which no zman has the time of another: check_rtf knows how they go on.
std::vector<ZmanimDay> DaysOfUniqueTimes() {
  constexpr uint32_t kTwoWeeks = 14;
  std::vector<ZmanimDay> days;
  for (uint32_t day = 0; day < kTwoWeeks; ++day) {
    ZmanimDay record{{day + 1, 1, 2007}, {}};
    for (uint32_t zman = 0; zman < kMostZmanim; ++zman) {
      const auto minutes = static_cast<int32_t>(day * kMostZmanim + zman);
      record.times[zman] = {minutes / 60, minutes % 60};
    }
    days.push_back(record);
  }
  return days;
}

void SaveZmanimForAll(const fs::path& folder) {
  const std::vector<ZmanimDay> days = DaysOfUniqueTimes();
  for (const std::size_t count : {10, 19, 20, 25, 100}) {
    for (const bool amPm : {false, true}) {
      for (const bool hebrew : {false, true}) {
        ZmanimExport data{.location = "{Aachen}",
                          .dateTitle = "Date",
                          .names = std::vector<std::string>(count, "Zman {72}"),
                          .hebrew = hebrew,
                          .hebrewNames = std::vector<std::string>(count),
                          .hebrewFont = "DisplayHebrew1",
                          .vilnaGaon = "GR\"O = Vilna Gaon",
                          .magenAvraham = "M\"A = Magen Avraham",
                          .days = days,
                          .formatTime = amPm ? Format12 : Format24,
                          .amPm = amPm,
                          .rtfForm = RtfForm::kForAllWordProcessors};
        data.hebrewNames[0] = hours::DisplayHebrew(hours::EightBitFromUtf8("עלות השחר (72 דקות)"));
        for (const auto& [name, layout] :
             {std::pair{"columns", ZmanimRtfLayout::kRowPerColumn}, {"days", ZmanimRtfLayout::kRowPerDay}}) {
          StringSink sink;
          WriteZmanimRtf(sink, data, layout);
          Save(folder / ("zmanim_" + std::string(name) + kForAll + "_" + std::to_string(count) +
                         (amPm ? "_12" : "_24") + (hebrew ? "_hebrew" : "_english") + ".rtf"),
               sink);
        }
      }
    }
  }
}

void Put(const std::string& text, char (&slot)[kTextSize]) {
  slot[text.copy(slot, kTextSize - 1)] = '\0';
}

// From 5 January 2007 on, as the program's own list has them.
std::vector<ReadingsEntry> ReadingsOfDays(int32_t days, const lections::Settings& settings) {
  std::vector<ReadingsEntry> entries;
  const int32_t first = calendar::AbsoluteFromGregorian({5, 1, 2007});
  for (int32_t day = first; day < first + days; ++day) {
    const calendar::Date jewish = calendar::JewishFromAbsolute(day);
    const lections::ReadingTexts texts = lections::TextsOn(jewish, settings);
    if (texts.torah[0].empty()) continue;
    const calendar::Date date = calendar::GregorianFromAbsolute(day);
    ReadingsEntry entry{};
    entry.date = {static_cast<uint32_t>(date.day), static_cast<uint32_t>(date.month), static_cast<uint32_t>(date.year)};
    Put(texts.torah[0], entry.torah1);
    Put(texts.torah[1], entry.torah2);
    Put(texts.torah[2], entry.torah3);
    Put(texts.haftarot[0], entry.haftarah1);
    Put(texts.haftarot[1], entry.haftarah2);
    Put(texts.haftarot[2], entry.haftarah3);
    Put(texts.additional, entry.extraText);
    SplitReadings(entry, settings.language);
    entry.isYizkor = lections::IsYizkor(jewish, settings.land) ? 1 : 0;
    entries.push_back(entry);
  }
  return entries;
}

// As the readings library describes it.
ExportFont FontOf(const lections::Language& language) {
  const uint32_t charset = lections::CharSetOf(language.codePage);
  if (charset == 0) return {};
  return {.ownFont = true, .face = "Times New Roman", .points = 12, .charset = charset};
}

void SaveReadings(const fs::path& folder, const std::string& suffix, const lections::Language& language,
                  const std::vector<ReadingsEntry>& entries) {
  ReadingsExport data{.dateTitle = "Date",
                      .torahTitle = "Parashioth",
                      .haftarahTitle = "Haphtaroth",
                      .yizkor = "Yizkor",
                      .font = FontOf(language),
                      .entries = entries};
  for (const RtfForm form : {RtfForm::kUsual, RtfForm::kForAllWordProcessors}) {
    data.rtfForm = form;
    const std::string ending = (form == RtfForm::kUsual ? "" : kForAll) + suffix + ".rtf";
    StringSink wide;
    WriteReadingsRtfWide(wide, data);
    Save(folder / ("readings_wide" + ending), wide);
    StringSink narrow;
    WriteReadingsRtfNarrow(narrow, data);
    Save(folder / ("readings_narrow" + ending), narrow);
  }
}

void SaveReadingsOfAYear(const fs::path& folder, const std::string& suffix, const lections::Language& language) {
  lections::Settings settings;
  settings.language = language.code;
  SaveReadings(folder, suffix, language, ReadingsOfDays(kDaysOfAYear, settings));
}

// All customs, whose names are among the letters; and what a word processor is to show of them, a line each.
void SaveReadingsOfSomeWeeks(const fs::path& folder, const std::string& suffix, const lections::Language& language) {
  lections::Settings settings;
  settings.chabad = true;
  settings.optional = {.mondayAndThursday = true, .shabbatAfternoon = true};
  settings.language = language.code;
  const std::vector<ReadingsEntry> entries = ReadingsOfDays(kSomeWeeks, settings);
  SaveReadings(folder, suffix, language, entries);
  std::ofstream shown(folder / ("readings" + suffix + ".txt"), std::ios::binary);
  for (const ReadingsEntry& entry : entries) {
    for (const char* text :
         {entry.torah1, entry.torah2, entry.torah3, entry.haftarah1, entry.haftarah2, entry.haftarah3}) {
      if (*text != '\0') shown << lections::Decoded(text, language.codePage) << '\n';
    }
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  const fs::path folder = arguments[1];
  SaveShabbatTimes(folder);
  SaveZmanim(folder);
  SaveZmanimForAll(folder);
  SaveReadingsOfAYear(folder, "", lections::kEnglish);
  SaveReadingsOfAYear(folder, "_hebrew", lections::kHebrew);
  const std::pair<const char*, const lections::Language*> languages[] = {
      {"_weeks_german", &lections::kGerman}, {"_weeks_hebrew", &lections::kHebrew},
      {"_weeks_greek", &lections::kGreek},   {"_weeks_russian", &lections::kRussian},
      {"_weeks_czech", &lections::kCzech},   {"_weeks_polish", &lections::kPolish}};
  for (const auto& [suffix, language] : languages) SaveReadingsOfSomeWeeks(folder, suffix, *language);
}
