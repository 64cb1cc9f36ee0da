/* Calendar filters: one interface, offered by CIVILCAL.DLL (proleptic Gregorian calendar, interface version 267) and by
 * LUNARCAL.DLL (Jewish calendar). The program binds both by name, so these are the types of the entry points.
 *
 * Absolute day numbers are Rata Die: day 1 is Monday, 1 January of year 1 of the proleptic Gregorian calendar, and day
 * n is a Friday exactly when n mod 7 = 5. "Foreign" means the calendar of the filter that is asked.
 *
 * Jewish months are numbered Nisan = 1 ... Tishri = 7 ... Adar (Adar I in a leap year) = 12, Adar II = 13; the year
 * changes at Tishri.
 *
 * Every operation survives any argument; what it answers outside the ranges given here is stated with it. None shows a
 * window or writes a file. Texts are 8-bit, zero-terminated; a text that does not fit its buffer is cut to fit. */
#ifndef TIMES_READINGS_COMPANION_DATEFILTER_H
#define TIMES_READINGS_COMPANION_DATEFILTER_H

#include <stdint.h>

#include "companion/calendar_date.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The interface version: high byte major, low byte minor (267 = 0x010B is 1.11). */
uint32_t DatefilterGetAPIVersion(void);

/* The calendar's English name into description, a buffer of 256 bytes. A null buffer is left alone. */
void DatefilterGetDescriptionString(char* description);

/* The absolute day number of a date of years 1 to 9999. A day or month outside its range is clamped into it, a year
 * likewise; a null date answers 0. */
int32_t DatefilterAbsoluteFromForeign(const CalendarDate* date);

/* The date of an absolute day number. A day number outside the years 1 to 9999 of the calendar answers that
 * range's first or last day. A null date is left alone. */
void DatefilterForeignFromAbsolute(int32_t absoluteDay, CalendarDate* date);

/* The English name of a month (Adar, Adar I or Adar II by the year) into name, a buffer of 256 bytes. A month that the
 * year does not have answers an empty text. */
void DatefilterGetMonthName(uint32_t month, uint32_t year, char* name);

/* The number of days of a month; 0 for a month that the year does not have. */
uint32_t DatefilterGetLastDayOfMonth(uint32_t month, uint32_t year);

/* The highest month number of a year: 12, or 13 in a Jewish leap year. */
uint32_t DatefilterGetLastMonthOfYear(uint32_t year);

/* The number of holidays that the filter knows; their indexes run from 0. */
uint32_t DatefilterGetHolidayCount(void);

/* The English name of holiday index into name, a buffer of 256 bytes. Nonzero when there is such a holiday; otherwise
 * the name is emptied and the answer is 0. */
uint32_t DatefilterGetHolidayName(uint32_t index, char* name);

/* The date of holiday index in a year of the filter's calendar, in that calendar. Nonzero when the holiday occurs in
 * that year; otherwise date is left untouched and the answer is 0. A null date is left alone. */
uint32_t DatefilterGetHolidayDate(uint32_t index, uint32_t year, CalendarDate* date);

/* The first year of the filter's calendar in which holiday index was kept, 1 for what has been kept from of old; 0 when
 * there is no such holiday. */
uint32_t DatefilterGetHolidayFirstYear(uint32_t index);

/* The name of a month of a year in a language into name, a buffer of size bytes; reserved is 0. Languages: 1 English,
 * 3 German, 4 Hebrew, 5 French, 6 Danish, 7 Finnish, 8 Swedish, 9 Dutch, 10 Spanish, 11 Norwegian, 12 Portuguese, 14
 * Hungarian, 15 Czech, 16 Greek, 17 Russian, 20 Italian, 21 Polish; any other answers the English name. Names are in
 * windows-1252, Hungarian, Czech and Polish ones in windows-1250, Hebrew ones in windows-1255, Greek ones in
 * windows-1253, Russian ones in windows-1251. Size 0 or a null buffer does nothing. */
void DatefilterGetMonthNameEx(uint32_t month, uint32_t reserved, char* name, uint32_t size, uint32_t year,
                              uint32_t language);

/* The name of holiday index into name, a buffer of size bytes, as DatefilterGetHolidayName; holidays have English names
 * whatever the language. Size 0 or a null buffer writes nothing. Nonzero when there is such a holiday. */
uint32_t DatefilterGetHolidayNameEx(uint32_t index, char* name, uint32_t size, uint32_t language);

#ifdef __cplusplus
}
#endif

#endif
