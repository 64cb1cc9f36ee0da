// The command "Print calendar".
#pragma once

#include <windows.h>

// Runs the dialog in which the user chooses what of a document comes on paper, and shows it as it will be printed.
void RunPrintCalendarDialog(HWND frame, HWND document);
