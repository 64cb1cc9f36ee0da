// Exports of the active document. Without one, they do nothing.
#pragma once

#include <windows.h>

// Of the visible view, into a file that the user chooses.
void ExportText(HWND frame);
void ExportRtf(HWND frame);  // for Shabbat times, asks for the layout first

// The second RTF layout of the visible view; for Shabbat times, that in three or in two columns.
void ExportRtfInThreeColumns(HWND frame);
void ExportRtfInTwoColumns(HWND frame);

// The second layouts of zmanim and of readings, from the menu: they post the commands above.
void ExportZmanimByDayLater(HWND frame);
void ExportReadingsNarrowLater(HWND frame);

// Delimited text for databases, by its dialogs.
void ExportZmanimDelimited(HWND frame);
void ExportDatesDelimited(HWND frame);
