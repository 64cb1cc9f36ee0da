// The dialog in which the user chooses the language of the readings.
#pragma once

#include <windows.h>

namespace lections {

// Whether it was accepted, the choice stored.
bool DoLanguageDialog(HWND owner);

}  // namespace lections
