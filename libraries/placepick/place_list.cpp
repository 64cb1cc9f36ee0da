#include "libraries/placepick/place_list.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <unordered_set>

#include "libraries/placepick/place_names_table.h"
#include "libraries/sun/places.h"
#include "libraries/sun/zone_offset.h"

namespace placepick {
namespace {

constexpr char kListSection[] = "Locations";

// The list of keys is read in one piece of this many bytes; keys beyond it are not seen.
constexpr uint32_t kKeyListSize = 20480;

std::string ReadText(const sun::SettingsReader& reader, const char* section, const char* key, const char* file) {
  std::array<char, kNameSize> text = {};
  reader.readText(section, key, "", text.data(), static_cast<uint32_t>(text.size()), file);
  text.back() = '\0';
  return text.data();
}

// The names before the empty one. One that the end of the list cut off is not complete, and so no name.
std::vector<std::string> ReadKeys(const sun::SettingsReader& reader) {
  std::vector<char> list(kKeyListSize);
  reader.readText(kListSection, nullptr, "", list.data(), kKeyListSize, kListFile);
  std::vector<std::string> keys;
  auto name = list.begin();
  for (;;) {
    const auto end = std::find(name, list.end(), '\0');
    if (end == name || end == list.end()) return keys;
    keys.emplace_back(name, end);
    name = end + 1;
  }
}

// The decimal integer at the start of a key's text, as the program reads the numbers of places; 0 when there is none.
int32_t ReadNumber(const sun::SettingsReader& reader, const char* place, const char* key) {
  using Limits = std::numeric_limits<int32_t>;
  const long long number = std::strtoll(ReadText(reader, place, key, kPlacesFile).c_str(), nullptr, 10);
  return static_cast<int32_t>(std::clamp<long long>(number, Limits::min(), Limits::max()));
}

// Numbers too large for 32 bits wrap, as they do where the program looks a place up.
int32_t Packed(int32_t degrees, int32_t arcMinutes, int32_t southOrWest) {
  const int64_t packed = int64_t{degrees} * 100 + arcMinutes;
  return static_cast<int32_t>(southOrWest ? -packed : packed);
}

// The keys that end in Hours hold arc minutes.
Place ReadUsersPlace(const sun::SettingsReader& reader, const std::string& name) {
  const auto number = [&](const char* key) { return ReadNumber(reader, name.c_str(), key); };
  return {name,
          Packed(number("LatitudeDegrees"), number("LatitudeHours"), number("LatitudeFlag")),
          Packed(number("LongitudeDegrees"), number("LongitudeHours"), number("LongitudeFlag")),
          number("TimeZone"),
          number("TimeZoneMin"),
          true};
}

std::string CoordinateText(int32_t packed, char positive, char negative) {
  const int64_t magnitude = std::abs(int64_t{packed});
  char text[32];
  std::snprintf(text, sizeof text, "%" PRId64 "\xB0%02" PRId64 "' %c", magnitude / 100, magnitude % 100,
                packed < 0 ? negative : positive);
  return text;
}

}  // namespace

std::vector<Place> KnownPlaces(const sun::SettingsReader& reader) {
  std::vector<Place> places;
  std::unordered_set<std::string> names;
  for (const std::string& name : ReadKeys(reader)) {
    if (name.size() >= kNameSize || ReadText(reader, kListSection, name.c_str(), kListFile).empty()) continue;
    if (names.insert(name).second) places.push_back(ReadUsersPlace(reader, name));
  }
  for (std::size_t i = 0; i < sun::BuiltInPlaces().size(); ++i) {
    const sun::BuiltInPlace& place = sun::BuiltInPlaces()[i];
    if (names.contains(place.name)) continue;
    const place_names_table::OtherNames& others = place_names_table::names[i];
    places.push_back({place.name, place.packedLatitude, place.packedLongitude, place.zoneHours, place.zoneMinutes,
                      false, others.country, others.names});
  }
  return places;
}

std::string LatitudeText(int32_t packedLatitude) {
  return CoordinateText(packedLatitude, 'N', 'S');
}

std::string LongitudeText(int32_t packedLongitude) {
  return CoordinateText(packedLongitude, 'E', 'W');
}

std::string ZoneText(int32_t zoneHours, int32_t zoneMinutes) {
  const int64_t offsetMinutes = sun::StandardOffsetMinutes(zoneHours, zoneMinutes);
  if (offsetMinutes == 0) return "GMT";
  const int64_t magnitude = std::abs(offsetMinutes);
  char text[32];
  int length = std::snprintf(text, sizeof text, "GMT%c%" PRId64, offsetMinutes < 0 ? '-' : '+', magnitude / 60);
  if (magnitude % 60 != 0) {
    std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length), ":%02" PRId64, magnitude % 60);
  }
  return text;
}

}  // namespace placepick
