// What the built-in places are called beside their names, and where they are: a generated table.
#pragma once

#include <span>

namespace placepick::place_names_table {

struct OtherNames {
  const char* country;  // ASCII
  const char* names;    // UTF-8, joined by "|": Hebrew, former and other spellings; may be empty
};

// In the order of sun::BuiltInPlaces().
extern const std::span<const OtherNames> names;

}  // namespace placepick::place_names_table
