/* lections.dll: Torah and Haftarah readings of a Jewish date by the user's land, custom and language, Yizkor, and the
 * dialogs to set them. Settings are kept in the settings folder; a change counts after at most 50 ms. */
#ifndef TIMES_READINGS_COMPANION_LECTIONS_H
#define TIMES_READINGS_COMPANION_LECTIONS_H

#include <stdint.h>
#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Zero-terminated 8-bit texts in the charset of LectionsGetFont2, none over 255 bytes. */
typedef struct LectionsReadings {
  char torah1[260]; /* the weekly portion or the reading of the day; empty: the day has no readings */
  char torah2[260];
  char torah3[260];
  char haftarah1[256];
  char haftarah2[256];
  char haftarah3[256];
  char extraText[256]; /* windows-1252 in every language: it is drawn in the program's own font */
} LectionsReadings;

typedef struct LectionsFont {
  uint32_t UseDefaultFont; /* nonzero: the program's own font; the rest then does not count */
  char FaceName[256];
  uint32_t PointSize;
  uint32_t CharSet; /* Windows charset number; 0: none given */
} LectionsFont;

/* The readings of a Jewish date (months from Nisan = 1, Adar (I) = 12, Adar II = 13). The record is filled whole; a
 * date that does not exist has no readings. */
void LectionsGetReadings(uint32_t day, uint32_t month, uint32_t year, LectionsReadings* readings);

/* What the user has chosen, the language aside: land, customs, and what is shown. One opaque number, never 0, by which
 * the entries below answer later as they would now, whatever is chosen meanwhile; it means nothing to another version
 * of the library. */
uint32_t LectionsGetChoice(void);

/* As LectionsGetReadings, by a choice that LectionsGetChoice answered, in the language stored now. A number that is no
 * choice counts as the one stored now. The library may be older than the entries with choices: look them up by name. */
void LectionsGetReadingsBy(uint32_t choice, uint32_t day, uint32_t month, uint32_t year, LectionsReadings* readings);

/* The code of the language of the texts: 1 English, 2 English in Ashkenazi spelling, 3 German, 4 Hebrew, 5 French,
 * 6 Danish, 7 Finnish, 8 Swedish, 9 Dutch, 10 Spanish, 11 Norwegian, 12 Portuguese, 14 Hungarian, 15 Czech, 16 Greek,
 * 17 Russian, 20 Italian, 21 Polish. */
uint32_t LectionsGetLanguage(void);

/* Nonzero when chapters and verses are numbered as in the language's own Bibles, else 0. Like the language it is no
 * part of a choice. The library may be older than this entry: look it up by name. */
int32_t LectionsHasOwnNumbers(void);

/* Nonzero when Yizkor is said on the Jewish date in the user's land. */
int32_t LectionsIsYizkor(uint32_t day, uint32_t month, uint32_t year);

/* The same in a choice's land. */
int32_t LectionsIsYizkorBy(uint32_t choice, uint32_t day, uint32_t month, uint32_t year);

/* The word for Yizkor into text, a buffer of 256 bytes: windows-1252 in every language, at most 10 bytes. */
void LectionsGetYizkor(char* text);

/* The word for a custom, 0 to 2, that stands in the texts where the customs differ ("Sephardi"), into text, a buffer of
 * 256 bytes, in the charset of LectionsGetFont2. Nonzero when there is such a custom; else text is left untouched. The
 * library may be older than this entry: look it up by name. */
int32_t LectionsGetCustomName(uint32_t custom, char* text);

/* The font that the texts are to be drawn in. */
void LectionsGetFont2(LectionsFont* font);

/* Modal dialogs: land, customs and what is shown; the language of the texts; the user's own texts. owner may be null.
 * Nonzero when OK has stored the settings or texts; 0 on Cancel, which changes nothing, when no own text was changed,
 * and when the user gives up on files that cannot be read, which a box says in place of the dialog. */
int32_t LectionsDoConfigureDialog(HWND owner);
int32_t LectionsDoLanguageDialog(HWND owner);
int32_t LectionsDoCustomReadingsDialog(HWND owner);

#ifdef __cplusplus
}
#endif

#endif
