// Exports of a document's zmanim into a file. A file that cannot be written leaves no word: the user sees that there is
// none.
#pragma once

#include <windows.h>

#include <string>

#include "win/save_dialog.h"

// Into a file that the user chooses: as text, or as RTF with the days of a column in one cell.
void ExportZmanim(HWND frame, HWND document, ExportFormat format);

// As RTF with a row for each day.
void ExportZmanimByDay(HWND frame, HWND document);

// As delimited text, one line a day, below a line of names if header.
void WriteZmanimExport(HWND document, const std::string& file, const std::string& separator, bool header);
