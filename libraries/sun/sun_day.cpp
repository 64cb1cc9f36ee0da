#include "libraries/sun/sun_day.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "libraries/sun/angles.h"
#include "libraries/sun/fast_sine.h"
#include "libraries/sun/solar_position.h"
#include "libraries/sun/zone_offset.h"

namespace sun {
namespace {

constexpr double kSunriseDepressionDegrees = 50.0 / 60;  // refraction 34', the sun's radius 16' (USNO)
constexpr double kEarthRadiusMetres = 6356900;           // of the horizon's dip
constexpr double kUnixNoonOfJ2000 = 10957.5;             // days; the noon that the theory counts from

double DegreesFromPacked(int32_t packed) {
  return packed / 100 + packed % 100 / 60.0;
}

double CosineOf(double sine) {
  return std::sqrt(1 - sine * sine);
}

double UtcSeconds(const SunDay& day, double days) {
  return day.noonUtcSeconds + days * kSecondsPerDay;
}

// The moment at which the hour angle, counted on without a wrap, has a value.
double DaysOfHourAngle(const Motion& hourAngle, double radians) {
  double days = (radians - hourAngle.value) / hourAngle.ratePerDay;
  days -= (hourAngle.At(days) - radians) / hourAngle.RateAt(days);
  return days;
}

struct Altitude {
  double sine;
  double sineRatePerDay;
};

Altitude AltitudeAt(const SunDay& day, double days) {
  const double hourAngle = day.hourAngleRadians.At(days);
  const double sinDeclination = day.sinDeclination.At(days);
  const double cosDeclination = CosineOf(sinDeclination);
  double sinHourAngle;
  double cosHourAngle;
  SineAndCosineOfTurns(hourAngle * (1 / kTurn), sinHourAngle, cosHourAngle);
  const double sine = day.sinLatitude * sinDeclination + day.cosLatitude * cosDeclination * cosHourAngle;
  const double perSinDeclination = day.sinLatitude - day.cosLatitude * cosHourAngle * sinDeclination / cosDeclination;
  return {sine, perSinDeclination * day.sinDeclination.RateAt(days) -
                    day.cosLatitude * cosDeclination * sinHourAngle * day.hourAngleRadians.RateAt(days)};
}

// The moment between a high and a low point of the sun at which it passes a sine of altitude. Newton's method from the
// day's constant declination; a step that leaves the interval known to hold the moment is replaced by halving it.
double CrossingDays(const SunDay& day, double high, double low, double sinAltitude, double guess) {
  // 1.7 s: the step after such a step would be less than a millisecond, and a hundredth of a second within minutes of
  // the sun's lowest point.
  constexpr double kDoneDays = 2e-5;
  constexpr int kMostSteps = 40;
  double days = guess;
  for (int step = 0; step < kMostSteps; ++step) {
    const Altitude altitude = AltitudeAt(day, days);
    (altitude.sine > sinAltitude ? high : low) = days;
    const double next = days - (altitude.sine - sinAltitude) / altitude.sineRatePerDay;
    const bool inside = next > std::min(high, low) && next < std::max(high, low);
    const double taken = inside ? next : (high + low) / 2;
    const double change = std::fabs(taken - days);
    days = taken;
    if (change < kDoneDays) break;
  }
  return days;
}

// Of at most a quarter turn; exactly -1 there, which the sun does not reach.
double SinAltitude(double depressionRadians) {
  return depressionRadians < kTurn / 4 ? -SineOfQuarter(depressionRadians / kTurn) : -1;
}

enum class Half { kMorning, kEvening };

SunEvent EventAt(const SunDay& day, double depressionRadians, Half half) {
  const SunDay::Culmination& high = day.transit;
  const SunDay::Culmination& low = half == Half::kMorning ? day.midnightBefore : day.midnightAfter;
  const double sinAltitude = SinAltitude(depressionRadians);
  if (high.sinAltitude <= sinAltitude) return {UtcSeconds(day, high.days), Crossing::kStaysBelow};
  if (low.sinAltitude >= sinAltitude) return {UtcSeconds(day, low.days), Crossing::kStaysAbove};

  const double sinDeclination = day.sinDeclination.At(high.days);
  const double cosDeclination = CosineOf(sinDeclination);
  const double cosHourAngle = (sinAltitude - day.sinLatitude * sinDeclination) / (day.cosLatitude * cosDeclination);
  const double hourAngle = std::acos(std::clamp(cosHourAngle, -1.0, 1.0));
  const double guess = high.days + (low.days - high.days) * (hourAngle / (kTurn / 2));
  return {UtcSeconds(day, CrossingDays(day, high.days, low.days, sinAltitude, guess)), Crossing::kReached};
}

double ClampedDepressionRadians(double degrees) {
  if (std::isnan(degrees)) return kTurn / 4;
  return kRadiansPerDegree * std::clamp(degrees, -90.0, 90.0);
}

double SunriseDepressionRadians(double elevationMetres) {
  double radians = kRadiansPerDegree * kSunriseDepressionDegrees;
  if (elevationMetres > 0) radians += std::acos(kEarthRadiusMetres / (kEarthRadiusMetres + elevationMetres));
  return std::min(radians, kTurn / 4);
}

// cosHourAngle is 1 for an upper culmination and -1 for a lower one.
SunDay::Culmination CulminationAt(const SunDay& day, double hourAngle, double cosHourAngle) {
  const double days = DaysOfHourAngle(day.hourAngleRadians, hourAngle);
  const double sinDeclination = day.sinDeclination.At(days);
  return {days, day.sinLatitude * sinDeclination + cosHourAngle * day.cosLatitude * CosineOf(sinDeclination)};
}

}  // namespace

Site SiteFromPacked(int32_t packedLatitude, int32_t packedLongitude, int32_t zoneHours, int32_t zoneMinutes) {
  constexpr int64_t kMostOffsetMinutes = 24 * 60;
  const double latitudeDegrees = std::clamp(DegreesFromPacked(packedLatitude), -90.0, 90.0);
  const double longitudeDegrees = std::remainder(DegreesFromPacked(packedLongitude), 360.0);
  const int64_t offsetMinutes = StandardOffsetMinutes(zoneHours, zoneMinutes);
  return {kRadiansPerDegree * latitudeDegrees, kRadiansPerDegree * longitudeDegrees,
          static_cast<int32_t>(std::clamp(offsetMinutes, -kMostOffsetMinutes, kMostOffsetMinutes))};
}

int32_t UnixDayOfDate(uint32_t day, uint32_t month, uint32_t year) {
  const auto clampedYear = std::chrono::year{static_cast<int>(std::clamp(year, 1u, 9999u))};
  const auto clampedMonth = std::chrono::month{std::clamp(month, 1u, 12u)};
  const auto lastDay = static_cast<unsigned>((clampedYear / clampedMonth / std::chrono::last).day());
  const auto clampedDay = std::chrono::day{std::clamp(day, 1u, lastDay)};
  const std::chrono::sys_days date = clampedYear / clampedMonth / clampedDay;
  return static_cast<int32_t>(date.time_since_epoch().count());
}

SunDay ComputeSunDay(int32_t unixDay, const Site& site) {
  SunDay day = {};
  day.noonUtcSeconds = unixDay * kSecondsPerDay + kSecondsPerDay / 2 - site.standardOffsetMinutes * 60.0;
  const SunInSky sky = SunInSkyAt(day.noonUtcSeconds / kSecondsPerDay - kUnixNoonOfJ2000);
  day.hourAngleRadians = sky.greenwichHourAngleRadians;
  day.hourAngleRadians.value = std::remainder(day.hourAngleRadians.value + site.longitudeRadians, kTurn);
  day.sinDeclination = sky.sinDeclination;
  day.sinLatitude = std::sin(site.latitudeRadians);
  day.cosLatitude = std::cos(site.latitudeRadians);
  day.midnightBefore = CulminationAt(day, -kTurn / 2, -1);
  day.transit = CulminationAt(day, 0, 1);
  day.midnightAfter = CulminationAt(day, kTurn / 2, -1);
  return day;
}

SunEvent Sunrise(const SunDay& day, double elevationMetres) {
  return EventAt(day, SunriseDepressionRadians(elevationMetres), Half::kMorning);
}

SunEvent Sunset(const SunDay& day, double elevationMetres) {
  return EventAt(day, SunriseDepressionRadians(elevationMetres), Half::kEvening);
}

SunEvent MorningDepression(const SunDay& day, double depressionDegrees) {
  return EventAt(day, ClampedDepressionRadians(depressionDegrees), Half::kMorning);
}

SunEvent EveningDepression(const SunDay& day, double depressionDegrees) {
  return EventAt(day, ClampedDepressionRadians(depressionDegrees), Half::kEvening);
}

double TransitUtcSeconds(const SunDay& day) {
  return UtcSeconds(day, day.transit.days);
}

double MidnightBeforeUtcSeconds(const SunDay& day) {
  return UtcSeconds(day, day.midnightBefore.days);
}

double MidnightAfterUtcSeconds(const SunDay& day) {
  return UtcSeconds(day, day.midnightAfter.days);
}

}  // namespace sun
