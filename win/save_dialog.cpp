#include "win/save_dialog.h"

#include "win/message_box.h"
#include "win/unicode_text.h"

namespace {

constexpr DWORD kFileNameSize = 256;

constexpr char kTextTypes[] = "Text files (*.txt)\0*.txt\0All files (*.*)\0*.*\0";
constexpr char kRtfTypes[] =
    "RTF files (*.rtf)\0*.rtf\0RTF for all word processors (*.rtf)\0*.rtf\0All files (*.*)\0*.*\0";
// Types are counted from 1.
constexpr DWORD kUsualRtf = 1;
constexpr DWORD kRtfForAll = 2;

constexpr char kCouldNotBeWritten[] =
    " could not be written.\nPlease choose another name or folder, close the file in other programs, or make room on "
    "the "
    "disk. An older file of this name is as it was.";

}  // namespace

std::optional<std::string> AskForExportFile(HWND owner, ExportFormat format, LastExport& last, RtfForm& form) {
  char file[kFileNameSize] = "";
  const std::string offered = OfferedName(last.file, last.format, format);
  if (offered.size() < kFileNameSize) offered.copy(file, kFileNameSize - 1);
  OPENFILENAMEA dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrFilter = format == ExportFormat::kText ? kTextTypes : kRtfTypes;
  dialog.nFilterIndex = format == ExportFormat::kRtf && form == RtfForm::kForAllWordProcessors ? kRtfForAll : kUsualRtf;
  dialog.lpstrFile = file;
  dialog.nMaxFile = kFileNameSize;
  dialog.lpstrDefExt = ExtensionOf(format);
  dialog.Flags = OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
  if (!RunSaveDialog(dialog, GetSaveFileNameA)) {
    ShowIfNameTooLong(owner);
    return std::nullopt;
  }
  if (format == ExportFormat::kRtf && dialog.nFilterIndex == kUsualRtf) form = RtfForm::kUsual;
  if (format == ExportFormat::kRtf && dialog.nFilterIndex == kRtfForAll) form = RtfForm::kForAllWordProcessors;
  last = {file, format};
  return file;
}

std::optional<std::string> AskForTextFile(HWND owner, LastExport& last) {
  RtfForm none = RtfForm::kUsual;
  return AskForExportFile(owner, ExportFormat::kText, last, none);
}

void ShowIfNameTooLong(HWND owner) {
  if (CommDlgExtendedError() != FNERR_BUFFERTOOSMALL) return;
  ShowStop(owner,
           "The file's name and folder together may have 255 characters.\nPlease choose a shorter name or another "
           "folder.",
           "Error");
}

std::string UnwritableFileText(const std::string& file) {
  return "File " + file + kCouldNotBeWritten;
}

void ShowUnwritableFile(HWND owner, const std::string& file) {
  ShowStop(owner, UnwritableFileText(file).c_str(), "Error");
}

void ShowUnwritableFile(HWND owner, const std::wstring& file) {
  const std::wstring text = L"File " + file + WideOf(kCouldNotBeWritten, CP_UTF8);
  MessageBoxW(owner, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
}
