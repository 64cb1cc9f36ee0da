#include <cstring>
#include <string>

#include "companion/glyphs.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "zmanim/zmanim_measures.h"
#include "zmanim/zmanim_panes.h"
#include "zmanim/zmanim_tooltip.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlue = RGB(0, 0, 255);

void DrawNumbers(HDC dc, const ZmanimGeometry& geometry, const RECT& client, const RECT& area) {
  const RECT clip{0, 0, geometry.clientWidth, client.bottom};
  const IndexRange zmanim = geometry.ZmanimIn({area.left, area.top, area.right - area.left, area.bottom - area.top});
  for (uint32_t zman = zmanim.begin; zman < zmanim.end; ++zman) {
    const std::string number = std::to_string(zman + 1);
    GlyphsExtTextOut(dc, geometry.textIndent + geometry.ColumnX(zman), 0, ETO_CLIPPED, &clip, number.c_str(),
                     static_cast<UINT>(number.size()), nullptr);
  }
}

void PaintHeading(HWND pane, HDC dc, const RECT& area) {
  const HWND container = GetParent(pane);
  const HWND document = GetParent(container);
  const HFONT font = GetFontProperty(document, property::kBoldZmanimFont);
  const ZmanimGeometry geometry = MeasureZmanimTable(GetDlgItem(container, IDC_ZMANIM_TABLE), dc, font, nullptr,
                                                     GetBlockProperty(document, property::kZmanimLabels));
  RECT client;
  GetClientRect(pane, &client);

  const ScopedGdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, kBlue));
  const ScopedGdiObject<HBRUSH> brush(CreateSolidBrush(kBlue));
  const ScopedSelect selectedFont(dc, font);
  const ScopedTextColors colors(dc, kWhite, kBlue);
  const ScopedSelect selectedPen(dc, pen.get());
  const ScopedSelect selectedBrush(dc, brush.get());
  Rectangle(dc, 0, 0, client.right, geometry.rowHeight);

  const char* const date = TableString(IDS_DATE);
  GlyphsTextOut(dc, geometry.textIndent, 0, date, static_cast<int>(std::strlen(date)));
  DrawNumbers(dc, geometry, client, area);
}

constexpr PanePainting kPainting{PrepareZmanimPane, PaintHeading};

}  // namespace

LRESULT CALLBACK ZmanimHeadingPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  if (const std::optional<LRESULT> answer = ZmanimTooltipMessage(pane, message, wParam, lParam)) return *answer;
  return PaintingPaneMessage(kPainting, pane, message, wParam, lParam);
}
