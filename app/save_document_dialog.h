// The command "Save as document".
#pragma once

#include <windows.h>

// Runs the dialog in which the user chooses what to take away of a document, and saves it.
void RunSaveDocumentDialog(HWND frame, HWND document);
