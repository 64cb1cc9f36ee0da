#pragma once

#include <string>
#include <string_view>

// The text with spaces after it up to width bytes; a longer text stays whole.
std::string PadRight(std::string_view text, std::size_t width);

// Whether a text is empty or of spaces only.
bool IsBlank(std::string_view text);

// The bytes of the text from the last to the first.
std::string ReverseText(std::string_view text);

// The start of the text that one word takes up: a run of other bytes than spaces, and the spaces that follow it.
std::string_view FirstWord(std::string_view text);

// Text for an RTF file: each brace and backslash, or each byte of special, becomes \' and its code in two upper-case
// hexadecimal digits; every other byte is copied.
std::string RtfEscape(std::string_view text, std::string_view special = "{}\\");
