#include "companion/datecore.h"

#include "libraries/calendar/date_filter.h"
#include "libraries/calendar/date_filter_dll.h"

const calendar::DateFilter& calendar::FilterOfThisLibrary() {
  return jewishFilter;
}

int32_t CivilAbsoluteFromDate(const CalendarDate* date) {
  return calendar::AbsoluteFromCalendarDate(calendar::gregorianFilter, date);
}
