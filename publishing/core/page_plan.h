// Which rows of a table stand on which page.
#pragma once

#include <cstddef>
#include <vector>

namespace publishing {

// The room for rows, in dots.
struct PageRoom {
  int onFirst;
  int onOthers;
  int lineHeight;    // of a row's lines
  int rowGap;        // that every row has below its lines
  int groupGap = 0;  // above a row that names a group, unless a page begins with it
};

struct RowToPlan {
  int lineCount = 1;     // 1 or more
  bool isGroup = false;  // stays with the row after it
  bool beginsPage = false;
};

// Lines of a row that stand on one page.
struct RowSlice {
  std::size_t row;
  int firstLine;
  int lineCount;
  friend bool operator==(const RowSlice&, const RowSlice&) = default;
};

using PlannedPage = std::vector<RowSlice>;

// At least one page; the rows in their order, each whole unless it is longer than a page. A page whose room is less
// than a line's still gets one, but the first may stay without rows.
std::vector<PlannedPage> PlanPages(const std::vector<RowToPlan>& rows, const PageRoom& room);

// The room that a planned page's rows take.
int HeightOf(const PlannedPage& page, const std::vector<RowToPlan>& rows, const PageRoom& room);

}  // namespace publishing
