#pragma once

#include <windows.h>

// Help for whatever the help key was pressed in: the page of a dialog, of the program's or a library's, else that of
// the view that the active document shows. What the help has to say belongs to that window.
void ShowHelpWhere(HWND frame, const HELPINFO& pressed);
