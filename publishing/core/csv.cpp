#include "publishing/core/csv.h"

#include <algorithm>
#include <utility>

#include "publishing/core/formula_guard.h"
#include "publishing/core/plain_text.h"
#include "publishing/core/row_passes.h"
#include "publishing/core/sink_buffer.h"

namespace publishing {
namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr char kQuote = '"';

using Record = std::vector<std::string>;

// Semicolons and tabs would be taken for separators by whoever does not expect commas, blanks at the ends be cut off.
bool NeedsQuotes(std::string_view text) {
  if (text.find_first_of("\",;\t\r\n") != std::string_view::npos) return true;
  return !text.empty() && (text.front() == ' ' || text.back() == ' ');
}

void AppendField(std::string& csv, std::string_view text) {
  const bool isGuarded = IsFormulaOrGuarded(text);
  if (!NeedsQuotes(text)) {
    if (isGuarded) csv += kFormulaGuard;
    csv += text;
    return;
  }
  csv += kQuote;
  if (isGuarded) csv += kFormulaGuard;
  for (const char byte : text) {
    if (byte == kQuote) csv += kQuote;
    csv += byte;
  }
  csv += kQuote;
}

// A record of one empty field has its quotes: an empty line would be no record.
template <typename TextOfColumn>
void AppendRecord(std::string& csv, std::size_t columns, TextOfColumn textOf) {
  std::string room;
  for (std::size_t column = 0; column < columns; ++column) {
    if (column > 0) csv += ',';
    const std::string_view text = ValidUtf8(textOf(column), room);
    if (columns == 1 && text.empty()) csv += "\"\"";
    AppendField(csv, text);
  }
  csv += "\r\n";
}

bool IsLineEnd(char byte) {
  return byte == '\r' || byte == '\n';
}

char SeparatorOf(std::string_view text) {
  bool isQuoted = false;
  bool hasSemicolon = false;
  bool hasTab = false;
  for (const char byte : text) {
    if (byte == kQuote) isQuoted = !isQuoted;
    if (isQuoted) continue;
    if (byte == ',') return ',';
    if (IsLineEnd(byte)) break;
    hasSemicolon = hasSemicolon || byte == ';';
    hasTab = hasTab || byte == '\t';
  }
  if (hasSemicolon) return ';';
  return hasTab ? '\t' : ',';
}

std::string_view WithoutEmptyLinesBefore(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of("\r\n"), text.size()));
}

class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text), separator_(SeparatorOf(text)) {}

  std::optional<std::vector<Record>> Records() {
    std::vector<Record> records;
    while (!rest_.empty()) {
      Record record;
      if (!TakeRecord(record)) return std::nullopt;
      records.push_back(std::move(record));
      rest_ = WithoutEmptyLinesBefore(rest_);
    }
    return records;
  }

 private:
  bool AtFieldEnd() const { return rest_.empty() || rest_.front() == separator_ || IsLineEnd(rest_.front()); }

  bool TakeRecord(Record& record) {
    for (;;) {
      const bool isQuoted = !rest_.empty() && rest_.front() == kQuote;
      record.emplace_back();
      if (!(isQuoted ? TakeQuoted(record.back()) : TakePlain(record.back()))) return false;
      if (record.back().starts_with(kFormulaGuard) && IsFormulaOrGuarded(record.back())) record.back().erase(0, 1);
      if (rest_.empty() || rest_.front() != separator_) return true;
      rest_.remove_prefix(1);
    }
  }

  bool TakePlain(std::string& field) {
    const auto isEnd = [this](char byte) { return byte == separator_ || IsLineEnd(byte); };
    const auto end = std::find_if(rest_.begin(), rest_.end(), isEnd);
    field.assign(rest_.begin(), end);
    rest_.remove_prefix(field.size());
    return true;
  }

  bool TakeQuoted(std::string& field) {
    rest_.remove_prefix(1);
    for (;;) {
      const std::size_t quote = rest_.find(kQuote);
      if (quote == std::string_view::npos) return false;
      field += rest_.substr(0, quote);
      rest_.remove_prefix(quote + 1);
      if (rest_.empty() || rest_.front() != kQuote) return AtFieldEnd();
      field += kQuote;
      rest_.remove_prefix(1);
    }
  }

  std::string_view rest_;
  char separator_;
};

}  // namespace

bool WriteCsv(const Table& table, TextSink& sink, const Progress& progress) {
  SinkBuffer file(sink);
  const std::size_t columns = table.columns.size();
  file.text() += kMark;
  AppendRecord(file.text(), columns,
               [&](std::size_t column) -> std::string_view { return table.columns[column].heading; });
  RowPasses passes(table, 1, progress);
  const bool isWhole = passes.ForEach([&](const Row& row, std::size_t) {
    if (row.kind == RowKind::kGroup) return;
    AppendRecord(file.text(), columns, [&](std::size_t column) -> std::string_view { return CellOf(row, column); });
    file.EndPart();
  });
  if (isWhole) file.WriteAll();
  return isWhole;
}

std::optional<std::vector<std::vector<std::string>>> CsvIn(std::string_view text) {
  if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  return Reader(WithoutEmptyLinesBefore(text)).Records();
}

}  // namespace publishing
