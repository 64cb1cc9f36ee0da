// The places that the program knows without the user's help.
#pragma once

#include <cstdint>
#include <span>

namespace sun {

// Latitude and longitude are packed: degrees * 100 + minutes of arc, negative for south and west. The standard zone is
// hours and minutes east of UTC, both signed (St. John's -3 and -30). zoneId is the zone's name in the tz database.
struct BuiltInPlace {
  const char* name;  // windows-1252, plain ASCII as it happens
  int32_t packedLatitude;
  int32_t packedLongitude;
  int32_t zoneHours;
  int32_t zoneMinutes;
  const char* zoneId;
};

// In alphabetical order of the names, letters' case aside. Never empty; the first serves where a place is unknown. All
// lie between 65 degrees south and north.
std::span<const BuiltInPlace> BuiltInPlaces();

}  // namespace sun
