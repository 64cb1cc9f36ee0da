#include <chrono>
#include <cstdio>
#include <mutex>
#include <optional>

#include "companion/profile.h"
#include "companion/solar.h"
#include "libraries/solar/clock_texts.h"
#include "libraries/solar/summer_time_choice.h"
#include "libraries/solar/summer_time_dialog.h"
#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/place_settings.h"
#include "libraries/sun/places.h"
#include "libraries/sun/sun_day.h"

namespace {

constexpr uint32_t kApiVersion = 256;
constexpr size_t kNameSize = 256;

// Programs ask for a day's sunrise and sunset one after the other, for the same place a thousand times.
struct KnownDay {
  int32_t unixDay;
  sun::PackedPlace place;
  sun::SunDay sun;
};

std::mutex mutex;  // of both below
sun::KnownPlace knownPlace;
std::optional<KnownDay> knownDay;

const sun::SunDay& SunOf(int32_t unixDay, const sun::PackedPlace& place, const sun::Site& site) {
  const bool isKnown = knownDay && knownDay->unixDay == unixDay && knownDay->place == place;
  if (!isKnown) knownDay = {unixDay, place, sun::ComputeSunDay(unixDay, site)};
  return knownDay->sun;
}

void Put(int32_t* output, int32_t value) {
  if (output) *output = value;
}

}  // namespace

uint32_t SolarGetAPIVersion(void) {
  return kApiVersion;
}

uint32_t SolarGetCountOfBuiltInLocations(void) {
  return static_cast<uint32_t>(sun::BuiltInPlaces().size());
}

uint32_t SolarGetBuiltInLocation(uint32_t index, char* name, int32_t* latitude, int32_t* longitude,
                                 int32_t* timeZoneHours, int32_t* timeZoneMinutes) {
  const auto places = sun::BuiltInPlaces();
  if (index >= places.size()) return 0;
  const sun::BuiltInPlace& place = places[index];
  if (name) std::snprintf(name, kNameSize, "%s", place.name);
  Put(latitude, place.packedLatitude);
  Put(longitude, place.packedLongitude);
  Put(timeZoneHours, place.zoneHours);
  Put(timeZoneMinutes, place.zoneMinutes);
  return 1;
}

void SolarGetSunsetSunrise(uint32_t day, uint32_t month, uint32_t year, uint32_t event, int32_t latitude,
                           int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes, int32_t* hour,
                           int32_t* minute) try {
  const std::lock_guard lock(mutex);
  const sun::PackedPlace place = {latitude, longitude, timeZoneHours, timeZoneMinutes};
  const sun::PlaceSettings& settings = knownPlace.Read({ProfileGetInt, ProfileGetString}, place);
  const sun::SunDay& sunDay = SunOf(sun::UnixDayOfDate(day, month, year), place, settings.site);
  const sun::SunEvent found = event == SOLAR_SUNRISE ? sun::Sunrise(sunDay, settings.elevationMetres)
                                                     : sun::Sunset(sunDay, settings.elevationMetres);
  const int32_t offsetSeconds = sun::ClockOffsetSeconds(settings.clock, found.utcSeconds);
  const sun::HourAndMinute time = sun::TimeOfDay(sun::NearestMinute(found.utcSeconds, offsetSeconds));
  Put(hour, time.hour);
  Put(minute, time.minute);
} catch (...) {  // the outputs stay as they are
}

int32_t SolarGetClockOffset(uint32_t day, uint32_t month, uint32_t year, int32_t minuteOfDay, int32_t latitude,
                            int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes) try {
  constexpr int64_t kSecondsOfMinute = 60;
  constexpr int64_t kSecondsOfDay = 24 * 60 * kSecondsOfMinute;
  const std::lock_guard lock(mutex);
  const sun::PackedPlace place = {latitude, longitude, timeZoneHours, timeZoneMinutes};
  const sun::PlaceSettings& settings = knownPlace.Read({ProfileGetInt, ProfileGetString}, place);
  const int64_t midnight = sun::UnixDayOfDate(day, month, year) * kSecondsOfDay;
  return sun::ClockOffsetShowing(settings.clock, midnight + minuteOfDay * kSecondsOfMinute);
} catch (...) {
  return 0;
}

uint32_t SolarDescribeZone(int32_t latitude, int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes,
                           char* buffer, uint32_t size) try {
  if (!buffer || size == 0) return 0;
  const sun::PackedPlace place = {latitude, longitude, timeZoneHours, timeZoneMinutes};
  const solar::SummerTimeChoice stored = solar::StoredChoice({ProfileGetInt, ProfileGetString}, place);
  const auto now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch());
  const std::string line = solar::LineText(solar::ClockBy(stored, place), place, now.count());
  const size_t length = line.copy(buffer, size - 1);
  buffer[length] = '\0';
  return static_cast<uint32_t>(length);
} catch (...) {
  return 0;
}

int32_t SolarDoSummerTimeDialog(HWND owner, int32_t latitude, int32_t longitude, int32_t timeZoneHours,
                                int32_t timeZoneMinutes) try {
  return solar::RunSummerTimeDialog(owner, {latitude, longitude, timeZoneHours, timeZoneMinutes}) ? 1 : 0;
} catch (...) {
  return 0;
}
