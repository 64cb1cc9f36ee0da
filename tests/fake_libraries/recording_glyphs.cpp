// The text library as the program sees it, writing down every text it draws: a line "window-class x y charset text" in
// drawn.txt of the program's settings folder, the charset that of the font. Tests from outside the process read there
// what the program shows.
#include <windows.h>

#include <cstring>
#include <fstream>
#include <string>

#include "companion/glyphs.h"

namespace {

void Record(HDC dc, int x, int y, const std::string& text) {
  char folder[MAX_PATH] = "";
  GetEnvironmentVariableA("TIMES_READINGS_HOME", folder, sizeof folder);
  char className[64] = "-";
  GetClassNameA(WindowFromDC(dc), className, sizeof className);
  std::ofstream drawn(std::string(folder) + "\\drawn.txt", std::ios::app | std::ios::binary);
  drawn << className << ' ' << x << ' ' << y << ' ' << GetTextCharset(dc) << ' ' << text << '\n';
}

}  // namespace

BOOL GlyphsTextOut(HDC dc, int x, int y, const char* text, int count) {
  Record(dc, x, y, std::string(text, static_cast<std::size_t>(count)));
  return TextOutA(dc, x, y, text, count);
}

BOOL GlyphsExtTextOut(HDC dc, int x, int y, UINT options, const RECT* rectangle, const char* text, UINT count,
                      const INT* spacing) {
  Record(dc, x, y, std::string(text, count));
  return ExtTextOutA(dc, x, y, options, rectangle, text, count, spacing);
}

BOOL GlyphsGetTextExtentPoint(HDC dc, const char* text, int count, SIZE* size) {
  return GetTextExtentPoint32A(dc, text, count, size);
}

int GlyphsDrawText(HDC dc, const char* text, int count, RECT* rectangle, UINT format) {
  const std::string whole = count == -1 ? text : std::string(text, static_cast<std::size_t>(count));
  Record(dc, rectangle->left, rectangle->top, whole);
  return DrawTextA(dc, text, count, rectangle, format);
}

void GlyphsGetHebrewFontName(char* name) {
  std::strcpy(name, "Times New Roman");
}
