#include "libraries/dialogs/windows_1252.h"

#include <algorithm>
#include <iterator>

namespace dialogs {
namespace {

// Bytes 0x80 to 0x9F; all others stand for the character of their own number (Unicode Consortium, CP1252.TXT).
constexpr unsigned kFirst = 0x80;
constexpr char16_t kCharacters[] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned kEnd = kFirst + static_cast<unsigned>(std::size(kCharacters));

bool IsInTable(unsigned number) {
  return number >= kFirst && number < kEnd;
}

template <typename Text>
Text Decoded(std::string_view bytes) {
  Text text;
  for (const char c : bytes) {
    const unsigned byte = static_cast<unsigned char>(c);
    const char16_t character = IsInTable(byte) ? kCharacters[byte - kFirst] : static_cast<char16_t>(byte);
    text += static_cast<typename Text::value_type>(character);
  }
  return text;
}

}  // namespace

std::u16string Utf16(std::string_view text) {
  return Decoded<std::u16string>(text);
}

std::wstring Wide(std::string_view text) {
  return Decoded<std::wstring>(text);
}

std::optional<std::string> Narrow(std::wstring_view text) {
  std::string narrow;
  for (const wchar_t character : text) {
    const auto number = static_cast<unsigned>(character);
    const auto inTable = std::ranges::find(kCharacters, number);
    if (inTable != std::end(kCharacters)) {
      narrow += static_cast<char>(kFirst + static_cast<unsigned>(inTable - kCharacters));
    } else if (number <= 0xFF && !IsInTable(number)) {
      narrow += static_cast<char>(number);
    } else {
      return std::nullopt;
    }
  }
  return narrow;
}

}  // namespace dialogs
