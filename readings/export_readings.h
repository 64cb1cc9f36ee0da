// Exports of the active document's readings into a file that the user chooses. A file that cannot be written leaves no
// word: the user sees that there is none.
#pragma once

#include <windows.h>

#include "win/save_dialog.h"

// As text, or as RTF in the wide layout.
void ExportReadings(HWND frame, HWND document, ExportFormat format);

// As RTF in the narrow layout.
void ExportReadingsNarrow(HWND frame, HWND document);
