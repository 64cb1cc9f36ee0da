#include "app/core/document_title.h"

#include <cinttypes>
#include <cstdio>

namespace {

// Day, month and year of the range's first and last day.
constexpr char kRangeFormat[] = " (%" PRIu32 ".%" PRIu32 ".%" PRIu32 " - %" PRIu32 ".%" PRIu32 ".%" PRIu32 ")";
constexpr std::size_t kLongestRange = 80;  // six numbers of at most ten digits, and the signs between them

}  // namespace

std::string DocumentTitle(const char* locationName, const DateRange& range) {
  char rangeText[kLongestRange];
  std::snprintf(rangeText, sizeof rangeText, kRangeFormat, range.start.uDay, range.start.uMonth, range.start.uYear,
                range.end.uDay, range.end.uMonth, range.end.uYear);
  return locationName + std::string(rangeText);
}
