#include "win/own_folder.h"

#include <windows.h>

#include <cstring>
#include <string>

namespace {

// With its separator at the end.
std::wstring OwnFolder() {
  std::wstring file(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
    if (length < file.size()) return file.substr(0, file.rfind(L'\\', length) + 1);
    file.resize(2 * file.size());
  }
}

}  // namespace

void LoadFromOwnFolderAndSystemOnly() {
  // Windows 7 has it by an update only.
  constexpr DWORD kApplicationFolder = 0x200;  // LOAD_LIBRARY_SEARCH_APPLICATION_DIR
  constexpr DWORD kSystemFolder = 0x800;       // LOAD_LIBRARY_SEARCH_SYSTEM32
  BOOL(WINAPI * setFolders)(DWORD folders) = nullptr;
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
  static_assert(sizeof found == sizeof setFolders);
  std::memcpy(&setFolders, &found, sizeof setFolders);
  if (!setFolders || !setFolders(kApplicationFolder | kSystemFolder)) SetDllDirectoryW(L"");
}

bool IsInOwnFolder(const wchar_t* name) {
  const DWORD attributes = GetFileAttributesW((OwnFolder() + name).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}
