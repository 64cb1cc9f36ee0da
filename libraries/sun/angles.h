// Constants and small formulas that the sun's theory shares.
#pragma once

#include <cstddef>
#include <numbers>

namespace sun {

inline constexpr double kTurn = 2 * std::numbers::pi;  // radians
inline constexpr double kRadiansPerDegree = std::numbers::pi / 180;
inline constexpr double kRadiansPerArcsecond = kRadiansPerDegree / 3600;
inline constexpr double kSecondsPerDay = 86400;
inline constexpr double kDaysPerCentury = 36525;

// Coefficients of rising powers.
template <size_t kCount>
constexpr double Polynomial(const double (&coefficients)[kCount], double x) {
  double sum = 0;
  for (size_t power = kCount; power-- > 0;) sum = sum * x + coefficients[power];
  return sum;
}

}  // namespace sun
