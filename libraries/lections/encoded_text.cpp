#include "libraries/lections/encoded_text.h"

namespace lections {
namespace {

constexpr uint32_t kHebrewCharSet = 177;
constexpr uint32_t kNone = 0xFFFFFFFF;

// The character at the front of a text, taken off it: of one to three bytes, as all letters here are.
uint32_t TakeCharacter(std::string_view& text) {
  const auto byte = [&text](size_t i) { return static_cast<uint32_t>(static_cast<unsigned char>(text[i])); };
  const auto follows = [&](size_t i) { return i < text.size() && (byte(i) & 0xC0) == 0x80; };
  uint32_t character = kNone;
  size_t length = 1;
  if (byte(0) < 0x80) {
    character = byte(0);
  } else if ((byte(0) & 0xE0) == 0xC0 && follows(1)) {
    character = (byte(0) & 0x1F) << 6 | (byte(1) & 0x3F);
    length = 2;
  } else if ((byte(0) & 0xF0) == 0xE0 && follows(1) && follows(2)) {
    character = (byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
    length = 3;
  }
  text.remove_prefix(length);
  return character;
}

// The characters that a code page has beyond ASCII and that texts here use: count of them from first on, in the page
// from byte on.
struct Run {
  CodePage page;
  uint32_t first;
  uint32_t count;
  uint32_t byte;
};
constexpr Run kRuns[] = {{CodePage::kHebrew, 0x05D0, 27, 0xE0},  // alef to tav
                         {CodePage::kHebrew, 0x05F3, 2, 0xD7},   // geresh, behind a numeral, and gershayim
                         {CodePage::kWestern, 0xA0, 96, 0xA0}};

char ByteOf(uint32_t character, CodePage page) {
  if (character < 0x80) return static_cast<char>(character);
  for (const Run& run : kRuns) {
    const uint32_t place = character - run.first;
    if (run.page == page && character >= run.first && place < run.count) return static_cast<char>(run.byte + place);
  }
  return '?';
}

void AppendCharacterOf(char encoded, CodePage page, std::string& utf8) {
  const uint32_t byte = static_cast<unsigned char>(encoded);
  for (const Run& run : kRuns) {
    if (run.page != page || byte < run.byte || byte - run.byte >= run.count) continue;
    const uint32_t character = run.first + byte - run.byte;  // of two bytes each
    utf8 += static_cast<char>(0xC0 | character >> 6);
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
    return;
  }
  utf8 += byte < 0x80 ? encoded : '?';
}

}  // namespace

uint32_t CharSetOf(CodePage page) {
  return page == CodePage::kHebrew ? kHebrewCharSet : 0;
}

std::string Encoded(std::string_view utf8, CodePage page) {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) text += ByteOf(TakeCharacter(utf8), page);
  return text;
}

std::string Decoded(std::string_view encoded, CodePage page) {
  std::string text;
  for (const char byte : encoded) AppendCharacterOf(byte, page, text);
  return text;
}

}  // namespace lections
