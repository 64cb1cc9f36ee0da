#include "libraries/sun/solar_position.h"

#include <cmath>

#include "libraries/sun/angles.h"
#include "libraries/sun/delta_t.h"
#include "libraries/sun/earth_orbit.h"
#include "libraries/sun/fast_sine.h"

namespace sun {
namespace {

constexpr double kDaysPerYear = 365.2425;

struct Nutation {
  double longitudeRadians;
  double obliquityRadians;
};

// The terms of at least 0.05" in longitude.
Nutation NutationAt(double centuries) {
  constexpr double kTurnsPerDegree = 1 / 360.0;
  const double node = kTurnsPerDegree * (125.04452 - 1934.136261 * centuries);
  const double sunLongitude = kTurnsPerDegree * (280.4665 + 36000.7698 * centuries);
  const double sunAnomaly = kTurnsPerDegree * (357.52772 + 35999.05034 * centuries);
  const double moonLongitude = kTurnsPerDegree * (218.3165 + 481267.8813 * centuries);
  const double moonAnomaly = kTurnsPerDegree * (134.96298 + 477198.867398 * centuries);
  const struct {
    double turns;
    double sineArcseconds;    // of the nutation in longitude
    double cosineArcseconds;  // of the nutation in obliquity
  } terms[] = {
      {node, -17.1996 - 0.01742 * centuries, 9.2025 + 0.00089 * centuries},
      {2 * sunLongitude, -1.3187, 0.5736},
      {2 * moonLongitude, -0.2274, 0.0977},
      {2 * node, 0.2062, -0.0895},
      {sunAnomaly, 0.1426, 0.0054},
      {moonAnomaly, 0.0712, -0.0007},
      {2 * sunLongitude + sunAnomaly, -0.0517, 0.0224},
  };
  Nutation sum = {};
  for (const auto& term : terms) {
    double sine;
    double cosine;
    SineAndCosineOfTurns(term.turns, sine, cosine);
    sum.longitudeRadians += kRadiansPerArcsecond * term.sineArcseconds * sine;
    sum.obliquityRadians += kRadiansPerArcsecond * term.cosineArcseconds * cosine;
  }
  return sum;
}

double MeanObliquityRadians(double centuries) {
  constexpr double kArcseconds[] = {84381.448, -4680.93, -1.55, 1999.25, -51.38, -249.67,
                                    -39.05,    7.12,     27.87, 5.79,    2.45};
  return kRadiansPerArcsecond * Polynomial(kArcseconds, centuries / 100);
}

// The sun is seen where it stood when its light left it. Its distance follows from its daily motion, for the line to
// the sun sweeps equal areas in equal times.
double AberrationRadians(double longitudeRatePerDay) {
  constexpr double kLightDaysPerAstronomicalUnit = 0.0057755183;
  constexpr double kTwiceAreaPerDay = 0.0172019;  // square astronomical units: n a^2 sqrt(1 - e^2)
  const double distance = std::sqrt(kTwiceAreaPerDay / longitudeRatePerDay);
  return -longitudeRatePerDay * distance * kLightDaysPerAstronomicalUnit;
}

// Greenwich mean sidereal time in radians, within some turns of 0.
double MeanSiderealTimeRadians(double daysUt) {
  const double centuries = daysUt / kDaysPerCentury;
  const double turnOfDay = daysUt - std::floor(daysUt);
  const double degrees = 280.46061837 + 360 * turnOfDay + std::remainder(0.98564736629 * daysUt, 360) +
                         centuries * centuries * (0.000387933 - centuries / 38710000);
  return kRadiansPerDegree * degrees;
}
constexpr double kSiderealRadiansPerDay = kTurn * 1.00273790935;

}  // namespace

ApparentSun ApparentSunAt(double daysTt) {
  constexpr double kFk5Correction = -0.09033 * kRadiansPerArcsecond;
  const double centuries = daysTt / kDaysPerCentury;
  const EarthPlace earth = EarthPlaceAt(daysTt);
  const Nutation nutation = NutationAt(centuries);
  ApparentSun sun = {};
  sun.longitudeRadians = earth.longitudeRadians;
  sun.longitudeRadians.value +=
      kTurn / 2 + kFk5Correction + nutation.longitudeRadians + AberrationRadians(earth.longitudeRadians.ratePerDay);
  sun.latitudeRadians = -earth.latitudeRadians;
  sun.obliquityRadians = MeanObliquityRadians(centuries) + nutation.obliquityRadians;
  sun.equationOfEquinoxesRadians = nutation.longitudeRadians * std::cos(sun.obliquityRadians);
  return sun;
}

SunInSky SunInSkyAt(double daysUt) {
  const double daysTt = daysUt + DeltaTSeconds(2000 + daysUt / kDaysPerYear) / kSecondsPerDay;
  const ApparentSun sun = ApparentSunAt(daysTt);
  const double sinLongitude = std::sin(sun.longitudeRadians.value);
  const double cosLongitude = std::cos(sun.longitudeRadians.value);
  const double sinObliquity = std::sin(sun.obliquityRadians);
  const double cosObliquity = std::cos(sun.obliquityRadians);

  // The unit vector towards the sun; its latitude is too small to need a cosine or a rate.
  const double x = cosLongitude;
  const double y = sinLongitude * cosObliquity - sun.latitudeRadians * sinObliquity;
  const double z = sinLongitude * sinObliquity + sun.latitudeRadians * cosObliquity;
  const double rate = sun.longitudeRadians.ratePerDay;
  const double halfAcceleration = sun.longitudeRadians.halfAcceleration;
  SunInSky sky = {};
  sky.sinDeclination = {z, sinObliquity * cosLongitude * rate,
                        sinObliquity * (cosLongitude * halfAcceleration - sinLongitude * rate * rate / 2)};

  // Of tan(right ascension) = cos(obliquity) tan(longitude), differentiated twice.
  const double cosDeclinationSquared = 1 - z * z;
  const double ascensionPerLongitude = cosObliquity / cosDeclinationSquared;
  const double ascensionRate = ascensionPerLongitude * rate;
  const double ascensionHalfAcceleration =
      ascensionPerLongitude * (halfAcceleration + rate * z * sky.sinDeclination.ratePerDay / cosDeclinationSquared);
  const double siderealTime = MeanSiderealTimeRadians(daysUt) + sun.equationOfEquinoxesRadians;
  sky.greenwichHourAngleRadians = {std::remainder(siderealTime - std::atan2(y, x), kTurn),
                                   kSiderealRadiansPerDay - ascensionRate, -ascensionHalfAcceleration};
  return sky;
}

}  // namespace sun
