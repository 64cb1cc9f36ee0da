// The dialogs of the exports for databases, which write the file themselves.
#pragma once

#include <windows.h>

void RunZmanimExportDialog(HWND frame, HWND document);
void RunDatesExportDialog(HWND frame, HWND document);
