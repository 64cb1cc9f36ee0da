#include "libraries/settings_folder/settings_folder_win.h"

#include <windows.h>

#include "libraries/settings_folder/settings_folder.h"

namespace settings_folder {
namespace {

// Collects the answer of a call that fills a buffer of so many characters and answers the length of the text or, when
// the buffer is too small, the size that it wants (terminator included).
template <typename Ask>
std::wstring Collected(Ask ask) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = ask(text.data(), static_cast<DWORD>(text.size()));
    const bool fits = length < text.size();
    text.resize(length);
    if (fits) return text;
  }
}

std::wstring EnvironmentVariable(const wchar_t* name) {
  return Collected([name](wchar_t* buffer, DWORD size) { return GetEnvironmentVariableW(name, buffer, size); });
}

std::wstring ExeFolder() {
  // This call answers the size it was given when the buffer is too small.
  std::wstring path = Collected([](wchar_t* buffer, DWORD size) {
    const DWORD length = GetModuleFileNameW(nullptr, buffer, size);
    return length < size ? length : 2 * size;
  });
  path.resize(path.find_last_of(L'\\') == std::wstring::npos ? 0 : path.find_last_of(L'\\'));
  return path;
}

bool IsFolder(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

std::wstring HomeNow() {
  return CleanedHome(EnvironmentVariable(L"TIMES_READINGS_HOME"));
}

std::wstring FolderNow() {
  const std::wstring home = HomeNow();
  const std::wstring exeFolder = ExeFolder();
  const std::wstring appData = EnvironmentVariable(L"APPDATA");
  const bool settingsBesideExe = home.empty() && IsFolder(Joined(exeFolder, L"settings"));
  return FolderFor({home, exeFolder, settingsBesideExe, appData});
}

std::wstring PathNow(const std::wstring& name) {
  return WithoutLengthLimit(FullPath(IsBareName(name) ? Joined(FolderNow(), name) : name));
}

std::wstring FullPath(const std::wstring& path) {
  return Collected(
      [&path](wchar_t* buffer, DWORD size) { return GetFullPathNameW(path.c_str(), size, buffer, nullptr); });
}

std::wstring Wide(const char* text) {
  const int size = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
  std::wstring wide(static_cast<size_t>(size), L'\0');
  MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), size);
  wide.resize(wide.find(L'\0'));
  return wide;
}

bool MakeFolder(const std::wstring& folder) {
  if (IsFolder(folder)) return true;
  const size_t separator = folder.find_last_of(L"\\/");
  if (separator == std::wstring::npos || separator == 0) return false;
  if (!MakeFolder(folder.substr(0, separator))) return false;
  return CreateDirectoryW(folder.c_str(), nullptr) || IsFolder(folder);
}

}  // namespace settings_folder
