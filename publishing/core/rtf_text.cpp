#include "publishing/core/rtf_text.h"

#include <algorithm>

#include "publishing/core/plain_text.h"
#include "publishing/core/unicode.h"

namespace publishing {
namespace {

// A character as RTF has it: signed 16-bit units, each with a mark for readers that do not know them.
void AppendCharacter(std::string& rtf, char32_t character) {
  if (character == '\\' || character == '{' || character == '}') rtf += '\\';
  if (character >= ' ' && character < 0x7F) {
    rtf += static_cast<char>(character);
    return;
  }
  if (character < 0x80) return;  // control characters
  std::u16string units;
  AppendUtf16(units, character);
  for (const char16_t unit : units) rtf += "\\u" + std::to_string(static_cast<int16_t>(unit)) + "?";
}

// Letters of ASCII are all of one direction, and so are texts of digits and signs.
void AppendAsciiRun(std::string& rtf, std::string_view text, const RtfLetters& letters) {
  rtf += letters.Beginning(false);
  for (const char byte : text) {
    if (byte == '\\' || byte == '{' || byte == '}') rtf += '\\';
    rtf += byte;
  }
  rtf += '}';
}

void AppendRuns(std::string& rtf, std::string_view line, Direction direction, const RtfLetters& letters) {
  if (direction != Direction::kRightToLeft && IsPlainAscii(line)) {
    if (!line.empty()) AppendAsciiRun(rtf, line, letters);
    return;
  }
  for (const DirectedRun& run : RunsOf(line, direction)) {
    rtf += letters.Beginning(run.rightToLeft);
    AppendRtfCharacters(rtf, run.characters);
    rtf += '}';
  }
}

}  // namespace

// The last of \ltrch and \rtlch is in force; what stands between is for the letters of the other kind.
RtfLetters::RtfLetters(int halfPoints, bool bold) {
  const std::string size = std::to_string(halfPoints);
  const std::string other = std::string("\\af0\\afs") + size + (bold ? "\\ab" : "");
  const std::string own = "\\f0\\fs" + size + (bold ? "\\b" : "");
  leftToRight_ = "{\\rtlch\\fcs1" + other + "\\ltrch\\fcs0" + own + " ";
  rightToLeft_ = "{\\ltrch\\fcs0" + own + "\\rtlch\\fcs1" + other + " ";
}

void AppendRtfCharacters(std::string& rtf, std::u32string_view characters) {
  for (const char32_t character : characters) AppendCharacter(rtf, character);
}

void AppendRtfParagraph(std::string& rtf, std::string_view text, const RtfPlace& place, const RtfLetters& letters) {
  const Direction direction = place.direction == Direction::kNeutral ? FirstDirection(text) : place.direction;
  const bool rightToLeft = direction == Direction::kNeutral ? place.rightToLeft : direction == Direction::kRightToLeft;
  const bool isAtRight = rightToLeft == (place.align == Align::kStart);
  rtf += rightToLeft ? "\\rtlpar" : "\\ltrpar";
  rtf += isAtRight ? "\\qr " : "\\ql ";
  std::string room;
  AppendRuns(rtf, PlainLine(TakeLine(text), room), place.direction, letters);
  while (!text.empty()) {
    rtf += "\\line\r\n";
    AppendRuns(rtf, PlainLine(TakeLine(text), room), place.direction, letters);
  }
}

}  // namespace publishing
