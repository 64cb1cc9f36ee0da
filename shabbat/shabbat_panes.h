// The Shabbat-times view: a blue band of titles, and below it one line a Shabbat. The panes keep nothing themselves;
// they read fonts and times from their document whenever they paint.
#pragma once

#include <windows.h>

LRESULT CALLBACK ShabbatHeaderPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK ShabbatListPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam);

// Sets the list pane's scroll range by its client height; the position stays, lowered to the range's end. Called on
// every change of size and after every calculation.
void SetListPaneScrollRange(HWND listPane);
