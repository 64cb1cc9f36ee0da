// Finding a place by its name among the built-in places and the user's own.
#pragma once

#include <string>
#include <vector>

#include "engine/core/records.h"

// Where a name was found.
enum class LocationSource { kNowhere, kBuiltIn, kUser };

// Fills the numbers of the place that location.name names. A place of the user's own takes precedence over a built-in
// one of the same name. A name that no place has exactly means the own place that differs from it in ASCII letter case
// alone; location.name is then spelled as that. A name that is found nowhere leaves the numbers of the last place that
// was read in the search.
LocationSource LookUpLocation(Location& location);

std::vector<std::string> BuiltInLocationNames();

// The first built-in place, name included.
void TakeFirstBuiltInLocation(Location& location);
