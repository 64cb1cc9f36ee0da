#include "publishing/core/plain_text.h"

#include <algorithm>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

constexpr char32_t kNextLine = 0x85;
constexpr char32_t kLineSeparator = 0x2028;
constexpr char32_t kParagraphSeparator = 0x2029;

bool IsBreak(char32_t character) {
  return (character >= '\t' && character <= '\r') || character == kNextLine || character == kLineSeparator ||
         character == kParagraphSeparator;
}

// Explicit formatting of UAX #9: LRE, RLE, PDF, LRO, RLO, and LRI, RLI, FSI, PDI.
bool TurnsWhatFollows(char32_t character) {
  return (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
}

}  // namespace

std::string_view ValidUtf8(std::string_view text, std::string& room) {
  if (IsPlainAscii(text)) return text;
  room.clear();
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (character != 0) AppendUtf8(room, character);
  }
  return room;
}

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(line.size());
  text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
  return line;
}

bool IsKeptWhole(std::string_view text) {
  constexpr std::size_t kLongestWhole = 18;
  return WidthInCharacters(text) <= kLongestWhole && text.find_first_of("\r\n") == std::string_view::npos;
}

std::size_t WidthOfLines(std::string_view text) {
  if (text.find_first_of("\r\n") == std::string_view::npos) return WidthInCharacters(text);
  std::size_t widest = 0;
  while (!text.empty()) widest = std::max(widest, WidthInCharacters(TakeLine(text)));
  return widest;
}

std::string_view PlainLine(std::string_view text, std::string& room) {
  if (IsPlainAscii(text)) return text;
  room.clear();
  char32_t before = 0;
  while (!text.empty()) {
    const char32_t character = TakeCharacter(text);
    if (IsBreak(character)) {
      if (character != '\n' || before != '\r') room += ' ';
    } else if (!IsControl(character) && !TurnsWhatFollows(character)) {
      AppendUtf8(room, character);
    }
    before = character;
  }
  return room;
}

}  // namespace publishing
