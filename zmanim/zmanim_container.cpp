#include <initializer_list>

#include "engine/settings_flags.h"
#include "resources/ids.h"
#include "win/class_names.h"
#include "win/text_metrics.h"
#include "zmanim/core/zmanim_layout.h"
#include "zmanim/zmanim_panes.h"

namespace {

struct Pane {
  const char* className;
  int id;
  DWORD style;  // besides WS_CHILD and WS_VISIBLE
};

// In the order of creation.
constexpr Pane kPanes[] = {
    {window_class::kZmanimHeadingPane, IDC_ZMANIM_HEADING, 0},
    {window_class::kZmanimTablePane, IDC_ZMANIM_TABLE, WS_VSCROLL | WS_HSCROLL},
    {window_class::kZmanimLegendPane, IDC_ZMANIM_LEGEND, 0},
};

LRESULT OnCreate(HWND container) {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(container, GWLP_HINSTANCE));
  for (const Pane& pane : kPanes) {
    if (!CreateWindowExA(0, pane.className, "", WS_CHILD | WS_VISIBLE | pane.style, 0, 0, 0, 0, container,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(pane.id)), instance, nullptr)) {
      return -1;
    }
  }
  return 0;
}

LRESULT OnDestroy(HWND container) {
  for (const Pane& pane : kPanes) DestroyWindow(GetDlgItem(container, pane.id));
  return 0;
}

void Place(HWND container, int pane, const PaneRect& rect) {
  MoveWindow(GetDlgItem(container, pane), rect.x, rect.y, rect.width, rect.height, TRUE);
}

LRESULT OnSize(HWND container, int width, int height) {
  const FontMeasure font = MeasureFontOnDisplay(nullptr);
  const ZmanimLayout layout =
      LayOutZmanim(width, height, font.lineHeight, font.averageCharacterWidth, LegendLines(ZmanimEnabled()));
  Place(container, IDC_ZMANIM_LEGEND, layout.legend);
  Place(container, IDC_ZMANIM_HEADING, layout.heading);
  Place(container, IDC_ZMANIM_TABLE, layout.table);
  return 0;
}

LRESULT OnSetFocus(HWND container) {
  SetFocus(GetDlgItem(container, IDC_ZMANIM_TABLE));
  return 0;
}

}  // namespace

LRESULT CALLBACK ZmanimContainerProc(HWND container, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(container);
    case WM_DESTROY: return OnDestroy(container);
    case WM_SIZE: return OnSize(container, LOWORD(lParam), HIWORD(lParam));
    case WM_SETFOCUS: return OnSetFocus(container);
  }
  return DefWindowProcA(container, message, wParam, lParam);
}

void RefreshZmanimView(HWND document) {
  const HWND container = GetDlgItem(document, IDC_ZMANIM_PANE);
  const HWND table = GetDlgItem(container, IDC_ZMANIM_TABLE);
  if (!table) return;
  RECT client;
  GetClientRect(container, &client);
  OnSize(container, client.right, client.bottom);
  GetClientRect(table, &client);
  SetupZmanimScroll(table, client.right, client.bottom);
  RedrawWindow(container, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
