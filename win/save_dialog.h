#pragma once

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <optional>
#include <string>

#include "output/rtf_form.h"
#include "win/core/export_name.h"

// The file that an export wrote last. The next one offers its name, with the extension of its own format.
struct LastExport {
  std::string file;
  ExportFormat format = ExportFormat::kText;
};

// Asks for the file to export into; nothing when cancelled. An existing file is only chosen after the user agreed.
// last is offered and takes the file that is chosen. RTF files have a type for each form: that of form is chosen at
// first, and form takes the one that the user chose, if any; among all files it stays.
std::optional<std::string> AskForExportFile(HWND owner, ExportFormat format, LastExport& last, RtfForm& form);

// The same for a text file.
std::optional<std::string> AskForTextFile(HWND owner, LastExport& last);

// Tells the user when a save dialog that had no answer refused a name for its length.
void ShowIfNameTooLong(HWND owner);

// What to say of a file that could not be written while an older one was left alone: its name and what to do.
std::string UnwritableFileText(const std::string& file);
void ShowUnwritableFile(HWND owner, const std::string& file);
void ShowUnwritableFile(HWND owner, const std::wstring& file);

// Runs a save dialog of either character set by the system's function; whether a file was chosen. A name to begin with
// that the dialog refuses is left out.
template <typename Dialog>
bool RunSaveDialog(Dialog& dialog, BOOL(WINAPI* run)(Dialog*)) {
  if (run(&dialog)) return true;
  if (CommDlgExtendedError() != FNERR_INVALIDFILENAME || dialog.lpstrFile[0] == 0) return false;
  dialog.lpstrFile[0] = 0;
  return run(&dialog) != FALSE;
}
