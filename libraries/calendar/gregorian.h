// The proleptic Gregorian calendar, years 1 to 9999.
#pragma once

#include <cstdint>

#include "libraries/calendar/date.h"

namespace calendar {

bool IsGregorianLeapYear(int32_t year);

// 28 to 31; 0 for a month outside 1 to 12.
int32_t DaysInGregorianMonth(int32_t month, int32_t year);

// Whether the calendar has such a date. Any numbers.
bool IsGregorianDate(uint32_t day, uint32_t month, uint32_t year);

// A year, month or day outside its range is clamped into it, in this order.
int32_t AbsoluteFromGregorian(const Date& date);

// A day outside the calendar's years answers their first or last day.
Date GregorianFromAbsolute(int32_t absoluteDay);

// Easter Sunday of the Western churches, as an absolute day; of meaning from 1583 on.
int32_t GregorianEaster(int32_t year);

}  // namespace calendar
