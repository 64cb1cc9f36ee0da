#include "libraries/occasions/sky.h"

#include <cmath>
#include <numbers>

#include "libraries/calendar/date.h"
#include "libraries/hours/named_days.h"
#include "libraries/sun/clock_in_force.h"

namespace occasions {
namespace {

constexpr double kSecondsPerMinute = 60;
constexpr int64_t kMinutesBeforeUnixDay0 = calendar::kAbsoluteDayOfUnixDay0 * kMinutesPerDay;

// Nearer to the equator than this the sun sets and rises every day, however high the place.
constexpr double kSurelySetsRadians = 60 * std::numbers::pi / 180;

constexpr hours::Definition kSunset = {{hours::kGraDay, hours::kDayThousandthHours}, hours::Rounding::kNearest};
constexpr hours::Definition kSunrise = {{hours::kGraDay, 0}, hours::Rounding::kNearest};

int32_t UnixDay(int32_t day) {
  return day - calendar::kAbsoluteDayOfUnixDay0;
}

// Where the date line has been moved since, the clock of then is about a day off the standard one, by which the days of
// the sun are counted: Apia had UTC-11 until 29 December 2011, then UTC+13.
int64_t MinutesToCountedDay(const sun::PlaceClock& clock, int32_t offsetSeconds) {
  constexpr double kSecondsPerDay = 86400;
  return std::lround((clock.standardOffsetSeconds - offsetSeconds) / kSecondsPerDay) * kMinutesPerDay;
}

bool IsReached(const sun::SunEvent& event) {
  return event.crossing == sun::Crossing::kReached;
}

}  // namespace

hours::ZmanDay& Sky::On(int32_t day) {
  if (!zmanim_ || day_ != day) {
    zmanim_.emplace(UnixDay(day), question_.settings);
    day_ = day;
  }
  return *zmanim_;
}

std::optional<ClockMinute> Sky::Zman(int32_t day, hours::Definition zman) {
  if (question_.hoursAtSeaLevel) zman = hours::WithHoursAtSeaLevel(zman);
  hours::ZmanDay& zmanim = On(day);
  const std::optional<int64_t> minute = zmanim.ClockMinute(zman);
  const std::optional<double> moment = zmanim.UtcSeconds(zman);
  if (!minute || !moment) return std::nullopt;
  const sun::PlaceClock& clock = question_.settings.clock;
  const int32_t offset = sun::ClockOffsetSeconds(clock, *moment);
  return ClockMinute{*minute + kMinutesBeforeUnixDay0 + MinutesToCountedDay(clock, offset), offset};
}

ClockMinute Sky::Sunset(int32_t day) {
  return *Zman(day, kSunset);
}

ClockMinute Sky::Sunrise(int32_t day) {
  return *Zman(day, kSunrise);
}

ClockMinute Sky::AfterSunset(int32_t day, int32_t minutes) {
  ClockMinute moment = Sunset(day);
  moment.minute += minutes % kMinutesPerDay;  // as the Shabbat times, which know no days
  return moment;
}

ClockMinute Sky::Lighting(int32_t eve) {
  return AfterSunset(eve, -(question_.shabbat.candleMinutes % static_cast<int32_t>(kMinutesPerDay)));
}

ClockMinute Sky::End(int32_t day) {
  return AfterSunset(day, candles::MinutesToEnd(UnixDay(day), question_.settings, question_.shabbat));
}

ClockMinute Sky::At(double utcSeconds, Rounding rounding) const {
  const int32_t offset = sun::ClockOffsetSeconds(question_.settings.clock, utcSeconds);
  const double minutes = (utcSeconds + offset) / kSecondsPerMinute;
  const double rounded = rounding == Rounding::kDown ? std::floor(minutes)
                         : rounding == Rounding::kUp ? std::ceil(minutes)
                                                     : std::floor(minutes + 0.5);
  return {static_cast<int64_t>(rounded) + kMinutesBeforeUnixDay0, offset};
}

bool Sky::SunSets(int32_t day) const {
  const sun::PlaceSettings& place = question_.settings;
  if (std::fabs(place.site.latitudeRadians) < kSurelySetsRadians) return true;
  return IsReached(sun::Sunset(sun::ComputeSunDay(UnixDay(day), place.site), place.elevationMetres));
}

bool Sky::SunRises(int32_t day) const {
  const sun::PlaceSettings& place = question_.settings;
  if (std::fabs(place.site.latitudeRadians) < kSurelySetsRadians) return true;
  return IsReached(sun::Sunrise(sun::ComputeSunDay(UnixDay(day), place.site), place.elevationMetres));
}

bool Sky::ReachesEnd(int32_t day) const {
  const candles::ShabbatRule& rule = question_.shabbat;
  if (rule.endsByMinutes) return true;
  const sun::SunDay sun = sun::ComputeSunDay(UnixDay(day), question_.settings.site);
  return IsReached(sun::EveningDepression(sun, rule.endDegrees));
}

}  // namespace occasions
