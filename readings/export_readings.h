// Exports of the active document's readings into a file that the user chooses, and who is told when it cannot be
// written.
#pragma once

#include <windows.h>

#include "win/save_dialog.h"

// As text, or as RTF in the wide layout.
void ExportReadings(HWND frame, HWND document, ExportFormat format);

// As RTF in the narrow layout.
void ExportReadingsNarrow(HWND frame, HWND document);
