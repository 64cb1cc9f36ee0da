// Texts in lines of a limited width.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace publishing {

using MeasureText = std::function<int(std::u16string_view)>;

// The lines of a text, without the blanks at which they were broken; at least one. A word that is wider than a line is
// broken between characters. Each line has at least one character, even where that is too wide. Line ends of the text
// (LF) end lines. The lines are views of the text.
std::vector<std::u16string_view> WrappedText(std::u16string_view text, int width, const MeasureText& measure);

// The width of a text that is not wrapped: that of its widest line.
int WidthUnwrapped(std::u16string_view text, const MeasureText& measure);

// The first lines of a text, the last one ended by an ellipsis when there are more. most: at least 1.
std::vector<std::u16string> FirstLines(const std::vector<std::u16string_view>& lines, std::size_t most, int width,
                                       const MeasureText& measure);

}  // namespace publishing
