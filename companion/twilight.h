/* twilight.dll: the interval to a solar depression, and decimal numbers in settings. Places and zones as in solar.h. No
 * operation shows a window or writes a file. */
#ifndef TIMES_READINGS_COMPANION_TWILIGHT_H
#define TIMES_READINGS_COMPANION_TWILIGHT_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The interval from the sunset of a Gregorian date at a place until the sun's centre stands depressionDegrees below the
 * geometric horizon. Added to the rounded sunset of solar.h it gives that moment rounded up to the minute, so that
 * nightfall is never early. 0:00 when the sun stands that low at sunset already; where it does not get that low, the
 * interval to its lowest point; a depression that is not a number counts as one that is not reached. hours is 0 or
 * more, minutes 0 to 59. Null outputs are skipped. */
void TwilightCalculate(uint32_t day, uint32_t month, uint32_t year, double depressionDegrees, int32_t latitude,
                       int32_t longitude, int32_t timeZoneHours, int32_t timeZoneMinutes, int32_t* hours,
                       int32_t* minutes);

/* A decimal number from an INI file (profile.h): the longest decimal number that the key's text starts with, white
 * space before it skipped. The default when the key is missing, empty or does not start with a number, or a name is
 * null. A number beyond the range of double is its largest. */
double TwilightGetProfileDouble(const char* section, const char* key, double defaultValue, const char* file);

/* Nonzero when text, white space at either end aside, is one decimal number: an optional sign, digits with at most one
 * decimal point among or beside them. Whatever this accepts, TwilightGetProfileDouble reads back. A null text is none.
 */
int32_t TwilightIsValidFloat(const char* text);

#ifdef __cplusplus
}
#endif

#endif
