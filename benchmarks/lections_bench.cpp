// A day's readings, over the years 1900 to 2100.
#include <benchmark/benchmark.h>

#include "benchmarks/strided_days.h"
#include "libraries/calendar/jewish.h"
#include "libraries/lections/reading_texts.h"

namespace {

constexpr int32_t kFirstDay = 693596;  // 1 January 1900

void Readings(benchmark::State& state, const lections::Settings& settings) {
  StridedDays days(kFirstDay);
  for (auto _ : state) {
    benchmark::DoNotOptimize(lections::TextsOn(calendar::JewishFromAbsolute(days.Next()), settings));
  }
}

void FewestReadings(benchmark::State& state) {
  lections::Settings settings;
  settings.customs = lections::Customs::kAshkenazi;
  Readings(state, settings);
}
BENCHMARK(FewestReadings)->Name("readings of a day");

void MostReadings(benchmark::State& state) {
  lections::Settings settings;
  settings.chabad = true;
  settings.optional = {true, true};
  settings.language = 4;
  Readings(state, settings);
}
BENCHMARK(MostReadings)->Name("readings of a day, all customs in Hebrew");

}  // namespace
