#include "win/save_dialog.h"

#include <cderr.h>
#include <commdlg.h>

#include "win/message_box.h"

namespace {

constexpr DWORD kFileNameSize = 256;

struct FormatTexts {
  const char* filter;
  const char* extension;
};

constexpr FormatTexts kText{"Text files (*.txt)\0*.txt\0All files (*.*)\0*.*\0", "txt"};
constexpr FormatTexts kRtf{"RTF files (*.rtf)\0*.rtf\0All files (*.*)\0*.*\0", "rtf"};

}  // namespace

std::optional<std::string> AskForExportFile(HWND owner, ExportFormat format, std::string* lastFile) {
  const FormatTexts& texts = format == ExportFormat::kText ? kText : kRtf;
  char file[kFileNameSize] = "";
  if (lastFile) lastFile->copy(file, kFileNameSize - 1);
  OPENFILENAMEA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = texts.filter;
  dialog.nFilterIndex = 1;
  dialog.lpstrFile = file;
  dialog.nMaxFile = kFileNameSize;
  dialog.lpstrDefExt = texts.extension;
  dialog.Flags = OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (!GetSaveFileNameA(&dialog)) {
    if (CommDlgExtendedError() == FNERR_BUFFERTOOSMALL) {
      ShowStop(owner,
               "The file's name and folder together may have 255 characters.\nPlease choose a shorter name or another "
               "folder.",
               "Error");
    }
    return std::nullopt;
  }
  if (lastFile) *lastFile = file;
  return file;
}

void ShowUnwritableFile(HWND owner, const std::string& file) {
  const std::string text =
      "The file " + file + " could not be written.\nPlease choose another name or folder, or make room on the disk.";
  ShowStop(owner, text.c_str(), "Error");
}
