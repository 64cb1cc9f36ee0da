#include "engine/core/leading_integer.h"

#include <limits>

namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";
using Limits = std::numeric_limits<int32_t>;

}  // namespace

int32_t LeadingInteger(std::string_view text) {
  const std::size_t start = text.find_first_not_of(kWhiteSpace);
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);

  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);

  int64_t magnitude = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    magnitude = magnitude * 10 + (c - '0');
    if (magnitude > Limits::max()) return negative ? Limits::min() : Limits::max();
  }
  return static_cast<int32_t>(negative ? -magnitude : magnitude);
}
