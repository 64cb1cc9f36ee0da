#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "output/text_sink.h"
#include "readings/core/dates_export.h"
#include "readings/core/readings_export.h"
#include "readings/core/split_rules.h"
#include "tests/fuzz/check.h"

namespace {

using Slot = char (ReadingsEntry::*)[kTextSize];

constexpr Slot kSlots[] = {&ReadingsEntry::torah1,    &ReadingsEntry::torah2,    &ReadingsEntry::torah3,
                           &ReadingsEntry::haftarah1, &ReadingsEntry::haftarah2, &ReadingsEntry::haftarah3,
                           &ReadingsEntry::extraText};

// Parts of joined texts, so that every kind of rule meets the others.
constexpr const char* kParts[] = {
    "; Afternoon: ", " (Sephardi",   " (Ctafhlbv%",     "+ Qj'km ",
    "; Joel ",       "Ivbyb Fwthtn", "2 ltym Ifdejn- ", "\xcc\xf0\xe5\xf4\xe1\xec\xef\xfd\xe6, \xf0\xf1\xf9\xdf: "};

void Fill(FuzzedDataProvider& input, char (&slot)[kTextSize]) {
  std::string text;
  while (text.size() < kTextSize && input.ConsumeBool()) {
    text += input.ConsumeBool() ? input.PickValueInArray(kParts) : input.ConsumeRandomLengthString(kTextSize);
  }
  std::memset(slot, 'x', kTextSize);  // nothing may count on what stands behind a text
  slot[text.copy(slot, kTextSize - 1)] = '\0';
}

std::size_t Length(const ReadingsEntry& entry, Slot slot) {
  return strnlen(entry.*slot, kTextSize);
}

// Every slot stays a text, and none that has been divided holds more than it held.
void CheckSplit(ReadingsEntry& entry, uint32_t language) {
  const ReadingsEntry before = entry;
  SplitReadings(entry, language);
  for (const Slot slot : kSlots) FUZZ_CHECK(Length(entry, slot) < kTextSize);
  FUZZ_CHECK(Length(entry, &ReadingsEntry::torah1) <= Length(before, &ReadingsEntry::torah1));
  FUZZ_CHECK(Length(entry, &ReadingsEntry::haftarah1) <= Length(before, &ReadingsEntry::haftarah1));
  FUZZ_CHECK(std::strcmp(entry.extraText, before.extraText) == 0);
  FUZZ_CHECK(entry.date.uDay == before.date.uDay && entry.isYizkor == before.isYizkor);
  if (language == kFinnish) {
    for (const Slot slot : kSlots) FUZZ_CHECK(std::strcmp(entry.*slot, before.*slot) == 0);
  }
}

DatesExport::JewishDate SomeDate(const CalendarDate&, uint32_t) {
  return {16, "Tevet", 5767};
}

bool HoldsLineEnd(const ReadingsEntry& entry) {
  return std::any_of(std::begin(kSlots), std::end(kSlots),
                     [&entry](Slot slot) { return std::strpbrk(entry.*slot, "\r\n") != nullptr; });
}

std::size_t LinesOf(const StringSink& sink) {
  FUZZ_CHECK(sink.text().ends_with("\r\n"));
  return static_cast<std::size_t>(std::count(sink.text().begin(), sink.text().end(), '\n'));
}

void CheckExports(const std::vector<ReadingsEntry>& entries, const ExportFont& font) {
  const ReadingsExport data{.dateTitle = "Date",
                            .torahTitle = "Parashioth",
                            .haftarahTitle = "Haphtaroth",
                            .yizkor = "Yizkor",
                            .font = font,
                            .entries = entries};
  StringSink text;
  WriteReadingsText(text, data, 95, 95);
  StringSink wide;
  WriteReadingsRtfWide(wide, data);
  StringSink narrow;
  WriteReadingsRtfNarrow(narrow, data);
  StringSink dates;
  WriteDatesDelimited(dates, {.separator = ";",
                              .readingsSeparator = ", ",
                              .header = true,
                              .entries = entries,
                              .jewishDate = SomeDate,
                              .language = kGerman});
  if (std::any_of(entries.begin(), entries.end(), HoldsLineEnd)) return;
  FUZZ_CHECK(LinesOf(text) == 2 + 5 * entries.size());
  FUZZ_CHECK(LinesOf(dates) == 1 + entries.size());
  const std::size_t fontLines = font.ownFont ? 4 : 0;
  const std::size_t last = entries.empty() ? 0 : 1;
  // Of the body: date, Yizkor and \cell, then four and four texts with \cell each, \row and \intbl.
  FUZZ_CHECK(LinesOf(narrow) == 14 + 1 + entries.size() * (3 + 5 + 5 + 2 + fontLines) - last + 2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const uint32_t language = input.ConsumeIntegralInRange<uint32_t>(0, 12);
  ExportFont font;
  font.ownFont = input.ConsumeBool();
  font.points = input.ConsumeIntegral<uint8_t>();
  font.charset = input.ConsumeIntegral<uint8_t>();
  std::vector<ReadingsEntry> entries;
  while (input.remaining_bytes() > 0 && entries.size() < 8) {
    ReadingsEntry& entry = entries.emplace_back();
    entry.date = {input.ConsumeIntegral<uint32_t>(), 1, 2007};
    entry.isYizkor = input.ConsumeIntegralInRange<uint32_t>(0, 1);
    for (const Slot slot : kSlots) Fill(input, entry.*slot);
    CheckSplit(entry, language);
  }
  CheckExports(entries, font);
  return 0;
}
