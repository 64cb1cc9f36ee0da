#include "readings/readings_font.h"

#include "win/scoped.h"

namespace {

constexpr int kPointsPerInch = 72;

}  // namespace

ReadingsFont::ReadingsFont(const LectionsFont& font, HFONT programFont)
    : programFont_(programFont), wantsOwn_(font.UseDefaultFont == 0) {
  if (!wantsOwn_) return;
  const ScopedWindowDc display(nullptr);
  LOGFONTA record{};
  record.lfHeight = -MulDiv(static_cast<int>(font.PointSize), GetDeviceCaps(display.dc(), LOGPIXELSY), kPointsPerInch);
  record.lfCharSet = static_cast<BYTE>(font.CharSet);
  lstrcpynA(record.lfFaceName, font.FaceName, LF_FACESIZE);
  own_ = CreateFontIndirectA(&record);
}

ReadingsFont::~ReadingsFont() {
  if (own_) DeleteObject(own_);
}
