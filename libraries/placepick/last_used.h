// The places that were picked last, kept in section "LastUsed" of "placepick.ini": keys 1 to 10, the newest first.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "libraries/placepick/place_search.h"

namespace placepick {

inline constexpr char kPickerFile[] = "placepick.ini";  // keeps the dialog's size too

// The numbers of those that are still there.
std::vector<std::size_t> LastUsedPlaces(const PlaceIndex& places);

// Puts a place at their top. That it cannot be written is not told: nothing of the user's is lost.
void KeepUsedPlace(const std::string& name);

}  // namespace placepick
