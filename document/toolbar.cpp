#include "document/toolbar.h"

#include "document/icon_button.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/class_names.h"

namespace {

constexpr int kButtonWidth = 37;
constexpr int kButtonHeight = 39;

struct ToolbarButton {
  int id;
  int x;
  const char* icon;
  unsigned descriptionId;
};

// From left to right. Gaps of 55 and 71 pixels from button to button group them.
constexpr ToolbarButton kButtons[] = {
    {IDB_SHABBAT_TIMES, 16, "#1", IDS_BUTTON_SHABBAT_TIMES},
    {IDB_ZMANIM, 71, "#2", IDS_BUTTON_ZMANIM},
    {IDB_READINGS, 126, "#3", IDS_BUTTON_READINGS},
    {IDB_ALMANAC, 197, "#4", IDS_BUTTON_ALMANAC},
    {IDB_SELECT_LOCATION, 268, "#5", IDS_BUTTON_SELECT_LOCATION},
    {IDB_EXPORT_TEXT, 339, "#6", IDS_BUTTON_EXPORT_TEXT},
    {IDB_EXPORT_RTF, 394, "#7", IDS_BUTTON_EXPORT_RTF},
    {IDB_PRINT, 465, "#8", IDS_BUTTON_PRINT},
    {IDB_BIRTHDAYS, 536, "#20", IDS_BUTTON_BIRTHDAYS},
    {IDB_BAR_MITZVAH, 607, "#21", IDS_BUTTON_BAR_MITZVAH},
    {IDB_EXIT, 678, "#9", IDS_BUTTON_EXIT},
    {IDB_HELP, 749, "#10", IDS_BUTTON_HELP},
    {IDB_DAF_YOMI, 820, "#22", IDS_BUTTON_DAF_YOMI},
};

}  // namespace

LRESULT CALLBACK ToolbarProc(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND) return SendMessageA(GetParent(toolbar), message, wParam, lParam);
  return DefWindowProcA(toolbar, message, wParam, lParam);
}

void CreateToolbarButtons(HWND toolbar) {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(toolbar, GWLP_HINSTANCE));
  const int y = GetSystemMetrics(SM_CYSIZEFRAME);
  for (const ToolbarButton& button : kButtons) {
    const DWORD visible = button.id == IDB_PRINT ? 0 : WS_VISIBLE;
    CreateWindowExA(0, window_class::kIconButton, button.icon, WS_CHILD | visible, button.x, y, kButtonWidth,
                    kButtonHeight, toolbar, reinterpret_cast<HMENU>(static_cast<INT_PTR>(button.id)), instance,
                    nullptr);
  }
}

void DescribeToolbarButtons(HWND toolbar) {
  for (const ToolbarButton& button : kButtons) {
    if (const HWND window = GetDlgItem(toolbar, button.id)) SetDescription(window, TableString(button.descriptionId));
  }
}

void ReleaseToolbarDescriptions(HWND toolbar) {
  for (const ToolbarButton& button : kButtons) {
    if (const HWND window = GetDlgItem(toolbar, button.id)) ReleaseDescription(window);
  }
}
