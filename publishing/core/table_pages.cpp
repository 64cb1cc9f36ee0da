#include "publishing/core/table_pages.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>

#include "publishing/core/column_widths.h"
#include "publishing/core/plain_text.h"
#include "publishing/core/printed_text.h"
#include "publishing/core/unicode.h"
#include "publishing/core/wrapped_text.h"

namespace publishing {
namespace {

// Parts of an inch.
constexpr int kGapsInAnInch = 8;
constexpr int kRowGapsInAnInch = 48;

// Letters are made smaller until every word has room, down to lines of 7 points, which is about 6 for the letters.
constexpr int kLeastLinePoints = 7;
constexpr int kPointsInAnInch = 72;

// Small letters are rounded: they may be so much wider than the size says. What is still too wide is measured once
// more.
constexpr int kRoundingPercent = 2;
constexpr int kAttempts = 2;

// The work is done in steps of all rows each: measured, measured again when letters are smaller, lines counted.
constexpr std::size_t kSteps = 2 + kAttempts;

// Words wider than this part of the page do not make the letters small; they are broken where they must.
constexpr int kWideWords = 4;

// The share of a page that title, headings and a row's group get at most, so that rows have room whatever they say.
constexpr int kTitleShare = 2;
constexpr int kHeadingShare = 3;

// Rows between two calls of the progress.
constexpr std::size_t kRowsInACall = 64;

int Scaled(int length, int size) {
  return static_cast<int>(static_cast<int64_t>(length) * size / kUsualSize);
}

int Sum(const std::vector<int>& numbers) {
  const int64_t sum = std::accumulate(numbers.begin(), numbers.end(), int64_t{0});
  return static_cast<int>(std::min<int64_t>(sum, std::numeric_limits<int>::max()));
}

}  // namespace

TablePages::TablePages(const Table& table, const Sheet& sheet, int dotsPerInch, PageSurface& surface,
                       const Progress& progress)
    : table_(table),
      measuring_(surface),
      textWidths_(surface, PageFont::kText),
      boldWidths_(surface, PageFont::kHeading),
      sheet_(sheet),
      dotsPerInch_(dotsPerInch),
      gap_(std::max(dotsPerInch / kGapsInAnInch, 1)),
      rowGap_(dotsPerInch / kRowGapsInAnInch),
      hasTitle_(!table.title.empty()) {
  measuring_.SetSize(kUsualSize);
  MeasureRows(progress, 0);
  MakeRoomForWords(progress);
  if (isCancelled_) return;
  PlaceColumns();
  const auto line = [this](PageFont font) { return std::max(measuring_.LineHeight(font), 1); };
  textLine_ = std::max(line(PageFont::kText), line(PageFont::kHeading));
  titleLine_ = line(PageFont::kTitle);
  smallLine_ = line(PageFont::kSmall);
  WrapHeadings();
  WrapTitle();
  WrapNotes();
  CountLines(progress);
  if (!isCancelled_) Plan();
}

// Whether to go on, before each row. step: from 0.
bool TablePages::GoesOn(const Progress& progress, std::size_t step, std::size_t row) {
  const std::size_t count = table_.rows->Count();
  if (progress && row % kRowsInACall == 0) isCancelled_ = !progress(step * count + row, kSteps * count);
  return !isCancelled_;
}

// Widths of all texts at the letters' size, and what kind each row is.
void TablePages::MeasureRows(const Progress& progress, std::size_t step) {
  own_.clear();
  least_.clear();
  rows_.clear();
  for (const Column& column : table_.columns) {
    const TextWidth width = boldWidths_.Of(column.heading);
    own_.push_back(width.whole);
    least_.push_back(width.widestWord);
  }
  const std::size_t count = table_.rows->Count();
  rows_.reserve(count);
  Row row;
  for (std::size_t index = 0; index < count && GoesOn(progress, step, index); ++index) {
    table_.rows->Read(index, row);
    rows_.push_back({1, row.kind == RowKind::kGroup, row.beginsPage});
    if (row.kind == RowKind::kGroup) continue;
    TextWidths& widths = row.isBold ? boldWidths_ : textWidths_;
    for (std::size_t column = 0; column < own_.size(); ++column) {
      const TextWidth width = widths.Of(CellOf(row, column));
      own_[column] = std::max(own_[column], width.whole);
      const bool isWhole = IsKeptWhole(CellOf(row, column));
      least_[column] = std::max(least_[column], isWhole ? width.whole : width.widestWord);
      haveLineEnds_ = haveLineEnds_ || !width.isOneLine;
    }
  }
  for (int& width : least_) width = std::min(width, sheet_.body.width / kWideWords);
}

// How wide columns are together. Behind the last one there is no gap to keep.
int TablePages::WidthOf(const std::vector<int>& columns) const {
  return Sum(columns) + (static_cast<int>(columns.size()) - 1) * gap_;
}

// Smaller gaps, and then smaller letters, until all words have room, if they can.
void TablePages::MakeRoomForWords(const Progress& progress) {
  if (WidthOf(least_) <= sheet_.body.width) return;
  const int usualGap = std::max(gap_ / 2, 1);
  const int usualRowGap = rowGap_;
  gap_ = usualGap;
  const int line = std::max(measuring_.LineHeight(PageFont::kText), 1);
  const int smallest = std::min(kUsualSize * kLeastLinePoints * dotsPerInch_ / kPointsInAnInch / line, kUsualSize);
  for (std::size_t attempt = 1; attempt <= kAttempts; ++attempt) {
    const int needed = WidthOf(least_);
    if (needed <= sheet_.body.width || size_ <= smallest || isCancelled_) return;
    const auto fitting = static_cast<int>(int64_t{size_} * sheet_.body.width / needed);
    size_ = std::max(fitting * (100 - kRoundingPercent) / 100, smallest);
    gap_ = std::max(Scaled(usualGap, size_), 1);
    rowGap_ = Scaled(usualRowGap, size_);
    measuring_.SetSize(size_);
    textWidths_.Forget();
    boldWidths_.Forget();
    MeasureRows(progress, attempt);
  }
}

void TablePages::PlaceColumns() {
  std::vector<int> own = own_;
  std::vector<int> least = least_;
  for (int& width : own) width += gap_;
  for (int& width : least) width += gap_;
  const std::vector<int> widths = ColumnWidths(own, least, std::max(sheet_.body.width + gap_, 0));
  isNarrowed_ = widths != own || size_ != kUsualSize;
  int x = 0;
  for (const int width : widths) {
    const int inner = std::max(width - gap_, 1);
    const int left = table_.rightToLeft ? std::max(sheet_.body.width - x - inner, 0) : x;
    columns_.push_back({sheet_.body.x + left, inner});
    x += width;
  }
}

TablePages::Block TablePages::Wrapped(const std::string& text, PageFont font, int width, std::size_t mostLines) const {
  const MeasureText measure = [this, font](std::u16string_view line) {
    return line.empty() ? 0 : measuring_.Width(font, line);
  };
  const std::u16string printed = PrintedText(text);
  return {FirstLines(WrappedText(printed, width, measure), mostLines, width, measure), IsRightToLeft(text),
          StartOf(text, table_.rightToLeft)};
}

void TablePages::WrapHeadings() {
  const auto most = static_cast<std::size_t>(std::max(sheet_.body.height / kHeadingShare / textLine_, 1));
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    const Column& form = table_.columns[column];
    Block block = Wrapped(form.heading, PageFont::kHeading, columns_[column].width, most);
    block.place = PlaceIn(form, block.rightToLeft, table_.rightToLeft);
    headings_.push_back(std::move(block));
  }
}

