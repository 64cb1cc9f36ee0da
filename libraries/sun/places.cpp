#include "libraries/sun/places.h"

#include <algorithm>

#include "libraries/sun/places_table.h"

namespace sun {
std::span<const BuiltInPlace> BuiltInPlaces() {
  return places_table::places;
}

bool DifferInCaseOnly(std::string_view left, std::string_view right) {
  constexpr auto lowerCase = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return left != right && std::ranges::equal(left, right, {}, lowerCase, lowerCase);
}

}  // namespace sun
