#include "publishing/core/unicode.h"

#include <algorithm>
#include <iterator>

namespace publishing {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCharacter = 0x10FFFF;

struct Range {
  char32_t first;
  char32_t last;
};

bool IsIn(char32_t character, const Range* begin, const Range* end) {
  const Range* const found =
      std::find_if(begin, end, [&](const Range& range) { return character >= range.first && character <= range.last; });
  return found != end;
}

template <std::size_t size>
bool IsIn(char32_t character, const Range (&ranges)[size]) {
  return IsIn(character, std::begin(ranges), std::end(ranges));
}

// Marks of the scripts that the calendar's names are written in, and characters that only steer others.
constexpr Range kCombining[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x05BF, 0x05BF}, {0x05C1, 0x05C2}, {0x05C4, 0x05C5},
    {0x05C7, 0x05C7}, {0x0610, 0x061A}, {0x064B, 0x065F}, {0x0670, 0x0670}, {0x06D6, 0x06DC}, {0x06DF, 0x06E4},
    {0x06E7, 0x06E8}, {0x06EA, 0x06ED}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x202A, 0x202E},
    {0x2060, 0x2069}, {0x20D0, 0x20FF}, {0xFB1E, 0xFB1E}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF},
};

// Scripts written from right to left, by the default of their blocks (DerivedBidiClass.txt).
constexpr Range kRightToLeft[] = {
    {0x0590, 0x05FF}, {0x0608, 0x0608}, {0x060D, 0x060D}, {0x061B, 0x065F},   {0x066D, 0x06EF},   {0x06FA, 0x08FF},
    {0x200F, 0x200F}, {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFC}, {0x10800, 0x10FFF}, {0x1E800, 0x1EFFF},
};

// What is neither a letter nor a digit beyond Latin-1: punctuation, currency, arrows, symbols.
constexpr Range kNeutral[] = {
    {0x02B9, 0x02BA}, {0x02C2, 0x02CF}, {0x0600, 0x061A}, {0x066A, 0x066C},   {0x2000, 0x200D},
    {0x2010, 0x206F}, {0x2070, 0x2070}, {0x2074, 0x207E}, {0x2080, 0x208E},   {0x20A0, 0x20CF},
    {0x2190, 0x2335}, {0x237B, 0x2394}, {0x2396, 0x249B}, {0x24EA, 0x27FF},   {0x2900, 0x2BFF},
    {0x3000, 0x3004}, {0x3008, 0x3020}, {0xFFF9, 0xFFFD}, {0x1F300, 0x1FAFF},
};

bool IsNumber(char32_t character) {
  return (character >= '0' && character <= '9') || (character >= 0x0660 && character <= 0x0669) ||
         (character >= 0x06F0 && character <= 0x06F9);
}

bool IsLatin1Letter(char32_t character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') || character == 0xAA ||
         character == 0xB5 || character == 0xBA || (character >= 0xC0 && character != 0xD7 && character != 0xF7);
}

// How many bytes a character takes that begins with this one, and what of the byte belongs to it; none for a byte that
// begins no character.
struct Lead {
  std::size_t length;
  char32_t bits;
  char32_t least;  // what shorter forms cannot say
};
Lead LeadOf(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if (byte >= 0xC0 && byte < 0xE0) return {2, byte & 0x1Fu, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return {3, byte & 0x0Fu, 0x800};
  if (byte >= 0xF0 && byte < 0xF8) return {4, byte & 0x07u, 0x10000};
  return {0, 0, 0};
}

bool IsScalar(char32_t character) {
  return character <= kLastCharacter && (character < 0xD800 || character > 0xDFFF);
}

// The directions of a text's characters, those of no direction of their own after their neighbours.
using Directions = std::vector<Direction>;

Direction ParagraphDirection(const Directions& directions) {
  const auto letter = std::find_if(directions.begin(), directions.end(),
                                   [](Direction direction) { return direction != Direction::kNeutral; });
  return letter == directions.end() ? Direction::kLeftToRight : *letter;
}

// Numbers and marks go with the letter before them.
void ResolveNumbers(const std::u32string& text, Direction paragraph, Directions& directions) {
  Direction before = paragraph;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (directions[at] != Direction::kNeutral) {
      before = directions[at];
    } else if (IsNumber(text[at]) || (IsCombining(text[at]) && at > 0)) {
      directions[at] = IsNumber(text[at]) ? before : directions[at - 1];
    }
  }
}

