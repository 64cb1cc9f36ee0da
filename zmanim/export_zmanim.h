// Exports of a document's zmanim into a file.
#pragma once

#include <windows.h>

#include <string>

#include "win/save_dialog.h"

// Into a file that the user chooses, and who is told when it cannot be written: as text, or as RTF with the days of a
// column in one cell.
void ExportZmanim(HWND frame, HWND document, ExportFormat format);

// As RTF with a row for each day.
void ExportZmanimByDay(HWND frame, HWND document);

// As delimited text, one line a day, below a line of names if header. Whether the file could be written, of which
// nothing is said.
bool WriteZmanimExport(HWND document, const std::string& file, const std::string& separator, bool header);
