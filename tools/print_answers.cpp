// Writes down what the libraries answer, for the programs beside it that compare the answers with those of others.
//
//   print_answers readings FIRST LAST   the Jewish years: a line of JSON for each day, land and custom with readings
//   print_answers calendar              the years 1583 to 3000: "year-month-day day.month.year" of both calendars
//   print_answers personal              each day of the Jewish years 5682 to 5719: "birthday" or "yahrzeit",
//                                       day.month.year of the event, the Jewish year, year-month-day when it is kept,
//                                       for 38 years
//   print_answers offsets               every zone with the offset of its standard time in minutes
//   print_answers zones                 for each line "zone latitude longitude" (packed) of the input, with the zone's
//                                       standard offset: the zone found, "-" for none, and whether both clocks agree
//                                       on every noon of 2000 to 2030
//   print_answers daf-yomi              11 September 1923 to 3000: "absolute-day tractate leaf"
//   print_answers verse-numbers         for each line "language book-index chapter verse" of the input, in the Hebrew
//                                       Bible's numbers, "chapter:verse chapter:verse": where the verse begins and ends
//                                       in the language's own Bible
//   print_answers clocks                for each line "zone seconds" of the input the offset from UTC, "-" for none
//   print_answers occasions PLACE LATITUDE LONGITUDE HOURS MINUTES diaspora|israel FIRST LAST [KEY=VALUE ...]
//                                       the Jewish years at a place (its name, packed coordinates, standard zone): a
//                                       line for each row, with tabs between: year-month-day, HH:MM ("-" for a whole
//                                       day, "----" where the moment does not occur), the ids of kind, occasion and
//                                       moment, the number, day.month.year of the Jewish date. Keys are those of
//                                       "shabbat2.ini" and "occasions.ini", and "Elevation" in metres; the others have
//                                       their defaults
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/folio/folio_core.h"
#include "libraries/lections/language.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/lections/verse_numbers.h"
#include "libraries/occasions/occasions_core.h"
#include "libraries/persons/personal_date.h"
#include "libraries/sun/clock_rules.h"
#include "libraries/sun/clock_rules_table.h"
#include "libraries/sun/zone_of_place.h"

