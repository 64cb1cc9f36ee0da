#pragma once

#include <windows.h>

// The range of dates; true when CurrentRange was changed.
bool RunRangeDialog(HWND owner);
