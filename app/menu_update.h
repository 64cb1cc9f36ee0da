#pragma once

#include <windows.h>

// Brings the frame's menu up to date before it opens. Items are found by command id: a maximised document shifts the
// positions of the menu bar.
void UpdateMenus(HWND frame);
