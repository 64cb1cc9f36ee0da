#include "libraries/settings_folder/text_table.h"

#include <algorithm>

namespace settings_folder {
namespace {

constexpr char kAnyDigit = '0';

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

std::optional<std::string_view> TakeColumns(std::string_view line, std::string_view pattern,
                                            std::span<uint32_t> numbers) {
  if (line.size() <= pattern.size()) return std::nullopt;
  std::ranges::fill(numbers, 0u);
  size_t column = 0;
  for (size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != kAnyDigit) {
      if (line[i] != pattern[i]) return std::nullopt;
      continue;
    }
    if (!IsDigit(line[i])) return std::nullopt;
    numbers[column] = numbers[column] * 10 + static_cast<uint32_t>(line[i] - '0');
    const bool isLastDigit = i + 1 == pattern.size() || pattern[i + 1] != kAnyDigit;
    if (isLastDigit) ++column;
  }
  return line.substr(pattern.size());
}

std::optional<std::string> TextIn(std::string_view written) {
  return PercentDecoded(written.substr(0, written.find_last_not_of(" \t") + 1));
}

}  // namespace settings_folder
