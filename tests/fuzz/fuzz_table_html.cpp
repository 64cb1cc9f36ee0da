// Tables of any texts as pages for browsers, read by a small reader that knows nothing but what these pages have.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "publishing/core/unicode.h"
#include "tests/core/written_files.h"
#include "tests/fuzz/any_table.h"
#include "tests/fuzz/check.h"

namespace {

using namespace publishing;

// What a page shows of a text: valid characters that HTML allows, line ends as LF.
std::string AsShown(std::string_view text) {
  std::string shown;
  char32_t before = 0;
  while (!text.empty()) {
    char32_t character = TakeCharacter(text);
    const bool isSecondOfTwo = character == '\n' && before == '\r';
    before = character;
    if (isSecondOfTwo) continue;
    if (character == '\r') character = '\n';
    if ((character & 0xFFFE) == 0xFFFE || (character >= 0xFDD0 && character <= 0xFDEF)) character = 0xFFFD;
    if (character == '\n' || character == '\t' || !IsControl(character)) AppendUtf8(shown, character);
  }
  return shown;
}

class Reader {
 public:
  explicit Reader(std::string_view page) : rest_(page) {}

  // The texts of the cells of rows, in their order.
  std::vector<std::string> Cells() {
    Expect("<!DOCTYPE html>\n");
    while (!rest_.empty()) rest_.front() == '<' ? TakeTag() : TakeText();
    FUZZ_CHECK(open_.empty());
    return cells_;
  }

 private:
  void Expect(std::string_view text) {
    FUZZ_CHECK(rest_.starts_with(text));
    rest_.remove_prefix(text.size());
  }

  std::string_view TakeUntil(std::string_view signs) {
    const std::size_t end = rest_.find_first_of(signs);
    FUZZ_CHECK(end != std::string_view::npos);
    const std::string_view taken = rest_.substr(0, end);
    rest_.remove_prefix(end);
    return taken;
  }

  void TakeTag() {
    Expect("<");
    const bool closes = rest_.starts_with("/");
    if (closes) Expect("/");
    const std::string name(TakeUntil(" >"));
    FUZZ_CHECK(!name.empty() &&
               std::all_of(name.begin(), name.end(), [](char at) { return (at >= 'a' && at <= 'z') || at == '1'; }));
    while (rest_.starts_with(" ")) TakeAttribute();
    Expect(">");
    if (closes) {
      FUZZ_CHECK(!open_.empty() && open_.back() == name);
      open_.pop_back();
    } else if (name != "meta") {
      Open(name);
    }
  }

  void Open(const std::string& name) {
    if (name == "td") cells_.emplace_back();
    open_.push_back(name);
    if (name == "style") rest_.remove_prefix(std::min(rest_.find("</style>"), rest_.size()));
  }

  void TakeAttribute() {
    Expect(" ");
    const std::string_view name = TakeUntil("=");
    FUZZ_CHECK(name.find_first_of(" <>\"'&") == std::string_view::npos);
    Expect("=\"");
    Unescaped(TakeUntil("\""));
    Expect("\"");
  }

  void TakeText() {
    const std::size_t end = std::min(rest_.find('<'), rest_.size());
    const std::string text = Unescaped(rest_.substr(0, end));
    rest_.remove_prefix(end);
    const bool isOfCell = std::find(open_.begin(), open_.end(), "td") != open_.end();
    if (isOfCell) {
      FUZZ_CHECK(open_.back() == "bdi");
      cells_.back() += text;
    }
  }

  static std::string Unescaped(std::string_view text) {
    constexpr std::pair<std::string_view, char> kEscapes[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&#39;", '\''}};
    FUZZ_CHECK(text.find_first_of("<>\"'\r") == std::string_view::npos);
    std::string unescaped;
    while (!text.empty()) {
      const auto* const escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                              [&](const auto& one) { return text.starts_with(one.first); });
      FUZZ_CHECK(text.front() != '&' || escape != std::end(kEscapes));
      unescaped += escape != std::end(kEscapes) ? escape->second : text.front();
      text.remove_prefix(escape != std::end(kEscapes) ? escape->first.size() : 1);
    }
    FUZZ_CHECK(AsShown(unescaped) == unescaped);
    return unescaped;
  }

  std::string_view rest_;
  std::vector<std::string> open_;
  std::vector<std::string> cells_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto [table, rows] = AnyTable(input);
  std::vector<std::string> expected;
  for (const Row& row : rows) {
    if (row.kind == RowKind::kGroup) continue;
    for (std::size_t column = 0; column < table.columns.size(); ++column)
      expected.push_back(AsShown(CellOf(row, column)));
  }
  const std::string page = written::HtmlOf(table);
  FUZZ_CHECK(Reader(page).Cells() == expected);
  return 0;
}
