// A table's texts as pages have them.
#pragma once

#include <string>

#include "publishing/core/page_surface.h"
#include "publishing/core/table.h"

namespace publishing {

// In UTF-16, with LF for whatever ends a line and blanks for what cannot be drawn.
std::u16string PrintedText(const std::string& text);

// Whether a text of a column is written from right to left.
bool IsRightToLeftIn(const Column& column, const std::string& text);

// At which side of its column a text stands. tableRightToLeft: the first column stands at the right.
Place PlaceIn(const Column& column, bool textRightToLeft, bool tableRightToLeft);

// Where a line that is not in a column begins: title, remarks, groups, notes. One without letters goes with the table.
Place StartOf(const std::string& text, bool tableRightToLeft);

// "Page 2 of 5" of Table::pageText.
std::string PageTextOf(const std::string& pageText, int page, int count);

}  // namespace publishing
