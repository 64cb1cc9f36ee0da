/* The library's dialog and its controls. Read by the compiler and by the resource compiler, so macros only. */
#ifndef TIMES_READINGS_LIBRARIES_SOLAR_SOLAR_IDS_H
#define TIMES_READINGS_LIBRARIES_SOLAR_SOLAR_IDS_H

#define IDD_SUMMER_TIME 100
#define IDC_PLACE 101
#define IDC_CLOCK 102
#define IDC_NOW 103
#define IDC_NEXT_CHANGE 104
#define IDC_SECOND_CHANGE 105
#define IDC_WARNING 106
#define IDC_ZONE_FOUND 110 /* these three follow each other */
#define IDC_NO_SUMMER_TIME 111
#define IDC_OTHER_ZONE 112
#define IDC_TYPED 113
#define IDC_COUNT 114
#define IDC_ZONES 115
#define IDC_OFF_ANYWHERE 116

#endif
