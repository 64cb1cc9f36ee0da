#include "app/core/display_hebrew.h"

#include <algorithm>

#include "publishing/core/unicode.h"

namespace {

constexpr unsigned char kAlef = 0xE0;  // windows-1255
constexpr unsigned char kTav = 0xFA;
constexpr char32_t kUnicodeAlef = 0x05D0;

bool IsHebrewLetter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= kAlef && byte <= kTav;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLatinLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsBetweenDigits(char c) {
  constexpr std::string_view kSigns = ".,:/-";
  return kSigns.find(c) != std::string_view::npos;
}

char Swapped(char c) {
  constexpr std::string_view kBrackets = "()[]{}<>";
  const std::size_t at = kBrackets.find(c);
  return at == std::string_view::npos ? c : kBrackets[at ^ 1];
}

void AppendByte(std::string& utf8, char c) {
  const auto byte = static_cast<unsigned char>(c);
  publishing::AppendUtf8(utf8, IsHebrewLetter(c) ? kUnicodeAlef + (byte - kAlef) : char32_t{byte});
}

// The length of what was turned round at the start of the text: a number, or Latin words with what stands between them.
std::size_t TurnedLength(std::string_view text) {
  std::size_t length = 0;
  bool hasLetters = false;
  for (std::size_t i = 0; i < text.size() && !IsHebrewLetter(text[i]); ++i) {
    if (IsDigit(text[i]) || IsLatinLetter(text[i])) {
      length = i + 1;
      hasLetters = hasLetters || IsLatinLetter(text[i]);
    } else if (length == 0 || (!hasLetters && !IsBetweenDigits(text[i]))) {
      break;
    }
  }
  return length;
}

}  // namespace

std::string LogicalHebrew(std::string_view display) {
  std::string utf8;
  if (std::ranges::none_of(display, IsHebrewLetter)) {
    for (std::size_t i = display.size(); i > 0; --i) AppendByte(utf8, display[i - 1]);
    return utf8;
  }
  while (!display.empty()) {
    const std::size_t turned = TurnedLength(display);
    for (std::size_t i = turned; i > 0; --i) AppendByte(utf8, display[i - 1]);
    if (turned == 0) AppendByte(utf8, Swapped(display[0]));
    display.remove_prefix(std::max<std::size_t>(turned, 1));
  }
  return utf8;
}
