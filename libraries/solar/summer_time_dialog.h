// The dialog about the clock of a place.
#pragma once

#include <windows.h>

#include "libraries/sun/place_settings.h"

namespace solar {

// Whether the user has stored something.
bool RunSummerTimeDialog(HWND owner, const sun::PackedPlace& place);

}  // namespace solar
