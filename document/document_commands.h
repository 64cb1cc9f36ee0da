#pragma once

#include <windows.h>

// Runs the command of a toolbar button (IDB_...); any other id is ignored.
void RunDocumentCommand(HWND document, unsigned id);
