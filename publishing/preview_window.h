// The window in which the user looks at a table as it will be printed, and prints it.
#pragma once

#include <windows.h>

#include <string>

#include "publishing/core/table.h"

namespace publishing {

struct PrintedTable {
  const Table& table;
  LOGFONTW font;              // as chosen for the screen: lfHeight in its pixels; 0 gives 10 points
  std::wstring documentName;  // in the printer's queue and the window's caption
};

// Modal over its owner, which may be null; returns when the window is closed.
void PreviewTable(HWND owner, const PrintedTable& printed);

}  // namespace publishing
