// The places to choose from, and their numbers as texts.
//
// Names and texts are 8-bit in windows-1252, whatever the code page of the system, but where it says otherwise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/sun/place_settings.h"

namespace placepick {

// The program keeps names in buffers of this many bytes, terminator included.
inline constexpr std::size_t kNameSize = 256;

// kListFile lists the user's places: a key a place, its value not empty. kPlacesFile has a section for each.
inline constexpr char kListFile[] = "shabbat2.ini";
inline constexpr char kPlacesFile[] = "shabloc2.ini";

struct Place {
  std::string name;
  // Packed as degrees x 100 + minutes of arc, negative for south and west; of the user's own any numbers.
  int32_t packedLatitude;
  int32_t packedLongitude;
  // The standard zone, read as zone_offset.h says.
  int32_t zoneHours;
  int32_t zoneMinutes;
  bool isUsersOwn;
  // Of built-in places, in UTF-16; texts that live as long as the library.
  std::u16string_view country = {};
  std::u16string_view otherNames = {};  // joined by "|"
};

// The user's places in the order of their list, then the built-in ones; each name once, as spelled: a place of
// the user's own takes precedence over the built-in one of its name.
std::vector<Place> KnownPlaces(const sun::SettingsReader& reader);

// "50°47' N" and "6°05' E".
std::string LatitudeText(int32_t packedLatitude);
std::string LongitudeText(int32_t packedLongitude);

// The standard zone: "GMT", "GMT+1", "GMT-3:30", "GMT+0:30".
std::string ZoneText(int32_t zoneHours, int32_t zoneMinutes);

}  // namespace placepick
