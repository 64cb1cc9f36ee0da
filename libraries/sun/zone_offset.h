// The one reading of a standard zone that is given as hours and minutes.
#pragma once

#include <cstdint>

namespace sun {

// Minutes ahead of UTC. The sign of the hours leads: (-3, 30) and (-3, -30) are both 3:30 behind, (5, 30) and (5, -30)
// 5:30 ahead. Without hours the minutes' own sign counts. Any numbers.
constexpr int64_t StandardOffsetMinutes(int32_t zoneHours, int32_t zoneMinutes) {
  if (zoneHours == 0) return zoneMinutes;
  const int64_t minutes = zoneMinutes < 0 ? -int64_t{zoneMinutes} : int64_t{zoneMinutes};
  return int64_t{zoneHours} * 60 + (zoneHours < 0 ? -minutes : minutes);
}

}  // namespace sun
