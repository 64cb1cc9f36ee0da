// The entry points of the three libraries that are bound by name at start-up. All rooms of the program call through
// them; app/library_binding fills them.
#pragma once

#include "companion/datefilter.h"
#include "companion/solar.h"

struct CivilCalendarEntries {
  decltype(&::DatefilterGetAPIVersion) DatefilterGetAPIVersion;
  decltype(&::DatefilterGetDescriptionString) DatefilterGetDescriptionString;
  decltype(&::DatefilterAbsoluteFromForeign) DatefilterAbsoluteFromForeign;
  decltype(&::DatefilterForeignFromAbsolute) DatefilterForeignFromAbsolute;
  decltype(&::DatefilterGetMonthName) DatefilterGetMonthName;
  decltype(&::DatefilterGetLastDayOfMonth) DatefilterGetLastDayOfMonth;
  decltype(&::DatefilterGetLastMonthOfYear) DatefilterGetLastMonthOfYear;
  decltype(&::DatefilterGetHolidayCount) DatefilterGetHolidayCount;
  decltype(&::DatefilterGetHolidayName) DatefilterGetHolidayName;
  decltype(&::DatefilterGetHolidayDate) DatefilterGetHolidayDate;
  decltype(&::DatefilterGetHolidayFirstYear) DatefilterGetHolidayFirstYear;
  decltype(&::DatefilterGetMonthNameEx) DatefilterGetMonthNameEx;
  decltype(&::DatefilterGetHolidayNameEx) DatefilterGetHolidayNameEx;
};

struct LunarCalendarEntries {
  decltype(&::DatefilterForeignFromAbsolute) DatefilterForeignFromAbsolute;
  decltype(&::DatefilterGetMonthNameEx) DatefilterGetMonthNameEx;
};

struct SolarEntries {
  decltype(&::SolarGetAPIVersion) SolarGetAPIVersion;
  decltype(&::SolarGetCountOfBuiltInLocations) SolarGetCountOfBuiltInLocations;
  decltype(&::SolarGetBuiltInLocation) SolarGetBuiltInLocation;
  decltype(&::SolarGetSunsetSunrise) SolarGetSunsetSunrise;
};

extern CivilCalendarEntries CivilCalendar;
extern LunarCalendarEntries LunarCalendar;
extern SolarEntries Solar;

// The Rata Die day number of a Gregorian date, and back.
inline int32_t AbsoluteFromDate(const CalendarDate& date) {
  return CivilCalendar.DatefilterAbsoluteFromForeign(&date);
}

inline CalendarDate DateFromAbsolute(int32_t absoluteDay) {
  CalendarDate date{};
  CivilCalendar.DatefilterForeignFromAbsolute(absoluteDay, &date);
  return date;
}

// The Jewish date of a day number; months count from Nisan = 1.
inline CalendarDate JewishFromAbsolute(int32_t absoluteDay) {
  CalendarDate date{};
  LunarCalendar.DatefilterForeignFromAbsolute(absoluteDay, &date);
  return date;
}
