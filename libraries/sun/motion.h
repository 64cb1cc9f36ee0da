// A quantity that changes slowly.
#pragma once

namespace sun {

// value + ratePerDay * t + halfAcceleration * t * t, t in days from the moment for which it was made.
struct Motion {
  double value;
  double ratePerDay;
  double halfAcceleration;

  double At(double days) const { return value + days * (ratePerDay + days * halfAcceleration); }
  double RateAt(double days) const { return ratePerDay + 2 * days * halfAcceleration; }
};

}  // namespace sun
