#include "locations/location_store.h"

#include <limits>
#include <utility>

#include "companion/profile.h"
#include "engine/mirrored_write.h"
#include "engine/profile_int.h"
#include "locations/core/key_list.h"
#include "locations/core/packed_coordinate.h"
#include "locations/core/place_names.h"

namespace {

constexpr char kListSection[] = "Locations";
constexpr char kElevationSection[] = "Elevation";
constexpr int32_t kMissing = std::numeric_limits<int32_t>::min();  // no elevation

// The keys of a place's section. Those that end in Hours hold arc minutes.
constexpr char kLatitudeDegrees[] = "LatitudeDegrees";
constexpr char kLatitudeMinutes[] = "LatitudeHours";
constexpr char kLatitudeFlag[] = "LatitudeFlag";
constexpr char kLongitudeDegrees[] = "LongitudeDegrees";
constexpr char kLongitudeMinutes[] = "LongitudeHours";
constexpr char kLongitudeFlag[] = "LongitudeFlag";
constexpr char kZoneHours[] = "TimeZone";
constexpr char kZoneMinutes[] = "TimeZoneMin";

// Whether the list has a value under a name, in whatever letter case.
bool IsListed(const char* name) {
  char value[kTextSize];
  ProfileGetString(kListSection, name, "", value, sizeof value, kLocationListFile);
  return value[0] != '\0';
}

// Whether what the files would answer for a name belongs to a place in another spelling.
bool IsOtherSpelling(const char* name) {
  const std::vector<std::string> names = UserLocationNames();
  const std::string* const meant = NameMeant(names, name);
  return meant && *meant != name;
}

}  // namespace

std::vector<std::string> UserLocationNames() {
  std::vector<char> keys(kKeyListSize);
  ProfileGetString(kListSection, nullptr, "", keys.data(), kKeyListSize, kLocationListFile);
  std::vector<std::string> names;
  for (const char* name : KeyList(keys)) {
    if (IsListed(name)) names.emplace_back(name);
  }
  return names;
}

bool IsUserLocation(const char* name) {
  return IsListed(name) && !IsOtherSpelling(name);
}

void ReadUserLocation(const char* name, Location& location) {
  const auto number = [name](const char* key) { return ReadProfileInt(name, key, 0, kLocationsFile); };
  location.latitude = PackCoordinate(number(kLatitudeDegrees), number(kLatitudeMinutes), number(kLatitudeFlag) != 0);
  location.longitude =
      PackCoordinate(number(kLongitudeDegrees), number(kLongitudeMinutes), number(kLongitudeFlag) != 0);
  location.zoneHours = number(kZoneHours);
  location.zoneMinutes = number(kZoneMinutes);
}

ElevationPlace ReadElevationPlace(const char* name) {
  const auto number = [name](const char* key) { return ReadProfileInt(name, key, 0, kLocationsFile); };
  const auto magnitude = [&number](const char* key) { return static_cast<uint32_t>(number(key)); };
  return {magnitude(kLatitudeDegrees),  magnitude(kLatitudeMinutes), magnitude(kLongitudeDegrees),
          magnitude(kLongitudeMinutes), number(kZoneHours),          number(kZoneMinutes)};
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
  if (IsOtherSpelling(name)) return true;
  const bool section = WriteMirrored(name, nullptr, nullptr, kLocationsFile);
  return WriteMirrored(kListSection, name, nullptr, kLocationListFile) && section;
}

int32_t ReadElevation(const ElevationPlace& place, int32_t defaultMetres) {
  const auto read = [](const std::string& key, int32_t otherwise) {
    return ProfileGetInt(kElevationSection, key.c_str(), otherwise, kElevationFile);
  };
  const std::string otherKey = OtherElevationKey(place);
  if (otherKey.empty()) return read(ElevationKey(place), defaultMetres);
  const int32_t metres = read(ElevationKey(place), kMissing);
  return metres != kMissing ? metres : read(otherKey, defaultMetres);
}

// What the second key holds would show again, were it left where the first is deleted.
bool WriteElevation(const ElevationPlace& place, uint32_t metres) {
  const auto write = [](const std::string& key, const char* value) {
    return ProfileWriteString(kElevationSection, key.c_str(), value, kElevationFile) != 0;
  };
  const std::string text = std::to_string(metres);
  if (!write(ElevationKey(place), metres >= 1 ? text.c_str() : nullptr)) return false;
  const std::string otherKey = OtherElevationKey(place);
  if (otherKey.empty() || ProfileGetInt(kElevationSection, otherKey.c_str(), kMissing, kElevationFile) == kMissing) {
    return true;
  }
  return write(otherKey, nullptr);
}
