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

}  // namespace publishing
