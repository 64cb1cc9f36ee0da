// Where the sun stands in the sky of the Earth's centre.
//
// Sources: VSOP87 (earth_terms.h); nutation, the main terms of the IAU 1980 theory, and the mean sidereal time of S.
// Aoki et al. 1982, both as in J. Meeus, "Astronomical Algorithms", chapters 22 and 12; obliquity J. Laskar 1986. The
// apparent longitude is right to 1" from 1900 to the year 3000.
#pragma once

#include "libraries/sun/motion.h"

namespace sun {

// The sun's apparent geocentric place, true ecliptic and equinox of date.
struct ApparentSun {
  Motion longitudeRadians;  // value within two turns of 0
  double latitudeRadians;
  double obliquityRadians;
  double equationOfEquinoxesRadians;  // the nutation of sidereal time
};

// daysTt: Terrestrial Time in days from 2000-01-01 12:00 (J2000), within 8,000 years of it.
ApparentSun ApparentSunAt(double daysTt);

// The sun in the turning sky, as quadratics that hold to 0.15" within half a day of their moment and 0.3" within a day.
struct SunInSky {
  Motion greenwichHourAngleRadians;  // growing westward from the upper transit there; value within half a turn of 0
  Motion sinDeclination;
};

// daysUt: Universal Time in days from 2000-01-01 12:00, within 8,000 years of it.
SunInSky SunInSkyAt(double daysUt);

}  // namespace sun
