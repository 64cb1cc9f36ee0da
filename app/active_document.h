#pragma once

#include <windows.h>

// The active document window, or null.
HWND ActiveDocument();

// Whether one of the document's panes (IDC_..._PANE) is shown.
bool IsPaneVisible(HWND document, int pane);
