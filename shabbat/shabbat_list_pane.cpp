#include <cstring>

#include "companion/glyphs.h"
#include "companion/stamp.h"
#include "engine/properties.h"
#include "output/date_text.h"
#include "resources/ids.h"
#include "shabbat/core/shabbat_geometry.h"
#include "shabbat/core/shabbat_record.h"
#include "shabbat/shabbat_panes.h"
#include "win/list_pane_scroll.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "win/text_metrics.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

ShabbatListGeometry GeometryOf(HWND pane, int lineHeight) {
  RECT client;
  GetClientRect(pane, &client);
  return {client.right, client.bottom, lineHeight};
}

ShabbatListGeometry GeometryOf(HWND pane) {
  return GeometryOf(pane, MeasureFontOnDisplay(GetFontProperty(GetParent(pane), property::kFont)).lineHeight);
}

void DrawCell(HDC dc, int x, int y, const char* text) {
  GlyphsTextOut(dc, x, y, text, static_cast<int>(std::strlen(text)));
}

void DrawTime(HDC dc, int x, int y, uint32_t hour, uint32_t minute) {
  char text[STAMP_TEXT_SIZE];
  StampConvert(static_cast<int32_t>(hour), static_cast<int32_t>(minute), text);
  DrawCell(dc, x, y, text);
}

void DrawEntry(HDC dc, const ShabbatListGeometry& geometry, int line, const ShabbatTimeEntry& entry) {
  const int y = geometry.LineY(line);
  DrawCell(dc, geometry.ColumnX(0), y, DateText({entry.day, entry.month, entry.year}).c_str());
  DrawTime(dc, geometry.ColumnX(1), y, entry.candleHour, entry.candleMinute);
  DrawTime(dc, geometry.ColumnX(2), y, entry.endHour, entry.endMinute);
}

void PaintList(HWND pane, HDC dc, const RECT&) {
  const HWND document = GetParent(pane);
  const HFONT font = GetFontProperty(document, property::kFont);
  const ShabbatListGeometry geometry = GeometryOf(pane, MeasureFont(dc, font).lineHeight);
  const ScopedSelect selectedFont(dc, font);
  const ScopedTextColors colors(dc, kBlack, kWhite);
  const ScopedGlobalLock<const ShabbatTimesList> list(GetBlockProperty(document, property::kShabbatTimes));
  if (!list) return;
  const uint32_t first = static_cast<uint32_t>(GetScrollPos(pane, SB_VERT));
  for (uint32_t i = first; i < list->count; ++i) {
    const int line = static_cast<int>(i - first);
    if (!geometry.IsLineDrawn(line)) break;
    DrawEntry(dc, geometry, line, list->entries[i]);
  }
}

// The titles stand over the columns, which move when the scroll bar comes or goes.
void Resize(HWND pane, int, int) {
  SetListPaneScrollRange(pane);
  InvalidateRect(GetDlgItem(GetParent(pane), IDC_HEADER_PANE), nullptr, TRUE);
}

ListSteps StepsOf(HWND pane) {
  const ShabbatListGeometry geometry = GeometryOf(pane);
  return {geometry.WholeLines(), geometry.lineHeight};
}

constexpr ListPane kList{{nullptr, PaintList}, Resize, StepsOf};

}  // namespace

LRESULT CALLBACK ShabbatListPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  return ListPaneMessage(kList, pane, message, wParam, lParam);
}

void SetListPaneScrollRange(HWND listPane) {
  const ScopedGlobalLock<const ShabbatTimesList> list(GetBlockProperty(GetParent(listPane), property::kShabbatTimes));
  const int last = list ? LastScrollPosition(list->count, GeometryOf(listPane).WholeLines()) : 0;
  SetLastScrollPosition(listPane, SB_VERT, last);
}
