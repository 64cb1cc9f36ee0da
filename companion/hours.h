/* hours.dll: the zmanim that the user has chosen, in the user's order, and the dialog to choose them.
 *
 * The choice is kept in the settings folder; a change of it, by whichever program, counts after at most 50 ms.
 * Indices count the chosen zmanim from 0. */
#ifndef TIMES_READINGS_COMPANION_HOURS_H
#define TIMES_READINGS_COMPANION_HOURS_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The size of the buffers for descriptions, terminator included. */
#define HOURS_TEXT_SIZE 256

/* What HoursCalculate2 answers for a zman that does not occur. */
#define HOURS_NONE (-1)

/* The number of zmanim in the user's selection, at most 100. */
uint32_t HoursGetCount(void);

/* The zman's description in English (windows-1252, at most 48 bytes, unique in the selection) into text, a buffer of
 * HOURS_TEXT_SIZE bytes. Nonzero on success; 0 with text untouched when there is no such zman. */
int32_t HoursGetDescription(uint32_t index, char* text);

/* The same in Hebrew: bytes of the Hebrew display font in reading order, numbers reversed and brackets swapped, so that
 * the text with all its bytes reversed reads right when it is drawn from left to right. */
int32_t HoursGetDescriptionHebrew(uint32_t index, char* text);

/* What the zman is and how it is rounded, a sentence in English that may be long, as UTF-16 into text, a buffer of size
 * units; a longer text is cut, and always ended by a zero. Answers the units that the whole text takes, its zero
 * included, so that a null text or a size of 0 asks for the size; 0 with text untouched when there is no such zman. The
 * library may be older than this entry: look it up by name. */
uint32_t HoursGetDefinition(uint32_t index, WCHAR* text, uint32_t size);

/* By which a caller recognises the selection, here and in other processes: two numbers, the same as long as count,
 * order, descriptions and definitions of the zmanim are, others when any of these differs. Costs no more than
 * HoursGetCount. Null is ignored. The library may be older than this entry: look it up by name. */
void HoursGetFingerprint(uint32_t fingerprint[2]);

/* The zman in minutes after midnight of the Gregorian date, 0 to 1439, on the clock in force there, or HOURS_NONE.
 * A zman after midnight answers the clock time of the next civil day. Coordinates are packed (degrees * 100 + minutes,
 * negative for south and west); the zone is hours and minutes from UTC of standard time, read as in solar.h. Sunrise
 * and sunset are the solar library's for the same day and place: sunrise, sunset and zmanim of whole minutes from them
 * are counted from these, all others from the exact moments. document is not used and may be null. Shows no window,
 * writes no file. */
int32_t HoursCalculate2(HWND document, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes,
                        uint32_t day, uint32_t month, uint32_t year, uint32_t index, int32_t sunriseHour,
                        int32_t sunriseMinute, int32_t sunsetHour, int32_t sunsetMinute);

/* On which civil day HoursCalculate2's answer to the same question is: 0 on the date itself, 1 on the next one, -1 on
 * the one before; 0 for a zman that does not occur. The library may be older than this entry: look it up by name. */
int32_t HoursGetDayOffset(int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes, uint32_t day,
                          uint32_t month, uint32_t year, uint32_t index, int32_t sunriseHour, int32_t sunriseMinute,
                          int32_t sunsetHour, int32_t sunsetMinute);

/* The modal dialog in which the user chooses zmanim, orders them and makes zmanim of their own; the times that it shows
 * are those of today at the given place, in the form of times that the user has chosen. owner may be null. OK writes
 * the choice at once and whole, joined with what another process has stored since the dialog opened; the user is asked
 * where both have changed the same. When writing fails, the dialog says so and stays. Cancel writes nothing. While the
 * stored choice cannot be read, a box says so in place of the dialog. */
void HoursDoDialogInitLoc(HWND owner, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes);

#ifdef __cplusplus
}
#endif

#endif
