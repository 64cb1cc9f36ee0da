#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>

#include "libraries/kinship/kinship_settings.h"

namespace kinship {

struct ExportRequest {
  ExportChoice choice;
  int32_t firstYear = 0;  // of a calendar
  std::wstring path;      // which the user agreed to write over, if it is there
};

// Asks what is to be exported, how, and where to; nothing when cancelled. all and shown: how many entries there are.
std::optional<ExportRequest> AskForExport(HWND owner, int32_t year, size_t all, size_t shown);

// Asks for the file to import; nothing when cancelled.
std::optional<std::wstring> AskForImportFile(HWND owner);

}  // namespace kinship
