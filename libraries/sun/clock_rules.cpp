#include "libraries/sun/clock_rules.h"

#include <algorithm>
#include <chrono>
#include <limits>

#include "libraries/sun/clock_rules_table.h"

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

const StandingRule& RuleOf(const Zone& zone) {
  return clock_rules_table::standingRules[clock_rules_table::histories[zone.history].standingRule];
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

bool HasSummerTime(const StandingRule& rule) {
  return rule.summerOffsetSeconds != rule.standardOffsetSeconds;
}

// The year by the standard clock.
std::chrono::year YearOf(const StandingRule& rule, int64_t unixSeconds) {
  using namespace std::chrono;
  return year_month_day{floor<days>(sys_seconds{seconds{unixSeconds + rule.standardOffsetSeconds}})}.year();
}

int64_t SummerStart(const StandingRule& rule, std::chrono::year year) {
  return ClockReadingOfChange(year, rule.summerStart) - rule.standardOffsetSeconds;
}

int64_t SummerEnd(const StandingRule& rule, std::chrono::year year) {
  return ClockReadingOfChange(year, rule.summerEnd) - rule.summerOffsetSeconds;
}

int32_t OffsetByStandingRule(const StandingRule& rule, int64_t unixSeconds) {
  if (!HasSummerTime(rule)) return rule.standardOffsetSeconds;
  const int64_t moment = unixSeconds % kGregorianCycleSeconds;
  const std::chrono::year year = YearOf(rule, moment);
  const int64_t start = SummerStart(rule, year);
  const int64_t end = SummerEnd(rule, year);
  const bool summer = start < end ? start <= moment && moment < end : moment < end || start <= moment;
  return summer ? rule.summerOffsetSeconds : rule.standardOffsetSeconds;
}

// The first change later than a moment that the rule has ever brought or will bring.
std::optional<ClockChange> NextByStandingRule(const StandingRule& rule, int64_t unixSeconds) {
  if (!HasSummerTime(rule)) return std::nullopt;
  const int64_t moment = unixSeconds % kGregorianCycleSeconds;
  const int64_t cyclesBefore = unixSeconds - moment;
  std::optional<ClockChange> next;
  const auto take = [&](int64_t change, int32_t before, int32_t after) {
    const bool isReachable = change <= std::numeric_limits<int64_t>::max() - cyclesBefore;
    if (change <= moment || !isReachable) return;
    if (!next || cyclesBefore + change < next->unixSeconds) next = {cyclesBefore + change, before, after};
  };
  const std::chrono::year year = YearOf(rule, moment);
  for (const std::chrono::year near : {year - std::chrono::years{1}, year, year + std::chrono::years{1}}) {
    take(SummerStart(rule, near), rule.standardOffsetSeconds, rule.summerOffsetSeconds);
    take(SummerEnd(rule, near), rule.summerOffsetSeconds, rule.standardOffsetSeconds);
  }
  return next;
}

int32_t OffsetOf(uint8_t index) {
  return clock_rules_table::offsetsSeconds[index];
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

std::optional<ClockChange> NextClockChange(std::string_view zoneId, int64_t unixSeconds) {
  const Zone* zone = FindZone(zoneId);
  if (zone == nullptr) return std::nullopt;
  const int64_t moment = std::max<int64_t>(unixSeconds, 0);
  const History& history = clock_rules_table::histories[zone->history];
  const auto changes = clock_rules_table::changeMoments.subspan(history.firstChange, history.changeCount);
  const auto next = std::ranges::upper_bound(changes, moment);
  if (next == changes.end()) return NextByStandingRule(RuleOf(*zone), moment);
  const auto after = clock_rules_table::offsetsAfter.subspan(history.firstChange, history.changeCount);
  const auto index = static_cast<size_t>(next - changes.begin());
  return ClockChange{*next, OffsetOf(index == 0 ? history.offsetAt1970 : after[index - 1]), OffsetOf(after[index])};
}

size_t ZoneCount() {
  return clock_rules_table::zones.size();
}

std::string_view ZoneId(size_t index) {
  return index < ZoneCount() ? clock_rules_table::zones[index].id : std::string_view();
}

std::optional<int32_t> StandingOffsetSeconds(std::string_view zoneId) {
  const Zone* zone = FindZone(zoneId);
  if (zone == nullptr) return std::nullopt;
  const StandingRule& rule = RuleOf(*zone);
  return std::min(rule.standardOffsetSeconds, rule.summerOffsetSeconds);
}

bool HasShown(std::string_view zoneId, int64_t offsetSeconds) {
  const Zone* zone = FindZone(zoneId);
  if (zone == nullptr) return false;
  const StandingRule& rule = RuleOf(*zone);
  if (rule.standardOffsetSeconds == offsetSeconds || rule.summerOffsetSeconds == offsetSeconds) return true;
  const History& history = clock_rules_table::histories[zone->history];
  const auto isSame = [offsetSeconds](uint8_t index) {
    return clock_rules_table::offsetsSeconds[index] == offsetSeconds;
  };
  return isSame(history.offsetAt1970) ||
         std::ranges::any_of(clock_rules_table::offsetsAfter.subspan(history.firstChange, history.changeCount), isSame);
}

}  // namespace sun
