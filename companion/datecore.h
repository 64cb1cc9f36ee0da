/* datecore.dll: the conversions, month names and holidays that the exports want of the Gregorian (civil) and the Jewish
 * (lunar) calendar. Day numbers are Rata Die; Jewish months count from Nisan = 1, Adar (I) = 12, Adar II = 13. The
 * operations answer as those of the same purpose in companion/datefilter.h, which says what happens outside their
 * ranges. None shows a window or writes a file. */
#ifndef TIMES_READINGS_COMPANION_DATECORE_H
#define TIMES_READINGS_COMPANION_DATECORE_H

#include <stdint.h>

#include "companion/calendar_date.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The day number of a Gregorian date of years 1 to 9999; a null date answers 0. */
int32_t CivilAbsoluteFromDate(const CalendarDate* date);

/* The Jewish date of a day number. A null date is left alone. */
void LunarDateFromAbsolute(int32_t absoluteDay, CalendarDate* date);

/* The name of a Jewish month of a year (Adar, Adar I or Adar II by the year) in a language into name, a buffer of size
 * bytes; reserved is 0. Languages: 1 English, 3 German, 4 Hebrew, 5 French, 6 Danish, 7 Finnish, 8 Swedish, 9 Dutch,
 * 10 Spanish, 11 Norwegian, 12 Portuguese, 14 Hungarian, 15 Czech, 16 Greek, 17 Russian, 20 Italian, 21 Polish; any
 * other answers the English name. Names are in windows-1252, Hungarian, Czech and Polish ones in windows-1250, Hebrew
 * ones in windows-1255, Greek ones in windows-1253, Russian ones in windows-1251. */
void LunarGetMonthNameEx(uint32_t month, uint32_t reserved, char* name, uint32_t size, uint32_t year,
                         uint32_t language);

/* The Jewish holidays; their indexes run from 0. */
uint32_t LunarGetHolidayCount(void);

/* The Jewish date of a holiday in a Jewish year. Nonzero when it occurs then; otherwise date is left untouched. */
uint32_t LunarGetHolidayDate(uint32_t index, uint32_t year, CalendarDate* date);

/* The first Jewish year in which a holiday was kept, 1 for what has been kept from of old; 0 for no such holiday. */
uint32_t LunarGetHolidayFirstYear(uint32_t index);

/* The English name of a holiday, whatever the language, into name, a buffer of size bytes. Nonzero when there is such a
 * holiday; otherwise the name is emptied. */
uint32_t LunarGetHolidayNameEx(uint32_t index, char* name, uint32_t size, uint32_t language);

#ifdef __cplusplus
}
#endif

#endif
