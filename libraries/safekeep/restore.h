// Restoring settings, as the user sees it.
#pragma once

#include <windows.h>

namespace safekeep {

// Whether settings were restored.
bool Restore(HWND owner);

}  // namespace safekeep
