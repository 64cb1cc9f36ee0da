// The clock of the planets against the clock of the Earth's rotation.
#pragma once

namespace sun {

// Terrestrial Time minus Universal Time in seconds at a decimal year (2026.5 is the middle of 2026). Measured up to
// 2015, foreseen from then on; every year has a finite answer.
double DeltaTSeconds(double year);

}  // namespace sun
