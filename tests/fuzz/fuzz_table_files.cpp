// Tables of any texts as plain text and for word processors.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "publishing/core/plain_text.h"
#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"
#include "publishing/core/unicode.h"
#include "tests/core/written_files.h"
#include "tests/fuzz/any_table.h"
#include "tests/fuzz/check.h"

namespace {

using namespace publishing;

std::size_t CountOf(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

bool IsRtfByte(char byte) {
  return (byte >= ' ' && byte < 0x7F) || byte == '\r' || byte == '\n';
}

// Groups are balanced, nothing stands after the outermost, and every row has its cells.
void CheckRtf(const std::vector<Row>& rows, const std::string& rtf) {
  FUZZ_CHECK(std::all_of(rtf.begin(), rtf.end(), IsRtfByte));
  std::size_t depth = 0;
  for (std::size_t at = 0; at < rtf.size(); ++at) {
    if (rtf[at] == '\\' && (rtf[at + 1] == '\\' || rtf[at + 1] == '{' || rtf[at + 1] == '}')) {
      ++at;
    } else if (rtf[at] == '{') {
      ++depth;
    } else if (rtf[at] == '}') {
      FUZZ_CHECK(depth > 0);
      --depth;
      FUZZ_CHECK(depth > 0 || at + 3 == rtf.size());
    }
  }
  FUZZ_CHECK(depth == 0);
  // A text's own backslash is doubled, so what begins a line is markup.
  std::size_t headings = 1;
  for (std::size_t row = 1; row < rows.size(); ++row) headings += rows[row].beginsPage;
  FUZZ_CHECK(CountOf(rtf, "\n\\row\r") == rows.size() + headings);
}

// Of the columns that there are.
std::size_t LinesOf(const Row& row, std::size_t columns) {
  std::size_t most = 1;
  for (std::size_t column = 0; column < columns; ++column) {
    std::string_view rest = CellOf(row, column);
    std::size_t count = 0;
    for (; !rest.empty(); ++count) TakeLine(rest);
    most = std::max(most, count);
  }
  return most;
}

// Every text in its lines, without anything that leaves them.
void CheckText(const Table& table, const std::vector<Row>& rows, const std::string& text) {
  const std::size_t above = table.remarks.size() + (table.title.empty() ? 0 : 1);
  const std::size_t below = table.notes.empty() ? 0 : table.notes.size() + 1;
  std::size_t lines = rows.size() + 2 + above + (above > 0 ? 1 : 0) + below;
  for (const Row& row : rows) lines += row.kind == RowKind::kGroup ? 1 : LinesOf(row, table.columns.size()) - 1;
  FUZZ_CHECK(CountOf(text, "\n") == lines && CountOf(text, "\r") == lines && CountOf(text, "\r\n") == lines);
  FUZZ_CHECK(CountOf(text, " \r") == 0);
  for (std::string_view rest = text; !rest.empty();) {
    const bool isReplacement = rest.starts_with("\xEF\xBF\xBD");
    const char32_t character = TakeCharacter(rest);
    FUZZ_CHECK(character != 0xFFFD || isReplacement);
    FUZZ_CHECK(character == '\r' || character == '\n' || !IsControl(character));
    FUZZ_CHECK(!(character >= 0x202A && character <= 0x202E) && !(character >= 0x2066 && character <= 0x2069));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const RtfStyle style = {input.ConsumeRandomLengthString(20), input.ConsumeIntegral<int>(),
                          PaperSize{input.ConsumeBool()}, Orientation{input.ConsumeIntegralInRange<uint8_t>(0, 2)}};
  const auto [table, rows] = AnyTable(input);
  CheckRtf(rows, written::RtfOf(table, style));
  CheckText(table, rows, written::TextOf(table));

  // In logical order, runs are the text.
  const std::string text = input.ConsumeRemainingBytesAsString();
  std::u16string joined;
  for (const DirectedRun& run : RunsOf(text)) {
    FUZZ_CHECK(!run.characters.empty());
    for (const char32_t character : run.characters) AppendUtf16(joined, character);
  }
  FUZZ_CHECK(joined == Utf16Of(text));
  return 0;
}
