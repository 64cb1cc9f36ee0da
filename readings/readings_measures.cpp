#include "readings/readings_measures.h"

#include "companion/glyphs.h"
#include "win/scoped.h"
#include "win/text_metrics.h"

ReadingsGeometry MeasureReadings(HWND listPane, HFONT textFont, HFONT programFont) {
  constexpr char kWidestDate[] = "XX.XX.XXXX";
  RECT client;
  GetClientRect(listPane, &client);
  const ScopedWindowDc display(nullptr);
  const FontMeasure text = MeasureFont(display.dc(), textFont);
  const ScopedSelect selected(display.dc(), programFont);
  SIZE date{};
  GlyphsGetTextExtentPoint(display.dc(), kWidestDate, static_cast<int>(sizeof kWidestDate) - 1, &date);
  return {.paneWidth = client.right,
          .paneHeight = client.bottom,
          .indent = text.averageCharacterWidth,
          .dateWidth = date.cx + DateGap(GetDeviceCaps(display.dc(), LOGPIXELSX)),
          .lineHeight = text.lineHeight,
          .rangeLineHeight = MeasureFont(display.dc(), programFont).lineHeight};
}
