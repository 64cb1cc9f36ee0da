#include "libraries/dialogs/chosen_file.h"

#include <commdlg.h>

#include <utility>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/settings_folder/eight_bit_text.h"
#include "libraries/settings_folder/settings_folder.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "libraries/settings_folder/whole_file.h"

namespace dialogs {
namespace {

using settings_folder::ReadResult;

constexpr size_t kLongestPath = 32768;
constexpr uint64_t kMostBytes = 64 << 20;

OPENFILENAMEW FileDialog(HWND owner, const FileQuestion& question, std::wstring& path) {
  path.resize(kLongestPath);
  OPENFILENAMEW dialog = {};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = owner;
  dialog.lpstrTitle = question.title;
  dialog.lpstrFilter = question.filter;
  dialog.lpstrDefExt = question.extension;
  dialog.lpstrFile = path.data();
  dialog.nMaxFile = static_cast<DWORD>(path.size());
  dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
  return dialog;
}

}  // namespace

std::wstring AskForFileToWrite(HWND owner, const FileQuestion& question, const std::wstring& offered) {
  std::wstring path = offered;
  OPENFILENAMEW dialog = FileDialog(owner, question, path);
  dialog.Flags |= OFN_OVERWRITEPROMPT;
  return GetSaveFileNameW(&dialog) ? path.c_str() : std::wstring();
}

std::wstring AskForFileToRead(HWND owner, const FileQuestion& question) {
  std::wstring path;
  OPENFILENAMEW dialog = FileDialog(owner, question, path);
  dialog.Flags |= OFN_FILEMUSTEXIST;
  return GetOpenFileNameW(&dialog) ? path.c_str() : std::wstring();
}

bool WriteOrTell(HWND owner, const std::wstring& path, const std::string& text, const std::wstring& again) {
  if (settings_folder::WriteChosenFile(path, text)) return true;
  ShowError(owner, L"The file\n" + path +
                       L"\ncould not be written; an older one of that name is as it was.\n\nSee to it that no "
                       L"other program holds it, that it is not read-only and that the disk is not full, or "
                       L"choose another file, then " +
                       again + L".");
  return false;
}

std::optional<std::string> BytesOfFileOrTell(HWND owner, const std::wstring& path, const std::wstring& what,
                                             const std::wstring& again) {
  const std::wstring file = settings_folder::WithoutLengthLimit(settings_folder::FullPath(path));
  if (settings_folder::StampOf(file).sizeBytes > kMostBytes) {
    ShowError(owner, L"The file\n" + path + L"\nis far too large to be " + what + L".");
    return std::nullopt;
  }
  std::string bytes;
  if (settings_folder::ReadWholeFile(file, settings_folder::Patience::kShort, &bytes) == ReadResult::kRead) {
    return bytes;
  }
  ShowError(owner, L"The file\n" + path +
                       L"\ncannot be read. See to it that no other program holds it and that you may open "
                       L"it, then " +
                       again + L".");
  return std::nullopt;
}

std::optional<std::string> TextOfFileOrTell(HWND owner, const std::wstring& path, const std::wstring& what) {
  std::optional<std::string> bytes = BytesOfFileOrTell(owner, path, what, L"import again");
  if (bytes) bytes = settings_folder::Utf8Text(std::move(*bytes));
  return bytes;
}

bool IsSamePath(const std::wstring& left, const std::wstring& right) {
  return CompareStringOrdinal(settings_folder::FullPath(left).c_str(), -1, settings_folder::FullPath(right).c_str(), -1,
                              TRUE) == CSTR_EQUAL;
}

}  // namespace dialogs
