// The commands of the occasions library. Without the library they do nothing.
#pragma once

#include <windows.h>

// Lists the occasions at the place and in the range of the active document; without one, at the current place and in
// the current range.
void ShowOccasions(HWND frame);

// Which of them the user wants to see, and by which customs.
void ChooseOccasionsShown(HWND frame);
