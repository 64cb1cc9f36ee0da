#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "engine/core/leading_integer.h"
#include "tests/fuzz/check.h"

// Beside the standard library's reader, which promises the same but for the range.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const long long expected = std::strtoll(text.c_str(), nullptr, 10);
  const int32_t number = LeadingInteger(text.c_str());
  FUZZ_CHECK(number == std::clamp<long long>(expected, INT32_MIN, INT32_MAX));
  FUZZ_CHECK(LeadingInteger(std::to_string(number)) == number);
  LeadingInteger(std::string_view(text));  // zero bytes within
  return 0;
}
