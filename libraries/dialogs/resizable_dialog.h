// A dialog that the user can make larger than its template, and whose size is kept from one time to the next.
#pragma once

#include <windows.h>

#include <span>
#include <vector>

#include "libraries/dialogs/scrolled_area.h"

namespace dialogs {

// What a control does when the dialog grows: it moves or grows with it, or stays as it is.
enum class Follow { kNo, kMove, kGrow };

struct Anchor {
  int control;
  Follow horizontal;
  Follow vertical;
};

class ResizableDialog {
 public:
  // For WM_INITDIALOG: takes the template's size for the least one, gives the dialog the size that was kept and a place
  // over its owner (the middle of the screen without one), always within the work area. Where that has no room for the
  // template, the dialog scrolls.
  // file: the INI file that the size is kept in; a text that lives as long as this.
  void Start(HWND dialog, std::span<const Anchor> anchors, const char* file);

  // WM_SIZE, WM_GETMINMAXINFO and WM_EXITSIZEMOVE. Before Start they do nothing.
  void ArrangeControls();
  void LimitSize(MINMAXINFO& limits) const;
  void KeepSize() const;

 private:
  struct Control {
    HWND window;
    RECT rectangle;  // in the template's layout
    Anchor anchor;
  };

  SIZE KeptClientSize() const;

  HWND dialog_ = nullptr;
  const char* file_ = nullptr;
  std::vector<Control> controls_;
  SIZE leastClient_ = {};
  SIZE leastWindow_ = {};
  ScrolledArea area_;
};

}  // namespace dialogs
