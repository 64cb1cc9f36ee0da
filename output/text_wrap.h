#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The text in lines. A word, with the spaces that follow it, begins a new line when it would bring the line to width
// bytes or more; so the first line is empty when the first word is that long. Lines keep their trailing spaces. An
// empty text has no lines.
std::vector<std::string> WrapText(std::string_view text, std::size_t width);
