// A table as a file of plain text.
#pragma once

#include "output/text_sink.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"

namespace publishing {

// UTF-8 with its mark, lines ended by CR LF. Columns are padded by characters and two blanks apart, their headings
// underlined with hyphens; no line ends in blanks. A group's text stands in a line of its own, after an empty one. All
// is in logical order, whichever side a table begins at. The lines of a cell stand below each other; tabs, and line
// ends in other texts, become blanks; signs that turn the direction of what follows are left out. False when progress
// ended it; what the sink got until then is no file.
bool WriteText(const Table& table, TextSink& sink, const Progress& progress = {});

}  // namespace publishing
