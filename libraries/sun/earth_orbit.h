// The Earth's motion about the sun.
#pragma once

#include "libraries/sun/motion.h"

namespace sun {

// Heliocentric, mean ecliptic and equinox of date, dynamical frame of VSOP87.
struct EarthPlace {
  Motion longitudeRadians;  // value within one turn of 0
  double latitudeRadians;
};

// daysTt: Terrestrial Time in days from 2000-01-01 12:00 (J2000), within 8,000 years of it; beyond some 2,000 years the
// places are no longer good to 1".
EarthPlace EarthPlaceAt(double daysTt);

}  // namespace sun
