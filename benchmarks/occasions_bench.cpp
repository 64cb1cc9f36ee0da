// The occasions of a year and of a century, as the window of a year and its list ask for them.
#include <benchmark/benchmark.h>

#include <string>

#include "libraries/calendar/gregorian.h"
#include "libraries/occasions/occasions_core.h"

namespace {

occasions::Question Aachen(bool byDegrees) {
  occasions::Question question;
  question.place = "Aachen";
  question.settings = {sun::SiteFromPacked(5047, 605, 1, 0), 173, {3600, {}}};
  std::string("Europe/Berlin").copy(question.settings.clock.zoneId.data(), question.settings.clock.zoneId.size() - 1);
  question.shabbat.endsByMinutes = !byDegrees;
  question.ownTimes = [](int32_t) { return std::nullopt; };
  return question;
}

// So many civil years, each time others.
void Occasions(benchmark::State& state, int32_t years, bool byDegrees) {
  const occasions::Question question = Aachen(byDegrees);
  int32_t year = 1900;
  for (auto _ : state) {
    const int32_t first = calendar::AbsoluteFromGregorian({1, 1, year});
    const int32_t last = calendar::AbsoluteFromGregorian({31, 12, year + years - 1});
    benchmark::DoNotOptimize(RowsBetween(question, first, last));
    year = 1900 + (year - 1900 + 7) % 200;
  }
}
BENCHMARK_CAPTURE(Occasions, year, 1, false)->Name("occasions of a year")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Occasions, yearByDegrees, 1, true)
    ->Name("occasions of a year, ends by degrees")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Occasions, century, 100, false)->Name("occasions of a century")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Occasions, centuryByDegrees, 100, true)
    ->Name("occasions of a century, ends by degrees")
    ->Unit(benchmark::kMillisecond);

}  // namespace
