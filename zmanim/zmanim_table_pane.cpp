#include <windowsx.h>

#include <optional>
#include <string>

#include "companion/glyphs.h"
#include "engine/properties.h"
#include "output/date_text.h"
#include "resources/ids.h"
#include "win/list_pane_scroll.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/core/zmanim_labels.h"
#include "zmanim/edit_custom_zman.h"
#include "zmanim/zmanim_measures.h"
#include "zmanim/zmanim_panes.h"
#include "zmanim/zmanim_time_text.h"
#include "zmanim/zmanim_tooltip.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

HWND DocumentOf(HWND table) {
  return GetParent(GetParent(table));
}

HWND HeadingOf(HWND table) {
  return GetDlgItem(GetParent(table), IDC_ZMANIM_HEADING);
}

// What a document's view is measured and drawn by; properties are slow to get.
struct ShownBlocks {
  HGLOBAL times;
  HGLOBAL labels;
};

ShownBlocks BlocksOf(HWND document) {
  return {GetBlockProperty(document, property::kZmanimTimes), GetBlockProperty(document, property::kZmanimLabels)};
}

// The geometry in the font of the table, or, by its bold font, of the heading.
ZmanimGeometry GeometryOf(HWND table, const ShownBlocks& blocks, const char* font = property::kZmanimFont) {
  const ScopedWindowDc dc(table);
  return MeasureZmanimTable(table, dc.dc(), GetFontProperty(DocumentOf(table), font), blocks.times, blocks.labels);
}

ZmanimGeometry GeometryOf(HWND table) {
  return GeometryOf(table, BlocksOf(DocumentOf(table)));
}

void DrawText(HDC dc, const ZmanimGeometry& geometry, const PaneRect& cell, const std::string& text) {
  GlyphsTextOut(dc, geometry.textIndent + cell.x, cell.y, text.c_str(), static_cast<int>(text.size()));
}

void DrawDay(HDC dc, const ZmanimGeometry& geometry, uint32_t index, const ZmanimDay& day, const PaneRect& area) {
  const PaneRect date = geometry.DateRect(index);
  if (area.x < date.Right()) DrawText(dc, geometry, date, DateText(day.date));
  const IndexRange zmanim = geometry.ZmanimIn(area);
  for (uint32_t zman = zmanim.begin; zman < zmanim.end; ++zman) {
    DrawText(dc, geometry, geometry.CellRect({index, zman}), ZmanTimeText(day.times[zman]));
  }
}

// Only what meets the area that is to be painted is drawn. A document without zmanim shows an empty table.
void PaintTable(HWND table, HDC dc, const RECT& update) {
  const HWND document = DocumentOf(table);
  const HFONT font = GetFontProperty(document, property::kZmanimFont);
  const ShownBlocks blocks = BlocksOf(document);
  const ZmanimGeometry geometry = MeasureZmanimTable(table, dc, font, blocks.times, blocks.labels);
  const PaneRect area{update.left, update.top, update.right - update.left, update.bottom - update.top};
  const ScopedSelect selectedFont(dc, font);
  const ScopedTextColors colors(dc, kBlack, kWhite);
  const ScopedGlobalLock<const ZmanimBlock> block(blocks.times);
  const IndexRange days = geometry.DaysIn(area);
  for (uint32_t day = days.begin; day < days.end; ++day) DrawDay(dc, geometry, day, block->days[day], area);
}

void Resize(HWND table, int width, int height) {
  SetupZmanimScroll(table, width, height);
}

ListSteps StepsOf(HWND table) {
  const ZmanimGeometry geometry = GeometryOf(table);
  return {geometry.WholeRows(), geometry.rowHeight};
}

constexpr ListPane kTable{{PrepareZmanimPane, PaintTable}, Resize, StepsOf};

