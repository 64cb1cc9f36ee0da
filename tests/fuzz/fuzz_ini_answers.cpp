#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "libraries/profile/ini_document.h"
#include "libraries/profile/profile_answers.h"
#include "tests/fuzz/check.h"

namespace {

using profile::IniDocument;

// An answer in a buffer of its exact size, where the sanitizer sees a step beyond.
template <typename Answer>
std::string Answered(uint32_t size, Answer answer) {
  std::vector<char> buffer(size, '#');
  const uint32_t count = answer(buffer.data(), size);
  FUZZ_CHECK(count < size);
  FUZZ_CHECK(buffer[count] == '\0');
  return std::string(buffer.data(), count);
}

void CheckText(const IniDocument& document, const std::string& section, const std::string& key, uint32_t size) {
  const auto value = document.Value(section, key);
  const std::string expected(profile::Unquoted(value.value_or("default")));
  const std::string answer = Answered(size, [&](char* buffer, uint32_t bufferSize) {
    return profile::TextAnswer(document, section, key, "default  ", buffer, bufferSize);
  });
  FUZZ_CHECK(answer == expected.substr(0, size - 1));
}

void CheckNumber(const IniDocument& document, const std::string& section, const std::string& key) {
  const auto value = document.Value(section, key);
  const int32_t number = profile::IntAnswer(document, section, key, -7);
  if (!value || profile::Unquoted(*value).empty()) FUZZ_CHECK(number == -7);
  FUZZ_CHECK(profile::NumberIn(std::to_string(number)) == number);
}

void CheckList(const std::string& names, uint32_t size) {
  const std::string answer =
      Answered(size, [&](char* buffer, uint32_t bufferSize) { return profile::ListAnswer(names, buffer, bufferSize); });
  FUZZ_CHECK(answer == (names.size() < size ? names : names.substr(0, std::max(size, 2u) - 2)));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const uint32_t bufferSize = input.ConsumeIntegralInRange<uint32_t>(1, 300);
  const std::string section = input.ConsumeRandomLengthString(20).c_str();
  const std::string key = input.ConsumeRandomLengthString(20).c_str();
  const IniDocument document(input.ConsumeRemainingBytesAsString());
  CheckText(document, section, key, bufferSize);
  CheckNumber(document, section, key);

  const std::string sections = document.SectionNames();
  CheckList(sections, bufferSize);
  // Every name listed can be asked for, and every key listed has a value.
  for (const char* name = sections.c_str(); *name; name += std::strlen(name) + 1) {
    const auto keys = document.KeyNames(name);
    FUZZ_CHECK(keys);
    CheckList(*keys, bufferSize);
    for (const char* listed = keys->c_str(); *listed; listed += std::strlen(listed) + 1) {
      FUZZ_CHECK(document.Value(name, listed));
      CheckText(document, name, listed, bufferSize);
      CheckNumber(document, name, listed);
    }
  }
  return 0;
}
