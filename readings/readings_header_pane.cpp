#include <cstring>

#include "companion/glyphs.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "readings/readings_measures.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "win/text_metrics.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlue = RGB(0, 0, 255);

void DrawTitle(HDC dc, int x, const char* title) {
  GlyphsTextOut(dc, x, 0, title, static_cast<int>(std::strlen(title)));
}

// The titles stand over the columns of the list as they are in the program's font, whatever the font of the texts.
void PaintHeader(HWND pane, HDC dc, const RECT&) {
  const HWND container = GetParent(pane);
  const HWND document = GetParent(container);
  const HFONT font = GetFontProperty(document, property::kParashaFont);
  const HFONT bold = GetFontProperty(document, property::kBoldParashaFont);
  const ReadingsGeometry geometry = MeasureReadings(GetDlgItem(container, IDC_READINGS_LIST_PANE), font, font);
  RECT client;
  GetClientRect(pane, &client);

  const ScopedGdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, kBlue));
  const ScopedGdiObject<HBRUSH> brush(CreateSolidBrush(kBlue));
  const ScopedSelect selectedFont(dc, bold);
  const ScopedTextColors colors(dc, kWhite, kBlue);
  const ScopedSelect selectedPen(dc, pen.get());
  const ScopedSelect selectedBrush(dc, brush.get());
  Rectangle(dc, 0, 0, client.right, MeasureFont(dc, bold).lineHeight);
  DrawTitle(dc, geometry.DateX(), TableString(IDS_DATE));
  DrawTitle(dc, geometry.TorahX(), TableString(IDS_PARASHIOTH));
  DrawTitle(dc, geometry.HaftarahX(), TableString(IDS_HAPHTAROTH));
}

constexpr PanePainting kPainting{nullptr, PaintHeader};

}  // namespace

LRESULT CALLBACK ReadingsHeaderPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  return PaintingPaneMessage(kPainting, pane, message, wParam, lParam);
}
