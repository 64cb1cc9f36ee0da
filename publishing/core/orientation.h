// How a sheet of paper lies.
#pragma once

#include <cstdint>

namespace publishing {

enum class Orientation : uint8_t {
  kAutomatic,  // across when the columns need it
  kPortrait,
  kLandscape,
};

}  // namespace publishing
