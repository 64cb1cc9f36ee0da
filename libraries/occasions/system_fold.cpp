#include "libraries/occasions/system_fold.h"

#include <windows.h>

#include "libraries/dialogs/utf8.h"
#include "publishing/core/unicode.h"

namespace occasions {
namespace {

// Apostrophes and quotation marks of typewriters and of print, geresh and gershayim.
constexpr std::wstring_view kMarks = L"'\"\u2018\u2019\u201C\u201D\u05F3\u05F4";

// Letters and their accents apart; the text as it is where the system cannot.
std::wstring Decomposed(const std::wstring& text) {
  if (text.empty()) return text;
  const int length = static_cast<int>(text.size());
  const int needed = FoldStringW(MAP_COMPOSITE, text.data(), length, nullptr, 0);
  if (needed <= 0) return text;
  std::wstring apart(static_cast<size_t>(needed), L'\0');
  const int made = FoldStringW(MAP_COMPOSITE, text.data(), length, apart.data(), needed);
  if (made <= 0) return text;
  apart.resize(static_cast<size_t>(made));
  return apart;
}

}  // namespace

std::string FoldBySystem(std::string_view text) {
  if (publishing::IsPlainAscii(text)) {
    std::string folded;
    for (const char c : text) {
      if (c != '\'' && c != '"') folded += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return folded;
  }
  std::wstring wide = Decomposed(dialogs::FromUtf8(text));
  std::erase_if(wide, [](wchar_t unit) {
    return kMarks.find(unit) != kMarks.npos || publishing::IsCombining(static_cast<char32_t>(unit));
  });
  CharLowerBuffW(wide.data(), static_cast<DWORD>(wide.size()));
  return dialogs::ToUtf8(wide);
}

}  // namespace occasions
