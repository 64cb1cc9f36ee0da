// Days of zmanim as the tests of the hours library make them.
#pragma once

#include <cstdio>
#include <optional>
#include <stdexcept>
#include <string>

#include "libraries/hours/catalogue.h"
#include "libraries/hours/zman_day.h"
#include "libraries/sun/clock_in_force.h"
#include "libraries/sun/places.h"

namespace hours {

// On the standard clock all year unless a zone is named.
inline sun::PlaceSettings PlaceAt(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours,
                                  int32_t zoneMinutes = 0, double metres = 0, const char* zoneId = "") {
  const sun::Site site = sun::SiteFromPacked(packedLatitude, packedLongitude, zoneHours, zoneMinutes);
  sun::PlaceSettings place = {site, metres, {site.standardOffsetMinutes * 60, {}}};
  std::string(zoneId).copy(place.clock.zoneId.data(), place.clock.zoneId.size() - 1);
  return place;
}

inline int64_t ShownMinute(const sun::PlaceSettings& place, const sun::SunEvent& event) {
  return sun::NearestMinute(event.utcSeconds, sun::ClockOffsetSeconds(place.clock, event.utcSeconds));
}

// The day with sunrise and sunset as the solar library shows them.
inline ZmanDay DayAt(int32_t unixDay, const sun::PlaceSettings& place) {
  const sun::SunDay day = sun::ComputeSunDay(unixDay, place.site);
  const auto ofDay = [&](const sun::SunEvent& event) {
    const sun::HourAndMinute time = sun::TimeOfDay(ShownMinute(place, event));
    return int64_t{time.hour} * 60 + time.minute;
  };
  return ZmanDay(unixDay, place,
                 {ofDay(sun::Sunrise(day, place.elevationMetres)), ofDay(sun::Sunset(day, place.elevationMetres))});
}

inline const Definition& Zman(const std::string& id) {
  const CatalogueZman* zman = FindInCatalogue(id);
  if (!zman) throw std::invalid_argument(id);
  return zman->definition;
}

inline std::string ClockText(std::optional<int64_t> minute) {
  if (!minute) return "----";
  const sun::HourAndMinute time = sun::TimeOfDay(*minute);
  char text[16];
  std::snprintf(text, sizeof text, "%d:%02d", time.hour, time.minute);
  return text;
}

inline std::string TimeOf(const char* id, int32_t unixDay, const sun::PlaceSettings& place) {
  return ClockText(DayAt(unixDay, place).ClockMinute(Zman(id)));
}

}  // namespace hours
