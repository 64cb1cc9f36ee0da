#pragma once

#include <windows.h>

// The About box. A click on its icon tells the versions of the program and of the libraries bound by name.
void RunAboutBox(HWND owner);
