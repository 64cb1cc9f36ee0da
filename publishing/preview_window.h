// The window in which the user looks at a table as it will be printed, and prints it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "publishing/core/page_setup.h"
#include "publishing/core/table.h"

namespace publishing {

enum class PaperLayout : uint8_t {
  kTable,    // on as many pages as it needs
  kOnePage,  // all of it on one sheet, in blocks side by side, as large as fits
};

struct PrintedTable {
  const Table& table;
  LOGFONTW font;              // as chosen for the screen: lfHeight in its pixels; 0 gives 10 points
  std::wstring documentName;  // in the printer's queue and the window's caption
  PaperLayout layout = PaperLayout::kTable;
};

// Modal over its owner, which may be null; returns when the window is closed. setup: as the user left it last, which is
// the caller's to remember (page_setup.h has its text); changed to what the user chooses, whether or not anything is
// printed. A user who ends the laying out of a long table gets no window.
void PreviewTable(HWND owner, const PrintedTable& printed, PageSetup& setup);

// With what holds without a choice.
void PreviewTable(HWND owner, const PrintedTable& printed);

}  // namespace publishing
