// Whose resources the dialogs are.
#pragma once

#include <windows.h>

namespace publishing {

// The program or library that this code has been linked into.
HINSTANCE ThisModule();

}  // namespace publishing
