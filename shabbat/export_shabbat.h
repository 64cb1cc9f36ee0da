// Exports of a document's Shabbat times into a file that the user chooses.
#pragma once

#include <windows.h>

#include "shabbat/core/shabbat_export.h"

void ExportShabbatText(HWND frame, HWND document);
void ExportShabbatRtf(HWND frame, HWND document, RtfLayout layout);

// Asks for the layout first. All Shabbatot in one row are written at once; for the other layouts the frame is posted
// their commands.
void ChooseShabbatRtf(HWND frame, HWND document);
