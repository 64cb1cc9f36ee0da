#include "app/active_document.h"

#include "app/program.h"

HWND ActiveDocument() {
  return reinterpret_cast<HWND>(SendMessageA(Program.mdiClient, WM_MDIGETACTIVE, 0, 0));
}

bool IsPaneVisible(HWND document, int pane) {
  return IsWindowVisible(GetDlgItem(document, pane)) != FALSE;
}
