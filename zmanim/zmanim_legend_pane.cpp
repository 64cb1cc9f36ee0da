#include <string>

#include "companion/glyphs.h"
#include "engine/properties.h"
#include "engine/settings_flags.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/make_font.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "win/text_metrics.h"
#include "zmanim/core/right_to_left_flow.h"
#include "zmanim/core/zmanim_labels.h"
#include "zmanim/core/zmanim_legend.h"
#include "zmanim/zmanim_panes.h"

namespace {

constexpr int kHebrewFontPoints = 15;
constexpr LegendSpacing kSpacing{.betweenZmanim = ",   ", .beforeVilnaGaon = "       ", .beforeMagenAvraham = "   "};

int WordWidth(HDC dc, std::string_view word) {
  SIZE size{};
  GlyphsGetTextExtentPoint(dc, word.data(), static_cast<int>(word.size()), &size);
  return size.cx;
}

// Whether there is a font for it.
bool PaintHebrewLegend(HDC dc, const RECT& client, const ZmanimLabels& labels) {
  char face[LF_FACESIZE];
  GlyphsGetHebrewFontName(face);
  const ScopedGdiObject<HFONT> font(MakeFont(face, kHebrewFontPoints, FW_DONTCARE));
  if (!font.get()) return false;
  const ScopedSelect selectedFont(dc, font.get());
  RightToLeftFlow flow(
      {0, 0, client.right, client.bottom}, MeasureFont(dc, font.get()).lineHeight,
      [dc](std::string_view word) { return WordWidth(dc, word); },
      [dc](int x, int y, std::string_view word) {
        GlyphsTextOut(dc, x, y, word.data(), static_cast<int>(word.size()));
      });
  FlowHebrewLegend(flow, NamesOf(labels, &ZmanLabel::hebrew));
  return true;
}

void PaintEnglishLegend(HDC dc, RECT client, HFONT font, const ZmanimLabels& labels) {
  const ScopedSelect selectedFont(dc, font);
  const std::string legend = ZmanimLegend(NamesOf(labels, &ZmanLabel::english), 1, kSpacing,
                                          TableString(IDS_VILNA_GAON), TableString(IDS_MAGEN_AVRAHAM));
  GlyphsDrawText(dc, legend.c_str(), static_cast<int>(legend.size()), &client, DT_WORDBREAK | DT_NOPREFIX);
}

void PaintLegend(HWND pane, HDC dc, const RECT&) {
  const HWND document = GetParent(GetParent(pane));
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  if (!labels) return;
  RECT client;
  GetClientRect(pane, &client);
  if (ZmanimInHebrew() && PaintHebrewLegend(dc, client, *labels.get())) return;
  PaintEnglishLegend(dc, client, GetFontProperty(document, property::kBoldZmanimFont), *labels.get());
}

// The legend is one text, in one language: it is never painted in part.
bool Prepare(HWND pane) {
  const bool changed = PrepareZmanimPane(pane);
  InvalidateRect(pane, nullptr, TRUE);
  return changed;
}

constexpr PanePainting kPainting{Prepare, PaintLegend};

}  // namespace

LRESULT CALLBACK ZmanimLegendPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  return PaintingPaneMessage(kPainting, pane, message, wParam, lParam);
}
