#pragma once

#include <windows.h>

// The active document window, or null.
HWND ActiveDocument();
