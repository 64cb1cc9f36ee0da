// The places that the user can choose from.
#pragma once

#include <string>
#include <vector>

#include "libraries/candles/candles_core.h"

namespace candles {

// The built-in places, those of the user's own ("shabbat2.ini", section "Locations", keys that have a value), and those
// of the entries, each once, as spelled.
std::vector<std::string> OfferedPlaces(const Entries& entries);

}  // namespace candles
