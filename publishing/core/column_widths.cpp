#include "publishing/core/column_widths.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace publishing {

std::vector<int> ColumnWidths(const std::vector<int>& own, int room) {
  const int64_t total = std::accumulate(own.begin(), own.end(), int64_t{0});
  if (total <= room || own.empty()) return own;
  const int share = room / static_cast<int>(own.size());
  int64_t rest = room;  // beyond the share of the wide columns and the widths of the others
  int64_t lacking = 0;
  for (const int width : own) {
    rest -= std::min(width, share);
    lacking += std::max(width - share, 0);
  }
  std::vector<int> widths;
  for (const int width : own) {
    widths.push_back(width > share ? share + static_cast<int>((width - share) * rest / lacking) : width);
  }
  return widths;
}

std::vector<int> ColumnWidths(const std::vector<int>& own, const std::vector<int>& least, int room) {
  if (std::accumulate(least.begin(), least.end(), int64_t{0}) > room) return ColumnWidths(least, room);
  std::vector<int> widths = own;
  std::vector<std::size_t> sharing(own.size());  // columns that do not stand at their least
  std::iota(sharing.begin(), sharing.end(), std::size_t{0});
  for (std::size_t before = own.size() + 1; sharing.size() < before;) {
    before = sharing.size();
    std::vector<int> theirs;
    for (const std::size_t column : sharing) theirs.push_back(own[column]);
    const std::vector<int> shared = ColumnWidths(theirs, room);
    std::vector<std::size_t> left;
    for (std::size_t index = 0; index < sharing.size(); ++index) {
      const std::size_t column = sharing[index];
      widths[column] = std::max(shared[index], least[column]);
      if (shared[index] >= least[column]) left.push_back(column);
    }
    for (const std::size_t column : sharing) {
      if (std::find(left.begin(), left.end(), column) == left.end()) room -= least[column];
    }
    sharing = std::move(left);
  }
  return widths;
}

}  // namespace publishing
