// A push button of the toolbar, drawn with a raised or sunken edge around an icon. Its window text names the icon
// ("#" and the icon's number). A click fires on release, inside the button.
#pragma once

#include <windows.h>

namespace property {
inline constexpr char kSelectState[] = "PropSelectState";  // 1 while shown pressed
inline constexpr char kGrayed[] = "PropGrayed";            // 1: drawn grey, deaf to the mouse
inline constexpr char kDescription[] = "ShabbatModernPropDescription";
}  // namespace property

LRESULT CALLBACK IconButtonProc(HWND button, UINT message, WPARAM wParam, LPARAM lParam);

// The text that the button's tooltip shows, a block of the button's window; released before the window goes.
void SetDescription(HWND button, const char* text);
void ReleaseDescription(HWND button);
