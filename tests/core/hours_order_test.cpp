// What comes before what in a day, whatever the place and the date.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "tests/core/hours_days.h"

namespace hours {
namespace {

// What follows from one reckoning of day and night comes in this order.
const std::vector<std::vector<const char*>> kOrders = {
    {"dawn-120-min",
     "dawn-96-min",
     "dawn-90-min",
     "dawn-72-min",
     "dawn-60-min",
     "sunrise",
     "shema-gra",
     "tefila-gra",
     "midday-half",
     "mincha-gedola-gra",
     "samuch-gra",
     "mincha-ketana-gra",
     "plag-gra",
     "twilight-yereim-18-min",
     "twilight-yereim-13.5-min",
     "sunset",
     "nightfall-36-min",
     "nightfall-40-min",
     "nightfall-42-min",
     "nightfall-45-min",
     "nightfall-50-min",
     "twilight-58.5-min",
     "nightfall-60-min",
     "nightfall-72-min",
     "nightfall-90-min",
     "nightfall-96-min",
     "nightfall-120-min"},
    {"dawn-120-zmanis", "dawn-96-zmanis", "dawn-90-zmanis", "dawn-72-zmanis", "sunrise", "sunset",
     "nightfall-72-zmanis", "nightfall-90-zmanis", "nightfall-96-zmanis", "nightfall-120-zmanis"},
    {"candles-40-min", "candles-30-min", "candles-22-min", "candles-20-min", "candles-18-min", "candles-15-min",
     "sunset"},
    {"dawn-72-min", "shema-mga-72-min", "tefila-mga-72-min", "mincha-gedola-mga-72-min", "samuch-mga-72-min",
     "mincha-ketana-mga-72-min", "plag-mga-72-min", "nightfall-72-min"},
    {"shema-mga-120-min", "shema-mga-96-min", "shema-mga-90-min", "shema-mga-72-min", "shema-gra", "tefila-gra"},
    {"shema-mga-120-zmanis", "shema-mga-96-zmanis", "shema-mga-90-zmanis", "shema-mga-72-zmanis", "shema-gra"},
    {"dawn-16.1", "shema-mga-16.1", "tefila-mga-16.1", "mincha-gedola-mga-16.1", "samuch-mga-16.1",
     "mincha-ketana-mga-16.1", "plag-mga-16.1", "nightfall-16.1"},
    {"dawn-18", "shema-mga-18", "tefila-mga-18", "plag-mga-18", "nightfall-18"},
    {"dawn-19.8", "shema-mga-19.8", "tefila-mga-19.8", "plag-mga-19.8", "nightfall-19.8"},
    {"dawn-72-zmanis", "shema-ateret-torah", "tefila-ateret-torah", "mincha-gedola-ateret-torah",
     "mincha-ketana-ateret-torah", "plag-ateret-torah", "nightfall-40-min"},
    {"dawn-16.9", "sunrise-baal-hatanya", "shema-baal-hatanya", "tefila-baal-hatanya", "mincha-gedola-baal-hatanya",
     "mincha-ketana-baal-hatanya", "plag-baal-hatanya", "sunset-baal-hatanya", "nightfall-6"},
    {"dawn-26",
     "dawn-19.8",
     "dawn-19",
     "dawn-18",
     "dawn-16.9",
     "dawn-16.1",
     "tallit-12.85",
     "tallit-11.5",
     "tallit-11",
     "tallit-10.2",
     "tallit-9.5",
     "tallit-7.65",
     "sunrise-baal-hatanya",
     "sunrise-sea-level",
     "midday",
     "twilight-yereim-3.05",
     "twilight-yereim-2.8",
     "twilight-yereim-2.1",
     "sunset-sea-level",
     "sunset-baal-hatanya",
     "nightfall-3.65",
     "nightfall-3.676",
     "nightfall-3.7",
     "nightfall-3.8",
     "nightfall-4.37",
     "nightfall-4.42",
     "nightfall-4.61",
     "nightfall-4.66",
     "nightfall-4.8",
     "nightfall-5.88",
     "nightfall-5.95",
     "nightfall-6",
     "nightfall-6.45",
     "nightfall-7.083",
     "nightfall-7.5",
     "nightfall-7.67",
     "nightfall-8.5",
     "nightfall-8.75",
     "nightfall-9.3",
     "nightfall-9.75",
     "nightfall-11",
     "twilight-13.24",
     "nightfall-16.1",
     "nightfall-18",
     "nightfall-19.8",
     "nightfall-26",
     "midnight"},
    {"sunrise", "shema-sunrise-fixed-noon", "tefila-sunrise-fixed-noon", "midday-fixed", "mincha-gedola-fixed-noon"},
    {"midday-fixed", "mincha-ketana-fixed-noon", "plag-fixed-noon", "sunset", "twilight-two-stars", "midnight-half"},
    {"midday-fixed", "mincha-gedola-fixed-noon", "midnight-fixed"},
    {"plag-gra", "plag-mga-72-zmanis", "plag-mga-90-zmanis", "plag-mga-96-zmanis", "plag-mga-120-zmanis"},
    {"dawn-26", "plag-mga-26", "nightfall-26"},
    {"shema-16.1-to-sunset", "plag-16.1-to-sunset", "plag-16.1-to-7.083", "plag-mga-16.1"},
    {"twilight-13.5-min-before-7.083", "nightfall-7.083"},
};

using Order = std::vector<std::pair<const char*, Definition>>;

void ExpectOrder(const Order& order, ZmanDay& day, const std::string& where) {
  const char* before = "";
  double momentBefore = -1e18;
  int64_t minuteBefore = std::numeric_limits<int64_t>::min();
  for (const auto& [id, zman] : order) {
    const std::optional<double> moment = day.UtcSeconds(zman);
    if (!moment) continue;
    const int64_t minute = day.ClockMinute(zman).value();
    ASSERT_GE(*moment, momentBefore) << where << ": " << before << " and " << id;
    ASSERT_GE(minute, minuteBefore) << where << ": " << before << " and " << id;
    before = id;
    momentBefore = *moment;
    minuteBefore = minute;
  }
}

TEST(HoursZmanDay, OrderOfTheDayHoldsUpToSixtyDegreesOnEveryDayOfAYear) {
  std::vector<Order> orders;
  for (const auto& ids : kOrders) {
    Order order;
    for (const char* id : ids) order.emplace_back(id, Zman(id));
    orders.push_back(std::move(order));
  }
  const int32_t first = sun::UnixDayOfDate(1, 1, 2026);
  for (int32_t latitude = -60; latitude <= 60; latitude += 5) {
    // The clock runs up to two hours ahead of the sun, as in western China.
    const sun::PlaceSettings place = PlaceAt(latitude * 100, -latitude * 200, (latitude + 60) / 60);
    for (int32_t unixDay = first; unixDay < first + 365; ++unixDay) {
      ZmanDay day = DayAt(unixDay, place);
      const std::string where = std::to_string(latitude) + " degrees, day " + std::to_string(unixDay - first + 1);
      for (const Order& order : orders) ASSERT_NO_FATAL_FAILURE(ExpectOrder(order, day, where));
    }
  }
}

// Every tenth of a degree from 12 above the horizon to 30 below it: the morning's moments go back, the evening's on.
TEST(HoursZmanDay, DegreesAreMonotonicWhereverTheyOccur) {
  for (const int32_t latitude : {-7000, -6500, -3749, 0, 3147, 5050, 6000, 6559, 7000}) {
    const sun::PlaceSettings place = PlaceAt(latitude, 1500, 1);
    for (int32_t unixDay = sun::UnixDayOfDate(1, 1, 2026); unixDay < sun::UnixDayOfDate(1, 1, 2027); unixDay += 9) {
      ZmanDay day = DayAt(unixDay, place);
      double morning = std::numeric_limits<double>::max();
      double evening = std::numeric_limits<double>::lowest();
      for (int32_t thousandths = -12000; thousandths <= 30000; thousandths += 100) {
        const Bound bound = {BoundKind::kDegrees, thousandths};
        const auto start = day.UtcSeconds({{{bound, bound}, 0}, Rounding::kDown});
        const auto end = day.UtcSeconds({{{bound, bound}, kDayThousandthHours}, Rounding::kUp});
        ASSERT_TRUE(!start || *start < morning) << latitude << " " << unixDay << " " << thousandths;
        ASSERT_TRUE(!end || *end > evening) << latitude << " " << unixDay << " " << thousandths;
        morning = start.value_or(morning);
        evening = end.value_or(evening);
      }
    }
  }
}

}  // namespace
}  // namespace hours
