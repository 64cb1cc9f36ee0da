#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include "libraries/profile/ini_document.h"
#include "libraries/profile/profile_answers.h"
#include "libraries/twilight/decimal_number.h"
#include "tests/fuzz/check.h"

namespace {

using twilight::DecimalPrefix;

// The longest prefix is a number as the standard library reads it, and one more byte makes no longer number.
void CheckPrefix(const std::string& text, const DecimalPrefix& prefix) {
  const double largest = std::numeric_limits<double>::max();
  const double expected = std::strtod(text.substr(0, prefix.length).c_str(), nullptr);
  FUZZ_CHECK(prefix.value == std::clamp(expected, -largest, largest));
  FUZZ_CHECK(twilight::IsDecimalNumber(text.substr(0, prefix.length)));
  FUZZ_CHECK(prefix.length == text.size() ||
             twilight::ReadDecimalPrefix(text.substr(0, prefix.length + 1)).length == prefix.length);
}

// What is accepted as a number is read back from an INI file as the same number.
void CheckReadBack(const std::string& text, double value) {
  const auto written = profile::IniDocument("").WithValue("Shabbat", "Degrees", text);
  FUZZ_CHECK(written);
  const profile::IniDocument document(*written);
  std::string buffer(text.size() + 1, '#');
  const uint32_t length =
      profile::TextAnswer(document, "Shabbat", "Degrees", "", buffer.data(), static_cast<uint32_t>(buffer.size()));
  const DecimalPrefix read = twilight::ReadDecimalPrefix(buffer.substr(0, length));
  FUZZ_CHECK(read.isNumber && read.value == value && std::signbit(read.value) == std::signbit(value));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const DecimalPrefix prefix = twilight::ReadDecimalPrefix(text);
  FUZZ_CHECK(prefix.length <= text.size());
  FUZZ_CHECK(std::isfinite(prefix.value));
  if (prefix.isNumber) CheckPrefix(text, prefix);
  if (twilight::IsDecimalNumber(text)) CheckReadBack(text, prefix.value);
  return 0;
}
