// Daf Yomi: one leaf of the Babylonian Talmud a day, the same all over the world, cycle after cycle (R. Meir Shapiro,
// Vienna 1923).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace folio {

struct Leaf {
  const char* tractate;
  int32_t number;
  int32_t cycle;  // from 1
};

// The leaf of an absolute day (Rata Die); nothing before the first day of the first cycle, 11 September 1923.
std::optional<Leaf> LeafOf(int32_t absoluteDay);

// "Berachot 2 (cycle 14)"; for a day before the first cycle and for a date that the Gregorian calendar has not, what is
// wrong with it. Any numbers.
std::string LeafText(uint32_t day, uint32_t month, uint32_t year);

}  // namespace folio
