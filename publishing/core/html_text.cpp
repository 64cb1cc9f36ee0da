#include "publishing/core/html_text.h"

#include <algorithm>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

std::string_view EscapeOf(char32_t character) {
  switch (character) {
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '&': return "&amp;";
    case '"': return "&quot;";
    case '\'': return "&#39;";
    default: return {};
  }
}

bool IsPlain(char byte) {
  return byte >= ' ' && byte < 0x7F && byte != '<' && byte != '>' && byte != '&' && byte != '"' && byte != '\'';
}

// The last two of each plane, and 32 among the Arabic forms.
bool IsNoncharacter(char32_t character) {
  return (character & 0xFFFE) == 0xFFFE || (character >= 0xFDD0 && character <= 0xFDEF);
}

bool IsLetterOrDigit(char byte) {
  return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

}  // namespace

void AppendHtml(std::string& html, std::string_view text) {
  char32_t before = 0;
  while (!text.empty()) {
    std::size_t plain = 0;
    while (plain < text.size() && IsPlain(text[plain])) ++plain;
    html += text.substr(0, plain);
    text.remove_prefix(plain);
    if (plain > 0) before = ' ';
    if (text.empty()) return;
    const char32_t character = TakeCharacter(text);
    const std::string_view escape = EscapeOf(character);
    if (!escape.empty()) {
      html += escape;
    } else if (character == '\r' || (character == '\n' && before != '\r')) {
      html += '\n';
    } else if (character == '\t' || !IsControl(character)) {
      AppendUtf8(html, IsNoncharacter(character) ? kReplacement : character);
    }
    before = character;
  }
}

// RFC 5646, 2.1: letters and digits in parts of at most eight.
bool IsLanguageTag(std::string_view text) {
  std::size_t length = 0;
  for (const char byte : text) {
    if (byte == '-' ? length == 0 : !IsLetterOrDigit(byte) || length == 8) return false;
    length = byte == '-' ? 0 : length + 1;
  }
  return length > 0;
}

}  // namespace publishing
