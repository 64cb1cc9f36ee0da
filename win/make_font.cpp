#include "win/make_font.h"

#include <cstring>

#include "win/scoped.h"

namespace {

constexpr int kPointsPerInch = 72;

}  // namespace

HFONT MakeFont(const char* face, int points, int weight) {
  const ScopedWindowDc display(nullptr);
  return MakeFontAt(GetDeviceCaps(display.dc(), LOGPIXELSY), face, points, weight);
}

HFONT MakeFontAt(int dotsPerInch, const char* face, int points, int weight) {
  LOGFONTA font{};
  font.lfHeight = -(points * dotsPerInch / kPointsPerInch);
  font.lfWeight = weight;
  std::strncpy(font.lfFaceName, face, LF_FACESIZE - 1);
  return CreateFontIndirectA(&font);
}
