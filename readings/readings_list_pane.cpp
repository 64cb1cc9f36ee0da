#include <cstring>

#include "companion/glyphs.h"
#include "companion/lections.h"
#include "document/properties.h"
#include "output/date_text.h"
#include "readings/core/readings_record.h"
#include "readings/readings_font.h"
#include "readings/readings_measures.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/list_pane_scroll.h"
#include "win/scoped.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

HWND DocumentOf(HWND pane) {
  return GetParent(GetParent(pane));
}

ReadingsGeometry GeometryOf(HWND pane) {
  const HFONT programFont = GetFontProperty(DocumentOf(pane), property::kParashaFont);
  const ReadingsFont textFont(programFont);
  return MeasureReadings(pane, textFont.get(), programFont);
}

struct Painter {
  HDC dc;
  HFONT programFont;
  HFONT textFont;
  ReadingsGeometry geometry;
  char yizkor[kTextSize];

  void Draw(HFONT font, int x, int y, const char* text) const {
    if (text[0] == '\0') return;
    const ScopedSelect selected(dc, font);
    GlyphsTextOut(dc, x, y, text, static_cast<int>(std::strlen(text)));
  }

  // The additional text takes the first empty Torah line of the entry, the fourth line at the latest.
  void DrawEntry(int index, const ReadingsEntry& entry) const {
    static constexpr char kNoText[] = "";
    const char* const torah[] = {entry.torah1, entry.torah2, entry.torah3, kNoText};
    const char* const haftarah[] = {entry.haftarah1, entry.haftarah2, entry.haftarah3, kNoText};
    const int top = geometry.LineY(index, 0);
    Draw(programFont, geometry.DateX(), top, DateText(entry.date).c_str());
    if (entry.isYizkor == 1) Draw(programFont, geometry.DateX(), geometry.LineY(index, 1), yizkor);
    bool extraShown = false;
    for (int line = 0; line < 4; ++line) {
      const int y = geometry.LineY(index, line);
      if (torah[line][0] == '\0' && !extraShown) {
        Draw(programFont, geometry.TorahX(), y, entry.extraText);
        extraShown = true;
      } else {
        Draw(textFont, geometry.TorahX(), y, torah[line]);
      }
      Draw(textFont, geometry.HaftarahX(), y, haftarah[line]);
    }
  }
};

void PaintList(HWND pane, HDC dc) {
  const HWND document = DocumentOf(pane);
  const HFONT programFont = GetFontProperty(document, property::kParashaFont);
  const ReadingsFont textFont(programFont);
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(document, property::kParashaReadings));
  if (!list) return;
  Painter painter{dc, programFont, textFont.get(), MeasureReadings(pane, textFont.get(), programFont), ""};
  LectionsGetYizkor(painter.yizkor);
  const ScopedTextColors colors(dc, kBlack, kWhite);
  const uint32_t first = static_cast<uint32_t>(GetScrollPos(pane, SB_VERT));
  for (uint32_t i = first; i < list->count; ++i) {
    const int index = static_cast<int>(i - first);
    if (!painter.geometry.IsEntryDrawn(index)) break;
    painter.DrawEntry(index, list->entries[i]);
  }
}

LRESULT OnPaint(HWND pane) {
  const ScopedPaint paint(pane);
  PaintList(pane, paint.dc());
  return 0;
}

// The titles stand over the columns, which move when the scroll bar comes or goes.
LRESULT OnSize(HWND pane) {
  SetReadingsScrollRange(pane);
  InvalidateRect(GetDlgItem(GetParent(pane), IDC_READINGS_HEADER_PANE), nullptr, TRUE);
  return 0;
}

LRESULT OnVerticalScroll(HWND pane, int code, int thumb) {
  const ReadingsGeometry geometry = GeometryOf(pane);
  ScrollLines(pane, code, thumb, geometry.PageStep(), geometry.EntryHeight());
  return 0;
}

LRESULT OnKeyDown(HWND pane, WPARAM key) {
  ScrollByKey(pane, key);
  return 0;
}

LRESULT OnMouseWheel(HWND pane, int16_t delta) {
  WheelLines(pane, delta);
  return 0;
}

}  // namespace

LRESULT CALLBACK ReadingsListPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: return OnPaint(pane);
    case WM_SIZE: return OnSize(pane);
    case WM_VSCROLL: return OnVerticalScroll(pane, LOWORD(wParam), HIWORD(wParam));
    case WM_KEYDOWN: return OnKeyDown(pane, wParam);
    case WM_MOUSEWHEEL: return OnMouseWheel(pane, static_cast<int16_t>(HIWORD(wParam)));
  }
  return DefWindowProcA(pane, message, wParam, lParam);
}

void SetReadingsScrollRange(HWND listPane) {
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(DocumentOf(listPane), property::kParashaReadings));
  const int count = list ? static_cast<int>(list->count) : 0;
  SetLastScrollPosition(listPane, SB_VERT, LastReadingsPosition(count, GeometryOf(listPane).WholeEntries()));
}
