// The places that the program knows without the user's help.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace sun {

// Latitude and longitude are packed: degrees * 100 + minutes of arc, negative for south and west. The standard zone is
// hours east of UTC with their sign, and minutes without one (St. John's -3 and 30; zone_offset.h). zoneId is the
// zone's name in the tz database.
struct BuiltInPlace {
  const char* name;  // ASCII, unique whatever the letters' case
  int32_t packedLatitude;
  int32_t packedLongitude;
  int32_t zoneHours;
  int32_t zoneMinutes;
  const char* zoneId;
};

// Never empty; the first serves where a place is unknown, the others stand in alphabetical order of their names,
// letters' case aside. All lie between 65 degrees south and north.
std::span<const BuiltInPlace> BuiltInPlaces();

// Whether names of places differ in ASCII letter case alone. Such names are two places; but a name that no place has
// exactly means the place of the user's own that differs from it so, since the settings files, too, answer for that.
bool DifferInCaseOnly(std::string_view left, std::string_view right);

}  // namespace sun
