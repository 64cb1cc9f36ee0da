#include "libraries/sun/earth_orbit.h"

#include <cmath>

#include "libraries/sun/angles.h"
#include "libraries/sun/earth_terms.h"
#include "libraries/sun/fast_sine.h"

namespace sun {
namespace {

constexpr double kDaysPerMillennium = 10 * kDaysPerCentury;

// A series and its rates, in radians per millennium.
struct SeriesSum {
  double position = 0;
  double rate = 0;
  double acceleration = 0;
};

template <size_t kCount>
SeriesSum SumOf(const SeriesTerm (&terms)[kCount], double millennia) {
  double sines[kCount];
  double cosines[kCount];
  for (size_t i = 0; i < kCount; ++i) {
    SineAndCosineOfTurns((terms[i].phase + terms[i].frequency * millennia) * (1 / kTurn), sines[i], cosines[i]);
  }
  SeriesSum sum;
  for (size_t i = 0; i < kCount; ++i) {
    const double amplitude = terms[i].amplitude * kSeriesAmplitudeUnitRadians;
    const double rateAmplitude = amplitude * terms[i].frequency;
    sum.position += amplitude * cosines[i];
    sum.rate -= rateAmplitude * sines[i];
    sum.acceleration -= rateAmplitude * terms[i].frequency * cosines[i];
  }
  return sum;
}

}  // namespace

EarthPlace EarthPlaceAt(double daysTt) {
  const double millennia = daysTt / kDaysPerMillennium;
  const SeriesSum series[] = {SumOf(kEarthLongitude0, millennia), SumOf(kEarthLongitude1, millennia),
                              SumOf(kEarthLongitude2, millennia), SumOf(kEarthLongitude3, millennia)};
  // The rates leave out the growth of the powers themselves and the mean longitude's higher powers: below 0.01" a day.
  SeriesSum sum;
  double power = 1;
  for (const SeriesSum& one : series) {
    sum.position += one.position * power;
    sum.rate += one.rate * power;
    sum.acceleration += one.acceleration * power;
    power *= millennia;
  }
  const double longitude = Polynomial(kEarthMeanLongitude, millennia) + sum.position;
  const double ratePerDay = (kEarthMeanLongitude[1] + sum.rate) / kDaysPerMillennium;
  const double accelerationPerDay = sum.acceleration / (kDaysPerMillennium * kDaysPerMillennium);
  return {{std::remainder(longitude, kTurn), ratePerDay, accelerationPerDay / 2},
          SumOf(kEarthLatitude, millennia).position};
}

}  // namespace sun
