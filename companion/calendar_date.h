/* The date record that the program and its companion libraries exchange. */
#ifndef TIMES_READINGS_COMPANION_CALENDAR_DATE_H
#define TIMES_READINGS_COMPANION_CALENDAR_DATE_H

#include <stdint.h>

/* A date of one calendar, Gregorian where nothing else is said. */
typedef struct CalendarDate {
  uint32_t uDay;   /* day of the month, 1 to 31 */
  uint32_t uMonth; /* month, from 1; Jewish months count from Nisan = 1 */
  uint32_t uYear;  /* full year number, e.g. 2007 or 5767 */
} CalendarDate;

#endif
