#include "publishing/core/one_page_texts.h"

#include <algorithm>
#include <cstdint>

#include "publishing/core/printed_text.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

// Small letters are rounded to whole dots.
constexpr int kRoundingPercent = 2;

// Rows between two calls of the progress.
constexpr std::size_t kRowsInAStep = 16;

}  // namespace

int AtSize(int length, int size) {
  return static_cast<int>((int64_t{length} * size + kUsualSize - 1) / kUsualSize);
}

int WidthAtSize(int width, int size) {
  return static_cast<int>((int64_t{width} * size * (100 + kRoundingPercent) + 100 * kUsualSize - 1) /
                          (100 * kUsualSize));
}

OnePageTexts::OnePageTexts(const Table& table, PageSurface& surface, const Progress& progress)
    : surface_(surface), rightToLeft_(table.rightToLeft), hasTitle_(!table.title.empty()) {
  surface_.SetSize(kUsualSize);
  for (const Column& column : table.columns) {
    MeasuredText heading = Measured(column.heading, PageFont::kHeading);
    heading.rightToLeft = publishing::IsRightToLeft(column.heading);
    heading.place = PlaceIn(column, heading.rightToLeft, rightToLeft_);
    headings_.push_back(std::move(heading));
    isLarge_.push_back(column.isLarge);
  }
  if (hasTitle_) title_.push_back(MeasuredLine(table.title, PageFont::kTitle));
  for (const std::string& remark : table.remarks) title_.push_back(MeasuredLine(remark, PageFont::kText));
  for (MeasuredText& line : title_) line.place = Place::kCenter;
  for (const std::string& note : table.notes) notes_.push_back(MeasuredLine(note, PageFont::kSmall));
  if (!headings_.empty()) ReadRows(table, progress);  // without columns nothing of them is seen
}

void OnePageTexts::ReadRows(const Table& table, const Progress& progress) {
  const std::size_t count = table.rows->Count();
  Row row;
  for (std::size_t index = 0; index < count && !isCancelled_; ++index) {
    if (progress && index % kRowsInAStep == 0) isCancelled_ = !progress(index, count);
    table.rows->Read(index, row);
    const bool isGroup = row.kind == RowKind::kGroup;
    MeasuredRow measured = {{}, isGroup || row.isBold ? PageFont::kHeading : PageFont::kText, isGroup};
    if (isGroup) measured.cells.push_back(MeasuredLine(CellOf(row, 0), PageFont::kHeading));
    for (std::size_t column = 0; column < table.columns.size() && !isGroup; ++column) {
      const Column& form = table.columns[column];
      MeasuredText cell = Measured(CellOf(row, column), FontOf(measured, column));
      cell.rightToLeft = IsRightToLeftIn(form, CellOf(row, column));
      cell.place = PlaceIn(form, cell.rightToLeft, rightToLeft_);
      measured.cells.push_back(std::move(cell));
    }
    rows_.push_back(std::move(measured));
  }
}

MeasuredText OnePageTexts::Measured(const std::string& text, PageFont font) const {
  MeasuredText measured = {.text = PrintedText(text)};
  const MeasureText measure = MeasureAt(font, kUsualSize);
  measured.whole = WidthUnwrapped(measured.text, measure);
  std::u16string_view rest = measured.text;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of(u" \n"), rest.size());
    const bool isOneWord = end == measured.text.size();
    measured.widestWord = std::max(measured.widestWord, isOneWord ? measured.whole : measure(rest.substr(0, end)));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return measured;
}

MeasuredText OnePageTexts::MeasuredLine(const std::string& text, PageFont font) const {
  MeasuredText measured = Measured(text, font);
  measured.rightToLeft = publishing::IsRightToLeft(text);
  measured.place = StartOf(text, rightToLeft_);
  return measured;
}

PageFont OnePageTexts::FontOf(const MeasuredRow& row, std::size_t column) const {
  return !row.isGroup && isLarge_[column] ? PageFont::kLarge : row.font;
}

bool OnePageTexts::HasLargeTexts() const {
  return std::find(isLarge_.begin(), isLarge_.end(), true) != isLarge_.end();
}

int OnePageTexts::LineHeight(PageFont font, int size) const {
  return AtSize(std::max(surface_.LineHeight(font), 1), size);
}

MeasureText OnePageTexts::MeasureAt(PageFont font, int size) const {
  return [this, font, size](std::u16string_view text) {
    const int width = text.empty() ? 0 : surface_.Width(font, text);
    return size == kUsualSize ? width : WidthAtSize(width, size);
  };
}

std::vector<std::u16string> OnePageTexts::Lines(const MeasuredText& text, PageFont font, int size, int width) const {
  const bool isOneLine = text.text.find(u'\n') == std::u16string::npos;
  if (isOneLine && WidthAtSize(text.whole, size) <= width) return {text.text};
  const auto lines = WrappedText(text.text, width, MeasureAt(font, size));
  return {lines.begin(), lines.end()};
}

}  // namespace publishing
