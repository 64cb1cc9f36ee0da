// A table as a file of plain text.
#pragma once

#include <string>

#include "publishing/core/table.h"

namespace publishing {

// UTF-8 with its mark, lines ended by CR LF. Columns are padded by characters and two blanks apart, their headings
// underlined with hyphens; no line ends in blanks. Line ends and tabs within a text become blanks.
std::string TextOf(const Table& table);

}  // namespace publishing
