#include "document/tooltip.h"

#include <cstring>
#include <string>

#include "companion/glyphs.h"
#include "document/core/icon_button_state.h"
#include "document/icon_button.h"
#include "engine/core/records.h"
#include "engine/properties.h"
#include "win/class_names.h"
#include "win/make_font.h"
#include "win/scoped.h"

TooltipState Tooltip;

namespace {

constexpr char kFontFace[] = "Helv";
constexpr int kFontPoints = 8;
constexpr int kSideBorders = 5;  // border widths added to the text's width

std::string WindowText(HWND window) {
  char text[kTextSize] = "";
  GetWindowTextA(window, text, sizeof text);
  return text;
}

SIZE MeasureText(HFONT font, const std::string& text) {
  const ScopedWindowDc display(nullptr);
  const ScopedSelect selected(display.dc(), font);
  SIZE size{};
  GlyphsGetTextExtentPoint(display.dc(), text.c_str(), static_cast<int>(text.size()), &size);
  return size;
}

LRESULT OnCreate(HWND tooltip) {
  const HFONT font = MakeFont(kFontFace, kFontPoints, FW_DONTCARE);
  if (!font) return -1;
  SetPropA(tooltip, property::kFont, font);
  return 0;
}

// Takes the size of its text, where it stands.
LRESULT OnSize(HWND tooltip) {
  const SIZE text = MeasureText(GetFontProperty(tooltip, property::kFont), WindowText(tooltip));
  SetWindowPos(tooltip, nullptr, 0, 0, text.cx + kSideBorders * GetSystemMetrics(SM_CXBORDER), text.cy,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  return 0;
}

LRESULT OnPaint(HWND tooltip) {
  const ScopedPaint paint(tooltip);
  const ScopedSelect selected(paint.dc(), GetFontProperty(tooltip, property::kFont));
  SetBkMode(paint.dc(), TRANSPARENT);
  const std::string text = WindowText(tooltip);
  GlyphsTextOut(paint.dc(), 0, 0, text.c_str(), static_cast<int>(text.size()));
  return 0;
}

LRESULT OnDestroy(HWND tooltip) {
  DeleteFontProperty(tooltip, property::kFont);
  return 0;
}

void HideTooltip() {
  if (Tooltip.window) DestroyWindow(Tooltip.window);
  Tooltip.window = nullptr;
}

// A toolbar button that has not got the focus.
bool WantsTooltip(HWND window) {
  char parentClass[64] = "";
  const HWND parent = window ? GetParent(window) : nullptr;
  if (!parent || !GetClassNameA(parent, parentClass, sizeof parentClass)) return false;
  return std::strcmp(parentClass, window_class::kToolbar) == 0 && window != GetFocus();
}

std::string DescriptionOf(HWND button) {
  const ScopedGlobalLock<const char> text(GetBlockProperty(button, property::kDescription));
  return text ? text.get() : "";
}

void ShowTooltip(HWND button) {
  const std::string text = DescriptionOf(button);
  if (Tooltip.window && WindowText(Tooltip.window) == text) return;
  HideTooltip();
  const ScopedGdiObject<HFONT> font(MakeFont(kFontFace, kFontPoints, FW_DONTCARE));
  RECT rect;
  GetWindowRect(button, &rect);
  const TooltipPoint point = TooltipPosition(rect.left, rect.right, rect.bottom, MeasureText(font.get(), text).cx);
  Tooltip.window = CreateWindowExA(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, window_class::kTooltip, text.c_str(),
                                   WS_POPUP | WS_BORDER, point.x, point.y, 0, 0, nullptr, nullptr,
                                   reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(button, GWLP_HINSTANCE)), nullptr);
  if (Tooltip.window) ShowWindow(Tooltip.window, SW_SHOWNOACTIVATE);
}

}  // namespace

LRESULT CALLBACK TooltipProc(HWND tooltip, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(tooltip);
    case WM_SIZE: return OnSize(tooltip);
    case WM_PAINT: return OnPaint(tooltip);
    case WM_DESTROY: return OnDestroy(tooltip);
  }
  return DefWindowProcA(tooltip, message, wParam, lParam);
}

// Deliberate: only a negative code goes on to the next hook; the program has no other of its own.
LRESULT CALLBACK TooltipMouseHook(int code, WPARAM message, LPARAM lParam) {
  if (code < 0) return CallNextHookEx(nullptr, code, message, lParam);
  if (!Tooltip.enabled) return 0;
  const HWND window = WindowFromPoint(reinterpret_cast<const MOUSEHOOKSTRUCT*>(lParam)->pt);
  if (WantsTooltip(window)) {
    ShowTooltip(window);
  } else {
    HideTooltip();
  }
  return 0;
}

void OnApplicationActivated(bool active) {
  if (!active) HideTooltip();
  Tooltip.enabled = active;
}
