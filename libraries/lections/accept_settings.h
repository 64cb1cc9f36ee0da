#pragma once

#include <windows.h>

#include "libraries/lections/settings.h"

namespace lections {

// Stores the settings and ends the dialog; when that fails, says so and leaves it open.
INT_PTR AcceptSettings(HWND dialog, const Settings& settings);

}  // namespace lections
