#pragma once

#include <windows.h>

namespace kinship {

// Runs the system's dialog for the font of the list and of printed pages; owner may be null.
void RunFontDialog(HWND owner);

}  // namespace kinship
