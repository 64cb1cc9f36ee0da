#include "zmanim/core/zmanim_print_plan.h"

#include <algorithm>

#include "zmanim/core/zmanim_export.h"

namespace {

std::vector<IndexRange> GroupsOf(uint32_t count, uint32_t firstSize, uint32_t size) {
  std::vector<IndexRange> groups;
  uint32_t next = firstSize;
  for (uint32_t begin = 0; begin < count; next = size) {
    const uint32_t end = begin + std::min(next, count - begin);
    groups.push_back({begin, end});
    begin = end;
  }
  return groups;
}

}  // namespace

std::vector<PrintedPage> PlanZmanimPages(uint32_t dayCount, uint32_t zmanCount, int rowsPerPage, bool amPm) {
  const auto rows = static_cast<uint32_t>(std::max(rowsPerPage, 1));
  const auto columns = static_cast<uint32_t>(ZmanimPerTable(amPm));
  std::vector<PrintedPage> pages;
  // Deliberate: the first group has a day more than the others. Rows are counted so that there is room for it.
  for (const IndexRange& days : GroupsOf(dayCount, rows + 1, rows)) {
    for (const IndexRange& zmanim : GroupsOf(zmanCount, columns, columns)) pages.push_back({days, zmanim});
  }
  return pages;
}
