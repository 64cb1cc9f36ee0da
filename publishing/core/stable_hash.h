// A number for a text that is the same in every run and version, for the unique names of events.
#pragma once

#include <cstdint>
#include <string_view>

namespace publishing {

constexpr uint64_t kUsualBasis = 0xCBF29CE484222325u;

// G. Fowler, L. C. Noll, K.-P. Vo: FNV-1a of 64 bits. Another basis gives another number.
constexpr uint64_t StableHash(std::string_view text, uint64_t basis = kUsualBasis) {
  uint64_t hash = basis;
  for (const char character : text) hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3u;
  return hash;
}

}  // namespace publishing
