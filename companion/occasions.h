/* occasions.dll: what is kept in a year at a place: candle lighting and the end of Shabbat and Yom Tov, fasts,
 * Chanukah, Rosh Chodesh, molad and the other occasions, with their moments. Customs are kept in "occasions.ini",
 * section "Occasions", of the settings folder; the rule of candle lighting and of the end is the one of "shabbat2.ini",
 * the user's own times those of candles.h. A program may do without the library: look its entries up by name.
 *
 * Places as in solar.h; their name is that of the user's own times, windows-1252, and decides whether the place is
 * Jerusalem. Jewish months count from Nisan = 1 to Adar (I) = 12 and Adar II = 13. */
#ifndef TIMES_READINGS_COMPANION_OCCASIONS_H
#define TIMES_READINGS_COMPANION_OCCASIONS_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* In place of an hour: the occasion is a whole day, or its moment does not occur on that day (shown "----"). */
#define OCCASIONS_WHOLE_DAY (-1)
#define OCCASIONS_NONE (-2)

enum { OCCASIONS_ID_SIZE = 32, OCCASIONS_TITLE_SIZE = 192, OCCASIONS_REMARK_SIZE = 512 };

/* One line: an occasion's day, or one of its moments. Texts are UTF-8. */
typedef struct OccasionsRecord {
  uint32_t day; /* the civil date */
  uint32_t month;
  uint32_t year;
  uint32_t weekday;   /* 0 Sunday to 6 Shabbat */
  uint32_t jewishDay; /* of that date's daylight */
  uint32_t jewishMonth;
  uint32_t jewishYear;
  int32_t hour; /* on the clock in force, 0 to 23; OCCASIONS_WHOLE_DAY, OCCASIONS_NONE */
  int32_t minute;
  int32_t number;                            /* of a light, a day of the omer, a month ...; 0 for none */
  char kind[OCCASIONS_ID_SIZE];              /* never changed: "yom-tov" */
  char occasion[OCCASIONS_ID_SIZE];          /* "pesach" */
  char moment[OCCASIONS_ID_SIZE];            /* "candles"; "day" for a whole day */
  char english[OCCASIONS_TITLE_SIZE];        /* "Pesach, first day: candle lighting" */
  char hebrew[OCCASIONS_TITLE_SIZE];         /* the same in Hebrew */
  char englishRemark[OCCASIONS_REMARK_SIZE]; /* by which rule the moment came */
  char hebrewRemark[OCCASIONS_REMARK_SIZE];
} OccasionsRecord;

/* Called with one record after the other, in the order of days and times; what it points to is good until the call
 * returns. 0 ends the enumeration. It may not throw. */
typedef int32_t(CALLBACK* OccasionsReceiver)(const OccasionsRecord* record, void* context);

/* Everything that the user has shown on civil days of a range, both ends included. A date that does not exist means the
 * nearest one of its month and year; years are brought into 1583 to 3000; a range that ends before it begins has
 * nothing. Nonzero when all records have been delivered; 0 when the receiver ended it, is null, the name is null or
 * longer than 255 bytes, or memory is wanting. Shows no window, writes no file. */
int32_t OccasionsEnumerate(const char* place, int32_t latitude, int32_t longitude, int32_t timeZoneHours,
                           int32_t timeZoneMinutes, uint32_t firstDay, uint32_t firstMonth, uint32_t firstYear,
                           uint32_t lastDay, uint32_t lastMonth, uint32_t lastYear, OccasionsReceiver receiver,
                           void* context);

/* The modal window that lists the occasions of a year, or of the range given, at a place: to look, search, copy, print
 * and save. owner may be null; a null name counts as empty. Writes "occasions.ini" (its own size and what it showed
 * last) and the files that the user saves. */
void OccasionsDoDialog(HWND owner, const char* place, int32_t latitude, int32_t longitude, int32_t timeZoneHours,
                       int32_t timeZoneMinutes, uint32_t firstDay, uint32_t firstMonth, uint32_t firstYear,
                       uint32_t lastDay, uint32_t lastMonth, uint32_t lastYear);

/* The modal dialog of customs and of the kinds that are shown. owner may be null. Nonzero when something was stored in
 * "occasions.ini". A file that cannot be read is named in a box, and the dialog opens when it can or not at all. */
int32_t OccasionsDoSettingsDialog(HWND owner);

#ifdef __cplusplus
}
#endif

#endif
