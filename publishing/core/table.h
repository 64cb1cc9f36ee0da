// A table as the user takes it away: on paper, as text, for a word processor, a browser or a spreadsheet. All texts are
// UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "publishing/core/unicode.h"

namespace publishing {

// Where a column's texts begin; at which side that is, each text's direction says.
enum class Align : uint8_t { kStart, kEnd };

struct Column {
  std::string heading = {};
  Align align = Align::kStart;
  Direction direction = Direction::kNeutral;  // of all its texts; kNeutral: each goes by its first letter
  bool isLarge = false;  // what readers look for from afar: its texts are larger where all is on one page
};

enum class RowKind : uint8_t {
  kRow,
  kGroup,  // its first text stands over the rows that follow, across the table
};

struct Row {
  std::vector<std::string> cells = {};  // one text a column; texts that a row lacks count as empty
  RowKind kind = RowKind::kRow;
  bool isBold = false;
  bool beginsPage = false;  // on paper and in word processors
};

// The rows of a table, one at a time: they may be many, and are made when they are wanted.
class Rows {
 public:
  Rows() = default;
  Rows(const Rows&) = delete;
  Rows& operator=(const Rows&) = delete;
  virtual ~Rows() = default;

  virtual std::size_t Count() const = 0;

  // Makes row the one of an index below Count(), whatever it was before; its texts' memory may be used again. The same
  // index gives the same row each time.
  virtual void Read(std::size_t index, Row& row) const = 0;
};

class ListedRows : public Rows {
 public:
  explicit ListedRows(std::vector<Row> rows) : rows_(std::move(rows)) {}
  std::size_t Count() const override { return rows_.size(); }
  void Read(std::size_t index, Row& row) const override { row = rows_[index]; }

 private:
  std::vector<Row> rows_;
};

inline std::shared_ptr<const Rows> Listed(std::vector<Row> rows) {
  return std::make_shared<const ListedRows>(std::move(rows));
}

// Rows that are nothing but their texts.
inline std::shared_ptr<const Rows> ListedTexts(std::vector<std::vector<std::string>> texts) {
  std::vector<Row> rows(texts.size());
  for (std::size_t index = 0; index < texts.size(); ++index) rows[index].cells = std::move(texts[index]);
  return Listed(std::move(rows));
}

struct Table {
  std::string title = {};                 // above the table; may be empty
  std::vector<std::string> remarks = {};  // lines below the title
  std::vector<Column> columns = {};
  std::shared_ptr<const Rows> rows = Listed({});
  std::vector<std::string> notes = {};     // lines below the table
  bool rightToLeft = false;                // the first column stands at the right
  std::string language = {};               // of the texts by BCP 47, as "he"; may be empty
  std::string pageText = "Page %1 of %2";  // on paper, at the foot of each page: its number and how many there are
  std::string runningHead = {};            // on paper, at the top of each page after the first; may be empty
};

// Calls with each row in turn.
template <typename Function>
void ForEachRow(const Table& table, Function call) {
  Row row;
  for (std::size_t index = 0; index < table.rows->Count(); ++index) {
    table.rows->Read(index, row);
    call(std::as_const(row));
  }
}

// The text of a row in a column.
inline const std::string& CellOf(const Row& row, std::size_t column) {
  static const std::string empty;
  return column < row.cells.size() ? row.cells[column] : empty;
}

}  // namespace publishing
