#include "app/default_location.h"

#include <cstring>

#include "companion/profile.h"
#include "engine/current.h"
#include "locations/location_lookup.h"

void LoadDefaultLocation() {
  Location& location = CurrentLocation;
  ProfileGetString("Preferences", "DefaultLocation", "", location.name, sizeof location.name, "almanac13.ini");
  if (location.name[0] == '\0') std::strcpy(location.name, "Aachen");
  if (LookUpLocation(location) == LocationSource::kNowhere) TakeFirstBuiltInLocation(location);
}
