/* The library's dialog and its controls. */
#ifndef TIMES_READINGS_LIBRARIES_STAMP_STAMP_IDS_H
#define TIMES_READINGS_LIBRARIES_STAMP_STAMP_IDS_H

#define IDD_FORM 100
#define IDC_AS_IN_WINDOWS 101
#define IDC_24_HOURS 102
#define IDC_12_HOURS 103
#define IDC_SAMPLE 104

#endif
