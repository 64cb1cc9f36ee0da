// The user's own places in the settings files: "shabbat2.ini" lists them (section "Locations", a key a place whose
// value is not empty), "shabloc2.ini" has a section for each, "almanacelevation.ini" their elevations.
#pragma once

#include <string>
#include <vector>

#include "engine/core/records.h"

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

bool IsUserLocation(const char* name);
std::vector<std::string> UserLocationNames();

// The numbers of a place; a missing one is 0.
void ReadUserLocation(const char* name, Location& location);

// The text of one key of a place's section, e.g. "LatitudeDegrees".
std::string ReadLocationText(const char* name, const char* key);

// False when a write failed.
bool WriteUserLocation(const char* name, const StoredLocation& location);
bool DeleteUserLocation(const char* name);

// Metres, under the key of location_texts.h. Elevations below 1 are not kept.
int32_t ReadElevation(const std::string& key, int32_t defaultMetres);
bool WriteElevation(const std::string& key, uint32_t metres);
