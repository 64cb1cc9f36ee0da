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

char ByteOf(uint32_t character, CodePage page) {
  constexpr uint32_t kAlef = 0x05D0;
  constexpr uint32_t kTav = 0x05EA;
  constexpr uint32_t kAlefIn1255 = 0xE0;
  constexpr uint32_t kGeresh = 0x05F3;  // behind a numeral; gershayim follows it in Unicode and in windows-1255
  constexpr uint32_t kGereshIn1255 = 0xD7;
  if (character < 0x80) return static_cast<char>(character);
  if (page == CodePage::kHebrew && character >= kAlef && character <= kTav) {
    return static_cast<char>(kAlefIn1255 + (character - kAlef));
  }
  if (page == CodePage::kHebrew && (character == kGeresh || character == kGeresh + 1)) {
    return static_cast<char>(kGereshIn1255 + (character - kGeresh));
  }
  if (page == CodePage::kWestern && character >= 0xA0 && character <= 0xFF) return static_cast<char>(character);
  return '?';
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

}  // namespace lections
