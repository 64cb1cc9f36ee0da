#include "win/text_metrics.h"

#include "win/scoped.h"

FontMeasure MeasureFont(HDC dc, HFONT font) {
  const ScopedSelect selected(dc, font ? static_cast<HGDIOBJ>(font) : GetStockObject(SYSTEM_FONT));
  TEXTMETRICA metrics{};
  GetTextMetricsA(dc, &metrics);
  return {metrics.tmHeight, metrics.tmAveCharWidth};
}

FontMeasure MeasureFontOnDisplay(HFONT font) {
  const ScopedWindowDc display(nullptr);
  return MeasureFont(display.dc(), font);
}
