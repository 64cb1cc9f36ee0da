#include "libraries/twilight/twilight_core.h"

#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/sun_day.h"

namespace twilight {

int32_t EveningIntervalMinutes(int32_t unixDay, const sun::PlaceSettings& place, double depressionDegrees) {
  const sun::SunDay day = sun::ComputeSunDay(unixDay, place.site);
  const double sunset = sun::Sunset(day, place.elevationMetres).utcSeconds;
  const double nightfall = sun::EveningDepression(day, depressionDegrees).utcSeconds;
  if (nightfall <= sunset) return 0;
  // Both on the clock in force at sunset: an interval has no summer time.
  const int32_t offsetSeconds = sun::ClockOffsetSeconds(place.clock, sunset);
  return static_cast<int32_t>(sun::MinuteNotBefore(nightfall, offsetSeconds) -
                              sun::NearestMinute(sunset, offsetSeconds));
}

}  // namespace twilight
