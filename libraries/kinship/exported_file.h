// Files that the user takes away or brings in.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "libraries/kinship/export_dialog.h"
#include "libraries/kinship/person_dates.h"

namespace kinship {

// The whole file as it was asked for.
std::string ExportedText(const std::vector<persons::Person>& people, const Shown& shown, const ExportRequest& request);

// Writes a file at once and whole. Where that fails, an older one stays as it was, and the user is told. The file that
// the dates are kept in is not written over.
void WriteExportedFile(HWND owner, const std::wstring& path, const std::string& text);

// The text of a file, which is UTF-8 or has the mark of UTF-16; nothing, and the user is told why, when it
// cannot be read.
std::optional<std::string> ImportedText(HWND owner, const std::wstring& path);

}  // namespace kinship
