// Characters of UTF-8 texts: how wide they are and which way they are written.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace publishing {

// Takes the first character off a text that is not empty. Bytes that are no UTF-8 give U+FFFD, one for each.
char32_t TakeCharacter(std::string_view& text);

void AppendUtf8(std::string& text, char32_t character);

// Two units for a character beyond U+FFFF.
void AppendUtf16(std::u16string& text, char32_t character);

// The same text in UTF-16.
std::u16string Utf16Of(std::string_view utf8);

// Whether a text is nothing but blanks and the letters, digits and signs of ASCII.
bool IsPlainAscii(std::string_view text);

// Of C0 or C1, or DEL.
bool IsControl(char32_t character);

// Whether a character takes no room of its own: marks above and below letters, and signs that are not seen.
bool IsCombining(char32_t character);

// In columns of a typewriter.
std::size_t WidthInCharacters(std::string_view text);

enum class Direction : uint8_t { kNeutral, kLeftToRight, kRightToLeft };

// Which way a character is written; kNeutral for what goes with its neighbours.
Direction DirectionOf(char32_t character);

// That of the first letter; kNeutral for a text without letters.
Direction FirstDirection(std::string_view text);

// Whether the first letter is Hebrew, Arabic or another written from right to left.
bool IsRightToLeft(std::string_view text);

// A part of a text that is written one way.
struct DirectedRun {
  std::u32string characters;
  bool rightToLeft;
};

// The text in runs, in logical order, as a paragraph of this direction has them, or where that is kNeutral, of the
// text's own (a short form of Unicode's
// bidirectional algorithm, UAX #9: W1, W2 and W7 for numbers and marks, N1 and N2 for what is neutral).
std::vector<DirectedRun> RunsOf(std::string_view text, Direction paragraph = Direction::kNeutral);

}  // namespace publishing
