// The dialog in which the user chooses the form of times.
#pragma once

#include <windows.h>

namespace stamp {

// Whether it was accepted, the choice stored.
bool DoFormDialog(HWND owner);

}  // namespace stamp
