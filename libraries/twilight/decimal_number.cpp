#include "libraries/twilight/decimal_number.h"

#include <charconv>
#include <limits>
#include <system_error>

namespace twilight {
namespace {

bool IsSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

size_t SkipSpaces(std::string_view text, size_t at) {
  while (at < text.size() && IsSpace(text[at])) ++at;
  return at;
}

size_t SkipDigits(std::string_view text, size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

// digits: digits with at most one point, at least one digit.
double ValueOfDigits(std::string_view digits) {
  double value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  if (result.ec != std::errc::result_out_of_range) return value;
  const bool isLarge = digits.find_first_of("123456789") < digits.find('.');
  return isLarge ? std::numeric_limits<double>::max() : 0;
}

}  // namespace

DecimalPrefix ReadDecimalPrefix(std::string_view text) {
  const size_t signAt = SkipSpaces(text, 0);
  const bool isSigned = signAt < text.size() && (text[signAt] == '+' || text[signAt] == '-');
  const size_t start = signAt + (isSigned ? 1 : 0);
  const size_t point = SkipDigits(text, start);
  const bool hasPoint = point < text.size() && text[point] == '.';
  const size_t end = hasPoint ? SkipDigits(text, point + 1) : point;
  const size_t digitCount = end - start - (hasPoint ? 1 : 0);
  if (digitCount == 0) return {false, 0, 0};
  const double size = ValueOfDigits(text.substr(start, end - start));
  return {true, text[signAt] == '-' ? -size : size, end};
}

bool IsDecimalNumber(std::string_view text) {
  const DecimalPrefix prefix = ReadDecimalPrefix(text);
  return prefix.isNumber && SkipSpaces(text, prefix.length) == text.size();
}

}  // namespace twilight
