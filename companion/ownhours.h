/* ownhours.dll: times of zmanim that the user has set by hand, per Gregorian date, zman and place. They are kept in one
 * text file of the settings folder. */
#ifndef TIMES_READINGS_COMPANION_OWNHOURS_H
#define TIMES_READINGS_COMPANION_OWNHOURS_H

#include <stdint.h>

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

/* Releases the store and empties the handle. */
void OwnHoursDone(OwnHoursHandle* handle);

#ifdef __cplusplus
}
#endif

#endif
