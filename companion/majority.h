/* majority.dll: when a child comes of age (bar and bat mitzvah), and what is read then. */
#ifndef TIMES_READINGS_COMPANION_MAJORITY_H
#define TIMES_READINGS_COMPANION_MAJORITY_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* What the dialog shows when it opens. */
typedef struct MajorityDialogData {
  uint32_t day; /* the Gregorian date of birth, years 1583 to 3000 */
  uint32_t month;
  uint32_t year;
  uint32_t afterSunset; /* nonzero: born after sunset, which is the next Jewish day */
  uint32_t isGirl;      /* nonzero: bat mitzvah at 12, else bar mitzvah at 13 */
} MajorityDialogData;

/* Fills the record whole: what the dialog was last closed with in this run of the program, else a boy who is twelve
 * today by the computer's date. A null record is left alone. */
void MajorityInitDialogData(MajorityDialogData* data);

/* The modal dialog, which opens with the record and leaves in it what it was closed with; a record with a date that
 * does not exist counts as that of MajorityInitDialogData. Null for owner or record is allowed. Writes files only where
 * the user says so: the persons' file of kinship.dll, an iCalendar file. */
void MajorityDoDialog(HWND owner, MajorityDialogData* data);

#ifdef __cplusplus
}
#endif

#endif
