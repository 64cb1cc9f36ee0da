// The geometry of the zmanim table: a row a day, a column for the dates and one for each zman. Painting, clicking and
// scrolling all ask it, and the heading above the table has one of its own.
#pragma once

#include <cstdint>
#include <optional>

#include "win/core/pane_rect.h"

// A time of the table: indexes of its day in the block and of its zman.
struct ZmanimCell {
  uint32_t day;
  uint32_t zman;
  bool operator==(const ZmanimCell&) const = default;
};

// The indexes from begin up to end, which is not among them.
struct IndexRange {
  uint32_t begin;
  uint32_t end;
  bool operator==(const IndexRange&) const = default;
};

// As wide as any date of ten characters.
inline constexpr char kWidestDate[] = "XX.XX.XXXX";

// Columns beside the dates, by the form of times.
inline constexpr int kColumnsOf24HourTimes = 16;
inline constexpr int kColumnsOf12HourTimes = 10;

struct ZmanimGeometry {
  int clientWidth;  // of the table, for the heading too, so that numbers and times line up
  int clientHeight;
  int rowHeight;  // these two and textIndent in the pane's own font
  int dateWidth;
  // Deliberate: texts stand this far right of their cells. The cells, which take clicks and are painted, start without
  // it, right after the dates.
  int textIndent;
  int visibleColumns;
  uint32_t firstDay;  // the scroll positions
  uint32_t firstZman;
  uint32_t dayCount;
  uint32_t zmanCount;

  int ColumnWidth() const;
  int WholeRows() const;

  // The last scroll positions: the last page is full.
  int LastFirstDay() const;
  int LastFirstZman() const;

  // Cells that are scrolled out stand outside the client area. Cells of a table too narrow for columns have no width.
  PaneRect CellRect(const ZmanimCell& cell) const;
  // A date with the room that its indent takes.
  PaneRect DateRect(uint32_t day) const;
  // The column's part of the heading.
  int ColumnX(uint32_t zman) const { return CellRect({firstDay, zman}).x; }
  // All columns: what moves when the table is scrolled sideways.
  PaneRect ColumnsRect(int height) const;

  // The cell whose rectangle has the point.
  std::optional<ZmanimCell> CellAt(int x, int y) const;

  // The days and zmanim whose cells meet an area of the client area. A row that starts at the bottom edge is not shown.
  IndexRange DaysIn(const PaneRect& area) const;
  IndexRange ZmanimIn(const PaneRect& area) const;
};
