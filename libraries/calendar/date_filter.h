// A calendar as its filter library offers it: one table of operations each.
#pragma once

#include <cstdint>
#include <span>

#include "libraries/calendar/date.h"
#include "libraries/calendar/holiday.h"

namespace calendar {

struct DateFilter {
  const char* description;
  int32_t (*absoluteFromDate)(const Date& date);
  Date (*dateFromAbsolute)(int32_t absoluteDay);
  int32_t (*daysInMonth)(int32_t month, int32_t year);
  int32_t (*monthsInYear)(int32_t year);
  const char* (*monthName)(int32_t month, int32_t year, uint32_t language);
  std::span<const Holiday> (*holidays)();
  BaseDay holidayBaseDay;
};

extern const DateFilter gregorianFilter;
extern const DateFilter jewishFilter;

}  // namespace calendar
