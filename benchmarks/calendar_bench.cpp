// Conversions between day numbers and dates of both calendars, over the years 1900 to 2100.
#include <benchmark/benchmark.h>

#include "benchmarks/strided_days.h"
#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"

namespace {

constexpr int32_t kFirstDay = 693596;  // 1 January 1900

void GregorianDate(benchmark::State& state) {
  StridedDays days(kFirstDay);
  for (auto _ : state) benchmark::DoNotOptimize(calendar::GregorianFromAbsolute(days.Next()));
}
BENCHMARK(GregorianDate)->Name("Gregorian date of a day");

void GregorianDay(benchmark::State& state) {
  StridedDays days(kFirstDay);
  for (auto _ : state) {
    const int32_t number = days.Next();
    benchmark::DoNotOptimize(calendar::AbsoluteFromGregorian({1 + number % 28, 1 + number % 12, 1900 + number % 200}));
  }
}
BENCHMARK(GregorianDay)->Name("day of a Gregorian date");

void JewishDate(benchmark::State& state) {
  StridedDays days(kFirstDay);
  for (auto _ : state) benchmark::DoNotOptimize(calendar::JewishFromAbsolute(days.Next()));
}
BENCHMARK(JewishDate)->Name("Jewish date of a day");

void JewishDay(benchmark::State& state) {
  StridedDays days(kFirstDay);
  for (auto _ : state) {
    const int32_t number = days.Next();
    benchmark::DoNotOptimize(calendar::AbsoluteFromJewish({1 + number % 29, 1 + number % 12, 5660 + number % 200}));
  }
}
BENCHMARK(JewishDay)->Name("day of a Jewish date");

}  // namespace
