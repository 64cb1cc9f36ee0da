#include "libraries/dialogs/utf8.h"

#include <windows.h>

namespace dialogs {

std::wstring FromUtf8(std::string_view text) {
  const int size = static_cast<int>(text.size());
  if (size == 0) return {};
  std::wstring wide(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string ToUtf8(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  if (size == 0) return {};
  const int bytes = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), bytes, nullptr, nullptr);
  return narrow;
}

}  // namespace dialogs
