#include "companion/stamp.h"
#include "engine/properties.h"
#include "engine/settings_flags.h"
#include "resources/ids.h"
#include "win/class_names.h"
#include "win/pane.h"
#include "win/scoped.h"
#include "win/text_metrics.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_labels.h"
#include "zmanim/core/zmanim_layout.h"
#include "zmanim/zmanim_in_use.h"
#include "zmanim/zmanim_panes.h"
#include "zmanim/zmanim_tooltip.h"

namespace {

// The form of times decides on the columns.
uint32_t FormOfTimes() {
  return StampIsAmPm() ? 1 : 0;
}

uint32_t LegendLinesNow(bool fromLibrary) {
  return static_cast<uint32_t>(LegendLines(fromLibrary, !fromLibrary && ZmanimInHebrew()));
}

// By the zmanim that the document has; a document without any, by those in use.
uint32_t LegendLinesOf(HWND document) {
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  return LegendLinesNow(labels ? labels->fromLibrary != 0 : ZmanimEnabled());
}

void LayOut(HWND container, int width, int height) {
  const FontMeasure font = MeasureFontOnDisplay(nullptr);
  const ZmanimLayout layout = LayOutZmanim(width, height, font.lineHeight, font.averageCharacterWidth,
                                           static_cast<int>(LegendLinesOf(GetParent(container))));
  PlaceChildPane(container, IDC_ZMANIM_LEGEND, layout.legend);
  PlaceChildPane(container, IDC_ZMANIM_HEADING, layout.heading);
  PlaceChildPane(container, IDC_ZMANIM_TABLE, layout.table);
}

constexpr ChildPane kPanes[] = {
    {window_class::kZmanimHeadingPane, IDC_ZMANIM_HEADING, WS_VISIBLE},
    {window_class::kZmanimTablePane, IDC_ZMANIM_TABLE, WS_VISIBLE | WS_VSCROLL | WS_HSCROLL},
    {window_class::kZmanimLegendPane, IDC_ZMANIM_LEGEND, WS_VISIBLE},
};
constexpr PaneContainer kContainer{kPanes, LayOut, IDC_ZMANIM_TABLE};

struct ViewState {
  bool hasTimesInUse;
  bool isLaidOut;  // for the form of times and the language of the legend
};

// One look at the document decides the usual case. One without zmanim has nothing to bring up to date.
ViewState StateOf(HWND document) {
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  if (!labels) return {true, true};
  const bool isLaidOut =
      labels->amPm == FormOfTimes() && labels->legendLines == LegendLinesNow(labels->fromLibrary != 0);
  return {AreInUse(*labels.get()), isLaidOut};
}

void RememberLayout(HWND document) {
  const ScopedGlobalLock<ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  if (!labels) return;
  labels->amPm = FormOfTimes();
  labels->legendLines = LegendLinesNow(labels->fromLibrary != 0);
}

}  // namespace

LRESULT CALLBACK ZmanimContainerProc(HWND container, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) DestroyZmanimTooltip(container);
  return PaneContainerMessage(kContainer, container, message, wParam, lParam);
}

void RefreshZmanimView(HWND document) {
  const HWND container = GetDlgItem(document, IDC_ZMANIM_PANE);
  const HWND table = GetDlgItem(container, IDC_ZMANIM_TABLE);
  if (!table) return;
  DropZmanimTooltip(container);
  RememberLayout(document);
  RECT client;
  GetClientRect(container, &client);
  LayOut(container, client.right, client.bottom);
  GetClientRect(table, &client);
  SetupZmanimScroll(table, client.right, client.bottom);
  RedrawWindow(container, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

bool PrepareZmanimPane(HWND pane) {
  const HWND document = GetParent(GetParent(pane));
  const ViewState state = StateOf(document);
  if (!state.hasTimesInUse && RenewZmanim(document)) return true;  // which lays the view out, too
  if (state.isLaidOut) return false;
  RefreshZmanimView(document);
  return true;
}
