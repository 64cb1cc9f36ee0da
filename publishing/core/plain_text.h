// Texts of any bytes as files can hold them. What these give is the text itself where it needs no change, else what
// room holds then: it lives as long as both.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace publishing {

// UTF-8 without nulls, at which readers stop; bytes that are no UTF-8 become U+FFFD.
std::string_view ValidUtf8(std::string_view text, std::string& room);

// Takes the first line off a text, its end (LF, CR LF or CR) too; after the last line the text is empty.
std::string_view TakeLine(std::string_view& text);

// Whether a cell's text is too short to be broken over lines: dates of either calendar and times are.
bool IsKeptWhole(std::string_view text);

// That of the widest line (unicode.h).
std::size_t WidthOfLines(std::string_view text);

// Such a text in one line, as plain text and word processors show it. Line ends and tabs are blanks, a CR LF one. Other
// control characters are left out, and so are the signs that embed, isolate or turn round what follows them: nothing
// would end these at the end of a text.
std::string_view PlainLine(std::string_view text, std::string& room);

}  // namespace publishing
