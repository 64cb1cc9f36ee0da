/* glyphs.dll: 8-bit text drawn and measured by the charset of the selected font, never by the system's code page.
 *
 * Text in a font of the Hebrew charset is logical-order windows-1255 and goes through the system's bidirectional
 * layout, from right to left; the Hebrew display font has an ordinary Latin charset and is drawn left to right as its
 * bytes stand. The library makes that font known to the process by itself, at the first call of any of these.
 * Arguments and results are those of the system's text calls; count -1 is allowed for zero-terminated text where the
 * system's call allows it. */
#ifndef TIMES_READINGS_COMPANION_GLYPHS_H
#define TIMES_READINGS_COMPANION_GLYPHS_H

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

/* As TextOut: count bytes of text at (x, y). Nonzero on success. */
BOOL GlyphsTextOut(HDC dc, int x, int y, const char* text, int count);

/* As ExtTextOut: clipped to or filling rectangle (may be null) by options; spacing in logical units per byte of text,
 * or null; ETO_PDY and ETO_GLYPH_INDEX count for nothing. Nonzero on success. */
BOOL GlyphsExtTextOut(HDC dc, int x, int y, UINT options, const RECT* rectangle, const char* text, UINT count,
                      const INT* spacing);

/* As GetTextExtentPoint: the size of count bytes of text in logical units. Nonzero on success. */
BOOL GlyphsGetTextExtentPoint(HDC dc, const char* text, int count, SIZE* size);

/* As DrawText: text drawn into rectangle by format (DT_...); DT_CALCRECT measures. The height drawn, 0 on failure. */
int GlyphsDrawText(HDC dc, const char* text, int count, RECT* rectangle, UINT format);

/* The face name of the Hebrew display font into name, a buffer of LF_FACESIZE bytes. */
void GlyphsGetHebrewFontName(char* name);

#ifdef __cplusplus
}
#endif

#endif
