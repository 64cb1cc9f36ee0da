#include "publishing/core/printed_text.h"

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

bool HasLetters(std::string_view text) {
  while (!text.empty()) {
    if (DirectionOf(TakeCharacter(text)) != Direction::kNeutral) return true;
  }
  return false;
}

}  // namespace

std::u16string PrintedText(const std::string& text) {
  std::u16string printed;
  bool afterReturn = false;
  for (const char16_t unit : Utf16Of(text)) {
    if (!(unit == u'\n' && afterReturn)) {
      const bool isLineEnd = unit == u'\n' || unit == u'\r';
      const bool isControl = unit < u' ' || unit == 0x7F;
      printed += isLineEnd ? u'\n' : isControl ? u' ' : unit;
    }
    afterReturn = unit == u'\r';
  }
  return printed;
}

bool IsRightToLeftIn(const Column& column, const std::string& text) {
  return column.direction == Direction::kNeutral ? IsRightToLeft(text) : column.direction == Direction::kRightToLeft;
}

Place PlaceIn(const Column& column, bool textRightToLeft, bool tableRightToLeft) {
  const bool isEnd = column.align == Align::kEnd;
  const bool atRight = tableRightToLeft ? !isEnd : textRightToLeft || isEnd;
  return atRight ? Place::kRight : Place::kLeft;
}

Place StartOf(const std::string& text, bool tableRightToLeft) {
  const bool atRight = HasLetters(text) ? IsRightToLeft(text) : tableRightToLeft;
  return atRight ? Place::kRight : Place::kLeft;
}

std::string PageTextOf(const std::string& pageText, int page, int count) {
  std::string text;
  for (std::size_t at = 0; at < pageText.size(); ++at) {
    const char next = at + 1 < pageText.size() ? pageText[at + 1] : '\0';
    const bool isPlace = pageText[at] == '%' && (next == '1' || next == '2');
    if (isPlace) {
      text += std::to_string(next == '1' ? page : count);
      ++at;
    } else {
      text += pageText[at];
    }
  }
  return text;
}

}  // namespace publishing
