// The spin bar beside a field: a vertical scroll bar of a dialog that is nothing but its two arrows.
#pragma once

#include <windows.h>

// Gives a spin bar the keyboard. Its arrows become buttons, each a tab stop with a name for readers of the screen; a
// press by the mouse or by Space, and the Up and Down keys in the field, make the bar send its dialog what the arrows
// of a scroll bar send: WM_VSCROLL with SB_LINEUP or SB_LINEDOWN. An arrow held by the mouse repeats. The bar's
// template carries WS_CLIPCHILDREN and WS_EX_CONTROLPARENT.
void AddSpinKeys(HWND bar, HWND field, const char* upName, const char* downName);