void TablePages::WrapTitle() {
  int room = sheet_.body.height / kTitleShare;
  const auto add = [&](const std::string& text, PageFont font, int lineHeight) {
    if (room < lineHeight && !title_.empty()) return;
    title_.push_back(Wrapped(text, font, sheet_.body.width, static_cast<std::size_t>(std::max(room / lineHeight, 1))));
    room -= static_cast<int>(title_.back().lines.size()) * lineHeight;
  };
  if (hasTitle_) add(table_.title, PageFont::kTitle, titleLine_);
  for (const std::string& remark : table_.remarks) add(remark, PageFont::kText, textLine_);
}

void TablePages::WrapNotes() {
  for (const std::string& note : table_.notes) {
    const Block block = Wrapped(note, PageFont::kText, sheet_.body.width, std::numeric_limits<std::size_t>::max());
    for (const std::u16string& line : block.lines) notes_.push_back({{line}, block.rightToLeft, block.place});
  }
}

TablePages::Cells TablePages::CellsOf(const Row& row) const {
  if (row.kind == RowKind::kGroup) {
    const auto most = static_cast<std::size_t>(std::max(sheet_.body.height / kHeadingShare / textLine_, 1));
    return {Wrapped(CellOf(row, 0), PageFont::kHeading, GroupWidth(CellOf(row, 0)), most)};
  }
  const TextWidths& widths = row.isBold ? boldWidths_ : textWidths_;
  const MeasureText measure = [&widths](std::u16string_view text) { return widths.Measure(text); };
  Cells cells;
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    const std::string& text = CellOf(row, column);
    const Column& form = table_.columns[column];
    const std::u16string printed = PrintedText(text);
    const auto lines = WrappedText(printed, columns_[column].width, measure);
    const bool rightToLeft = IsRightToLeftIn(form, text);
    cells.push_back({{lines.begin(), lines.end()}, rightToLeft, PlaceIn(form, rightToLeft, table_.rightToLeft)});
  }
  return cells;
}

