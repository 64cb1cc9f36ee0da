#include "publishing/core/table_pages.h"

#include <algorithm>
#include <utility>

#include "publishing/core/column_widths.h"
#include "publishing/core/unicode.h"
#include "publishing/core/wrapped_text.h"

namespace publishing {
namespace {

// Parts of an inch.
constexpr int kGapsInAnInch = 8;
constexpr int kRowGapsInAnInch = 48;

// The share of a page that title and headings get at most, so that rows have room whatever they say.
constexpr int kTitleShare = 2;
constexpr int kHeadingShare = 3;

// In UTF-16, with LF for whatever ends a line and blanks for what cannot be drawn.
std::u16string PrintedText(const std::string& text) {
  std::u16string printed;
  bool afterReturn = false;
  for (const char16_t unit : Utf16Of(text)) {
    if (!(unit == u'\n' && afterReturn)) {
      const bool isLineEnd = unit == u'\n' || unit == u'\r';
      const bool isControl = unit < u' ' || unit == 0x7F;
      printed += isLineEnd ? u'\n' : isControl ? u' ' : unit;
    }
    afterReturn = unit == u'\r';
  }
  return printed;
}

MeasureText MeasureWith(PageSurface& surface, PageFont font) {
  return [&surface, font](std::u16string_view text) { return text.empty() ? 0 : surface.Width(font, text); };
}

template <typename Cells>
int MostLines(const Cells& cells) {
  std::size_t most = 1;
  for (const auto& cell : cells) most = std::max(most, cell.lines.size());
  return static_cast<int>(most);
}

}  // namespace

TablePages::TablePages(const Table& table, const Sheet& sheet, int dotsPerInch, PageSurface& surface)
    : sheet_(sheet),
      gap_(std::max(dotsPerInch / kGapsInAnInch, 1)),
      rowGap_(dotsPerInch / kRowGapsInAnInch),
      titleLine_(std::max(surface.LineHeight(PageFont::kTitle), 1)),
      headingLine_(std::max(surface.LineHeight(PageFont::kHeading), 1)),
      textLine_(std::max(surface.LineHeight(PageFont::kText), 1)),
      hasTitle_(!table.title.empty()) {
  PlaceColumns(table, surface);
  WrapHeadings(table, surface);
  WrapTitle(table, surface);
  WrapRows(table, surface);
  Plan();
}

void TablePages::PlaceColumns(const Table& table, PageSurface& surface) {
  const MeasureText ofHeading = MeasureWith(surface, PageFont::kHeading);
  const MeasureText ofText = MeasureWith(surface, PageFont::kText);
  std::vector<int> own;
  for (const Column& column : table.columns) {
    own.push_back(WidthUnwrapped(PrintedText(column.heading), ofHeading) + gap_);
  }
  ForEachRow(table, [&](const Row& row) {
    for (std::size_t column = 0; column < own.size(); ++column) {
      own[column] = std::max(own[column], WidthUnwrapped(PrintedText(CellOf(row, column)), ofText) + gap_);
    }
  });
  // Behind the last column there is no gap to keep.
  const std::vector<int> widths = ColumnWidths(own, std::max(sheet_.body.width + gap_, 0));
  isNarrowed_ = widths != own;
  int x = sheet_.body.x;
  for (std::size_t column = 0; column < widths.size(); ++column) {
    columns_.push_back({x, std::max(widths[column] - gap_, 1), table.columns[column].align});
    x += widths[column];
  }
}

void TablePages::WrapHeadings(const Table& table, PageSurface& surface) {
  const MeasureText measure = MeasureWith(surface, PageFont::kHeading);
  const auto most = static_cast<std::size_t>(std::max(sheet_.body.height / kHeadingShare / headingLine_, 1));
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    const std::string& heading = table.columns[column].heading;
    const std::u16string text = PrintedText(heading);
    const int width = columns_[column].width;
    headings_.push_back({FirstLines(WrappedText(text, width, measure), most, width, measure), IsRightToLeft(heading)});
  }
}

void TablePages::WrapTitle(const Table& table, PageSurface& surface) {
  int room = sheet_.body.height / kTitleShare;
  const auto add = [&](const std::string& text, PageFont font, int lineHeight) {
    if (room < lineHeight && !title_.empty()) return;
    const MeasureText measure = MeasureWith(surface, font);
    const std::u16string printed = PrintedText(text);
    const int width = sheet_.body.width;
    const auto most = static_cast<std::size_t>(std::max(room / lineHeight, 1));
    title_.push_back({FirstLines(WrappedText(printed, width, measure), most, width, measure), IsRightToLeft(text)});
    room -= static_cast<int>(title_.back().lines.size()) * lineHeight;
  };
  if (hasTitle_) add(table.title, PageFont::kTitle, titleLine_);
  for (const std::string& remark : table.remarks) add(remark, PageFont::kText, textLine_);
}