namespace {

using calendar::Land;
using lections::Custom;

constexpr const char* kPartNames[] = {"main",         "roshChodesh", "maftir", "maftirOfWalledCities",
                                      "walledCities", "afternoon",   "scroll"};
constexpr const char* kCustomNames[] = {"ashkenazi", "sephardi", "chabad"};

std::string CivilText(int32_t day) {
  const calendar::Date civil = calendar::GregorianFromAbsolute(day);
  char text[48];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", civil.year, civil.month, civil.day);
  return text;
}

// {"main":"Genesis 1:1-6:8","maftir":...}
template <typename Lines>
std::string JsonOf(const Lines& lines) {
  std::string text = "{";
  for (const lections::Line& line : lines) {
    if (text.size() > 1) text += ',';
    text += std::string("\"") + kPartNames[static_cast<int>(line.part)] + "\":\"" +
            lections::PassageText(line.passage, lections::kEnglish, true) + "\"";
  }
  return text + "}";
}

void PrintReadings(int32_t firstYear, int32_t lastYear) {
  for (int32_t day = calendar::JewishNewYear(firstYear); day < calendar::JewishNewYear(lastYear + 1); ++day) {
    const calendar::Date date = calendar::JewishFromAbsolute(day);
    for (const Land land : {Land::kDiaspora, Land::kIsrael}) {
      for (int custom = 0; custom < lections::kCustomCount; ++custom) {
        const lections::DayReadings readings = lections::ReadingsOn(date, land, static_cast<Custom>(custom), {});
        if (readings.torah.empty()) continue;
        std::cout << R"({"date":")" << CivilText(day) << R"(","israel":)" << (land == Land::kIsrael ? "true" : "false")
                  << R"(,"custom":")" << kCustomNames[custom] << R"(","torah":)" << JsonOf(readings.torah)
                  << R"(,"haftarot":)" << JsonOf(readings.haftarot) << "}\n";
      }
    }
  }
}

void PrintCalendar() {
  const int32_t end = calendar::AbsoluteFromGregorian({1, 1, 3001});
  for (int32_t day = calendar::AbsoluteFromGregorian({1, 1, 1583}); day < end; ++day) {
    const calendar::Date date = calendar::JewishFromAbsolute(day);
    std::cout << CivilText(day) << ' ' << date.day << '.' << date.month << '.' << date.year << '\n';
  }
}

// Two cycles of 19 years. Yahrzeit of Adar is kept in Adar I, as those programs have it.
void PrintPersonal() {
  constexpr int32_t kYears = 38;
  constexpr int32_t kFirst = 5682;
  for (int32_t day = calendar::JewishNewYear(kFirst); day < calendar::JewishNewYear(kFirst + kYears); ++day) {
    const calendar::Date event = calendar::JewishFromAbsolute(day);
    for (int32_t year = event.year + 1; year <= event.year + kYears; ++year) {
      for (const persons::Kind kind : {persons::Kind::kBirthday, persons::Kind::kYahrzeit}) {
        const bool isBirthday = kind == persons::Kind::kBirthday;
        const persons::AdarCustom adar = persons::CustomOf(kind, std::nullopt, persons::AdarCustom::kAdarI);
        for (const persons::Observance& kept : persons::KeptInJewishYear(event, kind, adar, year)) {
          std::cout << (isBirthday ? "birthday " : "yahrzeit ") << event.day << '.' << event.month << '.' << event.year
                    << ' ' << year << ' ' << CivilText(kept.absoluteDay) << '\n';
        }
      }
    }
  }
}

bool AgreeFrom2000To2030(const std::string& one, const std::string& other) {
  constexpr int64_t kSecondsPerDay = 86400;
  const int32_t first = calendar::AbsoluteFromGregorian({1, 1, 2000});
  const int32_t last = calendar::AbsoluteFromGregorian({31, 12, 2030});
  for (int32_t day = first; day <= last; ++day) {
    const int64_t noon = (day - calendar::kAbsoluteDayOfUnixDay0) * kSecondsPerDay + kSecondsPerDay / 2;
    if (sun::UtcOffsetSeconds(one, noon) != sun::UtcOffsetSeconds(other, noon)) return false;
  }
  return true;
}

void PrintOffsets() {
  for (const auto& zone : sun::clock_rules_table::zones) {
    std::cout << zone.id << ' ' << sun::StandingOffsetSeconds(zone.id).value_or(0) / 60 << '\n';
  }
}

void PrintZones() {
  std::string zone;
  int32_t latitude = 0;
  int32_t longitude = 0;
  while (std::cin >> zone >> latitude >> longitude) {
    const int32_t minutes = sun::StandingOffsetSeconds(zone).value_or(0) / 60;
    const char* const found = sun::FindZone(latitude, longitude, minutes / 60, minutes % 60).zoneId;
    const bool agree = found && AgreeFrom2000To2030(zone, found);
    std::cout << (found ? found : "-") << (agree ? " agrees\n" : " differs\n");
  }
}

void PrintDafYomi() {
  const int32_t end = calendar::AbsoluteFromGregorian({1, 1, 3001});
  for (int32_t day = calendar::AbsoluteFromGregorian({11, 9, 1923}); day < end; ++day) {
    const std::optional<folio::Leaf> leaf = folio::LeafOf(day);
    std::cout << day << ' ' << (leaf ? leaf->tractate : "-") << ' ' << (leaf ? leaf->number : 0) << '\n';
  }
}

void PrintClocks() {
  std::string zone;
  for (int64_t moment = 0; std::cin >> zone >> moment;) {
    const std::optional<int32_t> offset = sun::UtcOffsetSeconds(zone, moment);
    std::cout << (offset ? std::to_string(*offset) : "-") << '\n';
  }
}

std::string PlaceText(int chapter, int verse) {
  return std::to_string(chapter) + ":" + std::to_string(verse);
}

void PrintVerseNumbers() {
  uint32_t language = 0;
  int book = 0;
  int chapter = 0;
  int verse = 0;
  while (std::cin >> language >> book >> chapter >> verse) {
    const auto chapterByte = static_cast<uint8_t>(chapter);
    const auto verseByte = static_cast<uint8_t>(verse);
    lections::Verses verses{static_cast<lections::Book>(book), chapterByte, verseByte, chapterByte, verseByte};
    if (const lections::OwnBible* bible = lections::OwnBibleOf(language)) {
      verses = lections::InNumbersOf(bible->versification, verses);
    }
    std::cout << PlaceText(verses.chapter, verses.verse) << ' ' << PlaceText(verses.lastChapter, verses.lastVerse)
              << '\n';
  }
}

// What the command line says in place of the settings' files.
std::map<std::string, std::string> settings;

std::string Setting(const std::string& section, const char* key) {
  const auto found = settings.find(section == "Elevation" ? section : std::string(key));
  return found == settings.end() ? "" : found->second;
}

int32_t ReadSettingsNumber(const char* section, const char* key, int32_t defaultValue, const char*) {
  const std::string text = Setting(section, key);
  return text.empty() ? defaultValue : std::atoi(text.c_str());
}

uint32_t ReadSettingsText(const char* section, const char* key, const char*, char* buffer, uint32_t size, const char*) {
  return static_cast<uint32_t>(std::snprintf(buffer, size, "%s", Setting(section, key).c_str()));
}

occasions::Question QuestionIn(std::span<const char* const> place, Land land) {
  const sun::SettingsReader reader = {ReadSettingsNumber, ReadSettingsText};
  const sun::PackedPlace packed = {std::atoi(place[1]), std::atoi(place[2]), std::atoi(place[3]), std::atoi(place[4])};
  occasions::Question question;
  question.place = place[0];
  question.settings = sun::ReadPlaceSettings(reader, packed);
  question.shabbat = candles::ReadShabbatRule(reader, question.place);
  question.ownTimes = [](int32_t) { return std::nullopt; };
  question.customs = occasions::CustomsFrom([](const char* key) { return Setting("", key); });
  question.land = land;
  return question;
}

std::string TimeText(const occasions::Row& row) {
  if (!row.minute) return row.moment == occasions::Moment::kWholeDay ? "-" : "----";
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", *row.minute / 60, *row.minute % 60);
  return text;
}

void PrintOccasions(const occasions::Question& question, int32_t firstYear, int32_t lastYear) {
  const int32_t last = calendar::JewishNewYear(lastYear + 1) - 1;
  for (const occasions::Row& row : RowsBetween(question, calendar::JewishNewYear(firstYear), last)) {
    const calendar::Date jewish = calendar::JewishFromAbsolute(row.day);
    std::cout << CivilText(row.day) << '\t' << TimeText(row) << '\t' << IdOf(KindOf(row.occasion)) << '\t'
              << IdOf(row.occasion) << '\t' << IdOf(row.moment) << '\t' << row.number << '\t' << jewish.day << '.'
              << jewish.month << '.' << jewish.year << '\n';
  }
}

void PrintOccasions(std::span<const char* const> arguments) {
  for (const std::string setting : arguments.subspan(8)) {
    settings[setting.substr(0, setting.find('='))] = setting.substr(setting.find('=') + 1);
  }
  const Land land = std::string_view(arguments[5]) == "israel" ? Land::kIsrael : Land::kDiaspora;
  PrintOccasions(QuestionIn(arguments.first(5), land), std::atoi(arguments[6]), std::atoi(arguments[7]));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view what = argc > 1 ? argv[1] : "";
  if (what == "readings" && argc == 4) {
    PrintReadings(std::atoi(argv[2]), std::atoi(argv[3]));
  } else if (what == "calendar") {
    PrintCalendar();
  } else if (what == "personal") {
    PrintPersonal();
  } else if (what == "offsets") {
    PrintOffsets();
  } else if (what == "zones") {
    PrintZones();
  } else if (what == "daf-yomi") {
    PrintDafYomi();
  } else if (what == "verse-numbers") {
    PrintVerseNumbers();
  } else if (what == "clocks") {
    PrintClocks();
  } else if (what == "occasions" && argc >= 10) {
    PrintOccasions(std::span<const char* const>(argv, static_cast<size_t>(argc)).subspan(2));
  } else {
    std::cerr
        << "usage: print_answers readings FIRST_YEAR LAST_YEAR | calendar | personal | offsets | zones | daf-yomi | "
           "verse-numbers | clocks | occasions PLACE LATITUDE LONGITUDE HOURS MINUTES diaspora|israel FIRST_YEAR "
           "LAST_YEAR [KEY=VALUE ...]\n";
    return 1;
  }
  return 0;
}
