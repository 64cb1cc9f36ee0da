/* placepick.dll: the dialog in which the user picks a place. */
#ifndef TIMES_READINGS_COMPANION_PLACEPICK_H
#define TIMES_READINGS_COMPANION_PLACEPICK_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Shows the modal dialog "Select Location", owned by owner (may be null), and lets the user pick one of the built-in
 * places or of the user's own (section "Locations" of "shabbat2.ini", numbers in "shabloc2.ini"). A place of the user's
 * own hides built-in ones whose names differ from its name in ASCII letter case at most, as INI files do; names longer
 * than 255 bytes are not offered. name is a buffer of 256 bytes with the zero-terminated windows-1252 name of the
 * current place, which is selected at first.
 *
 * Nonzero with the picked name, terminated, in the buffer. Zero with the buffer untouched when the user cancels, also a
 * box that names a file of places or settings that cannot be read, when name is null or when the dialog cannot be
 * shown. A place that the user picks with "Use this place at start" becomes "DefaultLocation" in section "Preferences"
 * of "almanac13.ini"; one that is that default and is picked without it leaves the key deleted. A size that the user
 * gives the dialog is kept in "placepick.ini". */
int32_t PlacePickSelectLocation(HWND owner, char* name);

#ifdef __cplusplus
}
#endif

#endif
