#include "benchmarks/core_zmanim.h"

#include "companion/profile.h"
#include "libraries/calendar/date.h"
#include "libraries/hours/choice.h"
#include "libraries/hours/zman_day.h"
#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/place_settings.h"

namespace {

constexpr int64_t kMinutesPerDay = 24 * 60;

int64_t ShownMinute(const sun::SunEvent& event, const sun::PlaceClock& clock) {
  const sun::HourAndMinute time =
      sun::TimeOfDay(sun::NearestMinute(event.utcSeconds, sun::ClockOffsetSeconds(clock, event.utcSeconds)));
  return time.hour * 60 + time.minute;
}

}  // namespace

std::vector<int32_t> ZmanimByCore(std::string_view choice, const Location& location, int32_t firstDay, int32_t days) {
  const std::vector<hours::DescribedZman> chosen = hours::ChosenZmanim(hours::ReadChoice(choice));
  const sun::PackedPlace packed = {location.latitude, location.longitude, location.zoneHours, location.zoneMinutes};
  const sun::PlaceSettings place = sun::ReadPlaceSettings({ProfileGetInt, ProfileGetString}, packed);
  std::vector<int32_t> minutes;
  minutes.reserve(chosen.size() * static_cast<size_t>(days));
  const int32_t firstUnixDay = firstDay - calendar::kAbsoluteDayOfUnixDay0;
  for (int32_t day = firstUnixDay; day < firstUnixDay + days; ++day) {
    const sun::SunDay sun = sun::ComputeSunDay(day, place.site);
    const int64_t sunrise = ShownMinute(sun::Sunrise(sun, place.elevationMetres), place.clock);
    const int64_t sunset = ShownMinute(sun::Sunset(sun, place.elevationMetres), place.clock);
    hours::ZmanDay zmanim(day, place, {sunrise, sunset});
    for (const hours::DescribedZman& zman : chosen) {
      const std::optional<int64_t> minute = zmanim.ClockMinute(zman.definition);
      minutes.push_back(minute ? static_cast<int32_t>((*minute % kMinutesPerDay + kMinutesPerDay) % kMinutesPerDay)
                               : -1);
    }
  }
  return minutes;
}
