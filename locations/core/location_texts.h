// A place as the store's keys and the location manager's line spell it.
#pragma once

#include <cstdint>
#include <string>

#include "engine/core/records.h"

// The numbers that an elevation belongs to. Hemispheres are not among them, so places that differ in them alone share
// one elevation, as do two names of one place.
struct ElevationPlace {
  uint32_t latitudeDegrees;
  uint32_t latitudeMinutes;
  uint32_t longitudeDegrees;
  uint32_t longitudeMinutes;
  int32_t zoneHours;
  int32_t zoneMinutes;
};

ElevationPlace ElevationPlaceOf(const Location& location);

// The key of a place's elevation: the six numbers.
std::string ElevationKey(const ElevationPlace& place);

// The key with the zone minutes' other sign, which is the same zone; empty when there are no hours or no minutes.
// Built-in places once had the hours' sign on their minutes too.
std::string OtherElevationKey(const ElevationPlace& place);

// Deliberate: one place has an elevation, in metres, where the settings name none; every other is at sea level.
int32_t DefaultElevation(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours);

// "Home: 32,49N  34,59E  GMT+2, no elevation".
std::string ParameterLine(const Location& location, int32_t elevationMetres);
