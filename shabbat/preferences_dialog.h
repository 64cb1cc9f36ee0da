#pragma once

#include <windows.h>

// The Shabbat time preferences; true when they were saved.
bool RunPreferencesDialog(HWND owner);
