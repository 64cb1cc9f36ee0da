#include <string>

#include "app/string_table.h"
#include "companion/glyphs.h"
#include "document/properties.h"
#include "resources/ids.h"
#include "win/display_font.h"
#include "win/scoped.h"
#include "win/text_metrics.h"
#include "zmanim/core/right_to_left_flow.h"
#include "zmanim/core/zmanim_legend.h"
#include "zmanim/zmanim_names.h"
#include "zmanim/zmanim_panes.h"

namespace {

constexpr int kHebrewFontPoints = 15;
constexpr LegendSpacing kSpacing{.betweenZmanim = ",   ", .beforeVilnaGaon = "       ", .beforeMagenAvraham = "   "};

int WordWidth(HDC dc, std::string_view word) {
  SIZE size{};
  GlyphsGetTextExtentPoint(dc, word.data(), static_cast<int>(word.size()), &size);
  return size.cx;
}

void PaintHebrewLegend(HDC dc, const RECT& client, const ZmanimInUse& inUse) {
  char face[LF_FACESIZE];
  GlyphsGetHebrewFontName(face);
  const ScopedGdiObject<HFONT> font(MakeFont(face, kHebrewFontPoints, FW_DONTCARE));
  const ScopedSelect selectedFont(dc, font.get());
  RightToLeftFlow flow(
      {0, 0, client.right, client.bottom}, MeasureFont(dc, font.get()).lineHeight,
      [dc](std::string_view word) { return WordWidth(dc, word); },
      [dc](int x, int y, std::string_view word) {
        GlyphsTextOut(dc, x, y, word.data(), static_cast<int>(word.size()));
      });
  FlowHebrewLegend(flow, HebrewZmanNames(inUse.count));
}

void PaintEnglishLegend(HDC dc, RECT client, HFONT font, const ZmanimInUse& inUse) {
  const ScopedSelect selectedFont(dc, font);
  const std::string legend =
      ZmanimLegend(ZmanNames(inUse), 1, kSpacing, TableString(IDS_VILNA_GAON), TableString(IDS_MAGEN_AVRAHAM));
  GlyphsDrawText(dc, legend.c_str(), static_cast<int>(legend.size()), &client, DT_WORDBREAK | DT_NOPREFIX);
}

LRESULT OnPaint(HWND pane) {
  const ScopedPaint paint(pane);
  RECT client;
  GetClientRect(pane, &client);
  const ZmanimInUse inUse = GetZmanimInUse();
  if (LegendIsHebrew(inUse)) {
    PaintHebrewLegend(paint.dc(), client, inUse);
  } else {
    const HFONT font = GetFontProperty(GetParent(GetParent(pane)), property::kBoldZmanimFont);
    PaintEnglishLegend(paint.dc(), client, font, inUse);
  }
  return 0;
}

}  // namespace

LRESULT CALLBACK ZmanimLegendPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) return OnPaint(pane);
  return DefWindowProcA(pane, message, wParam, lParam);
}
