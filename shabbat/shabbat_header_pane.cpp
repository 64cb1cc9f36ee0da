#include <cstring>

#include "companion/glyphs.h"
#include "engine/core/records.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "shabbat/core/shabbat_geometry.h"
#include "shabbat/shabbat_panes.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "win/text_metrics.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlue = RGB(0, 0, 255);

void DrawTitle(HDC dc, int x, const char* title) {
  GlyphsTextOut(dc, x, 0, title, static_cast<int>(std::strlen(title)));
}

void PaintHeader(HWND pane, HDC dc, const RECT&) {
  const HWND document = GetParent(pane);
  const HFONT font = GetFontProperty(document, property::kBoldFont);
  const FontMeasure measure = MeasureFont(dc, font);
  RECT client;
  GetClientRect(pane, &client);
  RECT list;
  GetClientRect(GetDlgItem(document, IDC_LIST_PANE), &list);
  const ShabbatListGeometry geometry{list.right, list.bottom, measure.lineHeight};

  const ScopedGdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, kBlue));
  const ScopedGdiObject<HBRUSH> brush(CreateSolidBrush(kBlue));
  const ScopedSelect selectedFont(dc, font);
  const ScopedTextColors colors(dc, kWhite, kBlue);
  const ScopedSelect selectedPen(dc, pen.get());
  const ScopedSelect selectedBrush(dc, brush.get());
  Rectangle(dc, 0, 0, client.right, measure.lineHeight);

  // The date's title alone is read from the resources at every paint.
  char dateTitle[kTextSize] = "";
  LoadStringA(reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(pane, GWLP_HINSTANCE)), IDS_DATE, dateTitle,
              static_cast<int>(sizeof dateTitle));
  const int indent = measure.averageCharacterWidth;
  DrawTitle(dc, indent + geometry.ColumnX(0), dateTitle);
  DrawTitle(dc, indent + geometry.ColumnX(1), TableString(IDS_CANDLE_LIGHTING));
  DrawTitle(dc, indent + geometry.ColumnX(2), TableString(IDS_END_OF_SHABBAT));
}

constexpr PanePainting kPainting{nullptr, PaintHeader};

}  // namespace

LRESULT CALLBACK ShabbatHeaderPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  return PaintingPaneMessage(kPainting, pane, message, wParam, lParam);
}
