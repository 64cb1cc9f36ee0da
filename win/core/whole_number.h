#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// The number that a whole text is: decimal digits, blanks before and after them aside; signed ones may have a sign.
// Nothing for any other text and for a number beyond 32 bits. (The system's own reading of a dialog's field takes a
// minus for an unsigned number on some systems and not on others.)
std::optional<uint32_t> ParseUnsigned(std::string_view text);
std::optional<int32_t> ParseSigned(std::string_view text);
