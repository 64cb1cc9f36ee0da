#include "libraries/glyphs/display_font.h"

#include <windows.h>

#include <string>

namespace {

// Any address within this library.
const char kHere = 0;

std::wstring FontFile() {
  HMODULE library = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&kHere), &library);
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size())));
  path.erase(path.find_last_of(L'\\') + 1);
  return path + L"fonts\\DisplayHebrew1.ttf";
}

}  // namespace

void EnsureDisplayFont() {
  // The system keeps a private font until the process ends.
  static const int fonts = AddFontResourceExW(FontFile().c_str(), FR_PRIVATE, nullptr);
  static_cast<void>(fonts);
}
