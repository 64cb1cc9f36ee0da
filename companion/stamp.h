/* stamp.dll: times as text in the user's form. No operation shows a window unless it says so. */
#ifndef TIMES_READINGS_COMPANION_STAMP_H
#define TIMES_READINGS_COMPANION_STAMP_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Room that StampConvert needs at most, terminator included. */
enum { STAMP_TEXT_SIZE = 32 };

/* The start-up check, given WinMain's arguments: settles the form of times before the first is asked for. */
void StampCheck(HINSTANCE instance, HINSTANCE previousInstance, LPSTR commandLine, int showState);

/* Nonzero when times are written in 12-hour form: the user's choice ("12" or "24" under "Form" in section "Times" of
 * "stamp.ini"), else the regional setting. */
int32_t StampIsAmPm(void);

/* The time as text into a buffer of STAMP_TEXT_SIZE bytes: "18:47", or "06:47 p.m." in 12-hour form (midnight is
 * "12:00 a.m.", noon "12:00 p.m."). Hours 24 to 47 are shown as the next day's: 25:18 is "01:18" or "01:18 a.m.". Any
 * other hour, and minutes outside 0 to 59, are printed as they stand, each to at least two characters, in either form
 * ("48:05", "-1:30", "19:-3"). */
void StampConvert(int32_t hour, int32_t minute, char* text);

/* The modal dialog in which the user chooses the form; owner may be null. Nonzero when it was accepted: the choice then
 * stands in "stamp.ini" and counts from the next call on. Zero, and nothing written, when it was cancelled or could not
 * be shown, or when the user gave up on a file that cannot be read, which a box names. When the choice cannot be
 * written, the dialog says so and stays. */
int32_t StampConfigure(HWND owner);

#ifdef __cplusplus
}
#endif

#endif
