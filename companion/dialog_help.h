/* How the help key finds the page of a library's dialog. Libraries do not show help: a dialog's template gives it one
 * of these help ids (the last number of its DIALOGEX line), and its procedure sends WM_HELP on to its owner as it came.
 * The caller of the library, at the end of the owners, finds the dialog as the top-level window of HELPINFO's
 * hItemHandle and its number by GetWindowContextHelpId. A number is never given to another dialog. The program's own
 * have less than 100. */
#ifndef TIMES_READINGS_COMPANION_DIALOG_HELP_H
#define TIMES_READINGS_COMPANION_DIALOG_HELP_H

#define HELPID_CANDLES 100
#define HELPID_CANDLES_ENTRY 101
#define HELPID_HOURS_SELECTION 110
#define HELPID_HOURS_OWN 111
#define HELPID_LECTIONS_CONFIGURE 120
#define HELPID_LECTIONS_LANGUAGE 121
#define HELPID_LECTIONS_OWN 122
#define HELPID_LECTIONS_OWN_TEXT 123
#define HELPID_OWNHOURS 130
#define HELPID_OWNHOURS_TIME 131
#define HELPID_STAMP_FORM 140
#define HELPID_PLACEPICK 150
#define HELPID_KINSHIP 160
#define HELPID_KINSHIP_ENTRY 161
#define HELPID_KINSHIP_EXPORT 162
#define HELPID_MAJORITY 170
#define HELPID_SOLAR_SUMMER_TIME 190
#define HELPID_SAFEKEEP_RESTORE 200
#define HELPID_OCCASIONS 210
#define HELPID_OCCASIONS_SETTINGS 211
#define HELPID_OCCASIONS_SAVE 212

#endif
