#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "libraries/profile/ini_document.h"
#include "tests/fuzz/check.h"

namespace {

using profile::IniDocument;

constexpr std::string_view kBlanks(" \t\v\f\r\n\x1A");

std::string Trimmed(const std::string& text) {
  const size_t first = text.find_first_not_of(kBlanks);
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Folded(std::string name) {
  for (char& c : name) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return name;
}

std::vector<std::string> Names(const std::string& list) {
  std::vector<std::string> names;
  for (const char* name = list.c_str(); *name; name += std::strlen(name) + 1) names.push_back(name);
  return names;
}

// The name spelled as it is asked for, else the first that differs from it in letter case alone, else the name itself.
std::string Meant(const std::vector<std::string>& names, const std::string& asked) {
  if (std::find(names.begin(), names.end(), asked) != names.end()) return asked;
  const auto isLike = [&asked](const std::string& name) { return Folded(name) == Folded(asked); };
  const auto like = std::find_if(names.begin(), names.end(), isLike);
  return like != names.end() ? *like : asked;
}

// All that can be asked of a text, by names as they are spelled there.
struct Contents {
  std::vector<std::string> sections;
  std::map<std::string, std::vector<std::string>> keys;  // by section
  std::map<std::string, std::string> values;             // by "section=key"

  bool operator==(const Contents&) const = default;
};

Contents ContentsOf(const std::string& text) {
  const IniDocument document(text);
  Contents contents;
  contents.sections = Names(document.SectionNames());
  for (const std::string& section : contents.sections) {
    contents.keys[section] = Names(document.KeyNames(section).value());
    for (const std::string& key : contents.keys[section]) {
      contents.values[section + "\n" + key] = std::string(document.Value(section, key).value());
    }
  }
  return contents;
}

bool MayBeWritten(const std::string& section, const std::string& key, const std::string& value) {
  const auto isOneLine = [](const std::string& text) { return text.find_first_of("\r\n") == std::string::npos; };
  return !section.empty() && !key.empty() && isOneLine(section) && isOneLine(key) && isOneLine(value) &&
         key.find('=') == std::string::npos && key[0] != ';' && key[0] != '[';
}

// The key reads back, nothing else has changed, and a second writing changes nothing. Answers the text written.
std::string CheckWrite(const std::string& text, const std::string& section, const std::string& key,
                       const std::string& value) {
  const std::string wanted = Trimmed(value);
  const auto written = IniDocument(text).WithValue(section, key, value);
  FUZZ_CHECK(written.has_value() == MayBeWritten(Trimmed(section), Trimmed(key), wanted));
  if (!written) return text;

  Contents expected = ContentsOf(text);
  const std::string sectionName = Meant(expected.sections, Trimmed(section));
  const std::string keyName = Meant(expected.keys[sectionName], Trimmed(key));
  const bool hadSection = std::ranges::find(expected.sections, sectionName) != expected.sections.end();
  const bool hadKey = expected.values.contains(sectionName + "\n" + keyName);
  if (!hadSection) expected.sections.push_back(sectionName);
  if (!hadKey) expected.keys[sectionName].push_back(keyName);
  expected.values[sectionName + "\n" + keyName] = wanted;
  FUZZ_CHECK(ContentsOf(*written) == expected);
  FUZZ_CHECK(IniDocument(*written).WithValue(section, key, value) == *written);
  if (hadSection && !hadKey) {
    const std::string without = IniDocument(*written).WithoutKey(section, key);
    FUZZ_CHECK(without.starts_with(text) && Trimmed(without.substr(text.size())).empty());
  }
  return *written;
}

// The first key of the name is gone, which may bring one that repeated its name to light.
std::string CheckKeyDropped(const std::string& text, const std::string& section, const std::string& key) {
  const std::string dropped = IniDocument(text).WithoutKey(section, key);
  Contents expected = ContentsOf(text);
  Contents found = ContentsOf(dropped);
  const std::string sectionName = Meant(expected.sections, Trimmed(section));
  const auto keysThere = expected.keys.find(sectionName);
  const std::string keyName = keysThere == expected.keys.end() ? "" : Meant(keysThere->second, Trimmed(key));
  if (!expected.values.erase(sectionName + "\n" + keyName)) {
    FUZZ_CHECK(dropped == text);
    return dropped;
  }
  found.values.erase(sectionName + "\n" + keyName);
  std::vector<std::string>& keys = expected.keys[sectionName];
  keys.erase(std::find(keys.begin(), keys.end(), keyName));
  FUZZ_CHECK(found == expected);
  return dropped;
}

std::string CheckSectionDropped(const std::string& text, const std::string& section) {
  const std::string dropped = IniDocument(text).WithoutSection(section);
  Contents expected = ContentsOf(text);
  Contents found = ContentsOf(dropped);
  const std::string sectionName = Meant(expected.sections, Trimmed(section));
  const auto first = std::find(expected.sections.begin(), expected.sections.end(), sectionName);
  if (first == expected.sections.end()) {
    FUZZ_CHECK(dropped == text);
    return dropped;
  }
  expected.sections.erase(first);
  for (Contents* contents : {&expected, &found}) {
    contents->keys.erase(sectionName);
    std::erase_if(contents->values, [&](const auto& entry) { return entry.first.starts_with(sectionName + "\n"); });
  }
  FUZZ_CHECK(found == expected);
  return dropped;
}

// A mark of the byte order that stands elsewhere than at the start is part of a name; dropping what stands before it
// would make it a mark again.
bool HasStrayByteOrderMark(const std::string& text) {
  return text.find("\xEF\xBB\xBF", 1) != std::string::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  std::string text = input.ConsumeRandomLengthString(400);
  for (int edits = 0; edits < 20 && input.remaining_bytes() > 0; ++edits) {
    const auto kind = input.ConsumeIntegralInRange(0, 3);
    const std::string section = input.ConsumeRandomLengthString(10).c_str();
    const std::string key = input.ConsumeRandomLengthString(10).c_str();
    const std::string value = input.ConsumeRandomLengthString(20).c_str();
    if (kind <= 1) text = CheckWrite(text, section, key, value);
    if (kind == 2 && !HasStrayByteOrderMark(text)) text = CheckKeyDropped(text, section, key);
    if (kind == 3 && !HasStrayByteOrderMark(text)) text = CheckSectionDropped(text, section);
  }
  return 0;
}
