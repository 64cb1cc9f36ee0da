#include <initializer_list>

#include "document/properties.h"
#include "readings/core/readings_geometry.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/class_names.h"
#include "win/text_metrics.h"

namespace {

bool CreatePane(HWND container, const char* className, int id, DWORD style) {
  return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, container,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                         reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(container, GWLP_HINSTANCE)), nullptr) != nullptr;
}

LRESULT OnCreate(HWND container) {
  const bool created = CreatePane(container, window_class::kReadingsHeaderPane, IDC_READINGS_HEADER_PANE, 0) &&
                       CreatePane(container, window_class::kReadingsListPane, IDC_READINGS_LIST_PANE, WS_VSCROLL);
  return created ? 0 : -1;
}

LRESULT OnDestroy(HWND container) {
  for (const int pane : {IDC_READINGS_HEADER_PANE, IDC_READINGS_LIST_PANE}) DestroyWindow(GetDlgItem(container, pane));
  return 0;
}

LRESULT OnSize(HWND container, int width, int height) {
  const HFONT bold = GetFontProperty(GetParent(container), property::kBoldParashaFont);
  const ReadingsLayout layout = LayOutReadings(height, MeasureFontOnDisplay(bold).lineHeight);
  MoveWindow(GetDlgItem(container, IDC_READINGS_HEADER_PANE), 0, 0, width, layout.headerHeight, TRUE);
  MoveWindow(GetDlgItem(container, IDC_READINGS_LIST_PANE), 0, layout.listY, width, layout.listHeight, TRUE);
  return 0;
}

LRESULT OnSetFocus(HWND container) {
  SetFocus(GetDlgItem(container, IDC_READINGS_LIST_PANE));
  return 0;
}

}  // namespace

LRESULT CALLBACK ReadingsContainerProc(HWND container, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(container);
    case WM_DESTROY: return OnDestroy(container);
    case WM_SIZE: return OnSize(container, LOWORD(lParam), HIWORD(lParam));
    case WM_SETFOCUS: return OnSetFocus(container);
  }
  return DefWindowProcA(container, message, wParam, lParam);
}
