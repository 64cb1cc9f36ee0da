#pragma once

#include <windows.h>

#include <optional>
#include <string>

enum class ExportFormat { kText, kRtf };

// Asks for the file to export into; nothing when cancelled. An existing file is only chosen after the user agreed.
// lastFile, if given, is offered and takes the file that is chosen.
std::optional<std::string> AskForExportFile(HWND owner, ExportFormat format, std::string* lastFile = nullptr);

// The file could not be written whole: names it and what to do.
void ShowUnwritableFile(HWND owner, const std::string& file);
