#pragma once

#include <windows.h>

// Whether the custom-times library has a dialog that lists the times set by hand.
bool HasOwnTimesDialog();

// Runs it. Documents that are open follow what the user has changed, when they are next seen, exported or printed.
void RunOwnTimesDialog(HWND frame);
