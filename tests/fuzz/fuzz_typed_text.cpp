// What users type into fields, and what exports make of any text.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <string>

#include "app/core/range_check.h"
#include "libraries/calendar/gregorian.h"
#include "output/text_layout.h"
#include "tests/fuzz/check.h"
#include "win/core/whole_number.h"

namespace {

uint32_t LastDayOfMonth(uint32_t month, uint32_t year) {
  return static_cast<uint32_t>(calendar::DaysInGregorianMonth(static_cast<int32_t>(month), static_cast<int32_t>(year)));
}

int32_t AbsoluteFromDate(const CalendarDate& date) {
  return calendar::AbsoluteFromGregorian(
      {static_cast<int32_t>(date.uDay), static_cast<int32_t>(date.uMonth), static_cast<int32_t>(date.uYear)});
}

bool IsDateOfARange(const CalendarDate& date) {
  return date.uYear >= kFirstYear && date.uYear <= kLastYear && date.uMonth >= 1 && date.uMonth <= 12 &&
         date.uDay >= 1 && date.uDay <= LastDayOfMonth(date.uMonth, date.uYear);
}

std::string Written(const CalendarDate& date) {
  return std::to_string(date.uDay) + "." + std::to_string(date.uMonth) + "." + std::to_string(date.uYear);
}

void CheckDate(const std::string& text) {
  const auto date = ParseDate(text);
  FUZZ_CHECK(date.has_value() == (std::count(text.begin(), text.end(), '.') == 2 &&
                                  text.find_first_not_of("0123456789.") == std::string::npos));
  if (!date) return;
  const auto back = ParseDate(Written(*date));
  FUZZ_CHECK(back && Written(*back) == Written(*date));
}

void CheckTypedRange(const std::string& start, const std::string& end) {
  const RangeCheck check = CheckRange(start, end, {LastDayOfMonth, AbsoluteFromDate});
  if (check.fault) {
    FUZZ_CHECK(!check.fault->message.empty());
    return;
  }
  FUZZ_CHECK(IsDateOfARange(check.range.start) && IsDateOfARange(check.range.end));
  FUZZ_CHECK(AbsoluteFromDate(check.range.start) <= AbsoluteFromDate(check.range.end));
}

void CheckNumbers(const std::string& text) {
  const auto number = ParseSigned(text);
  const auto unsignedNumber = ParseUnsigned(text);
  if (number) FUZZ_CHECK(ParseSigned(std::to_string(*number)) == number);
  if (unsignedNumber) FUZZ_CHECK(ParseUnsigned(std::to_string(*unsignedNumber)) == unsignedNumber);
  if (number && unsignedNumber) FUZZ_CHECK(*number >= 0 && static_cast<uint32_t>(*number) == *unsignedNumber);
}

// No byte is left that RTF takes for its own, but those of the escapes.
void CheckRtf(const std::string& text) {
  const std::string escaped = RtfEscape(text);
  const auto isSpecial = [](char c) { return c == '{' || c == '}' || c == '\\'; };
  const auto specials = static_cast<size_t>(std::count_if(text.begin(), text.end(), isSpecial));
  FUZZ_CHECK(escaped.size() == text.size() + 3 * specials);
  FUZZ_CHECK(escaped.find_first_of("{}") == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const std::string start = input.ConsumeRandomLengthString(30);
  const std::string end = input.ConsumeRemainingBytesAsString();
  CheckDate(start);
  CheckTypedRange(start, end);
  CheckNumbers(start);
  CheckRtf(end);
  FUZZ_CHECK(PadRight(end, start.size()).starts_with(end));
  return 0;
}
