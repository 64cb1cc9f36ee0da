// A day's readings, over the years 1900 to 2100.
#include <benchmark/benchmark.h>

#include <string>

#include "benchmarks/strided_days.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/language.h"
#include "libraries/lections/own_readings.h"
#include "libraries/lections/reading_texts.h"
#include "libraries/lections/verse_numbers.h"
#include "libraries/lections/when.h"

namespace {

constexpr int32_t kFirstDay = 693596;  // 1 January 1900
constexpr size_t kOwnTexts = 200;

void Readings(benchmark::State& state, const lections::Settings& settings, const lections::OwnReadings* own = nullptr) {
  StridedDays days(kFirstDay);
  for (auto _ : state) {
    benchmark::DoNotOptimize(lections::TextsOn(calendar::JewishFromAbsolute(days.Next()), settings, own));
  }
}

void FewestReadings(benchmark::State& state) {
  lections::Settings settings;
  settings.customs = lections::Customs::kAshkenazi;
  Readings(state, settings);
}
BENCHMARK(FewestReadings)->Name("readings of a day");

lections::Settings MostIn(uint32_t language) {
  lections::Settings settings;
  settings.chabad = true;
  settings.optional = {true, true};
  settings.language = language;
  return settings;
}

void MostReadings(benchmark::State& state) {
  Readings(state, MostIn(lections::kHebrew.code));
}
BENCHMARK(MostReadings)->Name("readings of a day, all customs in Hebrew");

// A text of the user's own for each of the first portions, occasions and dates.
void MostReadingsAndOwnTexts(benchmark::State& state) {
  lections::OwnTexts texts;
  const std::vector<lections::When>& every = lections::EveryWhen();
  for (size_t i = 0; i < kOwnTexts; ++i) {
    const lections::OwnPlace place{.when = every[i * every.size() / kOwnTexts], .slot = lections::Slot::kHaftarah1};
    texts[place] = {lections::How::kAfter, "Isaiah 54:1-10"};
  }
  const lections::OwnReadings own(texts);
  Readings(state, MostIn(lections::kEnglish.code), &own);
}
BENCHMARK(MostReadingsAndOwnTexts)->Name("readings of a day, all customs in English and 200 own texts");

// The report sets each language beside English.
const bool areLanguagesRegistered = [] {
  for (const lections::Language* language : lections::Languages()) {
    const std::string name = std::string("readings of a day in ") + language->name;
    const uint32_t code = language->code;
    benchmark::RegisterBenchmark(name.c_str(), [code](benchmark::State& state) { Readings(state, MostIn(code)); });
    if (!lections::OwnBibleOf(code)) continue;
    benchmark::RegisterBenchmark((name + " by its own Bibles").c_str(), [code](benchmark::State& state) {
      lections::Settings settings = MostIn(code);
      settings.ownNumbers = true;
      Readings(state, settings);
    });
  }
  return true;
}();

}  // namespace
