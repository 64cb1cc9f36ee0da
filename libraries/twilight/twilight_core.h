// From sunset to nightfall.
#pragma once

#include <cstdint>

#include "libraries/sun/place_settings.h"

namespace twilight {

// Minutes from the sunset of a day since 1970-01-01 (sun::UnixDayOfDate), rounded to the nearest minute of the place's
// clock, to the evening's depression, rounded up, so that nightfall is never early. 0 when the sun stands that low at
// sunset already; where it does not get that low, the minutes to its lowest point.
int32_t EveningIntervalMinutes(int32_t unixDay, const sun::PlaceSettings& place, double depressionDegrees);

}  // namespace twilight
