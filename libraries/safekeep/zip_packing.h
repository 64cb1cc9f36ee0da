// Deflated bytes and their sums, by zlib.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace safekeep {

// CRC-32 as archives have it.
uint32_t SumOf(std::string_view bytes);

// Bytes deflated (RFC 1951), as small as zlib gets them.
std::string Deflated(std::string_view bytes);

// What deflated bytes stand for; none unless they are sound to the last and stand for exactly so many bytes. No more
// memory is taken than the bytes really fill.
std::optional<std::string> Inflated(std::string_view deflated, size_t size);

}  // namespace safekeep
