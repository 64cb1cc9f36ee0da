// A table as the user takes it away: on paper, as text, for a word processor or a spreadsheet. All texts are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace publishing {

enum class Align : uint8_t { kLeft, kRight };

struct Column {
  std::string heading = {};
  Align align = Align::kLeft;
};

struct Table {
  std::string title = {};                 // above the table; may be empty
  std::vector<std::string> remarks = {};  // lines below the title
  std::vector<Column> columns = {};
  std::vector<std::vector<std::string>> rows = {};  // one text a column; texts that a row lacks count as empty
};

// The text of a row in a column.
inline const std::string& CellOf(const std::vector<std::string>& row, std::size_t column) {
  static const std::string empty;
  return column < row.size() ? row[column] : empty;
}

}  // namespace publishing
