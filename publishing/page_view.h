// The part of the preview that shows a page: on grey, with a shadow, scrolled where it is larger than the window. Keys
// and wheel that leaf reach the parent as commands of its buttons (preview_ids.h).
#pragma once

#include <windows.h>

#include "publishing/core/page_on_screen.h"
#include "publishing/core/pages.h"

namespace publishing {

// The window class, for the module that owns the dialog.
bool RegisterPageView(HINSTANCE module);
void UnregisterPageView(HINSTANCE module);

struct ShownPage {
  const Pages* pages = nullptr;  // lives as long as the view shows it
  LOGFONTW font = {};            // of PageFontOf
  int page = 0;                  // from 0
  Zoom zoom = Zoom::kWholePage;
};

// Another page or another size. A page that follows is shown from its top.
void ShowPage(HWND view, const ShownPage& shown);

// The parent's command for a key that leafs; 0 for another key.
int LeafingCommand(WPARAM key);

}  // namespace publishing
