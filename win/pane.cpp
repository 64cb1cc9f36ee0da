#include "win/pane.h"

#include "win/list_pane_scroll.h"
#include "win/scoped.h"

namespace {

LRESULT OnPaint(const PanePainting& painting, HWND pane) {
  if (painting.prepare) painting.prepare(pane);
  const ScopedPaint paint(pane);
  painting.paint(pane, paint.dc(), paint.area());
  return 0;
}

LRESULT OnVerticalScroll(const ListPane& list, HWND pane, int code, int thumb) {
  const ListSteps steps = list.steps(pane);
  ScrollLines(pane, code, thumb, steps.page, steps.linePixels);
  return 0;
}

LRESULT OnMouseWheel(HWND pane, int16_t delta) {
  if (IsWheelDelta(delta)) WheelLines(pane, delta);
  return 0;
}

LRESULT OnCreate(const PaneContainer& panes, HWND container) {
  for (const ChildPane& pane : panes.panes) {
    if (!CreateChildPane(container, pane)) return -1;
  }
  return 0;
}

LRESULT OnDestroy(const PaneContainer& panes, HWND container) {
  for (const ChildPane& pane : panes.panes) DestroyWindow(GetDlgItem(container, pane.id));
  return 0;
}

}  // namespace

bool CreateChildPane(HWND parent, const ChildPane& child) {
  return CreateWindowExA(0, child.className, "", WS_CHILD | child.style, 0, 0, 0, 0, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(child.id)),
                         reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(parent, GWLP_HINSTANCE)), nullptr) != nullptr;
}

void PlaceChildPane(HWND parent, int id, const PaneRect& rect) {
  MoveWindow(GetDlgItem(parent, id), rect.x, rect.y, rect.width, rect.height, TRUE);
}

LRESULT PaintingPaneMessage(const PanePainting& painting, HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) return OnPaint(painting, pane);
  return DefWindowProcA(pane, message, wParam, lParam);
}

LRESULT ListPaneMessage(const ListPane& list, HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: return OnPaint(list.painting, pane);
    case WM_SIZE: list.resize(pane, LOWORD(lParam), HIWORD(lParam)); return 0;
    case WM_VSCROLL: return OnVerticalScroll(list, pane, LOWORD(wParam), HIWORD(wParam));
    case WM_KEYDOWN: ScrollByKey(pane, wParam); return 0;
    case WM_MOUSEWHEEL: return OnMouseWheel(pane, static_cast<int16_t>(HIWORD(wParam)));
  }
  return DefWindowProcA(pane, message, wParam, lParam);
}

LRESULT PaneContainerMessage(const PaneContainer& panes, HWND container, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(panes, container);
    case WM_DESTROY: return OnDestroy(panes, container);
    case WM_SIZE: panes.layOut(container, LOWORD(lParam), HIWORD(lParam)); return 0;
    case WM_SETFOCUS: SetFocus(GetDlgItem(container, panes.focus)); return 0;
  }
  return DefWindowProcA(container, message, wParam, lParam);
}
