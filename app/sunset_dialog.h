#pragma once

#include <windows.h>

// Shows the sunset of a day that the user picks, at the place of a document; without a document (null) no sunset.
void RunSunsetDialog(HWND owner, HWND document);
