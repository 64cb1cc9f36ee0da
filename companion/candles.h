/* candles.dll: candle-lighting and end-of-Shabbat times of the user's own, per place and Friday. They are kept in the
 * text file "candles.txt" of the settings folder; a change of it counts after at most 50 ms. */
#ifndef TIMES_READINGS_COMPANION_CANDLES_H
#define TIMES_READINGS_COMPANION_CANDLES_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The times stored for a place, by its exact spelling, and a Friday. Nonzero with the outputs filled (hours 0 to 23,
 * minutes 0 to 59); 0 with the outputs untouched when there are none. Shows no window, writes no file. */
int32_t CandlesGetTime(const char* location, uint32_t day, uint32_t month, uint32_t year, int32_t* candleHour,
                       int32_t* candleMinute, int32_t* endHour, int32_t* endMinute);

/* The modal dialog in which the user adds, changes and removes entries; owner may be null. OK writes the changes in the
 * file at once and whole, entries that another process changed meanwhile and lines that are no entries untouched; when
 * that fails, the dialog says so and stays. Cancel writes nothing. While the file cannot be read, a box says so in
 * place of the dialog. */
void CandlesDoDialog(HWND owner);

/* The same; new entries are preset with the place named, by its exact spelling, and with the first Friday from today on
 * that it has no times for. A null, empty or longer name than 255 bytes presets what CandlesDoDialog does: the place of
 * the selected entry. The library may be older than this entry: look it up by name. */
void CandlesDoDialogAt(HWND owner, const char* place);

#ifdef __cplusplus
}
#endif

#endif
