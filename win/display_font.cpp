#include "win/display_font.h"

#include <cstring>

#include "win/scoped.h"

namespace {

constexpr int kPointsPerInch = 72;

}  // namespace

HFONT MakeFont(const char* face, int points, int weight) {
  const ScopedWindowDc display(nullptr);
  LOGFONTA font{};
  font.lfHeight = -(points * GetDeviceCaps(display.dc(), LOGPIXELSY) / kPointsPerInch);
  font.lfWeight = weight;
  std::strncpy(font.lfFaceName, face, LF_FACESIZE - 1);
  return CreateFontIndirectA(&font);
}
