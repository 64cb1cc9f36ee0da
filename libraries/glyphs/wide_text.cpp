#include "libraries/glyphs/wide_text.h"

namespace {

constexpr UINT kWesternCodePage = 1252;

// Symbol fonts have their glyphs in the private use area, a code above this for each byte.
constexpr wchar_t kSymbolArea = 0xF000;

UINT CodePageOf(int charset) {
  CHARSETINFO info;
  if (TranslateCharsetInfo(reinterpret_cast<DWORD*>(static_cast<DWORD_PTR>(charset)), &info, TCI_SRCCHARSET)) {
    return info.ciACP;
  }
  return kWesternCodePage;
}

std::wstring SymbolText(const char* text, int count) {
  std::wstring wide;
  for (int i = 0; i < count; ++i) wide += static_cast<wchar_t>(kSymbolArea + static_cast<unsigned char>(text[i]));
  return wide;
}

}  // namespace

std::wstring WideText(int charset, const char* text, int count) {
  if (count <= 0) return {};
  if (charset == SYMBOL_CHARSET) return SymbolText(text, count);
  const UINT codePage = CodePageOf(charset);
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, text, count, nullptr, 0)), L'\0');
  MultiByteToWideChar(codePage, 0, text, count, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::vector<int> WideSpacing(int charset, const char* text, int count, const int* spacing) {
  const UINT codePage = CodePageOf(charset);
  std::vector<int> wide;
  for (int i = 0; i < count; ++i) {
    wide.push_back(spacing[i]);
    if (i + 1 < count && IsDBCSLeadByteEx(codePage, static_cast<BYTE>(text[i]))) wide.back() += spacing[++i];
  }
  return wide;
}
