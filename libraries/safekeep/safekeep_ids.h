/* The library's dialog and its controls. Read by the compiler and by the resource compiler, so macros only. */
#ifndef TIMES_READINGS_LIBRARIES_SAFEKEEP_SAFEKEEP_IDS_H
#define TIMES_READINGS_LIBRARIES_SAFEKEEP_SAFEKEEP_IDS_H

#define IDD_RESTORE 100
#define IDC_BACKUP 101
#define IDC_FILES_LABEL 102
#define IDC_FILES 103
#define IDC_AFTERWARDS 104

#endif
