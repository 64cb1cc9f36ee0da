#include "app/about_box.h"

#include <windowsx.h>

#include <cstdio>

#include "app/program.h"
#include "app/version.h"
#include "engine/bound_entries.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/message_box.h"
#include "win/scoped.h"

namespace {

// Deliberate: the odd ordinal is how the date was published.
constexpr char kReleaseDate[] = "November the 1th, 2007";

constexpr int kIconSize = 32;
constexpr int kIconDialogX = 15;  // in dialog units: quarters of the base unit's width, eighths of its height
constexpr int kIconDialogY = 10;

POINT IconPosition() {
  const LONG base = GetDialogBaseUnits();
  return {LOWORD(base) * kIconDialogX / 4, HIWORD(base) * kIconDialogY / 8};
}

LRESULT OnInitDialog(HWND dialog) {
  char caption[kTextSize];
  std::snprintf(caption, sizeof caption, TableString(IDS_ABOUT), TableString(IDS_TITLE));
  SetWindowTextA(dialog, caption);
  SetDlgItemTextA(dialog, IDC_ABOUT_TITLE, TableString(IDS_TITLE));
  SetDlgItemTextA(dialog, IDC_ABOUT_NOTICE, Program.notice);
  SetFocus(GetDlgItem(dialog, IDOK));
  return FALSE;
}

LRESULT OnPaint(HWND dialog, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = DefaultDialogMessage(dialog, WM_PAINT, wParam, lParam);
  const POINT position = IconPosition();
  const ScopedWindowDc dc(dialog);
  DrawIconEx(dc.dc(), position.x, position.y, LoadIconA(Program.instance, MAKEINTRESOURCEA(IDI_PROGRAM)), kIconSize,
             kIconSize, 0, nullptr, DI_NORMAL);
  return result;
}

// Interface versions have the major number in the high byte and the minor in the low one.
void ShowVersions(HWND dialog) {
  const uint32_t calendar = CivilCalendar.DatefilterGetAPIVersion();
  const uint32_t solar = Solar.SolarGetAPIVersion();
  char text[kTextSize];
  std::snprintf(text, sizeof text,
                "Release date: %s\nFile version: %s\nCalendar library API version: %u.%02u\nSolar library API version: "
                "%u.%02u",
                kReleaseDate, FILE_VERSION_TEXT, calendar >> 8 & 0xFFu, calendar & 0xFFu, solar >> 8 & 0xFFu,
                solar & 0xFFu);
  ShowInformation(dialog, text, TableString(IDS_TITLE));
}

// The edges of the icon's square are part of it.
bool IsOnIcon(POINT point) {
  const POINT icon = IconPosition();
  return point.x >= icon.x && point.x <= icon.x + kIconSize && point.y >= icon.y && point.y <= icon.y + kIconSize;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog);
    case WM_PAINT: return OnPaint(dialog, wParam, lParam);
    case WM_COMMAND: EndDialog(dialog, 0); return 0;
    case WM_LBUTTONUP:
      if (IsOnIcon({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) ShowVersions(dialog);
      break;
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

void RunAboutBox(HWND owner) {
  RunDialog<Handle>(owner, "ABOUTDLG");
}
