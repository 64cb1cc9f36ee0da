/* The library's dialogs and their controls. Read by the compiler and by the resource compiler, so macros only. */
#ifndef TIMES_READINGS_LIBRARIES_OWNHOURS_OWNHOURS_IDS_H
#define TIMES_READINGS_LIBRARIES_OWNHOURS_OWNHOURS_IDS_H

#define IDD_OWN_TIMES 100
#define IDC_TYPED 101
#define IDC_COUNT 102
#define IDC_TIMES 103
#define IDC_CHANGE 104
#define IDC_REMOVE 105
#define IDC_REMOVE_PLACE 106
#define IDC_UNDO 107

#define IDD_TIME 200
#define IDC_WHAT 201
#define IDC_TIME 202

#endif
