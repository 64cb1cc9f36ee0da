#include "publishing/core/table_text.h"

#include <algorithm>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

constexpr char kMark[] = "\xEF\xBB\xBF";
constexpr std::size_t kGap = 2;  // blanks between columns

void AppendLine(std::string& text, std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  text += line;
  text += "\r\n";
}

class Writer {
 public:
  explicit Writer(const Table& table) : table_(table) {
    for (const Column& column : table.columns) widths_.push_back(WidthInCharacters(InOneLine(column.heading)));
    ForEachRow(table, [this](const publishing::Row& row) {
      for (std::size_t column = 0; column < widths_.size(); ++column) {
        widths_[column] = std::max(widths_[column], WidthInCharacters(InOneLine(CellOf(row, column))));
      }
    });
  }

  std::string Text() const {
    std::string text = kMark;
    if (!table_.title.empty()) AppendLine(text, InOneLine(table_.title));
    for (const std::string& remark : table_.remarks) AppendLine(text, InOneLine(remark));
    if (!table_.title.empty() || !table_.remarks.empty()) AppendLine(text, "");
    AppendLine(text, Line([&](std::size_t column) { return table_.columns[column].heading; }));
    AppendLine(text, Line([&](std::size_t column) { return std::string(widths_[column], '-'); }));
    ForEachRow(table_, [&](const publishing::Row& row) {
      AppendLine(text, Line([&](std::size_t column) { return CellOf(row, column); }));
    });
    return text;
  }

 private:
  template <typename TextOfColumn>
  std::string Line(TextOfColumn textOf) const {
    std::string line;
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      const std::string cell = InOneLine(textOf(column));
      const std::string padding(widths_[column] - WidthInCharacters(cell), ' ');
      if (column > 0) line.append(kGap, ' ');
      line += table_.columns[column].align == Align::kEnd ? padding + cell : cell + padding;
    }
    return line;
  }

  const Table& table_;
  std::vector<std::size_t> widths_;
};

}  // namespace

std::string TextOf(const Table& table) {
  return Writer(table).Text();
}

}  // namespace publishing
