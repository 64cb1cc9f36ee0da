// A place as the store's keys and the location manager's line spell it.
#pragma once

#include <cstdint>
#include <string>

#include "engine/core/records.h"

// The key of a place's elevation: degrees and arc minutes of latitude and longitude, zone hours and minutes.
// Hemispheres are not part of it, so places that differ in them alone share one elevation, as do two names of one
// place.
std::string ElevationKey(uint32_t latitudeDegrees, uint32_t latitudeMinutes, uint32_t longitudeDegrees,
                         uint32_t longitudeMinutes, int32_t zoneHours, int32_t zoneMinutes);
std::string ElevationKey(const Location& location);

// Deliberate: one place has an elevation, in metres, where the settings name none; every other is at sea level.
int32_t DefaultElevation(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours);

// "Home: 32,49N  34,59E  GMT+2, no elevation".
std::string ParameterLine(const Location& location, int32_t elevationMetres);
