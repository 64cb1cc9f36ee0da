#include "libraries/kinship/system_letters.h"

#include <windows.h>

#include "libraries/dialogs/utf8.h"

namespace kinship {
namespace {

std::string Small(std::string_view text) {
  std::wstring wide = dialogs::FromUtf8(text);
  CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
  return dialogs::ToUtf8(wide);
}

std::string SortKey(std::string_view text) {
  const std::wstring wide = dialogs::FromUtf8(text);
  if (wide.empty()) return {};
  const int length = static_cast<int>(wide.size());
  constexpr DWORD kFlags = LCMAP_SORTKEY | NORM_IGNORECASE;
  const int bytes = LCMapStringW(LOCALE_INVARIANT, kFlags, wide.data(), length, nullptr, 0);
  std::string key(static_cast<size_t>(bytes), '\0');
  // Sort keys are bytes, which the function takes as units of the text.
  LCMapStringW(LOCALE_INVARIANT, kFlags, wide.data(), length, reinterpret_cast<LPWSTR>(key.data()), bytes);
  return key;
}

}  // namespace

const Letters kSystemLetters = {Small, SortKey};

}  // namespace kinship
