// Sunrise, sunset and every other moment at which the sun crosses an altitude, for one date at one place.
//
// The sun's place is computed once, by ComputeSunDay; every event is then a few steps of Newton's method. Altitudes are
// geocentric, without parallax. Moments are seconds of Universal Time since 1970-01-01 00:00, taken as the UTC of
// clocks (they never differ by more than 0.9 s). Against an independent ephemeris the mean error from 1900 to 2100 is
// 0.02 s below 60 degrees of latitude and 0.03 s up to 70 degrees.
#pragma once

#include <cstdint>

#include "libraries/sun/motion.h"

namespace sun {

// A place as the sun sees it.
struct Site {
  double latitudeRadians;         // -pi/2 to pi/2
  double longitudeRadians;        // east positive, within half a turn of 0
  int32_t standardOffsetMinutes;  // of the standard clock from UTC
};

// Latitude and longitude packed as degrees x 100 + minutes, negative for south and west; the zone
// read as zone_offset.h says. Any numbers: latitudes beyond a pole mean the pole, longitudes wrap, offsets end at 24
// hours.
Site SiteFromPacked(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes);

// Days since 1970-01-01 of a Gregorian date. Any numbers: years end at 1 and 9999, months at 1 and 12, days at 1 and
// the month's last day.
int32_t UnixDayOfDate(uint32_t day, uint32_t month, uint32_t year);

// The sun on one date at one place. The date's transit is the one nearest to 12:00 of the standard clock, so that
// places beyond the date line answer for the right day; its morning runs from the lower culmination before the transit,
// its evening to the one after.
struct SunDay {
  struct Culmination {
    double days;  // from noonUtcSeconds
    double sinAltitude;
  };
  double noonUtcSeconds;    // 12:00 of the standard clock
  Motion hourAngleRadians;  // local; this and the next from noonUtcSeconds
  Motion sinDeclination;
  double sinLatitude;
  double cosLatitude;
  Culmination midnightBefore;
  Culmination transit;
  Culmination midnightAfter;
};

// unixDay: days since 1970-01-01, of the years 1 to 9999 (UnixDayOfDate).
SunDay ComputeSunDay(int32_t unixDay, const Site& site);

enum class Crossing {
  kReached,     // the moment is the crossing
  kStaysAbove,  // the moment is the sun's lowest point, the lower culmination on that side of the transit
  kStaysBelow,  // the moment is the sun's highest point, the transit
};

struct SunEvent {
  double utcSeconds;
  Crossing crossing;
};

// The sun's centre 50' below the sea-level horizon, lowered by the dip of a horizon seen from elevationMetres (0 or
// less: none). Sunrise is before the transit, sunset after it, maybe after midnight.
SunEvent Sunrise(const SunDay& day, double elevationMetres);
SunEvent Sunset(const SunDay& day, double elevationMetres);

// The sun's centre depressionDegrees below the geometric horizon (negative: above it). Values beyond the zenith and the
// nadir mean these; what is not a number is never reached, like the nadir.
SunEvent MorningDepression(const SunDay& day, double depressionDegrees);
SunEvent EveningDepression(const SunDay& day, double depressionDegrees);

// The upper culmination of the date (midday) and the lower ones before and after it, by hour angle.
double TransitUtcSeconds(const SunDay& day);
double MidnightBeforeUtcSeconds(const SunDay& day);
double MidnightAfterUtcSeconds(const SunDay& day);

}  // namespace sun
