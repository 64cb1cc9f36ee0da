// From the UTF-8 of the language tables to the 8-bit texts that the program draws by charset.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lections {

enum class CodePage : uint16_t {
  kCentralEuropean = 1250,
  kCyrillic = 1251,
  kWestern = 1252,
  kGreek = 1253,
  kHebrew = 1255,
};

// The Windows charset number of a code page that is drawn in a font of its own; 0 for the program's own font's.
uint32_t CharSetOf(CodePage page);

// Characters that the code page does not have, and damaged UTF-8, become question marks.
std::string Encoded(std::string_view utf8, CodePage page);

// Whether the code page has all characters of a text.
bool IsEncodable(std::string_view utf8, CodePage page);

// The way back, of what Encoded made.
std::string Decoded(std::string_view encoded, CodePage page);

}  // namespace lections