// What is neutral goes with its neighbours when they agree, else with the paragraph.
void ResolveNeutrals(Direction paragraph, Directions& directions) {
  Direction before = paragraph;
  for (std::size_t at = 0; at < directions.size();) {
    std::size_t end = at;
    while (end < directions.size() && directions[end] == Direction::kNeutral) ++end;
    const Direction after = end < directions.size() ? directions[end] : paragraph;
    std::fill(directions.begin() + static_cast<std::ptrdiff_t>(at),
              directions.begin() + static_cast<std::ptrdiff_t>(end), before == after ? before : paragraph);
    before = after;
    at = end + 1;
  }
}

}  // namespace

char32_t TakeCharacter(std::string_view& text) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const Lead lead = LeadOf(byteAt(0));
  char32_t character = lead.bits;
  bool isWhole = lead.length > 0 && lead.length <= text.size();
  for (std::size_t at = 1; isWhole && at < lead.length; ++at) {
    isWhole = (byteAt(at) & 0xC0) == 0x80;
    character = (character << 6) | (byteAt(at) & 0x3Fu);
  }
  isWhole = isWhole && character >= lead.least && IsScalar(character);
  text.remove_prefix(isWhole ? lead.length : 1);
  return isWhole ? character : kReplacement;
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto append = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (character < 0x80) return append(character);
  if (character < 0x800) {
    append(0xC0 | (character >> 6));
  } else if (character < 0x10000) {
    append(0xE0 | (character >> 12));
    append(0x80 | ((character >> 6) & 0x3F));
  } else {
    append(0xF0 | (character >> 18));
    append(0x80 | ((character >> 12) & 0x3F));
    append(0x80 | ((character >> 6) & 0x3F));
  }
  append(0x80 | (character & 0x3F));
}

void AppendUtf16(std::u16string& text, char32_t character) {
  if (character < 0x10000) {
    text += static_cast<char16_t>(character);
  } else {
    text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
  }
}

std::u16string Utf16Of(std::string_view utf8) {
  std::u16string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) AppendUtf16(text, TakeCharacter(utf8));
  return text;
}

bool IsPlainAscii(std::string_view text) {
  // Without a way out early the compiler takes many bytes at once.
  bool isPlain = true;
  for (const char byte : text) isPlain &= byte >= ' ' && byte < 0x7F;
  return isPlain;
}

bool IsControl(char32_t character) {
  return character < ' ' || (character >= 0x7F && character < 0xA0);
}

bool IsCombining(char32_t character) {
  return character >= kCombining[0].first && IsIn(character, kCombining);
}

std::size_t WidthInCharacters(std::string_view text) {
  if (IsPlainAscii(text)) return text.size();
  std::size_t width = 0;
  while (!text.empty()) width += IsCombining(TakeCharacter(text)) ? 0 : 1;
  return width;
}

Direction DirectionOf(char32_t character) {
  if (character < 0x100) return IsLatin1Letter(character) ? Direction::kLeftToRight : Direction::kNeutral;
  if (character == 0x200E) return Direction::kLeftToRight;
  if (character == 0x200F) return Direction::kRightToLeft;
  if (IsNumber(character) || IsCombining(character) || IsIn(character, kNeutral)) return Direction::kNeutral;
  return IsIn(character, kRightToLeft) ? Direction::kRightToLeft : Direction::kLeftToRight;
}

Direction FirstDirection(std::string_view text) {
  while (!text.empty()) {
    const Direction direction = DirectionOf(TakeCharacter(text));
    if (direction != Direction::kNeutral) return direction;
  }
  return Direction::kNeutral;
}

bool IsRightToLeft(std::string_view text) {
  return FirstDirection(text) == Direction::kRightToLeft;
}

std::vector<DirectedRun> RunsOf(std::string_view text, Direction paragraph) {
  std::u32string characters;
  Directions directions;
  while (!text.empty()) {
    characters += TakeCharacter(text);
    directions.push_back(DirectionOf(characters.back()));
  }
  if (paragraph == Direction::kNeutral) paragraph = ParagraphDirection(directions);
  ResolveNumbers(characters, paragraph, directions);
  ResolveNeutrals(paragraph, directions);
  std::vector<DirectedRun> runs;
  for (std::size_t at = 0; at < characters.size(); ++at) {
    const bool rightToLeft = directions[at] == Direction::kRightToLeft;
    if (runs.empty() || runs.back().rightToLeft != rightToLeft) runs.push_back({{}, rightToLeft});
    runs.back().characters += characters[at];
  }
  return runs;
}

}  // namespace publishing
