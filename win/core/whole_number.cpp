#include "win/core/whole_number.h"

#include <charconv>

namespace {

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

template <typename Number>
std::optional<Number> ParseWhole(std::string_view digits) {
  Number number{};
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

}  // namespace

std::optional<uint32_t> ParseUnsigned(std::string_view text) {
  return ParseWhole<uint32_t>(WithoutBlanks(text));
}

std::optional<int32_t> ParseSigned(std::string_view text) {
  std::string_view digits = WithoutBlanks(text);
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
  return ParseWhole<int32_t>(digits);
}
