#include "locations/location_store.h"

#include <utility>

#include "companion/profile.h"
#include "engine/mirrored_write.h"
#include "engine/profile_int.h"
#include "locations/core/key_list.h"
#include "locations/core/packed_coordinate.h"

namespace {

constexpr char kListSection[] = "Locations";
constexpr char kElevationSection[] = "Elevation";

// The keys of a place's section. Those that end in Hours hold arc minutes.
constexpr char kLatitudeDegrees[] = "LatitudeDegrees";
constexpr char kLatitudeMinutes[] = "LatitudeHours";
constexpr char kLatitudeFlag[] = "LatitudeFlag";
constexpr char kLongitudeDegrees[] = "LongitudeDegrees";
constexpr char kLongitudeMinutes[] = "LongitudeHours";
constexpr char kLongitudeFlag[] = "LongitudeFlag";
constexpr char kZoneHours[] = "TimeZone";
constexpr char kZoneMinutes[] = "TimeZoneMin";

}  // namespace

bool IsUserLocation(const char* name) {
  char value[kTextSize];
  ProfileGetString(kListSection, name, "", value, sizeof value, kLocationListFile);
  return value[0] != '\0';
}

std::vector<std::string> UserLocationNames() {
  std::vector<char> keys(kKeyListSize);
  ProfileGetString(kListSection, nullptr, "", keys.data(), kKeyListSize, kLocationListFile);
  std::vector<std::string> names;
  for (const char* name : KeyList(keys)) {
    if (IsUserLocation(name)) names.emplace_back(name);
  }
  return names;
}

void ReadUserLocation(const char* name, Location& location) {
  const auto number = [name](const char* key) { return ReadProfileInt(name, key, 0, kLocationsFile); };
  location.latitude = PackCoordinate(number(kLatitudeDegrees), number(kLatitudeMinutes), number(kLatitudeFlag) != 0);
  location.longitude =
      PackCoordinate(number(kLongitudeDegrees), number(kLongitudeMinutes), number(kLongitudeFlag) != 0);
  location.zoneHours = number(kZoneHours);
  location.zoneMinutes = number(kZoneMinutes);
}

std::string ReadLocationText(const char* name, const char* key) {
  char text[kTextSize];
  ProfileGetString(name, key, "", text, sizeof text, kLocationsFile);
  return text;
}

bool WriteUserLocation(const char* name, const StoredLocation& location) {
  const std::pair<const char*, int64_t> numbers[] = {{kLatitudeDegrees, location.latitudeDegrees},
                                                     {kLatitudeMinutes, location.latitudeMinutes},
                                                     {kLatitudeFlag, location.south},
                                                     {kLongitudeDegrees, location.longitudeDegrees},
                                                     {kLongitudeMinutes, location.longitudeMinutes},
                                                     {kLongitudeFlag, location.west},
                                                     {kZoneHours, location.zoneHours},
                                                     {kZoneMinutes, location.zoneMinutes}};
  bool written = true;
  for (const auto& [key, number] : numbers) {
    written = WriteMirrored(name, key, std::to_string(number).c_str(), kLocationsFile) && written;
  }
  return WriteMirrored(kListSection, name, "Available", kLocationListFile) && written;
}

bool DeleteUserLocation(const char* name) {
  const bool section = WriteMirrored(name, nullptr, nullptr, kLocationsFile);
  return WriteMirrored(kListSection, name, nullptr, kLocationListFile) && section;
}

int32_t ReadElevation(const std::string& key, int32_t defaultMetres) {
  return ProfileGetInt(kElevationSection, key.c_str(), defaultMetres, kElevationFile);
}

bool WriteElevation(const std::string& key, uint32_t metres) {
  const std::string text = std::to_string(metres);
  return ProfileWriteString(kElevationSection, key.c_str(), metres >= 1 ? text.c_str() : nullptr, kElevationFile) != 0;
}
