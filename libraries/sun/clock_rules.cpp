#include "libraries/sun/clock_rules.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>
#include <vector>

#include "libraries/sun/clock_rules_table.h"
#include "libraries/sun/places.h"
#include "libraries/sun/zone_offset.h"

namespace sun {
namespace {

using clock_rules_table::History;
using clock_rules_table::RuleDay;
using clock_rules_table::StandingRule;
using clock_rules_table::Zone;

constexpr int64_t kSecondsPerDay = 86400;

// The Gregorian calendar, weekdays included, repeats after 400 years = 146 097 days.
constexpr int64_t kGregorianCycleSeconds = 146097 * kSecondsPerDay;

const Zone* FindZone(std::string_view zoneId) {
  const auto found = std::ranges::lower_bound(clock_rules_table::zones, zoneId, {}, &Zone::id);
  return found != clock_rules_table::zones.end() && found->id == zoneId ? &*found : nullptr;
}

// The clock's reading at which a change of a standing rule comes, as seconds since 1970-01-01 0:00 of that clock.
int64_t ClockReadingOfChange(std::chrono::year year, const RuleDay& day) {
  using namespace std::chrono;
  const year_month yearMonth = year / month{day.month};
  const weekday onWeekday{day.weekday};
  const sys_days date =
      day.week == 5 ? sys_days{yearMonth / onWeekday[last]} : sys_days{yearMonth / onWeekday[day.week]};
  return date.time_since_epoch().count() * kSecondsPerDay + day.secondsAfterMidnight;
}

int32_t OffsetByStandingRule(const StandingRule& rule, int64_t unixSeconds) {
  using namespace std::chrono;
  if (rule.summerOffsetSeconds == rule.standardOffsetSeconds) return rule.standardOffsetSeconds;
  const int64_t moment = unixSeconds % kGregorianCycleSeconds;
  const year_month_day date{floor<days>(sys_seconds{seconds{moment + rule.standardOffsetSeconds}})};
  const int64_t start = ClockReadingOfChange(date.year(), rule.summerStart) - rule.standardOffsetSeconds;
  const int64_t end = ClockReadingOfChange(date.year(), rule.summerEnd) - rule.summerOffsetSeconds;
  const bool summer = start < end ? start <= moment && moment < end : moment < end || start <= moment;
  return summer ? rule.summerOffsetSeconds : rule.standardOffsetSeconds;
}

struct UnitVector {
  double x, y, z;
};

UnitVector DirectionOf(int32_t packedLatitude, int32_t packedLongitude) {
  const auto radians = [](int32_t packed) { return (packed / 100 + packed % 100 / 60.0) * (std::numbers::pi / 180); };
  const double latitude = radians(packedLatitude);
  const double longitude = radians(packedLongitude);
  return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude), std::sin(latitude)};
}

// The directions of the built-in places, in their order: computed once, since every sunset asked for compares them.
const std::vector<UnitVector>& PlaceDirections() {
  static const std::vector<UnitVector> directions = [] {
    std::vector<UnitVector> made;
    for (const BuiltInPlace& place : BuiltInPlaces()) {
      made.push_back(DirectionOf(place.packedLatitude, place.packedLongitude));
    }
    return made;
  }();
  return directions;
}

}  // namespace

bool IsKnownZone(std::string_view zoneId) {
  return FindZone(zoneId) != nullptr;
}

std::optional<int32_t> UtcOffsetSeconds(std::string_view zoneId, int64_t unixSeconds) {
  const Zone* zone = FindZone(zoneId);
  if (zone == nullptr || unixSeconds < 0) return std::nullopt;
  const History& history = clock_rules_table::histories[zone->history];
  const auto changes = clock_rules_table::changeMoments.subspan(history.firstChange, history.changeCount);
  const auto next = std::ranges::upper_bound(changes, unixSeconds);
  if (next == changes.end()) {
    return OffsetByStandingRule(clock_rules_table::standingRules[history.standingRule], unixSeconds);
  }
  if (next == changes.begin()) return clock_rules_table::offsetsSeconds[history.offsetAt1970];
  const auto lastChange = static_cast<size_t>(history.firstChange + (next - changes.begin()) - 1);
  return clock_rules_table::offsetsSeconds[clock_rules_table::offsetsAfter[lastChange]];
}

const char* NearestZone(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes) {
  const int64_t offsetMinutes = StandardOffsetMinutes(zoneHours, zoneMinutes);
  const UnitVector here = DirectionOf(packedLatitude, packedLongitude);
  const std::span<const BuiltInPlace> places = BuiltInPlaces();
  const std::vector<UnitVector>& directions = PlaceDirections();
  const char* nearest = nullptr;
  double greatestCosine = -2;  // of the angle between the two places; below every cosine
  for (size_t i = 0; i < places.size(); ++i) {
    if (StandardOffsetMinutes(places[i].zoneHours, places[i].zoneMinutes) != offsetMinutes) continue;
    const double cosine = here.x * directions[i].x + here.y * directions[i].y + here.z * directions[i].z;
    if (cosine > greatestCosine) {
      greatestCosine = cosine;
      nearest = places[i].zoneId;
    }
  }
  return nearest;
}

}  // namespace sun
