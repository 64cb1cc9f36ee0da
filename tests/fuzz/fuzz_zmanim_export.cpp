#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "output/text_sink.h"
#include "tests/fuzz/check.h"
#include "zmanim/core/zmanim_export.h"

namespace {

constexpr std::size_t kZmanim = 25;  // more than two tables in either form

void Format(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d", hour, minute);
}

std::size_t Count(const std::string& text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) ++count;
  return count;
}

ZmanimDay DayFrom(FuzzedDataProvider& input) {
  ZmanimDay day{};
  day.date = {input.ConsumeIntegral<uint32_t>(), input.ConsumeIntegral<uint32_t>(), input.ConsumeIntegral<uint32_t>()};
  for (ClockTime& time : day.times) {
    if (input.remaining_bytes() == 0) break;
    const int32_t hours[] = {input.ConsumeIntegralInRange(0, 23), kNoTimeHour, kUnknownTimeHour,
                             input.ConsumeIntegral<int32_t>()};
    time = {input.PickValueInArray(hours), input.ConsumeIntegral<int32_t>()};
  }
  return day;
}

// One line a day with one separator a zman; names hold neither ends of lines nor the separator.
void CheckDelimited(const ZmanimExport& data, bool header) {
  constexpr char kSeparator[] = "\x01|";
  StringSink sink;
  WriteZmanimDelimited(sink, data, kSeparator, header);
  const std::size_t lines = data.days.size() + (header ? 1 : 0);
  FUZZ_CHECK(Count(sink.text(), "\r\n") == lines);
  FUZZ_CHECK(Count(sink.text(), kSeparator) == lines * data.names.size());
  FUZZ_CHECK(sink.text().starts_with("Gregorian date") == header);
}

// A row definition for each table, and every brace that is opened is closed again.
void CheckRtf(const ZmanimExport& data, ZmanimRtfLayout layout) {
  StringSink sink;
  WriteZmanimRtf(sink, data, layout);
  const std::string& text = sink.text();
  const std::size_t perTable = ZmanimPerTable(data.amPm);
  const std::size_t tables = (data.names.size() + perTable - 1) / perTable;
  FUZZ_CHECK(Count(text, "{\\cellx1440") == tables);
  FUZZ_CHECK(Count(text, "\\cellx") == tables + data.names.size());
  FUZZ_CHECK(std::count(text.begin(), text.end(), '{') == std::count(text.begin(), text.end(), '}'));
  FUZZ_CHECK(text.ends_with("}\r\n"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  ZmanimExport zmanim{.location = "Place",
                      .dateTitle = "Date",
                      .names = {},
                      .hebrew = input.ConsumeBool(),
                      .hebrewNames = {},
                      .hebrewFont = "DisplayHebrew1",
                      .vilnaGaon = "GR\"O",
                      .magenAvraham = "M\"A",
                      .days = {},
                      .formatTime = Format,
                      .amPm = input.ConsumeBool()};
  const bool header = input.ConsumeBool();
  zmanim.names.resize(input.ConsumeIntegralInRange<std::size_t>(0, kZmanim), "Name");
  for (std::size_t i = 0; i < zmanim.names.size(); ++i) {
    zmanim.hebrewNames.push_back(input.ConsumeRandomLengthString(40));
  }
  std::vector<ZmanimDay> days;
  while (input.remaining_bytes() > 0 && days.size() < 3) days.push_back(DayFrom(input));
  zmanim.days = days;

  CheckDelimited(zmanim, header);
  CheckRtf(zmanim, ZmanimRtfLayout::kRowPerColumn);
  CheckRtf(zmanim, ZmanimRtfLayout::kRowPerDay);
  StringSink sink;
  WriteZmanimText(sink, zmanim, 70);
  FUZZ_CHECK(sink.text().ends_with("\r\n\r\n"));
  return 0;
}
