/* guide.dll: the help, HTML pages in the folder "help" beside the library. */
#ifndef TIMES_READINGS_COMPANION_GUIDE_H
#define TIMES_READINGS_COMPANION_GUIDE_H

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Opens the page of a topic in the user's browser: "Start" or "" (the general page), "Shabbat times", "Places",
 * "Accuracy", "Zmanim", "Readings", "Exports and printing", "Occasions". Topics are ASCII, told apart without regard to
 * letter case; an unknown or null topic opens the general page. When the page is missing or cannot be opened, a message
 * box with caption "Times / Readings", owned by owner (may be null), names the file and says what to do. Writes no file.
 */
void GuideGo(HWND owner, const char* topic);

#ifdef __cplusplus
}
#endif

#endif
