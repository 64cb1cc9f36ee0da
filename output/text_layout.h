#pragma once

#include <string>
#include <string_view>

// The text with spaces after it up to width bytes; a longer text stays whole.
std::string PadRight(std::string_view text, std::size_t width);

// Text for an RTF file: each brace and backslash becomes \' and its code in two upper-case hexadecimal digits; every
// other byte is copied.
std::string RtfEscape(std::string_view text);
