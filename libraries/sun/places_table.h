// The generated table of built-in places. Read by places.cpp only.
#pragma once

#include <span>

#include "libraries/sun/places.h"

namespace sun::places_table {

extern const std::span<const BuiltInPlace> places;

}  // namespace sun::places_table
