// What both dialogs of the library do alike.
#pragma once

#include <windows.h>

#include "libraries/lections/settings.h"

namespace lections {

// Runs a modal dialog of this library. Whether it was accepted.
bool RunDialog(HWND owner, int dialogId, DLGPROC procedure);

// Stores the settings and ends the dialog; when that fails, says so and leaves it open.
INT_PTR AcceptSettings(HWND dialog, const Settings& settings);

// For a dialog procedure that caught an exception, which can only be want of memory: a dialog that is being opened
// closes, an open one stays and sounds.
INT_PTR OnException(HWND dialog, UINT message);

}  // namespace lections
