#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "output/text_layout.h"
#include "output/text_wrap.h"
#include "tests/fuzz/check.h"

namespace {

// The bytes that an escaped text stands for. Every backslash must begin \'XX with two upper-case digits.
std::string Unescaped(std::string_view escaped) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    if (escaped[i] != '\\') {
      text += escaped[i];
      continue;
    }
    FUZZ_CHECK(i + 3 < escaped.size() && escaped[i + 1] == '\'');
    const std::size_t high = kDigits.find(escaped[i + 2]);
    const std::size_t low = kDigits.find(escaped[i + 3]);
    FUZZ_CHECK(high != kDigits.npos && low != kDigits.npos);
    text += static_cast<char>(high * 16 + low);
    i += 3;
  }
  return text;
}

void CheckEscape(std::string_view text, std::string_view special) {
  const std::string escaped = RtfEscape(text, special);
  FUZZ_CHECK(escaped.find_first_of("{}") == escaped.npos);
  FUZZ_CHECK(escaped.size() >= text.size() && escaped.size() <= 4 * text.size());
  FUZZ_CHECK(Unescaped(escaped) == text);
}

void CheckWrap(std::string_view text, std::size_t width) {
  std::string joined;
  for (const std::string& line : WrapText(text, width)) {
    FUZZ_CHECK(line.size() < width || FirstWord(line).size() == line.size());
    FUZZ_CHECK(!line.empty() || joined.empty());
    joined += line;
  }
  FUZZ_CHECK(joined == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  CheckEscape(text, "{}\\");
  CheckEscape(text, "{}'\\");
  CheckWrap(text, data[0]);
  const std::string padded = PadRight(text, data[0]);
  FUZZ_CHECK(padded.starts_with(text) && padded.size() == std::max<std::size_t>(text.size(), data[0]));
  FUZZ_CHECK(IsBlank(padded) == IsBlank(text));
  FUZZ_CHECK(ReverseText(ReverseText(text)) == text);
  return 0;
}
