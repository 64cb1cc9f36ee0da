// What a caller of the profile library gets for a key: as the system's own private-profile calls answer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/profile/ini_document.h"

namespace profile {

// The value without its pair of enclosing quotes, single or double. A lone quote stays.
std::string_view Unquoted(std::string_view value);

// The number that a text starts with: blanks and control characters, a sign, then decimal digits, or hexadecimal ones
// after 0x, octal after 0o, binary after 0b (small letters only), up to the first other character; 0 when there are no
// digits. Numbers past 32 bits keep their low 32 bits, as in the system's calls.
int32_t NumberIn(std::string_view text);

// The key's number; the default when the key is missing or its value empty.
int32_t IntAnswer(const IniDocument& document, std::string_view section, std::string_view key, int32_t defaultValue);

// The key's text into buffer (size bytes, at least 1), cut to size - 1 bytes and terminated; the number of bytes before
// the terminator. A missing key answers the default without its trailing blanks.
uint32_t TextAnswer(const IniDocument& document, std::string_view section, std::string_view key,
                    std::string_view defaultValue, char* buffer, uint32_t size);

// Names, each followed by a zero byte, into buffer (size bytes, at least 1) with one more zero at the end; the number
// of bytes before that zero. A list that does not fit is cut to size - 2 bytes and two zeros, and answers size - 2.
uint32_t ListAnswer(std::string_view names, char* buffer, uint32_t size);

// The section's keys as a list; the default as a text when there is no such section.
uint32_t KeyListAnswer(const IniDocument& document, std::string_view section, std::string_view defaultValue,
                       char* buffer, uint32_t size);

}  // namespace profile
