// Exports of the active document's visible view.
#pragma once

#include <windows.h>

// Whether the active document shows what these commands can export.
bool CanExport();

void ExportText(HWND frame);
void ExportRtf(HWND frame);  // asks for the layout first
void ExportRtfInThreeColumns(HWND frame);
void ExportRtfInTwoColumns(HWND frame);
