#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/occasions/occasion_texts.h"
#include "libraries/profile/ini_document.h"
#include "libraries/profile/profile_answers.h"
#include "tests/fuzz/check.h"

namespace {

using namespace occasions;

constexpr int32_t kMinutesPerDay = 1440;
constexpr int32_t kMostDays = 100;

// What the settings say: the elevation, and every other key whichever file it is asked of.
int32_t elevationMetres;
std::optional<profile::IniDocument> file;

int32_t ReadInt(const char* section, const char* key, int32_t defaultValue, const char*) {
  if (std::string(section) == "Elevation") return elevationMetres;
  return profile::IntAnswer(*file, section, key, defaultValue);
}

uint32_t ReadText(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                  const char*) {
  return profile::TextAnswer(*file, section, key, defaultValue, buffer, size);
}

std::string TextOfKey(const char* key) {
  char text[512];
  ReadText(kCustomsSection, key, "", text, sizeof text, kCustomsFile);
  return text;
}

// Any text, or sections of the customs and of the rule of candles with any values.
std::string SettingsText(FuzzedDataProvider& input) {
  if (input.ConsumeBool()) return input.ConsumeRandomLengthString(600);
  std::string text = "[Occasions]\n";
  for (const KeyValue& pair : ValuesOf(Customs())) {
    text +=
        std::string(pair.key) + "=" + (input.ConsumeBool() ? pair.value : input.ConsumeRandomLengthString(24)) + "\n";
  }
  text += "[Shabbat]\n";
  for (const char* key : {"CandleLighting", "DoMinutes", "End", "DegreesBelowHorizon", "AddMinutesAfterDegrees"}) {
    if (input.ConsumeBool()) text += std::string(key) + "=" + input.ConsumeRandomLengthString(12) + "\n";
  }
  return text;
}

Customs ChosenCustoms(FuzzedDataProvider& input) {
  Customs customs = CustomsFrom(TextOfKey);
  const auto values = ValuesOf(customs);
  FUZZ_CHECK(CustomsFrom([&values](const char* key) {
               return std::ranges::find(values, std::string(key), &KeyValue::key)->value;
             }) == customs);
  const auto choose = [&input](std::string& id, const std::vector<Choice>& choices) {
    if (input.ConsumeBool()) id = choices[input.ConsumeIntegralInRange<size_t>(0, choices.size() - 1)].id;
  };
  choose(customs.dawn, DawnChoices());
  choose(customs.nightfall, NightfallChoices());
  choose(customs.nightfallOfAv, NightfallChoices());
  choose(customs.chametz, ChametzChoices());
  return customs;
}

// A time of the user's own for about every other Friday, any there is.
candles::OwnTimes ChosenOwnTimes(FuzzedDataProvider& input) {
  const auto seed = input.ConsumeIntegral<uint16_t>();
  if (seed % 2 == 0) return [](int32_t) { return std::nullopt; };
  return [seed](int32_t friday) -> std::optional<candles::Times> {
    const auto number = static_cast<uint32_t>(friday) * 2654435761u + seed;
    if (number % 2 == 0) return std::nullopt;
    const auto part = [number](uint32_t divisor, uint32_t count) {
      return static_cast<int32_t>(number / divisor % count);
    };
    return candles::Times{part(3, 24), part(100, 60), part(7000, 24), part(200000, 60)};
  };
}

bool IsForPeople(const std::string& text) {
  return std::ranges::none_of(text, [](unsigned char c) { return c < ' ' || c == 127; });
}

void CheckTexts(const Question& question, const Row& row) {
  for (const Language language : {Language::kEnglish, Language::kHebrew}) {
    FUZZ_CHECK(!NameOf(row, language).empty() && IsForPeople(NameOf(row, language)));
    FUZZ_CHECK(!TitleOf(row, language).empty() && IsForPeople(TitleOf(row, language)));
    FUZZ_CHECK(!JewishDateText(row.day, language).empty() && IsForPeople(JewishDateText(row.day, language)));
    FUZZ_CHECK(TitleOf(row, language).size() < 192);  // companion/occasions.h
  }
  for (const Language language : {Language::kEnglish, Language::kHebrew}) {
    const std::string remark = RemarkOf(question, row, language);
    FUZZ_CHECK(IsForPeople(remark) && remark.size() < 512);
  }
}

bool IsBefore(const Row& one, const Row& other) {
  if (one.day != other.day) return one.day < other.day;
  return one.minute && other.minute && *one.minute < *other.minute;
}

void CheckRow(const Question& question, const Row& row, int32_t first, int32_t last) {
  FUZZ_CHECK(row.day >= first && row.day <= last);
  FUZZ_CHECK(row.occasion >= Occasion{} && static_cast<int>(row.occasion) < kOccasions);
  FUZZ_CHECK(row.moment >= Moment{} && static_cast<int>(row.moment) < kMoments);
  FUZZ_CHECK(!row.minute || (*row.minute >= 0 && *row.minute < kMinutesPerDay));
  FUZZ_CHECK(row.moment != Moment::kWholeDay || !row.minute);
  FUZZ_CHECK(IsShown(question.customs, row));
  CheckTexts(question, row);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto number = [&input](int32_t first, int32_t last) {
    return input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : input.ConsumeIntegralInRange(first, last);
  };
  const sun::PackedPlace place = {number(-9100, 9100), number(-18100, 18100), number(-14, 14), number(-59, 59)};
  elevationMetres = number(-500, 9000);
  const int32_t first = number(577736, 1096000);  // 1 October 1582 to 2 October 3001
  const int32_t days = input.ConsumeIntegralInRange(-1, kMostDays);
  const auto last = static_cast<int32_t>(std::clamp<int64_t>(int64_t{first} + days, INT32_MIN, INT32_MAX));
  file.emplace(SettingsText(input));

  Question question;
  question.place = input.ConsumeBool() ? "Jerusalem" : input.ConsumeRandomLengthString(300);
  const sun::SettingsReader reader = {ReadInt, ReadText};
  question.settings = sun::ReadPlaceSettings(reader, place);
  question.shabbat = candles::ReadShabbatRule(reader, question.place);
  question.customs = ChosenCustoms(input);
  question.ownTimes = ChosenOwnTimes(input);
  question.land = input.ConsumeBool() ? calendar::Land::kIsrael : calendar::Land::kDiaspora;
  question.hoursAtSeaLevel = input.ConsumeBool();

  const std::vector<Row> rows = RowsBetween(question, first, last);
  FUZZ_CHECK(std::ranges::is_sorted(rows, IsBefore));
  for (const Row& row : rows) CheckRow(question, row, first, last);
  return 0;
}
