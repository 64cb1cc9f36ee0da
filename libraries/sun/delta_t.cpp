#include "libraries/sun/delta_t.h"

#include <iterator>

namespace sun {
namespace {

// One stretch of years: a polynomial in (year - origin) / unit.
struct Stretch {
  double untilYear;
  double originYear;
  double unitYears;
  double coefficients[8];  // seconds, of rising powers
};

// F. Espenak, "Polynomial Expressions for Delta T" (2014), which keeps the polynomials of F. Espenak and J. Meeus,
// "Five Millennium Canon of Solar Eclipses" (NASA TP-2006-214141), up to 2005 and fits the measured years after it.
constexpr Stretch kStretches[] = {
    {-500, 1820, 100, {-20, 0, 32}},
    {500, 0, 100, {10583.6, -1014.41, 33.78311, -5.952053, -0.1798452, 0.022174192, 0.0090316521}},
    {1600, 1000, 100, {1574.2, -556.01, 71.23472, 0.319781, -0.8503463, -0.005050998, 0.0083572073}},
    {1700, 1600, 1, {120, -0.9808, -0.01532, 1.0 / 7129}},
    {1800, 1700, 1, {8.83, 0.1603, -0.0059285, 0.00013336, -1.0 / 1174000}},
    {1860, 1800, 1, {13.72, -0.332447, 0.0068612, 0.0041116, -0.00037436, 0.0000121272, -0.0000001699, 0.000000000875}},
    {1900, 1860, 1, {7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1.0 / 233174}},
    {1920, 1900, 1, {-2.79, 1.494119, -0.0598939, 0.0061966, -0.000197}},
    {1941, 1920, 1, {21.20, 0.84493, -0.076100, 0.0020936}},
    {1961, 1950, 1, {29.07, 0.407, -1.0 / 233, 1.0 / 2547}},
    {1986, 1975, 1, {45.45, 1.067, -1.0 / 260, -1.0 / 718}},
    {2005, 2000, 1, {63.86, 0.3345, -0.060374, 0.0017275, 0.000651814, 0.00002373599}},
    {2015, 2005, 1, {64.69, 0.2930}},
};
// The source gives it up to the year 3000; a parabola is also what the tides' braking makes of the years beyond.
constexpr Stretch kLastStretch = {0, 2015, 1, {67.62, 0.3645, 0.0039755}};

const Stretch& StretchOf(double year) {
  for (const Stretch& stretch : kStretches) {
    if (year < stretch.untilYear) return stretch;
  }
  return kLastStretch;
}

}  // namespace

double DeltaTSeconds(double year) {
  const Stretch& stretch = StretchOf(year);
  const double units = (year - stretch.originYear) / stretch.unitYears;
  double seconds = 0;
  for (size_t power = std::size(stretch.coefficients); power-- > 0;) {
    seconds = seconds * units + stretch.coefficients[power];
  }
  return seconds;
}

}  // namespace sun
