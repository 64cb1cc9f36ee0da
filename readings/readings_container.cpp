#include "engine/properties.h"
#include "readings/core/readings_geometry.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "win/class_names.h"
#include "win/pane.h"
#include "win/text_metrics.h"

namespace {

void LayOut(HWND container, int width, int height) {
  const HFONT bold = GetFontProperty(GetParent(container), property::kBoldParashaFont);
  const ReadingsLayout layout = LayOutReadings(height, MeasureFontOnDisplay(bold).lineHeight);
  PlaceChildPane(container, IDC_READINGS_HEADER_PANE, {0, 0, width, layout.headerHeight});
  PlaceChildPane(container, IDC_READINGS_LIST_PANE, {0, layout.listY, width, layout.listHeight});
}

constexpr ChildPane kPanes[] = {
    {window_class::kReadingsHeaderPane, IDC_READINGS_HEADER_PANE, WS_VISIBLE},
    {window_class::kReadingsListPane, IDC_READINGS_LIST_PANE, WS_VISIBLE | WS_VSCROLL},
};
constexpr PaneContainer kContainer{kPanes, LayOut, IDC_READINGS_LIST_PANE};

}  // namespace

LRESULT CALLBACK ReadingsContainerProc(HWND container, UINT message, WPARAM wParam, LPARAM lParam) {
  return PaneContainerMessage(kContainer, container, message, wParam, lParam);
}

void RefreshReadingsView(HWND document) {
  const HWND container = GetDlgItem(document, IDC_READINGS_PANE);
  const HWND list = GetDlgItem(container, IDC_READINGS_LIST_PANE);
  if (!list) return;
  SetReadingsScrollRange(list);
  RedrawWindow(container, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}
