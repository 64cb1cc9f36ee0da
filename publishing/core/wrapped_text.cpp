#include "publishing/core/wrapped_text.h"

#include <algorithm>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

constexpr char16_t kEllipsis[] = u"\u2026";

// Longer texts are not measured whole, so that the time that wrapping takes grows with the text and not with its
// square.
constexpr std::size_t kShortText = 200;

bool IsBoundary(std::u16string_view text, std::size_t at) {
  return at >= text.size() || !((text[at] >= 0xDC00 && text[at] <= 0xDFFF) || IsCombining(text[at]));
}

std::size_t FirstCharacter(std::u16string_view text) {
  std::size_t end = 1;
  while (!IsBoundary(text, end)) ++end;
  return end;
}

// How many units of a text that is not empty stand on a line of this width.
std::size_t FittingUnits(std::u16string_view text, int width, const MeasureText& measure) {
  const auto fits = [&](std::size_t length) { return measure(text.substr(0, length)) <= width; };
  if (text.size() <= kShortText && fits(text.size())) return text.size();
  std::size_t fitting = 0;
  std::size_t tooLong = 1;
  while (tooLong < text.size() && fits(tooLong)) {
    fitting = tooLong;
    tooLong *= 2;
  }
  tooLong = std::min(tooLong, text.size());
  if (text.size() > kShortText && tooLong == text.size() && fits(tooLong)) return tooLong;
  while (tooLong - fitting > 1) {
    const std::size_t middle = fitting + (tooLong - fitting) / 2;
    (fits(middle) ? fitting : tooLong) = middle;
  }
  while (fitting > 0 && !IsBoundary(text, fitting)) --fitting;
  return std::max(fitting, FirstCharacter(text));
}

std::u16string_view WithoutBlanksAtEnd(std::u16string_view text) {
  return text.substr(0, text.find_last_not_of(u' ') + 1);
}

// Takes a line off a paragraph.
std::u16string_view TakeLine(std::u16string_view& paragraph, int width, const MeasureText& measure) {
  std::size_t length = FittingUnits(paragraph, width, measure);
  if (length < paragraph.size() && paragraph[length] != u' ') {
    const std::size_t blank = paragraph.substr(0, length).find_last_of(u' ');
    if (blank != std::u16string_view::npos && !WithoutBlanksAtEnd(paragraph.substr(0, blank)).empty()) length = blank;
  }
  const std::u16string_view line = WithoutBlanksAtEnd(paragraph.substr(0, length));
  paragraph.remove_prefix(std::min(paragraph.find_first_not_of(u' ', length), paragraph.size()));
  return line;
}

std::u16string_view TakeParagraph(std::u16string_view& text) {
  const std::size_t end = std::min(text.find(u'\n'), text.size());
  const std::u16string_view paragraph = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return paragraph;
}

}  // namespace

std::vector<std::u16string_view> WrappedText(std::u16string_view text, int width, const MeasureText& measure) {
  std::vector<std::u16string_view> lines;
  while (!text.empty()) {
    std::u16string_view paragraph = TakeParagraph(text);
    if (paragraph.empty()) lines.push_back(paragraph);
    while (!paragraph.empty()) lines.push_back(TakeLine(paragraph, width, measure));
  }
  if (lines.empty()) lines.push_back(text);
  return lines;
}

int WidthUnwrapped(std::u16string_view text, const MeasureText& measure) {
  int width = 0;
  while (!text.empty()) width = std::max(width, measure(TakeParagraph(text)));
  return width;
}

std::vector<std::u16string> FirstLines(const std::vector<std::u16string_view>& lines, std::size_t most, int width,
                                       const MeasureText& measure) {
  std::vector<std::u16string> first(lines.begin(),
                                    lines.begin() + static_cast<std::ptrdiff_t>(std::min(most, lines.size())));
  if (lines.size() <= most) return first;
  std::u16string_view last = lines[most - 1];
  const int room = width - measure(kEllipsis);
  if (!last.empty() && measure(last) > room) last = last.substr(0, FittingUnits(last, room, measure));
  first.back() = std::u16string(last) + kEllipsis;
  return first;
}

}  // namespace publishing
