// What the libraries' text files have in common: lines, and texts with any bytes in them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace settings_folder {

// A line without and with what ends it: CR, LF, both, or nothing at the end of the text.
struct Line {
  std::string_view content;
  std::string_view end;
};

// The length of the UTF-8 byte order mark that the text starts with, or 0.
size_t MarkLength(std::string_view text);

// Takes the first line off the text, which is not empty.
Line TakeLine(std::string_view& text);

// All lines of a text without a mark, as they stand.
std::vector<Line> LinesOf(std::string_view text);

// How the text's first line ends; CR and LF when it does not.
std::string_view FirstLineEnd(std::string_view text);

// A text as it is written in a line: "%" and two hexadecimal digits stand for the bytes of "%", of control characters,
// of spaces and tabs at either end, and of each of the separators. All other bytes stand for themselves.
std::string PercentCoded(std::string_view text, std::string_view separators = {});

// The bytes that a written text stands for; none where a "%" is not followed by two hexadecimal digits.
std::optional<std::string> PercentDecoded(std::string_view written);

}  // namespace settings_folder
