// The dialog in which the user chooses land, custom and what is listed.
#pragma once

#include <windows.h>

namespace lections {

// Whether it was accepted, the choices stored.
bool DoConfigureDialog(HWND owner);

}  // namespace lections
