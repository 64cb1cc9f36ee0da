// The file that a view is exported into, as the user chooses it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "output/rtf_form.h"
#include "win/save_dialog.h"

enum class ExportedView { kShabbatTimes, kZmanim, kReadings };

struct ChosenFile {
  std::string path;
  RtfForm rtfForm;
};

// Asks for the file; nothing when cancelled. Each view offers its last name until the program ends, and the form of RTF
// that was chosen for it last, which is kept in the settings (kFlagsFile, section "RtfForAllWordProcessors").
std::optional<ChosenFile> AskForFileOfView(HWND frame, ExportedView view, ExportFormat format);
