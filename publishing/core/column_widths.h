// How the columns of a table share the room there is.
#pragma once

#include <vector>

namespace publishing {

// The widths of columns in a room, in the unit of what is given (none is negative). Columns that fit have their own
// widths. Where they do not, those no wider than an equal share keep theirs, and what is left goes to the others: an
// equal share each, and the rest in proportion to what they lack.
std::vector<int> ColumnWidths(const std::vector<int>& own, int room);

// The same with widths that the columns need at least, none more than its own: where all of these together have room,
// no column gets less.
std::vector<int> ColumnWidths(const std::vector<int>& own, const std::vector<int>& least, int room);

}  // namespace publishing
