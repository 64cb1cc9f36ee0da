// Which zones of the tz database hold where on land, to about a kilometre.
#pragma once

#include <array>

namespace sun {

// The ids of the zones that hold in a place, in the order of the alphabet; where two are in use, both (Hebron, Urumqi).
// null: no more. Far from all land there may be none, and near it, that of the land.
using ZonesOfPoint = std::array<const char*, 2>;

// Degrees, north and east positive; others than -90 to 90 and -180 to 180 count as the nearest of these, numbers that
// are none as 0. Takes some ten microseconds.
ZonesOfPoint ZonesAt(double latitudeDegrees, double longitudeDegrees);

}  // namespace sun
