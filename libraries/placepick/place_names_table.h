// Where the built-in places are, and what they are called beside their names: a generated table.
#pragma once

#include <span>

namespace placepick::place_names_table {

struct OtherNames {
  const char16_t* country;
  const char16_t* names;  // joined by "|": Hebrew, former and other spellings; may be empty
};

// In the order of sun::BuiltInPlaces().
extern const std::span<const OtherNames> names;

}  // namespace placepick::place_names_table
