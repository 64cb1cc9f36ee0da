#include "publishing/core/page_plan.h"

#include <algorithm>

namespace publishing {
namespace {

class Planner {
 public:
  explicit Planner(const PageRoom& room) : room_(room), pages_(1), left_(room.onFirst) {}

  void Add(std::size_t row, int lineCount) {
    if (LinesLeft() < lineCount && (LinesIn(room_.onOthers) >= lineCount || !IsPageEmpty() || LinesLeft() < 1)) {
      BeginPage();
    }
    for (int line = 0; line < lineCount;) {
      const int count = std::min(std::max(LinesLeft(), 1), lineCount - line);
      Put({row, line, count});
      line += count;
      if (line < lineCount) BeginPage();
    }
  }

  std::vector<PlannedPage> Pages() { return std::move(pages_); }

 private:
  int LinesIn(int height) const { return (height - room_.rowGap) / room_.lineHeight; }
  int LinesLeft() const { return LinesIn(left_); }
  bool IsPageEmpty() const { return pages_.back().empty(); }

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

  const PageRoom& room_;
  std::vector<PlannedPage> pages_;
  int left_;
};

}  // namespace

std::vector<PlannedPage> PlanPages(const std::vector<int>& lineCounts, const PageRoom& room) {
  Planner planner(room);
  for (std::size_t row = 0; row < lineCounts.size(); ++row) planner.Add(row, lineCounts[row]);
  return planner.Pages();
}

}  // namespace publishing
