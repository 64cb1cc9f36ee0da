#include "document/document_window.h"

#include <initializer_list>

#include "document/core/document_layout.h"
#include "document/document_commands.h"
#include "document/toolbar.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "win/class_names.h"
#include "win/pane.h"
#include "win/text_metrics.h"

namespace {

// In the order of creation.
constexpr ChildPane kChildren[] = {
    {window_class::kHeaderPane, IDC_HEADER_PANE, WS_VISIBLE},
    {window_class::kListPane, IDC_LIST_PANE, WS_VISIBLE | WS_VSCROLL},
    {window_class::kToolbar, IDC_TOOLBAR, WS_VISIBLE},
    {window_class::kZmanimContainer, IDC_ZMANIM_PANE, 0},
    {window_class::kReadingsContainer, IDC_READINGS_PANE, 0},
};

constexpr const char* kBlocks[] = {property::kShabbatTimes,    property::kZmanimTimes,  property::kZmanimLabels,
                                   property::kParashaReadings, property::kReadingsForm, property::kCity};
constexpr const char* kFonts[] = {property::kFont,           property::kBoldFont,    property::kZmanimFont,
                                  property::kBoldZmanimFont, property::kParashaFont, property::kBoldParashaFont};

void ReleaseProperties(HWND document) {
  RemoveRangeProperties(document);
  for (const char* name : kBlocks) FreeBlockProperty(document, name);
  for (const char* name : kFonts) DeleteFontProperty(document, name);
  for (const char* name : {property::kLatitude, property::kLongitude, property::kTimeZone, property::kTimeZoneMin}) {
    RemovePropA(document, name);
  }
}

// The date properties are there before the children are, and everything is empty before anything is filled in, so that
// a window whose creation stops half-way can be released like any other. Not every system sends such a window its
// destroy message.
LRESULT OnCreate(HWND document) {
  SetRangeProperties(document, {});
  for (const ChildPane& child : kChildren) {
    if (CreateChildPane(document, child)) continue;
    ReleaseProperties(document);
    return -1;
  }
  CreateToolbarButtons(GetDlgItem(document, IDC_TOOLBAR));
  SetRangeProperties(document, {});
  for (const char* name : kBlocks) SetPropA(document, name, nullptr);
  for (const char* name : kFonts) SetPropA(document, name, nullptr);
  DescribeToolbarButtons(GetDlgItem(document, IDC_TOOLBAR));
  return 0;
}

LRESULT OnDestroy(HWND document) {
  ReleaseToolbarDescriptions(GetDlgItem(document, IDC_TOOLBAR));
  ReleaseProperties(document);
  return 0;
}

LRESULT OnSize(HWND document, int clientWidth, int clientHeight) {
  const FontMeasure font = MeasureFontOnDisplay(GetFontProperty(document, property::kFont));
  const DocumentLayout layout = LayOutDocument(clientWidth, clientHeight,
                                               {.lineHeight = font.lineHeight,
                                                .averageCharacterWidth = font.averageCharacterWidth,
                                                .iconHeight = GetSystemMetrics(SM_CYICON),
                                                .sizingFrameHeight = GetSystemMetrics(SM_CYSIZEFRAME)});
  PlaceChildPane(document, IDC_TOOLBAR, layout.toolbar);
  PlaceChildPane(document, IDC_HEADER_PANE, layout.header);
  PlaceChildPane(document, IDC_LIST_PANE, layout.list);
  PlaceChildPane(document, IDC_ZMANIM_PANE, layout.content);
  PlaceChildPane(document, IDC_READINGS_PANE, layout.content);
  // The view lays itself out by the document's fonts, which may be new though its size is not.
  SendDlgItemMessageA(document, IDC_READINGS_PANE, WM_SIZE, SIZE_RESTORED,
                      MAKELPARAM(layout.content.width, layout.content.height));
  return 0;
}

LRESULT OnSetFocus(HWND document) {
  for (const int pane : {IDC_LIST_PANE, IDC_ZMANIM_PANE, IDC_READINGS_PANE}) {
    const HWND window = GetDlgItem(document, pane);
    if (pane != IDC_READINGS_PANE && !IsWindowVisible(window)) continue;
    SetFocus(window);
    break;
  }
  return 0;
}

LRESULT OnPaint(HWND document) {
  PAINTSTRUCT paint;
  BeginPaint(document, &paint);
  EndPaint(document, &paint);
  return 0;
}

BOOL CALLBACK StopAtMinimised(HWND window, LPARAM found) {
  const bool minimised = IsIconic(window) != FALSE;
  *reinterpret_cast<bool*>(found) = minimised;
  return !minimised;
}

}  // namespace

LRESULT CALLBACK DocumentWindowProc(HWND document, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE: return OnCreate(document);
    case WM_DESTROY: return OnDestroy(document);
    case WM_PAINT: return OnPaint(document);
    case WM_VSCROLL: return 0;  // the panes scroll themselves
    case WM_COMMAND: RunDocumentCommand(document, LOWORD(wParam)); return 0;
    case WM_SIZE:  // MDI must see size and focus before we do
      DefMDIChildProcA(document, message, wParam, lParam);
      return OnSize(document, LOWORD(lParam), HIWORD(lParam));
    case WM_SETFOCUS: DefMDIChildProcA(document, message, wParam, lParam); return OnSetFocus(document);
  }
  return DefMDIChildProcA(document, message, wParam, lParam);
}

bool HasMinimisedDocument(HWND mdiClient) {
  bool found = false;
  EnumChildWindows(mdiClient, StopAtMinimised, reinterpret_cast<LPARAM>(&found));
  return found;
}

void SendFrameCommand(HWND window, unsigned id) {
  for (HWND ancestor = window; ancestor; ancestor = GetParent(ancestor)) {
    char className[64];
    if (!GetClassNameA(ancestor, className, sizeof className)) continue;
    if (lstrcmpiA(className, window_class::kFrame) != 0) continue;
    SendMessageA(ancestor, WM_COMMAND, MAKEWPARAM(id, 0), 0);
    return;
  }
  MessageBeep(0);
}
