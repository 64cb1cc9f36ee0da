// How the pages of a table are drawn.
#include <algorithm>
#include <utility>

#include "publishing/core/printed_text.h"
#include "publishing/core/table_pages.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

// From so many columns on lines between the rows lead the eye.
constexpr std::size_t kWideTable = 4;

template <typename Cells>
int MostLines(const Cells& cells) {
  std::size_t most = 1;
  for (const auto& cell : cells) most = std::max(most, cell.lines.size());
  return static_cast<int>(most);
}

}  // namespace

int TablePages::BodyTop(int page) const {
  if (page == 0) return sheet_.body.y + TitleHeight();
  return sheet_.body.y + (table_.runningHead.empty() ? 0 : smallLine_ + gap_ / 2);
}

int TablePages::BodyBottom() const {
  return sheet_.body.Bottom() - textLine_ - gap_;
}

int TablePages::HeadingHeight() const {
  return MostLines(headings_) * textLine_ + 2 * rowGap_;
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
  measuring_.SetSize(size_);
  surface.SetSize(size_);
  if (page == 0) {
    DrawTitle(surface);
  } else {
    DrawRunningHead(surface);
  }
  const int y = BodyTop(page);
  const auto index = static_cast<std::size_t>(page);
  if (index >= pages_.size()) {
    DrawNotes(surface, notePages_[index - pages_.size()], y);
  } else {
    const int bottom = DrawRows(surface, pages_[index], DrawHeadings(surface, y));
    if (index + 1 == pages_.size()) DrawNotes(surface, lastNotes_, bottom + gap_);
  }
  DrawNumber(surface, page);
}

void TablePages::DrawTitle(PageSurface& surface) const {
  int y = sheet_.body.y;
  for (std::size_t text = 0; text < title_.size(); ++text) {
    const bool isTitle = hasTitle_ && text == 0;
    const int height = isTitle ? titleLine_ : textLine_;
    const auto count = static_cast<int>(title_[text].lines.size());
    DrawBlock(surface, title_[text], isTitle ? PageFont::kTitle : PageFont::kText, {0, 0, count},
              {sheet_.body.x, y, sheet_.body.width, height});
    y += count * height;
  }
}

void TablePages::DrawRunningHead(PageSurface& surface) const {
  if (table_.runningHead.empty()) return;
  const Block head = Wrapped(table_.runningHead, PageFont::kSmall, sheet_.body.width, 1);
  DrawBlock(surface, head, PageFont::kSmall, {0, 0, 1}, {sheet_.body.x, sheet_.body.y, sheet_.body.width, smallLine_});
}

int TablePages::DrawHeadings(PageSurface& surface, int y) const {
  DrawCells(surface, headings_, PageFont::kHeading, {0, 0, MostLines(headings_)}, y);
  if (!columns_.empty()) {
    const int left = std::min(columns_.front().x, columns_.back().x);
    surface.DrawRule(left, y + HeadingHeight() - rowGap_, TableWidth(), Rule::kThin);
  }
  return y + HeadingHeight();
}

int TablePages::DrawRows(PageSurface& surface, const PlannedPage& page, int y) const {
  const int left = columns_.empty() ? sheet_.body.x : std::min(columns_.front().x, columns_.back().x);
  const int groupGap = Room().groupGap;
  bool isFirst = true;
  bool afterGroup = false;
  Row row;
  for (const RowSlice& slice : page) {
    table_.rows->Read(slice.row, row);
    const bool isGroup = rows_[slice.row].isGroup;
    const PageFont font = IsBold(row) ? PageFont::kHeading : PageFont::kText;
    const Cells cells = CellsOf(row);
    if (isGroup && !isFirst && slice.firstLine == 0) y += groupGap;
    const bool hasHair = !isFirst && !isGroup && !afterGroup && columns_.size() >= kWideTable;
    if (hasHair) surface.DrawRule(left, y - rowGap_ / 2, TableWidth(), Rule::kHair);
    if (isGroup) {
      const int width = GroupWidth(CellOf(row, 0));
      const int x = table_.rightToLeft ? left + TableWidth() - width : left;
      DrawBlock(surface, cells.front(), font, slice, {x, y, width, textLine_});
    } else {
      DrawCells(surface, cells, font, slice, y);
    }
    y += slice.lineCount * textLine_ + rowGap_;
    if (isGroup) surface.DrawRule(left, y - rowGap_, TableWidth(), Rule::kHair);
    isFirst = false;
    afterGroup = isGroup;
  }
  return y;
}

void TablePages::DrawCells(PageSurface& surface, const Cells& cells, PageFont font, const RowSlice& slice,
                           int y) const {
  for (std::size_t column = 0; column < cells.size(); ++column) {
    DrawBlock(surface, cells[column], font, slice, {columns_[column].x, y, columns_[column].width, textLine_});
  }
}

// box: of the slice's first line.
void TablePages::DrawBlock(PageSurface& surface, const Block& block, PageFont font, const RowSlice& slice,
                           PageBox box) const {
  const LineStyle style = {font, block.place, block.rightToLeft};
  for (int line = 0; line < slice.lineCount; ++line, box.y += box.height) {
    const auto index = static_cast<std::size_t>(slice.firstLine + line);
    if (index >= block.lines.size()) return;
    if (!block.lines[index].empty()) surface.DrawLine(box, block.lines[index], style);
  }
}

void TablePages::DrawNotes(PageSurface& surface, const NoteLines& lines, int y) const {
  for (std::size_t line = lines.first; line < lines.first + lines.count; ++line) {
    DrawBlock(surface, notes_[line], PageFont::kText, {0, 0, 1}, {sheet_.body.x, y, sheet_.body.width, textLine_});
    y += textLine_;
  }
}

void TablePages::DrawNumber(PageSurface& surface, int page) const {
  const std::string text = PageTextOf(table_.pageText, page + 1, Count());
  Block number = Wrapped(text, PageFont::kText, sheet_.body.width, 1);
  number.place = Place::kCenter;
  DrawBlock(surface, number, PageFont::kText, {0, 0, 1},
            {sheet_.body.x, sheet_.body.Bottom() - textLine_, sheet_.body.width, textLine_});
}

}  // namespace publishing
