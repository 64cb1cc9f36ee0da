#include "publishing/core/page_plan.h"

#include <algorithm>
#include <utility>

namespace publishing {
namespace {

// Of groups one below the other, so many stay together at most.
constexpr std::size_t kMostKept = 4;

class Planner {
 public:
  Planner(const std::vector<RowToPlan>& rows, const PageRoom& room)
      : rows_(rows), room_(room), pages_(1), left_(room.onFirst) {}

  void Add(std::size_t row) {
    const int lineCount = rows_[row].lineCount;
    if (MustBegin(row)) BeginPage();
    left_ -= GapAbove(row);
    for (int line = 0; line < lineCount;) {
      const int count = std::min(std::max(LinesIn(left_), 1), lineCount - line);
      Put({row, line, count});
      line += count;
      if (line < lineCount) BeginPage();
    }
  }

  std::vector<PlannedPage> Pages() { return std::move(pages_); }

 private:
  int LinesIn(int height) const { return (height - room_.rowGap) / room_.lineHeight; }
  bool IsPageEmpty() const { return pages_.back().empty(); }
  int GapAbove(std::size_t row) const { return rows_[row].isGroup && !IsPageEmpty() ? room_.groupGap : 0; }

  // With what has to stand on the same page. asFirst: at a page's top.
  int HeightKept(std::size_t row, bool asFirst) const {
    int height = asFirst ? 0 : GapAbove(row);
    for (std::size_t kept = 0; row < rows_.size() && kept < kMostKept; ++row, ++kept) {
      if (kept > 0 && rows_[row].isGroup) height += room_.groupGap;
      height += rows_[row].lineCount * room_.lineHeight + room_.rowGap;
      if (!rows_[row].isGroup) break;
    }
    return height;
  }

  bool MustBegin(std::size_t row) const {
    if (rows_[row].beginsPage && !IsPageEmpty()) return true;
    if (HeightKept(row, false) <= left_) return false;
    if (HeightKept(row, true) <= room_.onOthers) return true;
    // What is kept does not fit on any page: the row by itself.
    const int lines = LinesIn(left_ - GapAbove(row));
    return lines < rows_[row].lineCount &&
           (LinesIn(room_.onOthers) >= rows_[row].lineCount || !IsPageEmpty() || lines < 1);
  }

  void BeginPage() {
    // Only the first page can have no room for a line that another has.
    if (IsPageEmpty() && pages_.size() > 1) return;
    pages_.emplace_back();
    left_ = room_.onOthers;
  }

  void Put(const RowSlice& slice) {
    pages_.back().push_back(slice);
    left_ -= slice.lineCount * room_.lineHeight + room_.rowGap;
  }

  const std::vector<RowToPlan>& rows_;
  const PageRoom& room_;
  std::vector<PlannedPage> pages_;
  int left_;
};

}  // namespace

std::vector<PlannedPage> PlanPages(const std::vector<RowToPlan>& rows, const PageRoom& room) {
  Planner planner(rows, room);
  for (std::size_t row = 0; row < rows.size(); ++row) planner.Add(row);
  return planner.Pages();
}

int HeightOf(const PlannedPage& page, const std::vector<RowToPlan>& rows, const PageRoom& room) {
  int height = 0;
  for (const RowSlice& slice : page) {
    const bool hasGap = rows[slice.row].isGroup && slice.firstLine == 0 && height > 0;
    height += (hasGap ? room.groupGap : 0) + slice.lineCount * room.lineHeight + room.rowGap;
  }
  return height;
}

}  // namespace publishing
