#include "libraries/dialogs/known_file.h"

#include <cstring>

#include "companion/profile.h"
#include "libraries/settings_folder/settings_folder_win.h"

namespace dialogs {
namespace {

constexpr wchar_t kCaption[] = L"Times / Readings";

// A profile library without the entry has no answer: the file counts as known.
bool CanReadIni(const char* file) {
  const HMODULE profile = GetModuleHandleW(L"profile.dll");
  const FARPROC entry = profile ? GetProcAddress(profile, "ProfileCanRead") : nullptr;
  if (!entry) return true;
  decltype(&::ProfileCanRead) canRead = nullptr;
  static_assert(sizeof canRead == sizeof entry);
  std::memcpy(&canRead, &entry, sizeof canRead);
  return canRead(file) != 0;
}

}  // namespace

bool IsKnown(HWND owner, const std::wstring& path, const std::function<bool()>& isKnown) {
  const std::wstring text = L"The settings in the file\n" + path +
                            L"\ncannot be read, so they cannot be changed now. They stay as they are.\n\nSee to it "
                            L"that no other program holds the file and that you may open it, then choose Retry.";
  while (!isKnown()) {
    if (MessageBoxW(owner, text.c_str(), kCaption, MB_RETRYCANCEL | MB_ICONWARNING) != IDRETRY) return false;
  }
  return true;
}

bool IsKnownIni(HWND owner, const char* file) {
  const std::wstring path = settings_folder::PathNow(settings_folder::Wide(file));
  return IsKnown(owner, path, [file] { return CanReadIni(file); });
}

}  // namespace dialogs
