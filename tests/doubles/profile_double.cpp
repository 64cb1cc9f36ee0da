// The doubled profile library. The suite of tests/contract/profile_behaviour_test.cpp holds it to what the real one
// does.
#include "companion/profile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "tests/doubles/call_log.h"
#include "tests/doubles/library_doubles.h"
#include "tests/doubles/profile_double.h"

namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks(" \t\v\f\r\n\x1A");
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view TrimmedOrEmpty(const char* text) {
  return Trimmed(text ? text : "");
}

std::string_view Unquoted(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.front() == value.back();
  return quoted ? value.substr(1, value.size() - 2) : value;
}

bool IsName(const char* file) {
  return file && *file;
}

bool HoldsLineEnd(std::string_view text) {
  return text.find_first_of("\r\n") != text.npos;
}

uint32_t CopyText(std::string_view text, char* buffer, uint32_t size) {
  const std::size_t length = text.copy(buffer, size - 1);
  buffer[length] = '\0';
  return static_cast<uint32_t>(length);
}

// A list ends in one zero more; one that does not fit is cut so that two zeros end it.
uint32_t CopyList(const std::string& names, char* buffer, uint32_t size) {
  const uint32_t length =
      static_cast<uint32_t>(names.copy(buffer, names.size() < size ? names.size() : std::max(size, 2u) - 2));
  std::memset(buffer + length, 0, std::min(size - length, 2u));
  return length;
}

template <typename List>
std::string NamesOf(const List& list) {
  std::string names;
  for (const auto& element : list) names += element.name + '\0';
  return names;
}

uint32_t CopyKeys(const char* section, std::string_view otherwise, char* buffer, uint32_t size, const char* file) {
  const IniFiles::Section* const found = Libraries().settings.FindSection(file, Trimmed(section));
  if (found) return CopyList(NamesOf(found->keys), buffer, size);
  const uint32_t length = CopyText(otherwise, buffer, size);
  if (length + 1 < size) buffer[length + 1] = '\0';
  return length;
}

uint32_t DigitOf(char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const char small = c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c;
  return static_cast<uint32_t>(std::min(kDigits.find(small), kDigits.size()));
}

// An optional sign, a base's mark, and digits; the low 32 bits of what they mean.
int32_t NumberOf(std::string_view text) {
  while (!text.empty() && text.front() >= 0 && text.front() <= ' ') text.remove_prefix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const uint32_t base = text.starts_with("0x") ? 16 : text.starts_with("0o") ? 8 : text.starts_with("0b") ? 2 : 10;
  if (base != 10) text.remove_prefix(2);
  uint32_t number = 0;
  for (const char c : text) {
    if (DigitOf(c) >= base) break;
    number = number * base + DigitOf(c);
  }
  return static_cast<int32_t>(negative ? 0 - number : number);
}

}  // namespace

std::optional<std::string> ReadSetting(const char* section, const char* key, const char* file) {
  const std::string name = std::string(file) + "|" + section + "|" + key;
  if (Libraries().logSettings) LogCall("read %s", name.c_str());
  if (Libraries().unreadFiles.contains(file)) return std::nullopt;
  if (const std::string* value = Libraries().settings.FindValue(file, Trimmed(section), Trimmed(key))) {
    return std::string(Unquoted(Trimmed(*value)));
  }
  if (!Libraries().unknownSettingsAreMissing && !Libraries().missingSettings.contains(name)) {
    ADD_FAILURE() << "unscripted setting " << name;
  }
  return std::nullopt;
}

int32_t ProfileGetInt(const char* section, const char* key, int32_t defaultValue, const char* file) {
  if (!section || !key || !IsName(file)) return defaultValue;
  const auto value = ReadSetting(section, key, file);
  return !value || value->empty() ? defaultValue : NumberOf(*value);
}

uint32_t ProfileGetString(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                          const char* file) {
  if (!buffer || size == 0) return 0;
  std::string_view otherwise = defaultValue ? defaultValue : "";
  otherwise = otherwise.substr(0, otherwise.find_last_not_of(' ') + 1);
  if (!IsName(file)) return CopyText(otherwise, buffer, size);
  if (!section) return CopyList(NamesOf(Libraries().settings.SectionsOf(file)), buffer, size);
  if (!key) return CopyKeys(section, otherwise, buffer, size, file);
  const auto value = ReadSetting(section, key, file);
  return CopyText(value ? std::string_view(*value) : otherwise, buffer, size);
}

int32_t ProfileWriteString(const char* section, const char* key, const char* value, const char* file) {
  if (!section || !IsName(file) || Libraries().writesFail || file == Libraries().unwritableFile) return 0;
  if (Libraries().unreadFiles.contains(file)) return 0;
  if (Libraries().failingWrites > 0) {
    --Libraries().failingWrites;
    return 0;
  }
  IniFiles& settings = Libraries().settings;
  const std::string_view ownSection = Trimmed(section);
  const std::string_view ownKey = TrimmedOrEmpty(key);
  if (!key) {
    settings.DeleteSection(file, ownSection);
  } else if (!value) {
    settings.DeleteKey(file, ownSection, ownKey);
  } else {
    const std::string_view text = Trimmed(value);
    if (ownSection.empty() || HoldsLineEnd(ownSection) || HoldsLineEnd(text)) return 0;
    if (ownKey.empty() || HoldsLineEnd(ownKey) || ownKey.find('=') != ownKey.npos) return 0;
    if (ownKey.front() == ';' || ownKey.front() == '[') return 0;
    LogCall("write %s|%s|%s=%s", file, section, key, value);
    settings.ValueOf(file, ownSection, ownKey) = text;
  }
  return 1;
}

int32_t ProfileCanRead(const char* file) {
  return !IsName(file) || !Libraries().unreadFiles.contains(file);
}
