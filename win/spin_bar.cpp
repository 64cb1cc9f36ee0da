#include "win/spin_bar.h"

#include <initializer_list>

namespace {

// Of bar and field: the procedure of their class. Of the field: its bar. Of the bar: set once a held arrow has
// repeated.
constexpr char kClassProcedure[] = "SpinClassProcedure";
constexpr char kBarProperty[] = "SpinBar";
constexpr char kRepeated[] = "SpinRepeated";

constexpr int kFocusWidth = 2;
constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT kFirstRepeatMilliseconds = 400;
constexpr UINT kNextRepeatMilliseconds = 60;

WNDPROC ClassProcedure(HWND window) {
  return reinterpret_cast<WNDPROC>(GetPropA(window, kClassProcedure));
}

void Subclass(HWND window, WNDPROC procedure) {
  const LONG_PTR old = SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
  SetPropA(window, kClassProcedure, reinterpret_cast<HANDLE>(old));
}

// The last message of a window: its properties go, its class ends it.
LRESULT OnGone(HWND window, WPARAM wParam, LPARAM lParam) {
  const WNDPROC classProcedure = ClassProcedure(window);
  for (const char* name : {kClassProcedure, kBarProperty, kRepeated}) RemovePropA(window, name);
  return CallWindowProcA(classProcedure, window, WM_NCDESTROY, wParam, lParam);
}

// An arrow's control id is the scroll code that it stands for.
void SendStep(HWND bar, int code) {
  SendMessageA(GetParent(bar), WM_VSCROLL, MAKEWPARAM(code, 0), reinterpret_cast<LPARAM>(bar));
}

LRESULT OnNotification(HWND bar, int code, int notification) {
  if (notification != BN_CLICKED && notification != BN_DOUBLECLICKED) return 0;  // the second of two quick clicks
  if (!RemovePropA(bar, kRepeated)) SendStep(bar, code);
  return 0;
}

LRESULT OnMouseButtonDown(HWND bar) {
  RemovePropA(bar, kRepeated);
  SetTimer(bar, kRepeatTimer, kFirstRepeatMilliseconds, nullptr);
  return 0;
}

// While the mouse holds an arrow; one from which it has slipped away waits for it.
LRESULT OnRepeat(HWND bar) {
  const HWND held = GetCapture();
  if (!held || GetParent(held) != bar) {
    KillTimer(bar, kRepeatTimer);
    return 0;
  }
  SetTimer(bar, kRepeatTimer, kNextRepeatMilliseconds, nullptr);
  if (!(SendMessageA(held, BM_GETSTATE, 0, 0) & BST_PUSHED)) return 0;
  SetPropA(bar, kRepeated, held);
  SendStep(bar, GetDlgCtrlID(held));
  return 0;
}

LRESULT OnDrawArrow(const DRAWITEMSTRUCT& item) {
  RECT area = item.rcItem;
  const UINT arrow = item.CtlID == SB_LINEUP ? DFCS_SCROLLUP : DFCS_SCROLLDOWN;
  DrawFrameControl(item.hDC, &area, DFC_SCROLL, arrow | (item.itemState & ODS_SELECTED ? DFCS_PUSHED : 0u));
  if (item.itemState & ODS_FOCUS) {  // a dotted line would run into the small arrow
    for (int width = 0; width < kFocusWidth; ++width) {
      FrameRect(item.hDC, &area, GetSysColorBrush(COLOR_HIGHLIGHT));
      InflateRect(&area, -1, -1);
    }
  }
  return TRUE;
}

LRESULT CALLBACK BarProc(HWND bar, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND: return OnNotification(bar, LOWORD(wParam), HIWORD(wParam));
    case WM_DRAWITEM: return OnDrawArrow(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    case WM_PARENTNOTIFY:
      if (LOWORD(wParam) == WM_LBUTTONDOWN) return OnMouseButtonDown(bar);
      break;
    case WM_TIMER:
      if (wParam == kRepeatTimer) return OnRepeat(bar);
      break;
    case WM_NCDESTROY: return OnGone(bar, wParam, lParam);
  }
  return CallWindowProcA(ClassProcedure(bar), bar, message, wParam, lParam);
}

LRESULT CALLBACK FieldProc(HWND field, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND bar = static_cast<HWND>(GetPropA(field, kBarProperty));
  switch (message) {
    case WM_KEYDOWN:
      if (wParam != VK_UP && wParam != VK_DOWN) break;
      SendStep(bar, wParam == VK_UP ? SB_LINEUP : SB_LINEDOWN);
      SendMessageA(field, EM_SETSEL, 0, -1);
      return 0;
    case WM_NCDESTROY: return OnGone(field, wParam, lParam);
  }
  return CallWindowProcA(ClassProcedure(field), field, message, wParam, lParam);
}

void AddArrow(HWND bar, int code, const char* name, const RECT& area) {
  static_cast<void>(CreateWindowExA(0, "BUTTON", name, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW, area.left,
                                    area.top, area.right - area.left, area.bottom - area.top, bar,
                                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(code)), GetModuleHandleA(nullptr),
                                    nullptr));
}

}  // namespace

void AddSpinKeys(HWND bar, HWND field, const char* upName, const char* downName) {
  RECT client;
  GetClientRect(bar, &client);
  const LONG middle = client.bottom / 2;
  Subclass(bar, BarProc);
  AddArrow(bar, SB_LINEUP, upName, {0, 0, client.right, middle});
  AddArrow(bar, SB_LINEDOWN, downName, {0, middle, client.right, client.bottom});
  SetPropA(field, kBarProperty, bar);
  Subclass(field, FieldProc);
}
