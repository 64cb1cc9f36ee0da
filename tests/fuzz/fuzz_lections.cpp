// Any settings file and any date give texts within their bounds, without marks that lists and exports use.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "libraries/lections/day_readings.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/lections/settings.h"
#include "libraries/profile/ini_document.h"
#include "libraries/profile/profile_answers.h"
#include "tests/fuzz/check.h"

namespace {

using lections::ReadingTexts;
using lections::Settings;

// As the library asks the profile library.
Settings SettingsOf(const std::string& file, calendar::Land region) {
  const profile::IniDocument document(file);
  const auto read = [&document](const char* key) {
    char value[32];
    profile::TextAnswer(document, lections::kSettingsSection, key, "", value, sizeof value);
    return std::string(value);
  };
  return lections::SettingsFrom(read, region);
}

void CheckSlot(const std::string& text) {
  FUZZ_CHECK(text.size() <= lections::kLongestText);
  FUZZ_CHECK(text.find_first_of(std::string(";+\\{}\0", 6)) == std::string::npos);
}

void CheckTexts(const calendar::Date& date, const Settings& settings) {
  const ReadingTexts texts = lections::TextsOn(date, settings);
  const bool hasNone = texts.torah[0].empty();
  for (const auto& slots : {texts.torah, texts.haftarot}) {
    for (const std::string& text : slots) {
      CheckSlot(text);
      FUZZ_CHECK(!hasNone || text.empty());
    }
  }
  CheckSlot(texts.additional);
  FUZZ_CHECK(!hasNone || texts.additional.empty());
  FUZZ_CHECK(hasNone || lections::IsJewishDate(date));
  FUZZ_CHECK(std::ranges::all_of(texts.additional, [](char c) { return c >= ' ' && c < 0x7F; }));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto region = input.ConsumeBool() ? calendar::Land::kIsrael : calendar::Land::kDiaspora;
  const calendar::Date likely = {input.ConsumeIntegralInRange(0, 31), input.ConsumeIntegralInRange(0, 14),
                                 input.ConsumeIntegralInRange(0, 10000)};
  const calendar::Date any = {input.ConsumeIntegral<int32_t>(), input.ConsumeIntegral<int32_t>(),
                              input.ConsumeIntegral<int32_t>()};
  std::string file = input.ConsumeBool() ? "[Readings]\n" : "";
  const Settings settings = SettingsOf(file + input.ConsumeRemainingBytesAsString(), region);
  CheckTexts(likely, settings);
  CheckTexts(any, settings);
  return 0;
}
