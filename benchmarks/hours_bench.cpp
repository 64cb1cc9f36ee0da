// A day's zmanim, and the look-up of times set by hand. Dates change from call to call, as in a table over years.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "benchmarks/strided_days.h"
#include "libraries/hours/catalogue.h"
#include "libraries/hours/choice.h"
#include "libraries/hours/zman_day.h"
#include "libraries/ownhours/own_times.h"

namespace {

constexpr int32_t kFirstUnixDay = -25567;  // 1 January 1900

sun::PlaceSettings Aachen() {
  sun::PlaceSettings place = {sun::SiteFromPacked(5047, 605, 1, 0), 173, {3600, {}}};
  std::string("Europe/Berlin").copy(place.clock.zoneId.data(), place.clock.zoneId.size() - 1);
  return place;
}

// So many zmanim, spread over the catalogue.
std::vector<hours::Definition> SomeZmanim(size_t count) {
  const auto catalogue = hours::Catalogue();
  std::vector<hours::Definition> zmanim;
  for (size_t i = 0; i < count; ++i) zmanim.push_back(catalogue[i * 7 % catalogue.size()].definition);
  return zmanim;
}

void DayOfZmanim(benchmark::State& state) {
  const std::vector<hours::Definition> zmanim = SomeZmanim(static_cast<size_t>(state.range(0)));
  const sun::PlaceSettings place = Aachen();
  StridedDays days(kFirstUnixDay);
  while (state.KeepRunningBatch(state.range(0))) {
    hours::ZmanDay day(days.Next(), place, {7 * 60, 18 * 60});
    for (const hours::Definition& zman : zmanim) benchmark::DoNotOptimize(day.ClockMinute(zman));
  }
}
BENCHMARK(DayOfZmanim)->Name("zman of a day's")->Arg(40)->Arg(100);

void Selection(benchmark::State& state) {
  const hours::Choice choice = hours::ReadChoice("");
  for (auto _ : state) benchmark::DoNotOptimize(hours::ChosenZmanim(choice));
}
BENCHMARK(Selection)->Name("selection made of a choice");

// Ten thousand times, on as many days or on as few as they fill.
ownhours::OwnTimes ManyTimes(uint32_t perDay) {
  ownhours::OwnTimes times;
  for (uint32_t i = 0; i < 10000; ++i) {
    const uint32_t day = i / perDay;
    const auto date = ownhours::PackDate(1 + day % 28, 1 + day / 28 % 12, 1900 + day / 28 / 12);
    times.Set({{*date, "Zman of the number " + std::to_string(i % perDay), "Aachen"}, {5, 5}});
  }
  return times;
}

void OwnTime(benchmark::State& state) {
  const auto perDay = static_cast<uint32_t>(state.range(0));
  const ownhours::OwnTimes times = ManyTimes(perDay);
  std::vector<std::string> descriptions;
  for (int zman = 0; zman < 40; ++zman) descriptions.push_back("Zman of the number " + std::to_string(zman));
  uint32_t day = 0;
  while (state.KeepRunningBatch(40)) {
    day = (day + 1) % 10000;
    const auto date = ownhours::PackDate(1 + day % 28, 1 + day / 28 % 12, 1900 + day / 28 / 12);
    for (const std::string& description : descriptions) {
      benchmark::DoNotOptimize(times.Find(*date, description, "Aachen"));
    }
  }
}
BENCHMARK(OwnTime)->Name("look-up of a time set by hand")->Arg(1)->Arg(40);

}  // namespace
