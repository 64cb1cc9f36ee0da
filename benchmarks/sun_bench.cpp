// The sun's events and the clock rules. Dates and places change from call to call, as in a table over years.
#include <benchmark/benchmark.h>

#include <iterator>

#include "benchmarks/strided_days.h"
#include "libraries/sun/clock_rules.h"
#include "libraries/sun/sun_day.h"
#include "libraries/sun/zone_of_place.h"

namespace {

constexpr int32_t kFirstUnixDay = -25567;  // 1 January 1900

sun::Site AachenSite() {
  return sun::SiteFromPacked(5047, 605, 1, 0);
}

void LoneSunrise(benchmark::State& state) {
  const sun::Site site = AachenSite();
  StridedDays days(kFirstUnixDay);
  for (auto _ : state) {
    benchmark::DoNotOptimize(sun::Sunrise(sun::ComputeSunDay(days.Next(), site), 0));
  }
}
BENCHMARK(LoneSunrise)->Name("lone sunrise");

void LoneSunset(benchmark::State& state) {
  const sun::Site site = AachenSite();
  StridedDays days(kFirstUnixDay);
  for (auto _ : state) {
    benchmark::DoNotOptimize(sun::Sunset(sun::ComputeSunDay(days.Next(), site), 754));
  }
}
BENCHMARK(LoneSunset)->Name("lone sunset, elevated");

// The events behind a day's table of zmanim: midday, both midnights, sunrise and sunset at sea level and elevated, and
// the depressions of dawn and nightfall in use.
constexpr double kDawns[] = {26, 19.8, 19, 18, 16.9, 16.1, 11.5, 11, 10.2, 7.65, 1.583};
constexpr double kNightfalls[] = {1.583, 3.8, 4.8, 5.95, 6.45, 7.083, 8.5, 9.3, 11, 16.1, 18, 19.8};
constexpr int64_t kEventsOfTheDay = 7 + std::ssize(kDawns) + std::ssize(kNightfalls);

void WholeDay(benchmark::State& state) {
  const sun::Site site = AachenSite();
  StridedDays days(kFirstUnixDay);
  while (state.KeepRunningBatch(kEventsOfTheDay)) {
    const sun::SunDay day = sun::ComputeSunDay(days.Next(), site);
    benchmark::DoNotOptimize(sun::TransitUtcSeconds(day));
    benchmark::DoNotOptimize(sun::MidnightBeforeUtcSeconds(day));
    benchmark::DoNotOptimize(sun::MidnightAfterUtcSeconds(day));
    for (const double metres : {0.0, 754.0}) {
      benchmark::DoNotOptimize(sun::Sunrise(day, metres));
      benchmark::DoNotOptimize(sun::Sunset(day, metres));
    }
    for (const double degrees : kDawns) benchmark::DoNotOptimize(sun::MorningDepression(day, degrees));
    for (const double degrees : kNightfalls) benchmark::DoNotOptimize(sun::EveningDepression(day, degrees));
  }
}
BENCHMARK(WholeDay)->Name("event of a whole day's table");

void ClockOffset(benchmark::State& state) {
  StridedDays days(kFirstUnixDay);
  for (auto _ : state) {
    benchmark::DoNotOptimize(sun::UtcOffsetSeconds("America/New_York", int64_t{days.Next()} * 86400));
  }
}
BENCHMARK(ClockOffset)->Name("clock rule of a zone at a moment");

void ZoneOfAPlace(benchmark::State& state) {
  StridedDays days(kFirstUnixDay);
  for (auto _ : state) {
    const int32_t minutes = days.Next() % 600;  // of latitude, from 40 degrees on
    benchmark::DoNotOptimize(sun::FindZone(4000 + minutes / 60 * 100 + minutes % 60, 605, 1, 0));
  }
}
BENCHMARK(ZoneOfAPlace)->Name("zone of a place");

}  // namespace
