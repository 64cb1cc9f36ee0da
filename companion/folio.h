/* folio.dll: the page of Talmud that the world learns on a day (Daf Yomi). Shows no window, writes no file. */
#ifndef TIMES_READINGS_COMPANION_FOLIO_H
#define TIMES_READINGS_COMPANION_FOLIO_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The page of a Gregorian date with its cycle into text, a buffer of 256 bytes: "Berachot 2 (cycle 14)", in ASCII. A
 * day before 11 September 1923, when the first cycle began, and a date that does not exist get a text that says so. A
 * null text is left alone. */
void FolioGetWithCycle(uint32_t day, uint32_t month, uint32_t year, char* text);

#ifdef __cplusplus
}
#endif

#endif
