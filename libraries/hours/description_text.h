// Descriptions as the library answers them: 8-bit texts of at most 48 bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace hours {

constexpr size_t kMostDescriptionBytes = 48;

// UTF-8 as 8-bit text: characters up to U+00FF as windows-1252 and windows-1255 share them, Hebrew letters as
// windows-1255 has them (alef is 0xE0). Others, and what is no UTF-8, become "?".
std::string EightBitFromUtf8(std::string_view utf8);

// windows-1255 in logical order as bytes of the Hebrew display font in reading order: with all its bytes reversed, the
// text reads right when it is drawn from left to right. So numbers and Latin words are reversed, and brackets in Hebrew
// are swapped.
std::string DisplayHebrew(std::string_view logical);

// A description as it may be kept: without control characters, "|" and blanks at its ends, cut to the length.
std::string CleanDescription(std::string_view text);

// text followed by " (2)", " (3)" and so on, shortened as far as it must be.
std::string Numbered(std::string_view text, int number);

}  // namespace hours
