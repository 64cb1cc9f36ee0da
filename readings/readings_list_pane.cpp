#include <cstring>

#include "companion/glyphs.h"
#include "engine/properties.h"
#include "output/date_text.h"
#include "readings/core/readings_record.h"
#include "readings/readings_font.h"
#include "readings/readings_form.h"
#include "readings/readings_list.h"
#include "readings/readings_measures.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/list_pane_scroll.h"
#include "win/pane.h"
#include "win/scoped.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

HWND DocumentOf(HWND pane) {
  return GetParent(GetParent(pane));
}

ReadingsGeometry GeometryOf(HWND pane) {
  const HWND document = DocumentOf(pane);
  const HFONT programFont = GetFontProperty(document, property::kParashaFont);
  const ReadingsFont textFont(ReadingsFormOf(document).font, programFont);
  return MeasureReadings(pane, textFont.get(), programFont);
}

struct Painter {
  HDC dc;
  HFONT programFont;
  HFONT textFont;
  ReadingsGeometry geometry;
  const char* yizkor;

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

void PaintList(HWND pane, HDC dc, const RECT&) {
  const HWND document = DocumentOf(pane);
  const HFONT programFont = GetFontProperty(document, property::kParashaFont);
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(document, property::kParashaReadings));
  if (!list) return;
  const ReadingsForm form = ReadingsFormOf(document);
  const ReadingsFont textFont(form.font, programFont);
  if (!textFont.CanDraw()) return;
  const Painter painter{dc, programFont, textFont.get(), MeasureReadings(pane, textFont.get(), programFont),
                        form.yizkor};
  const ScopedTextColors colors(dc, kBlack, kWhite);
  const uint32_t first = static_cast<uint32_t>(GetScrollPos(pane, SB_VERT));
  for (uint32_t i = first; i < list->count; ++i) {
    const int index = static_cast<int>(i - first);
    if (!painter.geometry.IsEntryDrawn(index)) break;
    painter.DrawEntry(index, list->entries[i]);
  }
}

bool Prepare(HWND pane) {
  return RenewReadings(DocumentOf(pane));
}

// The titles stand over the columns, which move when the scroll bar comes or goes.
void Resize(HWND pane, int, int) {
  SetReadingsScrollRange(pane);
  InvalidateRect(GetDlgItem(GetParent(pane), IDC_READINGS_HEADER_PANE), nullptr, TRUE);
}

ListSteps StepsOf(HWND pane) {
  const ReadingsGeometry geometry = GeometryOf(pane);
  return {geometry.PageStep(), geometry.EntryHeight()};
}

constexpr ListPane kList{{Prepare, PaintList}, Resize, StepsOf};

}  // namespace

LRESULT CALLBACK ReadingsListPaneProc(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  return ListPaneMessage(kList, pane, message, wParam, lParam);
}

void SetReadingsScrollRange(HWND listPane) {
  const ScopedGlobalLock<const ReadingsList> list(GetBlockProperty(DocumentOf(listPane), property::kParashaReadings));
  const int count = list ? static_cast<int>(list->count) : 0;
  SetLastScrollPosition(listPane, SB_VERT, LastReadingsPosition(count, GeometryOf(listPane).WholeEntries()));
}
