// The printer and paper that a table is laid out for.
#pragma once

#include <windows.h>

#include "publishing/core/page_surface.h"
#include "publishing/dc_surface.h"

namespace publishing {

// What the system's print dialog keeps from one time to the next: printer, paper, its orientation and more. Without a
// printer, the paper that is usual where the user lives.
class Printer {
 public:
  Printer();
  ~Printer();
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;

  // The paper with its margins, in dots of the page.
  const Sheet& sheet() const { return sheet_; }

  // Lays the paper across. False where the printer does not know how.
  bool TurnPaper();

  struct Choice {
    OwnedContext dc = {};  // null when the user cancelled, or was told why there is no printing
    int firstPage = 1;
    int lastPage = 1;
    bool allPages = true;
    bool toFile = false;
  };
  // Runs the print dialog for a table of so many pages. The sheet is then that of the printer chosen.
  Choice Ask(HWND owner, int pageCount);

 private:
  void MeasureSheet(HDC dc);
  void TakeUsualPaper();

  HGLOBAL mode_ = nullptr;
  HGLOBAL names_ = nullptr;
  Sheet sheet_ = {};
};

// How a page lies on the paper of a printer.
DeviceScale ScaleOf(HDC printer);

}  // namespace publishing
