#include "locations/location_lookup.h"

#include <algorithm>
#include <cstring>

#include "engine/bound_entries.h"
#include "engine/core/library_count.h"
#include "locations/core/place_names.h"
#include "locations/location_store.h"

namespace {

// Numbers and name of a built-in place.
void ReadBuiltIn(uint32_t index, char (&name)[kTextSize], Location& location) {
  name[0] = '\0';
  Solar.SolarGetBuiltInLocation(index, name, &location.latitude, &location.longitude, &location.zoneHours,
                                &location.zoneMinutes);
}

bool FindBuiltIn(Location& location) {
  const uint32_t count = LibraryCount(Solar.SolarGetCountOfBuiltInLocations());
  for (uint32_t index = 0; index < count; ++index) {
    char name[kTextSize];
    ReadBuiltIn(index, name, location);
    if (std::strcmp(name, location.name) == 0) return true;
  }
  return false;
}

// The own place of exactly the wanted name is the last one read, or the last of all when there is none.
bool FindUserLocation(const std::vector<std::string>& names, Location& location) {
  for (const std::string& name : names) {
    ReadUserLocation(name.c_str(), location);
    if (name == location.name) return true;
  }
  const std::string* const meant = NameMeant(names, location.name);
  if (!meant) return false;
  ReadUserLocation(meant->c_str(), location);
  std::strcpy(location.name, meant->c_str());
  return true;
}

}  // namespace

LocationSource LookUpLocation(Location& location) {
  const std::vector<std::string> names = UserLocationNames();
  const bool isOverridden = std::ranges::find(names, location.name) != names.end();
  if (FindBuiltIn(location) && !isOverridden) return LocationSource::kBuiltIn;
  return FindUserLocation(names, location) ? LocationSource::kUser : LocationSource::kNowhere;
}

std::vector<std::string> BuiltInLocationNames() {
  std::vector<std::string> names(LibraryCount(Solar.SolarGetCountOfBuiltInLocations()));
  for (uint32_t index = 0; index < names.size(); ++index) {
    char name[kTextSize];
    Location location{};
    ReadBuiltIn(index, name, location);
    names[index] = name;
  }
  return names;
}

void TakeFirstBuiltInLocation(Location& location) {
  ReadBuiltIn(0, location.name, location);
}
