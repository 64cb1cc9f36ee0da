/* Resource ids of the picker. Read by the compiler and by the resource compiler, so macros only. */
#ifndef TIMES_READINGS_LIBRARIES_PLACEPICK_PICKER_IDS_H
#define TIMES_READINGS_LIBRARIES_PLACEPICK_PICKER_IDS_H

#define IDD_PICKER 100

#define IDC_TYPED 101
#define IDC_COUNT 102
#define IDC_PLACES 103
#define IDC_START 104

#endif
