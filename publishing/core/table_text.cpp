#include "publishing/core/table_text.h"

#include <algorithm>

#include "publishing/core/plain_text.h"
#include "publishing/core/row_passes.h"
#include "publishing/core/sink_buffer.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

constexpr char kMark[] = "\xEF\xBB\xBF";
constexpr std::size_t kGap = 2;  // blanks between columns
constexpr std::size_t kPasses = 2;

class Writer {
 public:
  Writer(const Table& table, TextSink& sink, const Progress& progress)
      : table_(table), passes_(table, kPasses, progress), file_(sink) {}

  bool Write() {
    if (!MeasureColumns()) return false;
    file_.text() += kMark;
    WriteAbove();
    WriteColumns([&](std::size_t column) -> std::string_view { return table_.columns[column].heading; });
    std::string rule;
    WriteColumns([&](std::size_t column) -> std::string_view { return rule.assign(widths_[column], '-'); });
    const bool isWhole = passes_.ForEach([&](const Row& row, std::size_t) { WriteRow(row); });
    if (!isWhole) return false;
    if (!table_.notes.empty()) WriteLine("");
    for (const std::string& note : table_.notes) WriteLine(note);
    file_.WriteAll();
    return true;
  }

 private:
  bool MeasureColumns() {
    for (const Column& column : table_.columns) widths_.push_back(WidthInCharacters(PlainLine(column.heading, room_)));
    return passes_.ForEach([this](const Row& row, std::size_t) {
      if (row.kind == RowKind::kGroup) return;
      for (std::size_t column = 0; column < widths_.size(); ++column) {
        for (std::string_view rest = CellOf(row, column); !rest.empty();) {
          widths_[column] = std::max(widths_[column], WidthInCharacters(PlainLine(TakeLine(rest), room_)));
        }
      }
    });
  }

  void WriteAbove() {
    if (!table_.title.empty()) WriteLine(table_.title);
    for (const std::string& remark : table_.remarks) WriteLine(remark);
    if (!table_.title.empty() || !table_.remarks.empty()) WriteLine("");
  }

  void WriteRow(const Row& row) {
    if (row.kind == RowKind::kGroup) {
      WriteLine("");
      WriteLine(CellOf(row, 0));
    } else {
      WriteLinesOfCells(row);
    }
    file_.EndPart();
  }

  void WriteLinesOfCells(const Row& row) {
    rests_.clear();
    for (std::size_t column = 0; column < widths_.size(); ++column) rests_.emplace_back(CellOf(row, column));
    do {
      WriteColumns([&](std::size_t column) { return TakeLine(rests_[column]); });
    } while (std::ranges::any_of(rests_, [](std::string_view rest) { return !rest.empty(); }));
  }

  void WriteLine(std::string_view line) {
    const std::size_t begin = file_.text().size();
    file_.text() += PlainLine(line, room_);
    EndLine(begin);
  }

  template <typename TextOfColumn>
  void WriteColumns(TextOfColumn textOf) {
    std::string& text = file_.text();
    const std::size_t begin = text.size();
    for (std::size_t column = 0; column < widths_.size(); ++column) {
      const std::string_view cell = PlainLine(textOf(column), room_);
      const std::size_t padding = widths_[column] - WidthInCharacters(cell);
      const bool isAtEnd = table_.columns[column].align == Align::kEnd;
      text.append((column > 0 ? kGap : 0) + (isAtEnd ? padding : 0), ' ');
      text += cell;
      text.append(isAtEnd ? 0 : padding, ' ');
    }
    EndLine(begin);
  }

  void EndLine(std::size_t begin) {
    std::string& text = file_.text();
    while (text.size() > begin && text.back() == ' ') text.pop_back();
    text += "\r\n";
  }

  const Table& table_;
  RowPasses passes_;
  SinkBuffer file_;
  std::vector<std::size_t> widths_;
  std::string room_;
  std::vector<std::string_view> rests_;  // of a row's cells, while their lines are written
};

}  // namespace

bool WriteText(const Table& table, TextSink& sink, const Progress& progress) {
  return Writer(table, sink, progress).Write();
}

}  // namespace publishing
