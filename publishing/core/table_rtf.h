// A table as a file for word processors.
#pragma once

#include <string>

#include "publishing/core/table.h"

namespace publishing {

struct RtfFont {
  std::string face;  // UTF-8
  int halfPoints = 20;
};

// RTF in ASCII, on A4; across the sheet when the columns need it. The row of headings is repeated on every page.
// Texts whose first letter is Hebrew or Arabic are written and aligned from right to left, and so are such parts of
// other texts. Line ends and tabs within a text become blanks.
std::string RtfOf(const Table& table, const RtfFont& font);

}  // namespace publishing
