#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "libraries/calendar/date_filter.h"
#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "tests/fuzz/check.h"

namespace {

using calendar::Date;
using calendar::DateFilter;

bool IsDate(const DateFilter& filter, const Date& date) {
  return date.year >= calendar::kFirstYear && date.year <= calendar::kLastYear && date.month >= 1 &&
         date.month <= filter.monthsInYear(date.year) && date.day >= 1 &&
         date.day <= filter.daysInMonth(date.month, date.year);
}

void CheckDay(const DateFilter& filter, int32_t day) {
  const int32_t first = filter.absoluteFromDate({INT32_MIN, INT32_MIN, INT32_MIN});
  const Date date = filter.dateFromAbsolute(day);
  FUZZ_CHECK(IsDate(filter, date));
  // A year's first month is not month 1 in the Jewish calendar, so its first day is asked for by its day.
  const int32_t back = filter.absoluteFromDate(date);
  FUZZ_CHECK(filter.dateFromAbsolute(back) == date);
  FUZZ_CHECK(back == day || filter.dateFromAbsolute(day > first ? INT32_MAX : INT32_MIN) == date);
}

void CheckDate(const DateFilter& filter, const Date& date) {
  const Date back = filter.dateFromAbsolute(filter.absoluteFromDate(date));
  FUZZ_CHECK(IsDate(filter, back));
  FUZZ_CHECK(!IsDate(filter, date) || back == date);
  const int32_t year = std::clamp(date.year, calendar::kFirstYear, calendar::kLastYear);
  FUZZ_CHECK(back.year == year);
  FUZZ_CHECK(back.month == std::clamp(date.month, 1, filter.monthsInYear(year)));
}

void CheckMonth(const DateFilter& filter, int32_t month, int32_t year, uint32_t language) {
  const int32_t months = filter.monthsInYear(year);
  FUZZ_CHECK(months == 12 || months == 13);
  const bool exists = month >= 1 && month <= months;
  const int32_t days = filter.daysInMonth(month, year);
  FUZZ_CHECK(exists ? days >= 28 && days <= 31 : days == 0);
  FUZZ_CHECK((std::strlen(filter.monthName(month, year, language)) > 0) == exists);
}

void CheckHoliday(const DateFilter& filter, size_t index, int32_t year) {
  const calendar::Holiday& holiday = filter.holidays()[index % filter.holidays().size()];
  const auto day = calendar::DayOfHoliday(holiday, year, filter.holidayBaseDay);
  if (!day) return;
  FUZZ_CHECK(year >= holiday.rules[0].fromYear && year <= calendar::kLastYear);
  // Only what moves by weekdays can leave its year.
  const int32_t found = filter.dateFromAbsolute(*day).year;
  FUZZ_CHECK(found >= year - 1 && found <= year + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzedDataProvider input(data, size);
  const auto number = [&input] {
    return input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : input.ConsumeIntegralInRange(-40, 10040);
  };
  const int32_t day =
      input.ConsumeBool() ? input.ConsumeIntegral<int32_t>() : input.ConsumeIntegralInRange(-1400000, 3700000);
  const Date date = {number(), number(), number()};
  const auto index = input.ConsumeIntegral<uint32_t>();
  for (const DateFilter* filter : {&calendar::gregorianFilter, &calendar::jewishFilter}) {
    CheckDay(*filter, day);
    CheckDate(*filter, date);
    CheckMonth(*filter, date.month, date.year, index);
    CheckHoliday(*filter, index, date.year);
  }
  calendar::GregorianEaster(date.year);
  calendar::YearTypeOf(date.year);
  return 0;
}
