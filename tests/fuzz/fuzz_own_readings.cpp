// Any file of own texts of readings: it is read, changed and put into a day's texts within their bounds.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/lections/own_readings.h"
#include "libraries/lections/own_text.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/settings_folder/text_lines.h"
#include "tests/fuzz/check.h"

namespace {

using namespace lections;

// The lines that are no texts.
std::vector<std::string> ForeignLines(std::string_view file) {
  std::vector<std::string> lines;
  file.remove_prefix(settings_folder::MarkLength(file));
  while (!file.empty()) {
    const std::string_view line = settings_folder::TakeLine(file).content;
    if (!OwnEntryIn(line)) lines.emplace_back(line);
  }
  return lines;
}

void CheckChanges(const OwnChanges& changes, const std::string& file) {
  const OwnTexts before = OwnFileIn(file).texts;
  const std::string after = Applied(changes, file);
  OwnTexts expected = before;
  for (const auto& [place, text] : changes) {
    expected.erase(place);
    if (text) expected.emplace(place, *text);
  }
  FUZZ_CHECK(OwnFileIn(after).texts == expected);
  FUZZ_CHECK(file.empty() || ForeignLines(after) == ForeignLines(file));
  FUZZ_CHECK(after.empty() || Applied(changes, after) == after);
}

void CheckText(const std::string& text) {
  FUZZ_CHECK(text.size() <= kLongestText);
  const auto isMark = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < ' ' || byte == 0x7F || c == '{' || c == '}' || c == '\\';
  };
  FUZZ_CHECK(std::ranges::none_of(text, isMark));
}

void CheckDay(const calendar::Date& date, const Settings& settings, const OwnReadings& own) {
  const ReadingTexts texts = TextsOn(date, settings, &own);
  for (const auto& slots : {texts.torah, texts.haftarot}) {
    for (const std::string& text : slots) {
      CheckText(text);
      FUZZ_CHECK(text.empty() || !texts.torah[0].empty());
    }
  }
  CheckText(texts.additional);
}

OwnEntry EntryFrom(FuzzedDataProvider& input) {
  OwnEntry entry;
  entry.place.when = EveryWhen()[input.ConsumeIntegralInRange<size_t>(0, EveryWhen().size() - 1)];
  entry.place.slot = static_cast<Slot>(input.ConsumeIntegralInRange(0, kSlotCount - 1));
  entry.place.listing = static_cast<Listing>(input.ConsumeIntegralInRange(0, 3));
  entry.place.land = static_cast<InLand>(input.ConsumeIntegralInRange(0, 2));
  const auto language = input.ConsumeIntegralInRange<size_t>(0, Languages().size());
  entry.place.language = language == 0 ? kAnyLanguage : Languages()[language - 1]->code;
  entry.text.how = input.ConsumeBool() ? How::kAfter : How::kInstead;
  entry.text.text = input.ConsumeRandomLengthString(300);
  return entry;
}

Settings SettingsFrom(FuzzedDataProvider& input) {
  Settings settings;
  settings.land = input.ConsumeBool() ? calendar::Land::kIsrael : calendar::Land::kDiaspora;
  settings.customs = static_cast<Customs>(input.ConsumeIntegralInRange(0, 2));
  settings.chabad = input.ConsumeBool();
  settings.language = Languages()[input.ConsumeIntegralInRange<size_t>(0, Languages().size() - 1)]->code;
  return settings;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const calendar::Date date = {input.ConsumeIntegralInRange(0, 31), input.ConsumeIntegralInRange(0, 14),
                               input.ConsumeIntegralInRange(5700, 5900)};
  const Settings settings = SettingsFrom(input);
  const OwnEntry entry = EntryFrom(input);
  const std::string file = input.ConsumeRemainingBytesAsString();
  const OwnFile read = OwnFileIn(file);
  FUZZ_CHECK(file.empty() || Applied({}, file) == file);

  OwnChanges changes;
  for (const auto& [place, text] : read.texts) {
    FUZZ_CHECK(FaultOf(place, text) == Fault::kNone);
    changes.emplace(place, changes.size() % 2 == 0 ? std::nullopt : std::optional(OwnText{How::kAfter, "x"}));
  }
  if (FaultOf(entry.place, entry.text) == Fault::kNone) {
    changes.insert_or_assign(entry.place, entry.text);
    const std::optional<OwnEntry> again = OwnEntryIn(LineOf(entry));
    FUZZ_CHECK(again && again->place == entry.place && again->text == entry.text);
  }
  CheckChanges(changes, file);
  CheckDay(date, settings, OwnReadings(read.texts));
  CheckDay(date, settings, OwnReadings(OwnFileIn(Applied(changes, file)).texts));
  return 0;
}
