// The dialog "Select Location".
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string_view>

#include "libraries/placepick/place_search.h"

namespace placepick {

// What keeps the place for the start of the program.
inline constexpr char kStartFile[] = "almanac13.ini";

// Shows the dialog with the place of the current name selected, and keeps the place for the start of the program if the
// user wants so. The number of the picked place; none when the user cancels or the dialog cannot be shown.
std::optional<std::size_t> PickPlace(HWND owner, const PlaceIndex& places, std::string_view currentName);

}  // namespace placepick
