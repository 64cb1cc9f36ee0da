#include "libraries/hours/description_text.h"

#include <algorithm>

namespace hours {
namespace {

constexpr char kAlef = '\xE0';
constexpr char kTav = '\xFA';

// The code point that the text starts with, taken off it; 0xFFFD for what is no UTF-8, one byte then.
char32_t TakeCodePoint(std::string_view& utf8) {
  constexpr char32_t kReplacement = 0xFFFD;
  const auto first = static_cast<unsigned char>(utf8[0]);
  size_t length = 1;
  char32_t codePoint = first;
  if (first >= 0xC2 && first < 0xE0) {
    length = 2;
    codePoint = first & 0x1Fu;
  } else if (first >= 0xE0 && first < 0xF0) {
    length = 3;
    codePoint = first & 0x0Fu;
  } else if (first >= 0x80) {
    utf8.remove_prefix(1);
    return kReplacement;
  }
  const std::string_view rest = utf8.substr(1, length - 1);
  const bool isWhole =
      rest.size() == length - 1 && std::ranges::all_of(rest, [](char c) { return (c & 0xC0) == 0x80; });
  utf8.remove_prefix(isWhole ? length : 1);
  if (!isWhole) return kReplacement;
  for (const char c : rest) codePoint = codePoint << 6 | (static_cast<unsigned char>(c) & 0x3Fu);
  return codePoint;
}

bool IsHebrewLetter(char c) {
  return c >= kAlef && c <= kTav;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLatinLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsBetweenDigits(char c) {
  return c == '.' || c == ',' || c == ':' || c == '/' || c == '-';
}

char Swapped(char c) {
  constexpr std::string_view kBrackets = "()[]{}<>";
  const size_t at = kBrackets.find(c);
  return at == std::string_view::npos ? c : kBrackets[at ^ 1];
}

// The length of the piece that is read from left to right at the start of the text: a number, or Latin words with
// whatever stands between them; 0 when there is none.
size_t LeftToRightLength(std::string_view text) {
  size_t length = 0;
  bool hasLetters = false;
  for (size_t i = 0; i < text.size() && !IsHebrewLetter(text[i]); ++i) {
    const bool isPart = IsDigit(text[i]) || IsLatinLetter(text[i]);
    if (isPart) {
      length = i + 1;
      hasLetters = hasLetters || IsLatinLetter(text[i]);
    } else if (length == 0 || (!hasLetters && !IsBetweenDigits(text[i]))) {
      break;
    }
  }
  return length;
}

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F;
}

std::string_view WithoutBlanksAround(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace

std::string EightBitFromUtf8(std::string_view utf8) {
  constexpr char32_t kUnicodeAlef = 0x05D0;
  constexpr char32_t kUnicodeTav = 0x05EA;
  std::string text;
  while (!utf8.empty()) {
    const char32_t codePoint = TakeCodePoint(utf8);
    const bool isShared = codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF);
    if (isShared) {
      text += static_cast<char>(codePoint);
    } else if (codePoint >= kUnicodeAlef && codePoint <= kUnicodeTav) {
      text += static_cast<char>(static_cast<unsigned char>(kAlef) + (codePoint - kUnicodeAlef));
    } else {
      text += '?';
    }
  }
  return text;
}

std::string DisplayHebrew(std::string_view logical) {
  if (std::ranges::none_of(logical, IsHebrewLetter)) return std::string(logical.rbegin(), logical.rend());
  std::string display;
  while (!logical.empty()) {
    const std::string_view piece = logical.substr(0, LeftToRightLength(logical));
    if (piece.empty()) {
      display += Swapped(logical[0]);
      logical.remove_prefix(1);
    } else {
      display.append(piece.rbegin(), piece.rend());
      logical.remove_prefix(piece.size());
    }
  }
  return display;
}

std::string CleanDescription(std::string_view text) {
  std::string kept;
  std::ranges::copy_if(text, std::back_inserter(kept), [](char c) { return c != '|' && !IsControl(c); });
  const std::string_view start = WithoutBlanksAround(kept).substr(0, kMostDescriptionBytes);
  return std::string(WithoutBlanksAround(start));
}

std::string Numbered(std::string_view text, int number) {
  const std::string mark = " (" + std::to_string(number) + ")";
  return std::string(text.substr(0, kMostDescriptionBytes - mark.size())) + mark;
}

}  // namespace hours
