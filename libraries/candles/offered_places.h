// The places that the user can choose from.
#pragma once

#include <string>
#include <vector>

#include "libraries/candles/candles_core.h"

namespace candles {

// The places of the user's own ("shabbat2.ini", section "Locations", keys that have a value), then the built-in ones
// and those of the entries, each once, as spelled.
std::vector<std::string> OfferedPlaces(const Entries& entries);

}  // namespace candles
