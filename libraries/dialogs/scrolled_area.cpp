#include "libraries/dialogs/scrolled_area.h"

#include <commctrl.h>

#include <algorithm>

#include "libraries/dialogs/scroll_fit.h"

namespace dialogs {
namespace {

constexpr UINT_PTR kSubclassId = 0x5C;  // of this one among those that a control may have
constexpr int kLinePixels = 20;

// The client area as it is without scroll bars.
Extent RoomOf(HWND dialog, const Extent& bars) {
  RECT client;
  GetClientRect(dialog, &client);
  const LONG_PTR style = GetWindowLongPtrW(dialog, GWL_STYLE);
  return {client.right + (style & WS_VSCROLL ? bars.width : 0), client.bottom + (style & WS_HSCROLL ? bars.height : 0)};
}

void SetBar(HWND dialog, int bar, LONG layout, LONG page, LONG position) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = layout - 1;
  info.nPage = static_cast<UINT>(page);
  info.nPos = position;
  SetScrollInfo(dialog, bar, &info, TRUE);
}

LONG ThumbOf(HWND dialog, int bar) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(dialog, bar, &info);
  return info.nTrackPos;
}

LONG Requested(HWND dialog, int bar, int request, LONG position, LONG page, LONG layout) {
  switch (request) {
    case SB_LINEUP: return position - kLinePixels;
    case SB_LINEDOWN: return position + kLinePixels;
    case SB_PAGEUP: return position - page;
    case SB_PAGEDOWN: return position + page;
    case SB_TOP: return 0;
    case SB_BOTTOM: return layout;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK: return ThumbOf(dialog, bar);
  }
  return position;
}

}  // namespace

void ScrolledArea::Start(HWND dialog, SIZE least) {
  dialog_ = dialog;
  least_ = least;
  page_ = least;
  SetWindowSubclass(dialog, DialogProc, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
  for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
    SetWindowSubclass(control, ControlProc, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
  }
}

LRESULT CALLBACK ScrolledArea::DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                          DWORD_PTR self) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(dialog, DialogProc, id);
  if ((message == WM_HSCROLL || message == WM_VSCROLL) && lParam == 0) {
    reinterpret_cast<ScrolledArea*>(self)->OnScroll(message == WM_HSCROLL ? SB_HORZ : SB_VERT, LOWORD(wParam));
    return 0;
  }
  return DefSubclassProc(dialog, message, wParam, lParam);
}

LRESULT CALLBACK ScrolledArea::ControlProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                           DWORD_PTR self) {
  if (message == WM_NCDESTROY) RemoveWindowSubclass(control, ControlProc, id);
  if (message == WM_SETFOCUS) reinterpret_cast<ScrolledArea*>(self)->Show(control);
  return DefSubclassProc(control, message, wParam, lParam);
}

// Setting a bar changes the client area, and so asks for this again.
SIZE ScrolledArea::Fit() {
  const SIZE layout = {std::max(page_.cx, least_.cx), std::max(page_.cy, least_.cy)};
  if (isFitting_) return layout;
  const Extent bars = {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)};
  const Extent page = PageIn(RoomOf(dialog_, bars), {least_.cx, least_.cy}, bars);
  page_ = {page.width, page.height};
  isFitting_ = true;
  SetBar(dialog_, SB_HORZ, least_.cx, page_.cx, position_.x);
  SetBar(dialog_, SB_VERT, least_.cy, page_.cy, position_.y);
  isFitting_ = false;
  MoveTo(position_);
  return {std::max(page_.cx, least_.cx), std::max(page_.cy, least_.cy)};
}

void ScrolledArea::OnScroll(int bar, int request) {
  POINT position = position_;
  if (bar == SB_HORZ) {
    position.x = Requested(dialog_, bar, request, position.x, page_.cx, least_.cx);
  } else {
    position.y = Requested(dialog_, bar, request, position.y, page_.cy, least_.cy);
  }
  MoveTo(position);
}

void ScrolledArea::Show(HWND control) {
  RECT rectangle;
  GetWindowRect(control, &rectangle);
  MapWindowPoints(nullptr, dialog_, reinterpret_cast<POINT*>(&rectangle), 2);
  OffsetRect(&rectangle, position_.x, position_.y);
  MoveTo({PositionShowing(rectangle.left, rectangle.right, position_.x, page_.cx, least_.cx),
          PositionShowing(rectangle.top, rectangle.bottom, position_.y, page_.cy, least_.cy)});
}

void ScrolledArea::MoveTo(POINT position) {
  position.x = std::clamp<LONG>(position.x, 0, std::max<LONG>(0, least_.cx - page_.cx));
  position.y = std::clamp<LONG>(position.y, 0, std::max<LONG>(0, least_.cy - page_.cy));
  const POINT old = position_;
  if (position.x == old.x && position.y == old.y) return;
  position_ = position;
  SetScrollPos(dialog_, SB_HORZ, position.x, TRUE);
  SetScrollPos(dialog_, SB_VERT, position.y, TRUE);
  ScrollWindowEx(dialog_, old.x - position.x, old.y - position.y, nullptr, nullptr, nullptr, nullptr,
                 SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

}  // namespace dialogs
