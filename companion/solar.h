/* SOLAR.DLL: sunrise and sunset, and the built-in places. The program binds it by name (interface version 256).
 *
 * Places: latitude and longitude are packed, degrees x 100 + minutes, negative for south and west (-3352 is 33 degrees
 * 52 minutes south). The zone is its standard offset from UTC in hours and minutes; the hours' sign leads, so that (-3,
 * 30) and (-3, -30) are both 3:30 behind (St. John's: -3, 30); with hours 0 the minutes' own sign counts.
 *
 * Every operation survives any argument: a date that does not exist means the nearest one of its month and year (years
 * 1 to 9999), a latitude beyond a pole the pole, a longitude wraps, a zone ends at 24 hours. None but
 * SolarDoSummerTimeDialog shows a window or writes a file. */
#ifndef TIMES_READINGS_COMPANION_SOLAR_H
#define TIMES_READINGS_COMPANION_SOLAR_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

enum { SOLAR_SUNSET = 0, SOLAR_SUNRISE = 1 };

/* The interface version, 256. */
uint32_t SolarGetAPIVersion(void);

/* The number of built-in places; their indexes run from 0, which is Aachen; the others are in alphabetical order. */
uint32_t SolarGetCountOfBuiltInLocations(void);

/* The record of built-in place index: its name (a buffer of 256 bytes), packed coordinates and standard zone. Nonzero
 * when there is such a place; otherwise the outputs are left untouched and the answer is 0. Null outputs are skipped.
 */
uint32_t SolarGetBuiltInLocation(uint32_t index, char* name, int32_t* latitude, int32_t* longitude,
                                 int32_t* timeZoneHours, int32_t* timeZoneMinutes);

/* The clock time of sunset (SOLAR_SUNSET, and any other value) or sunrise (SOLAR_SUNRISE) of a Gregorian date at a
 * place, rounded to the nearest minute: the sun's centre 50' below the sea-level horizon, lowered by the horizon's dip
 * when "almanacelevation.ini" knows an elevation for the place. The clock is the one in force at that place and moment
 * (summer time included, section "SummerTime" of "solar.ini"). hour is 0 to 23, minute 0 to 59; a sunset after midnight
 * answers the small hours. Where the sun does not set or rise, the moment of its lowest or highest point is answered.
 * Null outputs are skipped. */
void SolarGetSunsetSunrise(uint32_t day, uint32_t month, uint32_t year, uint32_t event, int32_t latitude,
                           int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes, int32_t* hour,
                           int32_t* minute);

/* Optional; looked up by name. One line about the clock in which the times of a place with these numbers are told, for
 * whoever types them: ASCII text into buffer (size bytes, terminator included; cut to size - 1), such as "Clock:
 * America/Chicago, summer time from March to November". Answers the number of bytes without the terminator; 0, nothing
 * written, for a null buffer or size 0. Reads "solar.ini". */
uint32_t SolarDescribeZone(int32_t latitude, int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes,
                           char* buffer, uint32_t size);

/* Optional; looked up by name. How many seconds the clock in force at a place is ahead of UTC when it shows a minute of
 * a Gregorian date: minuteOfDay counts from the date's midnight, below 0 or from 1440 on it is another date's. Of a
 * time that the clock shows twice, as it is put back, the first counts; one that is left out, as it is put forward, is
 * told as if the clock had not been. */
int32_t SolarGetClockOffset(uint32_t day, uint32_t month, uint32_t year, int32_t minuteOfDay, int32_t latitude,
                            int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes);

/* Optional; looked up by name. Shows a modal dialog about the clock of the place with these numbers, in which the user
 * chooses its zone, or that it or no place has summer time; the choice is stored in "solar.ini". Nonzero when something
 * was stored. owner may be null. */
int32_t SolarDoSummerTimeDialog(HWND owner, int32_t latitude, int32_t longitude, int32_t timeZoneHours,
                                int32_t timeZoneMinutes);

#ifdef __cplusplus
}
#endif

#endif
