#include "app/window_classes.h"

#include "app/frame_window.h"
#include "document/document_window.h"
#include "document/icon_button.h"
#include "document/toolbar.h"
#include "document/tooltip.h"
#include "readings/readings_panes.h"
#include "resources/ids.h"
#include "shabbat/shabbat_panes.h"
#include "win/class_names.h"
#include "zmanim/zmanim_panes.h"

namespace {

enum class Background { kWhite, kLightGrey, kTooltip };

struct WindowClass {
  const char* name;
  bool redraw;  // wholly on every change of size
  Background background;
  WNDPROC procedure;
};

// In the order of registration. The first is the frame's, which alone has the program's icon and menu. Classes whose
// windows show nothing yet have the default procedure.
constexpr WindowClass kWindowClasses[] = {
    {window_class::kFrame, false, Background::kWhite, FrameWindowProc},
    {window_class::kDocument, true, Background::kWhite, DocumentWindowProc},
    {window_class::kToolbar, false, Background::kLightGrey, ToolbarProc},
    {window_class::kIconButton, false, Background::kLightGrey, IconButtonProc},
    {window_class::kHeaderPane, true, Background::kWhite, ShabbatHeaderPaneProc},
    {window_class::kListPane, true, Background::kWhite, ShabbatListPaneProc},
    {window_class::kZmanimContainer, true, Background::kWhite, ZmanimContainerProc},
    {window_class::kZmanimHeadingPane, true, Background::kWhite, ZmanimHeadingPaneProc},
    {window_class::kZmanimTablePane, true, Background::kWhite, ZmanimTablePaneProc},
    {window_class::kZmanimLegendPane, true, Background::kWhite, ZmanimLegendPaneProc},
    {window_class::kReadingsContainer, true, Background::kWhite, ReadingsContainerProc},
    {window_class::kReadingsHeaderPane, true, Background::kWhite, ReadingsHeaderPaneProc},
    {window_class::kReadingsListPane, true, Background::kWhite, ReadingsListPaneProc},
    {window_class::kTooltip, true, Background::kTooltip, TooltipProc},
};

HBRUSH BackgroundBrush(Background background, HBRUSH tooltipBrush) {
  switch (background) {
    case Background::kWhite: return static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    case Background::kLightGrey: return static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH));
    case Background::kTooltip: return tooltipBrush;
  }
  return nullptr;
}

}  // namespace

const char* RegisterWindowClasses(HINSTANCE instance, HBRUSH tooltipBrush) {
  for (const WindowClass& row : kWindowClasses) {
    const bool isFrame = &row == kWindowClasses;
    WNDCLASSA windowClass{};
    windowClass.style = row.redraw ? CS_HREDRAW | CS_VREDRAW : 0;
    windowClass.lpfnWndProc = row.procedure;
    windowClass.hInstance = instance;
    windowClass.hIcon =
        isFrame ? LoadIconA(instance, MAKEINTRESOURCEA(IDI_PROGRAM)) : LoadIcon(nullptr, IDI_APPLICATION);
    windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = BackgroundBrush(row.background, tooltipBrush);
    windowClass.lpszMenuName = isFrame ? MAKEINTRESOURCEA(IDR_MENU) : nullptr;
    windowClass.lpszClassName = row.name;
    if (!RegisterClassA(&windowClass)) return row.name;
  }
  return nullptr;
}
