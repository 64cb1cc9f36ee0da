// What the settings say about a place: its elevation and its clock.
//
//   almanacelevation.ini  [Elevation]   <place key>=metres
//   solar.ini             [SummerTime]  Mode=Automatic|Off   <place key>=zone id of the tz database, or none
//
// The place key is "%d-%d-%d-%d-%d-%d" of latitude degrees and minutes, longitude degrees and minutes (without their
// signs), zone hours and zone minutes (with theirs).
#pragma once

#include <array>
#include <cstdint>

#include "libraries/sun/sun_day.h"

namespace sun {

// A place as programs hand it over: coordinates packed as degrees x 100 + minutes, negative for south and west; the
// standard zone as hours and minutes, both signed. Any numbers.
struct PackedPlace {
  int32_t latitude;
  int32_t longitude;
  int32_t zoneHours;
  int32_t zoneMinutes;
};

// The settings' readers, as companion/profile.h has them.
struct SettingsReader {
  int32_t (*readInt)(const char* section, const char* key, int32_t defaultValue, const char* file);
  uint32_t (*readText)(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                       const char* file);
};

// The clock that a place's times are told in.
struct PlaceClock {
  int32_t standardOffsetSeconds;
  std::array<char, 64> zoneId;  // empty: the standard clock all year
};

struct PlaceSettings {
  Site site;
  double elevationMetres;  // 0 or more
  PlaceClock clock;
};

std::array<char, 80> PlaceKey(const PackedPlace& place);

// An elevation below the sea counts as none. One place has an elevation where the settings name none: 48 degrees 54'
// north, 8 degrees 42' east, zone 1, 263 metres.
double ReadElevationMetres(const SettingsReader& reader, const PackedPlace& place);

// The zone that the settings name; where they name none or one that the tz database does not know, the zone of the
// nearest built-in place with the same standard offset.
PlaceClock ReadPlaceClock(const SettingsReader& reader, const PackedPlace& place);

// Everything an answer needs, by at most three reads.
PlaceSettings ReadPlaceSettings(const SettingsReader& reader, const PackedPlace& place);

}  // namespace sun
