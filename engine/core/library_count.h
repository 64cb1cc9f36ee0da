#pragma once

#include <cstdint>

// More of anything than a companion library can mean: a larger count is a negative one, or memory that was never set.
inline constexpr uint32_t kMostOfLibrary = 100000;

// A count as a companion library answers it; one that cannot be meant counts as none.
constexpr uint32_t LibraryCount(uint32_t answered) {
  return answered <= kMostOfLibrary ? answered : 0;
}
