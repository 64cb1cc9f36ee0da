// The molad as a moment.
#pragma once

#include <cstdint>

namespace occasions {

constexpr double kSecondsPerPart = 10.0 / 3;

// Seconds of UTC since 1970-01-01 of a Jewish month's molad.
double MoladUtcSeconds(int32_t month, int32_t year);

}  // namespace occasions
