// The dialog "Zmanim Selection".
#pragma once

#include <windows.h>

#include "libraries/sun/place_settings.h"

namespace hours {

// Runs it; what the user accepts has been written.
void RunSelectionDialog(HWND owner, const sun::PackedPlace& place);

}  // namespace hours
