#include "zmanim/core/zmanim_geometry.h"

#include <algorithm>

#include "win/core/list_scroll.h"

namespace {

// The steps of a size, counted from first on, that lie in the pixels from begin up to end; no more than there are.
IndexRange StepsIn(int begin, int end, int size, uint32_t first, uint32_t count) {
  if (size <= 0 || end <= 0 || end <= begin || first >= count) return {first, first};
  const int64_t from = first + int64_t{std::max(begin, 0) / size};
  const int64_t to = first + (int64_t{end} + size - 1) / size;
  const auto clamped = [count](int64_t index) { return static_cast<uint32_t>(std::min<int64_t>(index, count)); };
  return {clamped(from), clamped(to)};
}

int Steps(uint32_t index, uint32_t first) {
  return static_cast<int>(int64_t{index} - first);
}

}  // namespace

int ZmanimGeometry::ColumnWidth() const {
  return visibleColumns > 0 ? std::max(clientWidth - dateWidth, 0) / visibleColumns : 0;
}

int ZmanimGeometry::WholeRows() const {
  return rowHeight > 0 ? std::max(clientHeight, 0) / rowHeight : 0;
}

int ZmanimGeometry::LastFirstDay() const {
  return LastScrollPosition(dayCount, WholeRows());
}

int ZmanimGeometry::LastFirstZman() const {
  return LastScrollPosition(zmanCount, visibleColumns);
}

PaneRect ZmanimGeometry::CellRect(const ZmanimCell& cell) const {
  const int width = ColumnWidth();
  return {dateWidth + Steps(cell.zman, firstZman) * width, Steps(cell.day, firstDay) * rowHeight, width, rowHeight};
}

PaneRect ZmanimGeometry::DateRect(uint32_t day) const {
  return {0, CellRect({day, firstZman}).y, dateWidth + textIndent, rowHeight};
}

PaneRect ZmanimGeometry::ColumnsRect(int height) const {
  return {dateWidth, 0, std::max(clientWidth - dateWidth, 0), height};
}

std::optional<ZmanimCell> ZmanimGeometry::CellAt(int x, int y) const {
  if (x < dateWidth || y < 0) return std::nullopt;
  const IndexRange days = StepsIn(y, y + 1, rowHeight, firstDay, dayCount);
  const IndexRange zmanim = StepsIn(x - dateWidth, x - dateWidth + 1, ColumnWidth(), firstZman, zmanCount);
  if (days.begin == days.end || zmanim.begin == zmanim.end) return std::nullopt;
  return ZmanimCell{days.begin, zmanim.begin};
}

IndexRange ZmanimGeometry::DaysIn(const PaneRect& area) const {
  return StepsIn(area.y, std::min(area.Bottom(), clientHeight), rowHeight, firstDay, dayCount);
}

IndexRange ZmanimGeometry::ZmanimIn(const PaneRect& area) const {
  return StepsIn(area.x - dateWidth, area.Right() - dateWidth, ColumnWidth(), firstZman, zmanCount);
}
