// The text library as the program sees it, writing down every text it draws: a line "x y text" in drawn.txt of the
// program's settings folder. Tests from outside the process read there what the program shows.
#include <windows.h>

#include <cstring>
#include <fstream>
#include <string>

#include "companion/glyphs.h"

namespace {

void WriteDown(int x, int y, const char* text, int count) {
  char folder[MAX_PATH] = "";
  GetEnvironmentVariableA("TIMES_READINGS_HOME", folder, sizeof folder);
  std::ofstream drawn(std::string(folder) + "\\drawn.txt", std::ios::app | std::ios::binary);
  drawn << x << ' ' << y << ' ' << std::string(text, static_cast<std::size_t>(count)) << '\n';
}

}  // namespace

BOOL GlyphsTextOut(HDC dc, int x, int y, const char* text, int count) {
  WriteDown(x, y, text, count);
  return TextOutA(dc, x, y, text, count);
}

BOOL GlyphsExtTextOut(HDC dc, int x, int y, UINT options, const RECT* rectangle, const char* text, UINT count,
                      const INT* spacing) {
  WriteDown(x, y, text, static_cast<int>(count));
  return ExtTextOutA(dc, x, y, options, rectangle, text, count, spacing);
}

BOOL GlyphsGetTextExtentPoint(HDC dc, const char* text, int count, SIZE* size) {
  return GetTextExtentPoint32A(dc, text, count, size);
}

int GlyphsDrawText(HDC dc, const char* text, int count, RECT* rectangle, UINT format) {
  WriteDown(rectangle->left, rectangle->top, text, count == -1 ? static_cast<int>(std::strlen(text)) : count);
  return DrawTextA(dc, text, count, rectangle, format);
}

void GlyphsGetHebrewFontName(char* name) {
  std::strcpy(name, "Times New Roman");
}
