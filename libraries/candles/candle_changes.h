// Changes of the user's in the text of the store; everything else in it stays as it is.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/candles/candles_core.h"

namespace candles {

// The times that an occasion is to have; none where its entry is to go.
using Changes = std::map<Occasion, std::optional<Times>>;

// What turns the entries before into those after.
Changes Difference(const Entries& before, const Entries& after);

// The text of the store (see candles_core.h) with the changes made. A changed entry keeps its line; new ones come at
// the end, in the order of Occasion, their lines ended as the text's first one (CR and LF when it has none). Lines that
// a changed entry made void go too. Whatever the changes do not name keeps its bytes, damaged lines and comments
// included.
std::string Applied(const Changes& changes, std::string_view text);

}  // namespace candles
