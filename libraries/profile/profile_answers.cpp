#include "libraries/profile/profile_answers.h"

#include <algorithm>

namespace profile {
namespace {

uint32_t CopyText(std::string_view text, char* buffer, uint32_t size) {
  const size_t count = text.copy(buffer, size - 1);
  buffer[count] = '\0';
  return static_cast<uint32_t>(count);
}

std::string_view WithoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The value of a digit in any base up to sixteen; 16 for other characters.
uint32_t DigitValue(char c) {
  if (c >= '0' && c <= '9') return static_cast<uint32_t>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<uint32_t>(c - 'a' + 10);
  if (c >= 'A' && c <= 'F') return static_cast<uint32_t>(c - 'A' + 10);
  return 16;
}

// Takes the prefix of a base, if there is one, off the digits.
uint32_t TakeBase(std::string_view* digits) {
  struct Prefix {
    std::string_view text;
    uint32_t base;
  };
  for (const Prefix& prefix : {Prefix{"0x", 16}, Prefix{"0o", 8}, Prefix{"0b", 2}}) {
    if (digits->starts_with(prefix.text)) {
      digits->remove_prefix(prefix.text.size());
      return prefix.base;
    }
  }
  return 10;
}

}  // namespace

std::string_view Unquoted(std::string_view value) {
  const bool isQuoted =
      value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
  return isQuoted ? value.substr(1, value.size() - 2) : value;
}

int32_t NumberIn(std::string_view text) {
  const auto isBlank = [](char c) { return c >= '\0' && c <= ' '; };
  text.remove_prefix(static_cast<size_t>(std::ranges::find_if_not(text, isBlank) - text.begin()));
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  const uint32_t base = TakeBase(&text);
  uint32_t number = 0;
  for (const char c : text) {
    const uint32_t digit = DigitValue(c);
    if (digit >= base) break;
    number = number * base + digit;
  }
  return static_cast<int32_t>(isNegative ? 0 - number : number);
}

int32_t IntAnswer(const IniDocument& document, std::string_view section, std::string_view key, int32_t defaultValue) {
  const std::string_view text = Unquoted(document.Value(section, key).value_or(""));
  return text.empty() ? defaultValue : NumberIn(text);
}

uint32_t TextAnswer(const IniDocument& document, std::string_view section, std::string_view key,
                    std::string_view defaultValue, char* buffer, uint32_t size) {
  const std::optional<std::string_view> value = document.Value(section, key);
  return CopyText(value ? Unquoted(*value) : WithoutTrailingBlanks(defaultValue), buffer, size);
}

uint32_t ListAnswer(std::string_view names, char* buffer, uint32_t size) {
  if (names.size() < size) {
    const uint32_t count = static_cast<uint32_t>(names.copy(buffer, names.size()));
    std::fill(buffer + count, buffer + std::clamp(2u, count + 1, size), '\0');
    return count;
  }
  const uint32_t count = size < 2 ? 0 : size - 2;
  names.copy(buffer, count);
  std::fill(buffer + count, buffer + size, '\0');
  return count;
}

uint32_t KeyListAnswer(const IniDocument& document, std::string_view section, std::string_view defaultValue,
                       char* buffer, uint32_t size) {
  if (const std::optional<std::string> names = document.KeyNames(section)) return ListAnswer(*names, buffer, size);
  const uint32_t count = TextAnswer(document, "", "", defaultValue, buffer, size);
  // Whoever walks it as a list finds its end.
  if (count + 1 < size) buffer[count + 1] = '\0';
  return count;
}

}  // namespace profile
