// The entry points of companion/datefilter.h are compiled into each filter library from date_filter_dll.cpp; the
// library itself says here which calendar it is.
#pragma once

#include "companion/calendar_date.h"
#include "libraries/calendar/date_filter.h"

namespace calendar {

const DateFilter& FilterOfThisLibrary();

// The day number of a date in a filter's calendar; a null date answers 0.
int32_t AbsoluteFromCalendarDate(const DateFilter& filter, const CalendarDate* date);

}  // namespace calendar
