// The printer and paper that a table is laid out for.
#pragma once

#include <windows.h>

#include <vector>

#include "publishing/core/page_setup.h"
#include "publishing/core/page_surface.h"
#include "publishing/dc_surface.h"

namespace publishing {

// What the system's dialogs keep from one time to the next: printer, paper, its orientation and more. Without a
// printer, the paper that was chosen, or that is usual where the user lives.
class Printer {
 public:
  // setup: what holds at first. The dialogs' choices are stored there. usual: margins where none have been chosen.
  Printer(PageSetup& setup, const PageMargins& usual);
  ~Printer();
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;

  // The paper with its margins, in dots of the page.
  const Sheet& sheet() const { return sheet_; }

  // Takes the paper, orientation and margins.
  void Use(const PageSetup& setup);

  // Lays the paper across, until the user chooses otherwise. False where the printer does not know how.
  bool TurnPaper();

  // Runs the page setup dialog until its margins leave room. Whether anything was chosen; else the user cancelled, or
  // was told why there is no choice.
  bool AskSetup(HWND owner);

  // Everything that is chosen, to go back to.
  struct Kept {
    PageSetup setup;
    std::vector<char> mode;
    std::vector<char> names;
  };
  Kept Keep() const;
  void GoBackTo(const Kept& kept);

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
  // Paper and orientation in the printer's settings, as numbers of the system.
  struct Paper {
    int size = 0;
    int orientation = 0;
    friend bool operator==(const Paper&, const Paper&) = default;
  };
  Paper PaperNow() const;
  void StorePaper(const Paper& before);
  void SetPaper(int paper, Orientation orientation);
  void Measure();
  void MeasureSheet(HDC dc);
  void TakeUsualPaper();
  Sheet WithMargins(int width, int height, const RECT& printable) const;
  bool HasRoom() const;

  PageSetup& setup_;
  PageMargins usual_;
  HGLOBAL mode_ = nullptr;
  HGLOBAL names_ = nullptr;
  Sheet sheet_ = {};
};

// Whether Letter is usual where the user lives, rather than A4. Whoever is used to legal or A3 has tables on its
// smaller form.
bool IsLetterUsual();

// How a page lies on the paper of a printer.
DeviceScale ScaleOf(HDC printer);

}  // namespace publishing