void TablePages::WrapRows(const Table& table, PageSurface& surface) {
  const MeasureText measure = MeasureWith(surface, PageFont::kText);
  ForEachRow(table, [&](const Row& row) {
    Cells cells;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      const std::u16string text = PrintedText(CellOf(row, column));
      const auto lines = WrappedText(text, columns_[column].width, measure);
      cells.push_back({{lines.begin(), lines.end()}, IsRightToLeft(CellOf(row, column))});
    }
    rows_.push_back(std::move(cells));
  });
}

void TablePages::Plan() {
  std::vector<int> lineCounts;
  for (const Cells& row : rows_) lineCounts.push_back(MostLines(row));
  const int room = BodyBottom() - sheet_.body.y - HeadingHeight();
  pages_ = PlanPages(lineCounts,
                     {.onFirst = room - TitleHeight(), .onOthers = room, .lineHeight = textLine_, .rowGap = rowGap_});
}

int TablePages::BodyBottom() const {
  return sheet_.body.Bottom() - textLine_ - gap_;
}

int TablePages::HeadingHeight() const {
  return MostLines(headings_) * headingLine_ + 2 * rowGap_;
}

int TablePages::TitleHeight() const {
  int height = title_.empty() ? 0 : gap_;
  for (std::size_t text = 0; text < title_.size(); ++text) {
    const int line = hasTitle_ && text == 0 ? titleLine_ : textLine_;
    height += static_cast<int>(title_[text].lines.size()) * line;
  }
  return height;
}

void TablePages::Draw(PageSurface& surface, int page) const {
  int y = page == 0 ? DrawTitle(surface) : sheet_.body.y;
  y = DrawHeadings(surface, y);
  for (const RowSlice& slice : pages_[static_cast<std::size_t>(page)]) {
    DrawCells(surface, rows_[slice.row], PageFont::kText, slice, y);
    y += slice.lineCount * textLine_ + rowGap_;
  }
  DrawNumber(surface, page);
}

int TablePages::DrawTitle(PageSurface& surface) const {
  int y = sheet_.body.y;
  for (std::size_t text = 0; text < title_.size(); ++text) {
    const bool isTitle = hasTitle_ && text == 0;
    const int height = isTitle ? titleLine_ : textLine_;
    const bool rightToLeft = title_[text].rightToLeft;
    for (const std::u16string& line : title_[text].lines) {
      surface.DrawLine({sheet_.body.x, y, sheet_.body.width, height}, line,
                       {.font = isTitle ? PageFont::kTitle : PageFont::kText,
                        .place = rightToLeft ? Place::kRight : Place::kLeft,
                        .rightToLeft = rightToLeft});
      y += height;
    }
  }
  return sheet_.body.y + TitleHeight();
}

int TablePages::DrawHeadings(PageSurface& surface, int y) const {
  DrawCells(surface, headings_, PageFont::kHeading, {0, 0, MostLines(headings_)}, y);
  if (!columns_.empty()) {
    const int right = columns_.back().x + columns_.back().width;
    surface.DrawRule(sheet_.body.x, y + HeadingHeight() - rowGap_, right - sheet_.body.x);
  }
  return y + HeadingHeight();
}

void TablePages::DrawCells(PageSurface& surface, const Cells& cells, PageFont font, const RowSlice& slice,
                           int y) const {
  const int height = font == PageFont::kHeading ? headingLine_ : textLine_;
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const Block& cell = cells[column];
    const bool atRight = cell.rightToLeft || columns_[column].align == Align::kEnd;
    const LineStyle style = {font, atRight ? Place::kRight : Place::kLeft, cell.rightToLeft};
    for (int line = 0; line < slice.lineCount; ++line) {
      const auto index = static_cast<std::size_t>(slice.firstLine + line);
      if (index >= cell.lines.size()) break;
      const PageBox box = {columns_[column].x, y + line * height, columns_[column].width, height};
      if (!cell.lines[index].empty()) surface.DrawLine(box, cell.lines[index], style);
    }
  }
}

void TablePages::DrawNumber(PageSurface& surface, int page) const {
  const std::u16string text = Utf16Of("Page " + std::to_string(page + 1) + " of " + std::to_string(Count()));
  surface.DrawLine({sheet_.body.x, sheet_.body.Bottom() - textLine_, sheet_.body.width, textLine_}, text,
                   {.font = PageFont::kText, .place = Place::kCenter, .rightToLeft = false});
}

}  // namespace publishing
