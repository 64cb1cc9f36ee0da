#include "locations/core/packed_coordinate.h"

int32_t PackCoordinate(int32_t degrees, int32_t arcMinutes, bool southOrWest) {
  const int64_t packed = int64_t{degrees} * 100 + arcMinutes;
  return static_cast<int32_t>(southOrWest ? -packed : packed);
}
