#include "locations/location_lookup.h"

#include <algorithm>
#include <cstring>

#include "engine/bound_entries.h"
#include "engine/core/library_count.h"
#include "locations/location_store.h"

namespace {

// The settings do not tell letter case apart, names of places do: a place of the user's own whose name differs in
// letter case is another place.
bool IsOverridden(const char* name) {
  if (!IsUserLocation(name)) return false;
  const std::vector<std::string> names = UserLocationNames();
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool FindBuiltIn(Location& location) {
  const uint32_t count = LibraryCount(Solar.SolarGetCountOfBuiltInLocations());
  for (uint32_t index = 0; index < count; ++index) {
    char name[kTextSize] = "";
    Solar.SolarGetBuiltInLocation(index, name, &location.latitude, &location.longitude, &location.zoneHours,
                                  &location.zoneMinutes);
    if (std::strcmp(name, location.name) == 0) return !IsOverridden(location.name);
  }
  return false;
}

bool FindUserLocation(Location& location) {
  for (const std::string& name : UserLocationNames()) {
    ReadUserLocation(name.c_str(), location);
    if (name == location.name) return true;
  }
  return false;
}

}  // namespace

LocationSource LookUpLocation(Location& location) {
  if (FindBuiltIn(location)) return LocationSource::kBuiltIn;
  return FindUserLocation(location) ? LocationSource::kUser : LocationSource::kNowhere;
}

void TakeFirstBuiltInLocation(Location& location) {
  Solar.SolarGetBuiltInLocation(0, location.name, &location.latitude, &location.longitude, &location.zoneHours,
                                &location.zoneMinutes);
}
