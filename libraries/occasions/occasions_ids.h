/* The library's dialogs and their controls. Read by the compiler and by the resource compiler, so macros only. */
#ifndef TIMES_READINGS_LIBRARIES_OCCASIONS_OCCASIONS_IDS_H
#define TIMES_READINGS_LIBRARIES_OCCASIONS_OCCASIONS_IDS_H

#define IDD_OCCASIONS 100
#define IDC_SPAN 101
#define IDC_YEAR 102
#define IDC_YEAR_SPIN 103
#define IDC_KIND 104
#define IDC_TYPED 105
#define IDC_NEXT_TEXT 106
#define IDC_OCCASIONS 107
#define IDC_REMARK 108
#define IDC_NEXT 109
#define IDC_HEBREW 110
#define IDC_COPY 111
#define IDC_PRINT 112
#define IDC_SAVE 113
#define IDC_SETTINGS 114
#define IDC_STATE 115
#define IDC_YEAR_BACK 116 /* these two are commands without a control */
#define IDC_YEAR_ON 117

#define IDD_TAKE 200
#define IDC_TAKE_LIST 201
#define IDC_TAKE_CANDLES 202
#define IDC_FORMAT 203
#define IDC_FORMAT_LABEL 204

#define IDD_SETTINGS 300
#define IDC_LAND 301
#define IDC_DAWN 302
#define IDC_NIGHTFALL 303
#define IDC_NIGHTFALL_MINUTES 304
#define IDC_NIGHTFALL_OF_AV 305
#define IDC_NIGHTFALL_OF_AV_MINUTES 306
#define IDC_CHAMETZ 307
#define IDC_CHANUKAH 308
#define IDC_CHANUKAH_MINUTES 309
#define IDC_LEVANA_FROM 310
#define IDC_LEVANA_UNTIL 311
#define IDC_SELICHOT 312
#define IDC_KINDS 313
#define IDC_USUAL 314

#endif
