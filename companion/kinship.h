/* kinship.dll: birthdays, yahrzeit and other dates of persons. They are kept in "persons.txt" of the settings folder.
 */
#ifndef TIMES_READINGS_COMPANION_KINSHIP_H
#define TIMES_READINGS_COMPANION_KINSHIP_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Called once at start-up, before any other operation. Shows no window, writes no file. */
void KinshipInit(void);

/* Called once at shut-down: releases what KinshipInit and the windows since made. */
void KinshipDone(void);

/* The calendar in which KinshipInvoke is given its year. */
#define KINSHIP_GREGORIAN 1

/* The modal window with the persons and their dates in a year and those that follow it. calendar: KINSHIP_GREGORIAN,
 * the only one there is; the year is brought into 1583 to 3000. owner may be null. Writes the file when the user says
 * OK or Apply. A file that cannot be read is named in a box, and the window opens when it can be read or not at all. */
void KinshipInvoke(HWND owner, uint32_t calendar, uint32_t year);

/* The modal dialog to choose the font of that window's list and of its printed pages. owner may be null. */
void KinshipFontDialog(HWND owner);

#ifdef __cplusplus
}
#endif

#endif
