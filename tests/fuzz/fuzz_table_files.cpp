// Tables of any texts as plain text and for word processors.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "publishing/core/table_rtf.h"
#include "publishing/core/table_text.h"
#include "publishing/core/unicode.h"
#include "tests/core/written_files.h"
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
void CheckRtf(const Table& table, const std::string& rtf) {
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
  FUZZ_CHECK(CountOf(rtf, "\n\\row\r") == table.rows->Count() + 1);
}

void CheckText(const Table& table, const std::string& text) {
  const std::size_t above = table.remarks.size() + (table.title.empty() ? 0 : 1);
  const std::size_t lines = table.rows->Count() + 2 + above + (above > 0 ? 1 : 0);
  FUZZ_CHECK(CountOf(text, "\n") == lines && CountOf(text, "\r") == lines && CountOf(text, "\r\n") == lines);
  FUZZ_CHECK(CountOf(text, " \r") == 0 && CountOf(text, "\t") == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  Table table;
  table.columns.resize(input.ConsumeIntegralInRange<std::size_t>(1, 4));
  std::vector<std::vector<std::string>> rows(input.ConsumeIntegralInRange<std::size_t>(0, 5));
  table.remarks.resize(input.ConsumeIntegralInRange<std::size_t>(0, 2));
  const RtfStyle font = {input.ConsumeRandomLengthString(20), input.ConsumeIntegral<int>()};
  table.title = input.ConsumeRandomLengthString(40);
  for (Column& column : table.columns) column = {input.ConsumeRandomLengthString(20), Align{input.ConsumeBool()}};
  for (auto& row : rows) {
    for (std::size_t cell = 0; cell < table.columns.size(); ++cell) row.push_back(input.ConsumeRandomLengthString(60));
  }
  table.rows = ListedTexts(std::move(rows));
  for (std::string& remark : table.remarks) remark = input.ConsumeRandomLengthString(40);
  CheckRtf(table, written::RtfOf(table, font));
  CheckText(table, written::TextOf(table));

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
