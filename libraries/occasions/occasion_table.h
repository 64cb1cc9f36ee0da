// Occasions as tables to print and to save.
#pragma once

#include "libraries/occasions/taken.h"
#include "publishing/core/table.h"

namespace occasions {

// The list as it is shown; or one row for each evening on which candles are lit or Shabbat or Yom Tov begins, with the
// end on the evening after it, in groups by month. forSpreadsheet: dates as 2026-11-22, which spreadsheets of all
// countries take for dates, and no groups.
publishing::Table TableOf(const Taken& taken, bool forSpreadsheet = false);

// The days that a sheet with all lightings and ends has room for.
constexpr int32_t kMostDaysOnOneSheet = 400;

}  // namespace occasions
