// Sine and cosine for the long sums of the sun's theory. Without a branch, a call or a loop, so that the compiler works
// on several terms at once: the series are most of the price of an event, and with the C library's functions they would
// cost three times as much.
#pragma once

#include <cmath>
#include <cstdint>

namespace sun {

// sin(2 pi x) for |x| <= 1/4: the Taylor series up to x^15, right to 1e-11.
inline double SineOfQuarter(double x) {
  const double y = x * x;
  return x * (6.283185307179586 +
              y * (-41.341702240399755 +
                   y * (81.60524927607504 +
                        y * (-76.70585975306136 +
                             y * (42.05869394489765 +
                                  y * (-15.094642576822984 + y * (3.8199525848482805 - y * 0.7181223017785006)))))));
}

// Of an angle in turns, |turns| < 2^31.
inline void SineAndCosineOfTurns(double turns, double& sine, double& cosine) {
  const double whole = static_cast<double>(static_cast<int32_t>(turns + (turns < 0 ? -0.5 : 0.5)));
  const double part = turns - whole;
  const double size = std::fabs(part);
  const double folded = size < 0.5 - size ? size : 0.5 - size;
  sine = std::copysign(SineOfQuarter(folded), part);
  cosine = SineOfQuarter(0.25 - size);
}

}  // namespace sun
