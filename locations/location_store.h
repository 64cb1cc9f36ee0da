// The user's own places in the settings files: "shabbat2.ini" lists them (section "Locations", a key a place whose
// value is not empty), "shabloc2.ini" has a section for each, "almanacelevation.ini" their elevations.
#pragma once

#include <string>
#include <vector>

#include "engine/core/records.h"
#include "locations/core/location_texts.h"

inline constexpr char kLocationListFile[] = "shabbat2.ini";
inline constexpr char kLocationsFile[] = "shabloc2.ini";
inline constexpr char kElevationFile[] = "almanacelevation.ini";
inline constexpr const char* kStoreFiles[] = {kLocationListFile, kLocationsFile, kElevationFile};

// A place as its section holds it.
struct StoredLocation {
  uint32_t latitudeDegrees;
  uint32_t latitudeMinutes;
  bool south;
  uint32_t longitudeDegrees;
  uint32_t longitudeMinutes;
  bool west;
  int32_t zoneHours;
  int32_t zoneMinutes;
};

// The names in the order of the file; those of one place in two spellings are two.
std::vector<std::string> UserLocationNames();

// Whether a place of the user's own is spelled exactly so.
bool IsUserLocation(const char* name);

// The numbers of a place; a missing one is 0.
void ReadUserLocation(const char* name, Location& location);

// The numbers that a place's elevation belongs to, as its section holds them.
ElevationPlace ReadElevationPlace(const char* name);

// The text of one key of a place's section, e.g. "LatitudeDegrees".
std::string ReadLocationText(const char* name, const char* key);

// False when a write failed.
bool WriteUserLocation(const char* name, const StoredLocation& location);

// A place in another spelling stays; a name that is not there counts as deleted.
bool DeleteUserLocation(const char* name);

// Metres, under the keys of location_texts.h: read under the second one where the first is missing, written under the
// first alone. Elevations below 1 are not kept.
int32_t ReadElevation(const ElevationPlace& place, int32_t defaultMetres);
bool WriteElevation(const ElevationPlace& place, uint32_t metres);
