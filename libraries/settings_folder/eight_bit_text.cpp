#include "libraries/settings_folder/eight_bit_text.h"

#include <windows.h>

#include <string_view>
#include <utility>

namespace settings_folder {
namespace {

constexpr std::string_view kLittleEndianMark("\xFF\xFE");
constexpr std::string_view kBigEndianMark("\xFE\xFF");

bool IsUtf16(std::string_view bytes) {
  return bytes.starts_with(kLittleEndianMark) || bytes.starts_with(kBigEndianMark);
}

// The units behind the mark; a lone last byte is dropped.
std::wstring WideUnits(std::string_view bytes) {
  const bool isBigEndian = bytes.starts_with(kBigEndianMark);
  std::wstring wide;
  for (size_t i = 2; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    wide += static_cast<wchar_t>(isBigEndian ? first << 8 | second : second << 8 | first);
  }
  return wide;
}

std::string Narrow(const std::wstring& wide, UINT codePage, DWORD flags, BOOL* isLossy) {
  const int length = static_cast<int>(wide.size());
  const int size = WideCharToMultiByte(codePage, flags, wide.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<size_t>(size), '\0');
  WideCharToMultiByte(codePage, flags, wide.data(), length, narrow.data(), size, nullptr, isLossy);
  return narrow;
}

std::string WithMark(const std::wstring& wide) {
  return "\xEF\xBB\xBF" + Narrow(wide, CP_UTF8, 0, nullptr);
}

}  // namespace

std::string EightBitText(std::string bytes) {
  if (!IsUtf16(bytes)) return bytes;
  const std::wstring wide = WideUnits(bytes);
  BOOL isLossy = TRUE;
  if (GetACP() != CP_UTF8) bytes = Narrow(wide, CP_ACP, WC_NO_BEST_FIT_CHARS, &isLossy);
  return isLossy ? WithMark(wide) : bytes;
}

std::string Utf8Text(std::string bytes) {
  return IsUtf16(bytes) ? WithMark(WideUnits(bytes)) : bytes;
}

}  // namespace settings_folder
