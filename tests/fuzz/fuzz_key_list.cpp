#include <cstdint>
#include <cstring>
#include <vector>

#include "locations/core/key_list.h"
#include "tests/fuzz/check.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::vector<char> list(data, data + size);  // ends where the sanitizer sees a step beyond
  const char* next = list.data();
  for (const char* name : KeyList(list)) {
    FUZZ_CHECK(name == next);
    FUZZ_CHECK(*name != '\0');
    next = name + std::strlen(name) + 1;
  }
  const auto used = static_cast<size_t>(next - list.data());
  const bool isEnded = used == list.size() || *next == '\0';
  FUZZ_CHECK(isEnded || std::memchr(next, '\0', list.size() - used) == nullptr);
  return 0;
}
