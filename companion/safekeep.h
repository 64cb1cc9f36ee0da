/* safekeep.dll: all settings of the user in one file, a zip archive, and back. */
#ifndef TIMES_READINGS_COMPANION_SAFEKEEP_H
#define TIMES_READINGS_COMPANION_SAFEKEEP_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Asks for a file and writes the settings files of this moment into it, at once and whole. Shows the system's dialog
 * for files, and boxes: what was written and where, or what was not and why. owner may be null. Nonzero when the backup
 * stands; 0 when the user cancelled or was told why not, and then an older file of that name is as it was. */
int32_t SafekeepBackUp(HWND owner);

/* Asks for a backup, checks all of it, shows in a modal dialog what it would replace, and when the user agrees replaces
 * those settings files: first the present ones are backed up into the folder "backups" of the settings folder, then all
 * are replaced or none. Settings that the backup does not have stay, and so do files that are none of the program's.
 * owner may be null. Nonzero when settings were restored, and whoever reads them anew then sees them; 0 when the user
 * cancelled or was told why not. */
int32_t SafekeepRestore(HWND owner);

#ifdef __cplusplus
}
#endif

#endif
