// Which days and which zmanim stand on which printed page.
#pragma once

#include <cstdint>
#include <vector>

#include "zmanim/core/zmanim_geometry.h"

// One page: days of the block and zmanim in use.
struct PrintedPage {
  IndexRange days;
  IndexRange zmanim;
  bool operator==(const PrintedPage&) const = default;
};

// The pages in the order they are printed: for each group of days, a page for each group of zmanim. The groups of
// zmanim are those of the exports' tables. Less than one row per page counts as one. Without days or zmanim there is no
// page.
std::vector<PrintedPage> PlanZmanimPages(uint32_t dayCount, uint32_t zmanCount, int rowsPerPage, bool amPm);
