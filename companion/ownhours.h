/* ownhours.dll: times of zmanim that the user has set by hand, per Gregorian date, zman and place. They are kept in one
 * text file of the settings folder. */
#ifndef TIMES_READINGS_COMPANION_OWNHOURS_H
#define TIMES_READINGS_COMPANION_OWNHOURS_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* An open store. The caller owns the record, the library what it points to, from OwnHoursLoad to OwnHoursDone. */
typedef struct OwnHoursHandle {
  void* store;
} OwnHoursHandle;

/* Reads the file as it stands now; a missing file is an empty store. Nonzero on success; 0 with the handle empty, which
 * every other operation accepts, when the file cannot be read. */
int32_t OwnHoursLoad(OwnHoursHandle* handle);

/* The time stored for a date, a zman by its English description and a place by its name (both by exact spelling).
 * Nonzero with hour (0 to 23) and minute (0 to 59) written; 0 with them untouched when there is none. */
int32_t OwnHoursGet(const OwnHoursHandle* handle, uint32_t day, uint32_t month, uint32_t year, const char* description,
                    const char* location, int32_t* hour, int32_t* minute);

/* Sets or replaces a time in the open store; the file is untouched until OwnHoursStore. Nonzero on success; 0 when the
 * key or the time cannot be kept. */
int32_t OwnHoursSet(OwnHoursHandle* handle, uint32_t day, uint32_t month, uint32_t year, const char* description,
                    const char* location, int32_t hour, int32_t minute);

/* Writes what OwnHoursSet changed into the file, at once and whole; times that another process stored meanwhile and
 * lines that are no times stay. Nonzero on success; 0 with the file as it was when it cannot be written. */
int32_t OwnHoursStore(OwnHoursHandle* handle);

/* The calculated time of a zman, by its English description, at a place, by its name, on a Gregorian date: nonzero with
 * hour and minute written; 0 when place or zman are not known any more or the zman has no time on that day. */
typedef int32_t (*OwnHoursCalculate)(uint32_t day, uint32_t month, uint32_t year, const char* description,
                                     const char* location, int32_t* hour, int32_t* minute);

/* Optional; looked up by name. Shows a modal dialog that lists the times in the file beside what calculate answers for
 * them (null: nothing), to search, change and remove them; changes are written when it is accepted, those that another
 * process made meanwhile kept. Nonzero when the file was changed. The calls of calculate are made on the calling thread
 * while the dialog is open. */
int32_t OwnHoursDoDialog(HWND owner, OwnHoursCalculate calculate);

/* Releases the store and empties the handle. */
void OwnHoursDone(OwnHoursHandle* handle);

#ifdef __cplusplus
}
#endif

#endif
