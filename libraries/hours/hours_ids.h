/* The library's dialogs and their controls. Read by the compiler and by the resource compiler, so macros only. */
#ifndef TIMES_READINGS_LIBRARIES_HOURS_HOURS_IDS_H
#define TIMES_READINGS_LIBRARIES_HOURS_HOURS_IDS_H

#define IDD_SELECTION 100
#define IDC_TYPED 101
#define IDC_OFFERED_LABEL 102
#define IDC_OFFERED 103
#define IDC_NEW 104
#define IDC_CHANGE 105
#define IDC_DELETE 106
#define IDC_ADD 107
#define IDC_REMOVE 108
#define IDC_UP 109
#define IDC_DOWN 110
#define IDC_PRESET 111
#define IDC_USE_PRESET 112
#define IDC_CHOSEN_LABEL 113
#define IDC_CHOSEN 114
#define IDC_DEFAULTS 115
#define IDC_DEFINITION 116
#define IDC_OWN_LABEL 117
#define IDC_DAY 118
#define IDC_PRESET_LABEL 119
#define IDC_RULE 120
#define IDC_ELEVATION 121

#define IDD_OWN 200
#define IDC_DESCRIPTION 201
#define IDC_HEBREW 202
#define IDC_AMOUNT 203
#define IDC_FORM 204
#define IDC_ROUNDING 205
#define IDC_MEANING 206
#define IDC_COMBINATION 207
#define IDC_OTHER_AMOUNT 208
#define IDC_OTHER_FORM 209

#endif
