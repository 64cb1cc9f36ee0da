#include "document/icon_button.h"

#include <windowsx.h>

#include <cstring>

#include "document/core/icon_button_state.h"
#include "engine/properties.h"
#include "win/scoped.h"

namespace {

constexpr int kIconSize = 32;
constexpr int kIconInset = 2;
constexpr int kPressedIconInset = 5;
constexpr int kEdgeWidth = 2;
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr COLORREF kWhite = RGB(255, 255, 255);

HICON IconOf(HWND button) {
  char name[16] = "";
  GetWindowTextA(button, name, sizeof name);
  return LoadIconA(reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(button, GWLP_HINSTANCE)), name);
}

void DrawIconAt(HDC dc, int inset, HICON icon) {
  DrawIconEx(dc, inset, inset, icon, kIconSize, kIconSize, 0, nullptr, DI_NORMAL);
}

BOOL CALLBACK DrawIconToGrey(HDC dc, LPARAM icon, int) {
  DrawIconAt(dc, 0, reinterpret_cast<HICON>(icon));
  return TRUE;
}

void DrawGreyIcon(HDC dc, HICON icon) {
  const ScopedGdiObject<HBRUSH> brush(CreateSolidBrush(kGrey));
  constexpr int kAnyCount = 1;  // the callback draws no text
  GrayStringA(dc, brush.get(), DrawIconToGrey, reinterpret_cast<LPARAM>(icon), kAnyCount, kIconInset, kIconInset,
              kIconSize, kIconSize);
}

void DrawLine(HDC dc, int fromX, int fromY, int toX, int toY) {
  MoveToEx(dc, fromX, fromY, nullptr);
  LineTo(dc, toX, toY);
}

// The upper and left edge of a button whose last column is w and whose last row is h.
void DrawUpperEdge(HDC dc, COLORREF color, int w, int h) {
  const ScopedGdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, color));
  const ScopedSelect selected(dc, pen.get());
  for (int i = 0; i < kEdgeWidth; ++i) {
    DrawLine(dc, 0, i, w - i, i);
    DrawLine(dc, i, 0, i, h - i);
  }
}

void DrawLowerEdge(HDC dc, COLORREF color, int w, int h) {
  const ScopedGdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, color));
  const ScopedSelect selected(dc, pen.get());
  for (int i = 0; i < kEdgeWidth; ++i) {
    DrawLine(dc, w, h - i, i, h - i);
    DrawLine(dc, w - i, h, w - i, i);
  }
}

bool HasFlag(HWND button, const char* name) {
  return GetPropA(button, name) != nullptr;
}

void SetPressed(HWND button, bool pressed) {
  SetIntegerProperty(button, property::kSelectState, pressed ? 1 : 0);
  InvalidateRect(button, nullptr, TRUE);
}

LRESULT OnCreate(HWND button) {
  SetPropA(button, property::kSelectState, nullptr);
  SetPropA(button, property::kGrayed, nullptr);
  return 0;
}

LRESULT OnDestroy(HWND button) {
  RemovePropA(button, property::kSelectState);
  RemovePropA(button, property::kGrayed);
  return 0;
}

LRESULT OnPaint(HWND button) {
  const ScopedPaint paint(button);
  const HDC dc = paint.dc();
  RECT client;
  GetClientRect(button, &client);
  const int w = client.right - 1;
  const int h = client.bottom - 1;
  const bool pressed = HasFlag(button, property::kSelectState);
  const HICON icon = IconOf(button);
  if (HasFlag(button, property::kGrayed)) {
    DrawGreyIcon(dc, icon);
  } else {
    DrawIconAt(dc, pressed ? kPressedIconInset : kIconInset, icon);
  }
  DrawUpperEdge(dc, pressed ? kGrey : kWhite, w, h);
  if (!pressed) DrawLowerEdge(dc, kGrey, w, h);
  return 0;
}

IconButtonState StateOf(HWND button) {
  return {.pressed = HasFlag(button, property::kSelectState), .captured = GetCapture() == button};
}

LRESULT OnLeftButtonDown(HWND button) {
  SetCapture(button);
  SetPressed(button, PressIconButton().pressed);
  return 0;
}

LRESULT OnMouseMove(HWND button, POINT point) {
  RECT client;
  GetClientRect(button, &client);
  const IconButtonState state = StateOf(button);
  const IconButtonState next = DragIconButton(state, PtInRect(&client, point) != FALSE);
  if (next != state) SetPressed(button, next.pressed);
  return 0;
}

LRESULT OnLeftButtonUp(HWND button) {
  const bool fires = FiresOnRelease(StateOf(button));
  ReleaseCapture();
  SetPressed(button, false);
  if (fires) {
    SendMessageA(GetParent(button), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button), 0), reinterpret_cast<LPARAM>(button));
  }
  return 0;
}

LRESULT OnMouse(HWND button, UINT message, LPARAM lParam) {
  if (HasFlag(button, property::kGrayed)) return 0;
  switch (message) {
    case WM_LBUTTONDOWN: return OnLeftButtonDown(button);
    case WM_LBUTTONUP: return OnLeftButtonUp(button);
    default: return OnMouseMove(button, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  }
}

}  // namespace

LRESULT CALLBACK IconButtonProc(HWND button, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(button);
    case WM_DESTROY: return OnDestroy(button);
    case WM_PAINT: return OnPaint(button);
    case WM_CAPTURECHANGED: SetPressed(button, false); return 0;  // a press that another window took over
    case WM_LBUTTONDOWN:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP: return OnMouse(button, message, lParam);
  }
  return DefWindowProcA(button, message, wParam, lParam);
}

void SetDescription(HWND button, const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
  if (const ScopedGlobalLock<char> copy(block); copy) std::memcpy(copy.get(), text, size);
  ReplaceBlockProperty(button, property::kDescription, block);
}

void ReleaseDescription(HWND button) {
  FreeBlockProperty(button, property::kDescription);
}
