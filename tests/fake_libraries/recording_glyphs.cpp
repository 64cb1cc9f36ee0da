// The text library as the program sees it, writing down every text it draws: a line "x y text" in drawn.txt of the
// program's settings folder. Tests from outside the process read there what the program shows.
#include <windows.h>

#include <fstream>
#include <string>

#include "companion/glyphs.h"

BOOL GlyphsTextOut(HDC dc, int x, int y, const char* text, int count) {
  char folder[MAX_PATH] = "";
  GetEnvironmentVariableA("TIMES_READINGS_HOME", folder, sizeof folder);
  std::ofstream drawn(std::string(folder) + "\\drawn.txt", std::ios::app | std::ios::binary);
  drawn << x << ' ' << y << ' ' << std::string(text, static_cast<std::size_t>(count)) << '\n';
  return TextOutA(dc, x, y, text, count);
}
