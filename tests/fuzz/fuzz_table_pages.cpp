// Tables of any texts on sheets of any size.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "publishing/core/one_page.h"
#include "publishing/core/table_pages.h"
#include "publishing/core/unicode.h"
#include "publishing/core/wrapped_text.h"
#include "tests/fuzz/check.h"

namespace {

using namespace publishing;

constexpr int kWidth = 6;  // of a character
constexpr int kHeight = 10;
constexpr int kFewLines = 12;
constexpr char16_t kLastColumn = u'|';  // what the texts of the last column begin with

int WidthOf(std::u16string_view text) {
  return kWidth *
         static_cast<int>(std::count_if(text.begin(), text.end(), [](char16_t unit) { return !IsCombining(unit); }));
}

// Counts the rows, and sees that everything is within the sheet's body.
class CheckedPage : public PageSurface {
 public:
  explicit CheckedPage(const Sheet& sheet) : sheet_(sheet) {}
  void SetSize(int size) override { size_ = size; }
  int LineHeight(PageFont) override { return kHeight * size_ / kUsualSize; }
  int Width(PageFont, std::u16string_view text) override { return WidthOf(text) * size_ / kUsualSize; }
  void DrawLine(const PageBox& box, std::u16string_view text, const LineStyle& style) override {
    FUZZ_CHECK(box.x >= sheet_.body.x && box.Right() <= std::max(sheet_.body.Right(), box.x + 1));
    // On a sheet with room for no more than a few lines the number of the page may have to go beyond it.
    const bool hasRoom = sheet_.body.height >= kFewLines * kHeight;
    FUZZ_CHECK(!hasRoom || (box.y >= sheet_.body.y && box.Bottom() <= sheet_.body.Bottom()));
    FUZZ_CHECK(text.find(u'\n') == std::u16string_view::npos);
    if ((style.font == PageFont::kText || style.font == PageFont::kHeading) && text.starts_with(kLastColumn)) ++rows;
  }
  void DrawRule(int, int, int, Rule) override {}

  std::size_t rows = 0;

 private:
  int size_ = kUsualSize;
  Sheet sheet_;
};

// Sees that everything is within the sheet's body, and no text on another.
class CheckedOnePage : public PageSurface {
 public:
  explicit CheckedOnePage(const Sheet& sheet) : sheet_(sheet) {}
  void SetSize(int size) override { size_ = size; }
  int LineHeight(PageFont) override { return kHeight * size_ / kUsualSize; }
  int Width(PageFont, std::u16string_view text) override { return WidthOf(text) * size_ / kUsualSize; }
  void DrawLine(const PageBox& box, std::u16string_view, const LineStyle&) override {
    FUZZ_CHECK(box.x >= sheet_.body.x && box.Right() <= sheet_.body.Right());
    FUZZ_CHECK(box.y >= sheet_.body.y && box.Bottom() <= sheet_.body.Bottom());
    for (const PageBox& other : boxes_) {
      FUZZ_CHECK(box.x >= other.Right() || other.x >= box.Right() || box.y >= other.Bottom() ||
                 other.y >= box.Bottom());
    }
    boxes_.push_back(box);
  }
  void DrawRule(int x, int y, int width, Rule) override {
    FUZZ_CHECK(x >= sheet_.body.x && x + width <= sheet_.body.Right());
    FUZZ_CHECK(y >= sheet_.body.y && y <= sheet_.body.Bottom());
  }

 private:
  Sheet sheet_;
  int size_ = kUsualSize;
  std::vector<PageBox> boxes_;
};

std::u16string WithoutBlanks(std::u16string text) {
  std::erase_if(text, [](char16_t unit) { return unit == u' ' || unit == u'\n'; });
  return text;
}

void CheckWrapping(const std::string& text, int width) {
  const std::u16string wide = Utf16Of(text);
  std::u16string joined;
  for (const std::u16string_view line : WrappedText(wide, width, WidthOf)) {
    const bool isOneCharacter = WidthOf(line) <= kWidth || (line.size() == 2 && line[1] >= 0xDC00);
    FUZZ_CHECK(WidthOf(line) <= width || isOneCharacter);
    joined += line;
  }
  FUZZ_CHECK(WithoutBlanks(joined) == WithoutBlanks(wide));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const Sheet sheet = {
      1000, 1000, {50, 50, input.ConsumeIntegralInRange(1, 900), input.ConsumeIntegralInRange(1, 900)}};
  Table table;
  table.columns.resize(input.ConsumeIntegralInRange<std::size_t>(1, 4));
  std::vector<Row> rows(input.ConsumeIntegralInRange<std::size_t>(0, 12));
  table.remarks.resize(input.ConsumeIntegralInRange<std::size_t>(0, 2));
  table.title = input.ConsumeRandomLengthString(40);
  for (Column& column : table.columns) {
    column = {input.ConsumeRandomLengthString(20), Align{input.ConsumeBool()},
              Direction{input.ConsumeIntegralInRange<uint8_t>(0, 2)}, input.ConsumeBool()};
  }
  table.rightToLeft = input.ConsumeBool();
  table.notes.resize(input.ConsumeIntegralInRange<std::size_t>(0, 3));
  for (std::string& note : table.notes) note = input.ConsumeRandomLengthString(60);
  table.runningHead = input.ConsumeRandomLengthString(30);
  table.pageText = input.ConsumeRandomLengthString(20);
  std::size_t wanted = 0;
  for (Row& row : rows) {
    row.isBold = input.ConsumeBool();
    row.beginsPage = input.ConsumeBool();
    row.kind = input.ConsumeBool() ? RowKind::kGroup : RowKind::kRow;
    for (std::size_t cell = 1; cell < table.columns.size(); ++cell) {
      row.cells.push_back(input.ConsumeRandomLengthString(80));
    }
    row.cells.push_back("|");
    wanted += row.kind == RowKind::kRow ? 1 : 0;
  }
  table.rows = Listed(std::move(rows));
  CheckWrapping(input.ConsumeRemainingBytesAsString(), input.ConsumeIntegralInRange(0, 100));

  CheckedPage page(sheet);
  const TablePages pages(table, sheet, 72, page);
  FUZZ_CHECK(pages.Count() >= 1);
  for (int number = 0; number < pages.Count(); ++number) pages.Draw(page, number);
  // Other texts may begin like the last column's.
  FUZZ_CHECK(page.rows >= wanted);

  CheckedOnePage single(sheet);
  const OnePage one(table, sheet, 72, single);
  if (one.Fits()) one.Draw(single, 0);
  return 0;
}
