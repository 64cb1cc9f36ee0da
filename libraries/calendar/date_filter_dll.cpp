#include "libraries/calendar/date_filter_dll.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>

#include "companion/datefilter.h"
#include "libraries/calendar/month_names.h"

using calendar::Date;
using calendar::FilterOfThisLibrary;
using calendar::Holiday;

namespace {

constexpr uint32_t kApiVersion = 267;
constexpr uint32_t kBufferSize = 256;  // of the texts whose size the caller does not give

// The cores clamp what lies outside their ranges, so a number too great for them need only stay great.
int32_t Signed(uint32_t number) {
  return static_cast<int32_t>(std::min<uint32_t>(number, std::numeric_limits<int32_t>::max()));
}

CalendarDate ToCalendarDate(const Date& date) {
  return {static_cast<uint32_t>(date.day), static_cast<uint32_t>(date.month), static_cast<uint32_t>(date.year)};
}

void CopyText(const char* text, char* buffer, uint32_t size) {
  if (buffer == nullptr || size == 0) return;
  const size_t length = std::min<size_t>(std::strlen(text), size - 1);
  std::memcpy(buffer, text, length);
  buffer[length] = '\0';
}

const Holiday* HolidayAt(uint32_t index) {
  const auto holidays = FilterOfThisLibrary().holidays();
  return index < holidays.size() ? &holidays[index] : nullptr;
}

}  // namespace

uint32_t DatefilterGetAPIVersion(void) {
  return kApiVersion;
}

void DatefilterGetDescriptionString(char* description) {
  CopyText(FilterOfThisLibrary().description, description, kBufferSize);
}

int32_t calendar::AbsoluteFromCalendarDate(const DateFilter& filter, const CalendarDate* date) {
  if (date == nullptr) return 0;
  return filter.absoluteFromDate({Signed(date->uDay), Signed(date->uMonth), Signed(date->uYear)});
}

int32_t DatefilterAbsoluteFromForeign(const CalendarDate* date) {
  return calendar::AbsoluteFromCalendarDate(FilterOfThisLibrary(), date);
}

void DatefilterForeignFromAbsolute(int32_t absoluteDay, CalendarDate* date) {
  if (date != nullptr) *date = ToCalendarDate(FilterOfThisLibrary().dateFromAbsolute(absoluteDay));
}

void DatefilterGetMonthName(uint32_t month, uint32_t year, char* name) {
  DatefilterGetMonthNameEx(month, 0, name, kBufferSize, year, calendar::kEnglish);
}

uint32_t DatefilterGetLastDayOfMonth(uint32_t month, uint32_t year) {
  return static_cast<uint32_t>(FilterOfThisLibrary().daysInMonth(Signed(month), Signed(year)));
}

uint32_t DatefilterGetLastMonthOfYear(uint32_t year) {
  return static_cast<uint32_t>(FilterOfThisLibrary().monthsInYear(Signed(year)));
}

uint32_t DatefilterGetHolidayCount(void) {
  return static_cast<uint32_t>(FilterOfThisLibrary().holidays().size());
}

uint32_t DatefilterGetHolidayName(uint32_t index, char* name) {
  return DatefilterGetHolidayNameEx(index, name, kBufferSize, calendar::kEnglish);
}

uint32_t DatefilterGetHolidayDate(uint32_t index, uint32_t year, CalendarDate* date) {
  const Holiday* holiday = HolidayAt(index);
  if (holiday == nullptr) return 0;
  const auto day = calendar::DayOfHoliday(*holiday, Signed(year), FilterOfThisLibrary().holidayBaseDay);
  if (!day) return 0;
  DatefilterForeignFromAbsolute(*day, date);
  return 1;
}

uint32_t DatefilterGetHolidayFirstYear(uint32_t index) {
  const Holiday* holiday = HolidayAt(index);
  return holiday == nullptr ? 0 : static_cast<uint32_t>(holiday->rules[0].fromYear);
}

void DatefilterGetMonthNameEx(uint32_t month, uint32_t /*reserved*/, char* name, uint32_t size, uint32_t year,
                              uint32_t language) {
  CopyText(FilterOfThisLibrary().monthName(Signed(month), Signed(year), language), name, size);
}

// Holidays have English names only.
uint32_t DatefilterGetHolidayNameEx(uint32_t index, char* name, uint32_t size, uint32_t /*language*/) {
  const Holiday* holiday = HolidayAt(index);
  CopyText(holiday == nullptr ? "" : holiday->name, name, size);
  return holiday == nullptr ? 0 : 1;
}