// The columns of a pane move by so many of them; the dates stay, and so does what the heading has beyond the table's
// edge, where it shows no numbers.
void MoveColumns(HWND pane, const ZmanimGeometry& geometry, int columns) {
  RECT client;
  GetClientRect(pane, &client);
  const PaneRect rect = geometry.ColumnsRect(client.bottom);
  const RECT moving{rect.x, rect.y, rect.Right(), rect.Bottom()};
  ScrollWindow(pane, columns * geometry.ColumnWidth(), 0, &moving, &moving);
}

// Nothing pages sideways.
void OnHorizontalScroll(HWND table, int code, int thumb) {
  const std::optional<ScrollRequest> request = ScrollRequestOf(code);
  if (!request || *request == ScrollRequest::kPageUp || *request == ScrollRequest::kPageDown) return;
  ScrollState state = ScrollStateOf(table, SB_HORZ);
  state.thumb = thumb;
  const int position = ScrolledPosition(*request, state);
  if (position == state.position) return;
  const HWND heading = HeadingOf(table);
  const ShownBlocks blocks = BlocksOf(DocumentOf(table));
  MoveColumns(table, GeometryOf(table, blocks), state.position - position);
  MoveColumns(heading, GeometryOf(table, blocks, property::kBoldZmanimFont), state.position - position);
  SetScrollPos(table, SB_HORZ, position, TRUE);
  UpdateWindow(table);
  UpdateWindow(heading);
}

// Whether the key scrolls sideways.
bool TakeSidewaysKey(HWND table, WPARAM key) {
  if (key != VK_LEFT && key != VK_RIGHT) return false;
  SendMessageA(table, WM_HSCROLL, key == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT, 0);
  return true;
}

// Whether the user has seen what is under the mouse now: the table is painted, and was not replaced while the click
// waited in the queue.
bool IsSeen(HWND table) {
  if (GetUpdateRect(table, nullptr, FALSE)) return false;
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(DocumentOf(table), property::kZmanimLabels));
  if (!labels || labels->renewedAt == 0) return true;
  return static_cast<int32_t>(static_cast<uint32_t>(GetMessageTime()) - labels->renewedAt) >= 0;
}

// A click beside the times does nothing. A click on times that are no longer those in use only has the new ones shown.
LRESULT OnLeftButtonUp(HWND table, int x, int y) {
  if (PrepareZmanimPane(table) || !IsSeen(table)) return 0;
  const std::optional<ZmanimCell> cell = GeometryOf(table).CellAt(x, y);
  if (!cell || !EditCustomZman(DocumentOf(table), *cell)) return 0;
  InvalidateRect(table, nullptr, TRUE);
  UpdateWindow(table);
  return 0;
}

}  // namespace

LRESULT CALLBACK ZmanimTablePaneProc(HWND table, UINT message, WPARAM wParam, LPARAM lParam) {
  if (const std::optional<LRESULT> answer = ZmanimTooltipMessage(table, message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_KEYDOWN:
      if (TakeSidewaysKey(table, wParam)) return 0;
      break;
    case WM_HSCROLL:
      OnHorizontalScroll(table, LOWORD(wParam), HIWORD(wParam));
      FollowMouseOverZmanim(GetParent(table));
      return 0;
    case WM_VSCROLL:
    case WM_MOUSEWHEEL:
      ListPaneMessage(kTable, table, message, wParam, lParam);
      FollowMouseOverZmanim(GetParent(table));
      return 0;
    case WM_LBUTTONUP: return OnLeftButtonUp(table, GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
  }
  return ListPaneMessage(kTable, table, message, wParam, lParam);
}

void SetupZmanimScroll(HWND table, int width, int height) {
  ZmanimGeometry geometry = GeometryOf(table);
  geometry.clientWidth = width;
  geometry.clientHeight = height;
  SetLastScrollPosition(table, SB_VERT, geometry.LastFirstDay());
  SetLastScrollPosition(table, SB_HORZ, geometry.LastFirstZman());
  // The numbers stand over the columns, whose width and first one may have changed.
  InvalidateRect(HeadingOf(table), nullptr, TRUE);
}
