// Reads of INI files that are kept parsed.
#include <benchmark/benchmark.h>

#include <string>

#include "libraries/profile/ini_document.h"
#include "libraries/profile/profile_answers.h"

namespace {

constexpr int kSections = 200;
constexpr char kSection[] = "Place number 150";
constexpr char kKey[] = "LongitudeDegrees";

// A list of two hundred places, as large as the files of busy users are.
std::string LargeFile() {
  std::string text = "; the user's own places\r\n";
  for (int section = 0; section < kSections; ++section) {
    text += "[Place number " + std::to_string(section) + "]\r\n";
    for (const char* key : {"LatitudeDegrees", "LatitudeHours", "LatitudeFlag", "LongitudeDegrees", "LongitudeHours",
                            "LongitudeFlag", "TimeZone", "TimeZoneMin"}) {
      text += std::string(key) + "=" + std::to_string(section % 60) + "\r\n";
    }
  }
  return text;
}

void ReadNumber(benchmark::State& state) {
  const profile::IniDocument document(LargeFile());
  for (auto _ : state) benchmark::DoNotOptimize(profile::IntAnswer(document, kSection, kKey, 0));
}
BENCHMARK(ReadNumber)->Name("INI number");

void ReadText(benchmark::State& state) {
  const profile::IniDocument document(LargeFile());
  char text[256];
  for (auto _ : state) {
    benchmark::DoNotOptimize(profile::TextAnswer(document, kSection, kKey, "", text, sizeof text));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(ReadText)->Name("INI text");

void ReadMissing(benchmark::State& state) {
  const profile::IniDocument document(LargeFile());
  for (auto _ : state) benchmark::DoNotOptimize(profile::IntAnswer(document, kSection, "Elevation", 0));
}
BENCHMARK(ReadMissing)->Name("INI number that is missing");

void Parse(benchmark::State& state) {
  const std::string text = LargeFile();
  for (auto _ : state) {
    const profile::IniDocument document(text);
    benchmark::DoNotOptimize(document.Value(kSection, kKey));
  }
}
BENCHMARK(Parse)->Name("INI file of 1,600 keys taken up anew");

}  // namespace