int TablePages::LinesOf(const Row& row) {
  if (row.kind == RowKind::kGroup) return static_cast<int>(CellsOf(row).front().lines.size());
  TextWidths& widths = row.isBold ? boldWidths_ : textWidths_;
  const MeasureText measure = [&widths](std::u16string_view text) { return widths.Measure(text); };
  std::size_t most = 1;
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    const std::string& text = CellOf(row, column);
    const TextWidth width = widths.Of(text);
    if (width.isOneLine && width.whole <= columns_[column].width) continue;
    const std::u16string printed = PrintedText(text);
    most = std::max(most, WrappedText(printed, columns_[column].width, measure).size());
  }
  return static_cast<int>(most);
}

void TablePages::CountLines(const Progress& progress) {
  const bool haveWrapped = isNarrowed_ || haveLineEnds_;
  Row row;
  for (std::size_t index = 0; index < rows_.size() && GoesOn(progress, kSteps - 1, index); ++index) {
    if (!haveWrapped && !rows_[index].isGroup) continue;
    table_.rows->Read(index, row);
    rows_[index].lineCount = LinesOf(row);
  }
}

PageRoom TablePages::Room() const {
  const auto from = [this](int page) { return BodyBottom() - BodyTop(page) - HeadingHeight(); };
  return {.onFirst = from(0), .onOthers = from(1), .lineHeight = textLine_, .rowGap = rowGap_, .groupGap = gap_ / 2};
}

void TablePages::Plan() {
  pages_ = PlanPages(rows_, Room());
  PlanNotes();
}

// Together, below the last row or on a page more; several pages only when one is too small.
void TablePages::PlanNotes() {
  const PageRoom room = Room();
  const bool isFirst = pages_.size() == 1;
  const int left = (isFirst ? room.onFirst : room.onOthers) - HeightOf(pages_.back(), rows_, room) - gap_;
  if (static_cast<int>(notes_.size()) <= left / textLine_) {
    lastNotes_ = {0, notes_.size()};
    return;
  }
  const auto onPage = static_cast<std::size_t>(std::max((BodyBottom() - BodyTop(1)) / textLine_, 1));
  for (std::size_t first = 0; first < notes_.size(); first += onPage) {
    notePages_.push_back({first, std::min(onPage, notes_.size() - first)});
  }
}

// As wide as the table, or as the page where that is not enough.
int TablePages::GroupWidth(const std::string& text) const {
  const int width = TableWidth();
  return boldWidths_.Of(text).whole <= width ? width : sheet_.body.width;
}

int TablePages::TableWidth() const {
  if (columns_.empty()) return sheet_.body.width;
  const ColumnPlace& first = columns_.front();
  const ColumnPlace& last = columns_.back();
  return std::max(first.x + first.width, last.x + last.width) - std::min(first.x, last.x);
}

}  // namespace publishing
