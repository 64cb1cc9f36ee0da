#include "publishing/page_view.h"

#include <algorithm>
#include <memory>

#include "publishing/dc_surface.h"
#include "publishing/fine_picture.h"
#include "publishing/preview_ids.h"
#include "win/scoped.h"

namespace publishing {
namespace {

constexpr wchar_t kClassName[] = L"TimesReadingsPageView";
constexpr int kShadow = 3;  // pixels
constexpr double kFineDotsPerInch = 300;
constexpr int kMostFineness = 3;
constexpr int kLinesForAnArrow = 40;  // pixels

struct View {
  ShownPage shown;
  POINT position = {};  // what of the layout stands at the window's corner
  bool isArranging = false;
  int wheel = 0;  // what has turned less than a notch
};

View* ViewOf(HWND window) {
  return reinterpret_cast<View*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

ScreenRoom RoomOf(HWND window) {
  RECT rectangle{};
  GetWindowRect(window, &rectangle);
  const ScopedWindowDc dc(window);
  return {.window = {static_cast<int>(rectangle.right - rectangle.left),
                     static_cast<int>(rectangle.bottom - rectangle.top)},
          .bars = {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)},
          .dotsPerInch = GetDeviceCaps(dc.dc(), LOGPIXELSY)};
}

PageOnScreen LayoutOf(HWND window, const View& view) {
  return ShowOnScreen(view.shown.zoom, view.shown.pages->sheet(), kDotsPerInch, RoomOf(window));
}

void SetBar(HWND window, int bar, int length, int visible, LONG& position) {
  position = std::clamp<LONG>(position, 0, std::max(length - visible, 0));
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_PAGE | SIF_POS | SIF_RANGE;
  info.nMax = length - 1;
  info.nPage = static_cast<UINT>(visible);
  info.nPos = position;
  SetScrollInfo(window, bar, &info, TRUE);
}

// A scroll bar that appears or goes sends WM_SIZE, which comes back here.
void Arrange(HWND window) {
  View& view = *ViewOf(window);
  if (!view.shown.pages || view.isArranging) return;
  view.isArranging = true;
  const PageOnScreen layout = LayoutOf(window, view);
  SetBar(window, SB_HORZ, layout.layout.width, layout.visible.width, view.position.x);
  SetBar(window, SB_VERT, layout.layout.height, layout.visible.height, view.position.y);
  view.isArranging = false;
  InvalidateRect(window, nullptr, FALSE);
}

void ScrollTo(HWND window, POINT position) {
  ViewOf(window)->position = position;
  Arrange(window);
}

void OnScroll(HWND window, int bar, int request) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(window, bar, &info);
  int position = info.nPos;
  switch (request) {
    case SB_LINEUP: position -= kLinesForAnArrow; break;
    case SB_LINEDOWN: position += kLinesForAnArrow; break;
    case SB_PAGEUP: position -= static_cast<int>(info.nPage); break;
    case SB_PAGEDOWN: position += static_cast<int>(info.nPage); break;
    case SB_THUMBTRACK: position = info.nTrackPos; break;
    default: return;
  }
  POINT to = ViewOf(window)->position;
  (bar == SB_HORZ ? to.x : to.y) = position;
  ScrollTo(window, to);
}

void Leaf(HWND window, int command) {
  SendMessageW(GetParent(window), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

void OnKey(HWND window, WPARAM key) {
  if (const int command = LeafingCommand(key)) return Leaf(window, command);
  switch (key) {
    case VK_UP: return OnScroll(window, SB_VERT, SB_LINEUP);
    case VK_DOWN: return OnScroll(window, SB_VERT, SB_LINEDOWN);
    case VK_LEFT: return OnScroll(window, SB_HORZ, SB_LINEUP);
    case VK_RIGHT: return OnScroll(window, SB_HORZ, SB_LINEDOWN);
  }
}

// The wheel scrolls, and leafs at the ends of the page.
void OnWheel(HWND window, int turned) {
  View& view = *ViewOf(window);
  if (!view.shown.pages) return;
  view.wheel += turned;
  const int notches = view.wheel / WHEEL_DELTA;
  view.wheel %= WHEEL_DELTA;
  if (notches == 0) return;
  const PageOnScreen layout = LayoutOf(window, view);
  const int last = layout.layout.height - layout.visible.height;
  const bool isAtEnd = notches > 0 ? view.position.y <= 0 : view.position.y >= last;
  if (isAtEnd) return Leaf(window, notches > 0 ? IDC_PREVIEW_PREVIOUS : IDC_PREVIEW_NEXT);
  ScrollTo(window, {view.position.x, view.position.y - notches * kLinesForAnArrow});
}

void FillBox(HDC dc, int x, int y, const PixelExtent& size, int brush) {
  const RECT box = {x, y, x + size.width, y + size.height};
  FillRect(dc, &box, static_cast<HBRUSH>(GetStockObject(brush)));
}

int FinenessOf(const PageOnScreen& layout) {
  const double dotsPerInch = layout.scale * kDotsPerInch;
  return std::clamp(static_cast<int>(kFineDotsPerInch / dotsPerInch), 1, kMostFineness);
}

// page: where it stands in the context; seen: the part of it that is to be drawn.
void DrawFine(HDC dc, const View& view, const PageOnScreen& layout, POINT page, const RECT& seen) {
  const int fineness = FinenessOf(layout);
  FinePicture picture(seen.right - seen.left, seen.bottom - seen.top, fineness);
  if (!picture.dc()) return;
  const int saved = SaveDC(picture.dc());
  {
    const double scale = layout.scale * fineness;
    const POINT corner = {(page.x - seen.left) * fineness, (page.y - seen.top) * fineness};
    DcSurface surface(picture.dc(), view.shown.font, {scale, scale, corner});
    view.shown.pages->Draw(surface, view.shown.page);
  }
  RestoreDC(picture.dc(), saved);
  picture.Show(dc, seen.left, seen.top);
}

void PaintPage(HDC dc, const View& view, const PageOnScreen& layout, const RECT& client) {
  FillRect(dc, &client, GetSysColorBrush(COLOR_APPWORKSPACE));
  const int x = layout.PageX() - view.position.x;
  const int y = layout.PageY() - view.position.y;
  FillBox(dc, x + kShadow, y + kShadow, {layout.page.width + 1, layout.page.height + 1}, DKGRAY_BRUSH);
  FillBox(dc, x - 1, y - 1, {layout.page.width + 2, layout.page.height + 2}, BLACK_BRUSH);
  FillBox(dc, x, y, layout.page, WHITE_BRUSH);
  const RECT page = {x, y, x + layout.page.width, y + layout.page.height};
  RECT seen{};
  if (IntersectRect(&seen, &page, &client)) DrawFine(dc, view, layout, {x, y}, seen);
}

// Into memory first, so that nothing flickers while the window grows.
void OnPaint(HWND window) {
  const ScopedPaint paint(window);
  const View& view = *ViewOf(window);
  RECT client{};
  GetClientRect(window, &client);
  if (!view.shown.pages || IsRectEmpty(&client)) return;
  const OwnedContext memory(CreateCompatibleDC(paint.dc()));
  const ScopedGdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(paint.dc(), client.right, client.bottom));
  if (memory && bitmap.get()) {
    const ScopedSelect select(memory.get(), bitmap.get());
    const int saved = SaveDC(memory.get());
    PaintPage(memory.get(), view, LayoutOf(window, view), client);
    RestoreDC(memory.get(), saved);
    BitBlt(paint.dc(), 0, 0, client.right, client.bottom, memory.get(), 0, 0, SRCCOPY);
  }
}

bool OnCreate(HWND window) {
  auto view = std::make_unique<View>();
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(view.release()));
  return true;
}

void OnDestroy(HWND window) {
  const std::unique_ptr<View> view(ViewOf(window));
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
}

LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE: return Arrange(window), 0;
    case WM_PAINT: return OnPaint(window), 0;
    case WM_ERASEBKGND: return TRUE;
    case WM_GETDLGCODE: return DLGC_WANTARROWS;
    case WM_KEYDOWN: return OnKey(window, wParam), 0;
    case WM_HSCROLL: return OnScroll(window, SB_HORZ, LOWORD(wParam)), 0;
    case WM_VSCROLL: return OnScroll(window, SB_VERT, LOWORD(wParam)), 0;
    case WM_MOUSEWHEEL: return OnWheel(window, GET_WHEEL_DELTA_WPARAM(wParam)), 0;
    case WM_LBUTTONDOWN: return SetFocus(window), 0;
    case WM_NCDESTROY: return OnDestroy(window), 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

// An exception here can only be want of memory: the page stays as it is.
LRESULT CALLBACK PageViewProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) try {
  if (message == WM_NCCREATE) return OnCreate(window) && DefWindowProcW(window, message, wParam, lParam);
  if (!ViewOf(window)) return DefWindowProcW(window, message, wParam, lParam);
  return HandleMessage(window, message, wParam, lParam);
} catch (...) {
  return 0;
}

}  // namespace

bool RegisterPageView(HINSTANCE module) {
  WNDCLASSEXW description{};
  description.cbSize = sizeof description;
  description.lpfnWndProc = PageViewProc;
  description.hInstance = module;
  description.hCursor = LoadCursor(nullptr, IDC_ARROW);
  description.lpszClassName = kClassName;
  return RegisterClassExW(&description) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

void UnregisterPageView(HINSTANCE module) {
  UnregisterClassW(kClassName, module);
}

void ShowPage(HWND view, const ShownPage& shown) {
  View* const state = ViewOf(view);
  if (!state) return;
  const bool isOther = state->shown.page != shown.page || state->shown.zoom != shown.zoom;
  state->shown = shown;
  if (isOther) state->position = {};
  Arrange(view);
}

int LeafingCommand(WPARAM key) {
  switch (key) {
    case VK_HOME: return IDC_PREVIEW_FIRST;
    case VK_PRIOR: return IDC_PREVIEW_PREVIOUS;
    case VK_NEXT: return IDC_PREVIEW_NEXT;
    case VK_END: return IDC_PREVIEW_LAST;
  }
  return 0;
}

}  // namespace publishing
