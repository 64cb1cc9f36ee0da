#include "locations/location_manager.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "engine/current.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "engine/unread_settings.h"
#include "locations/core/location_texts.h"
#include "locations/location_editor.h"
#include "locations/location_lookup.h"
#include "locations/location_store.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/local_date.h"
#include "win/message_box.h"
#include "win/scoped.h"

namespace {

constexpr int kParameterLineUnits = 10;  // the height of its static in the template

LRESULT ListMessage(HWND dialog, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendDlgItemMessageA(dialog, IDC_LOCATIONS_LIST, message, wParam, lParam);
}

LRESULT ListMessage(HWND dialog, UINT message, WPARAM wParam, const char* text) {
  return ListMessage(dialog, message, wParam, reinterpret_cast<LPARAM>(text));
}

int SelectedIndex(HWND dialog) {
  return static_cast<int>(ListMessage(dialog, LB_GETCURSEL));
}

bool ReadName(HWND dialog, int index, char (&name)[kTextSize]) {
  if (index == LB_ERR || ListMessage(dialog, LB_GETTEXTLEN, static_cast<WPARAM>(index)) >= LRESULT{kTextSize}) {
    return false;
  }
  return ListMessage(dialog, LB_GETTEXT, static_cast<WPARAM>(index), name) != LB_ERR;
}

bool ReadSelectedName(HWND dialog, char (&name)[kTextSize]) {
  return ReadName(dialog, SelectedIndex(dialog), name);
}

// The place is taken whole, numbers included, so that its name never stands over the numbers of another place.
void TakeSettingsOf(HWND document) {
  if (document) {
    CurrentLocation = GetPlace(document);
    CurrentRange = GetRangeProperties(document);
  } else {
    TakeFirstBuiltInLocation(CurrentLocation);
    CurrentRange.start = LocalDate();
    CurrentRange.end = {1, CurrentRange.start.uMonth, CurrentRange.start.uYear + 1};
  }
  ApplyCandleOverrideRule();
}

void AddNames(HWND dialog) {
  const std::vector<std::string> builtIn = BuiltInLocationNames();
  for (const std::string& name : builtIn) ListMessage(dialog, LB_ADDSTRING, 0, name.c_str());
  for (const std::string& name : UserLocationNames()) {
    if (std::ranges::find(builtIn, name) == builtIn.end()) ListMessage(dialog, LB_ADDSTRING, 0, name.c_str());
  }
}

// The index of the name spelled exactly so, else of the first that the list finds whatever its letter case; LB_ERR when
// there is neither.
int FindName(HWND dialog, const char* name) {
  const auto find = [&](int after) {
    return static_cast<int>(ListMessage(dialog, LB_FINDSTRINGEXACT, static_cast<WPARAM>(after), name));
  };
  const int first = find(-1);
  int index = first;
  do {
    char found[kTextSize];
    if (index != LB_ERR && ReadName(dialog, index, found) && std::strcmp(found, name) == 0) return index;
    index = find(index);
  } while (index != first);
  return first;
}

// A hidden button must not keep the focus, nor answer to its mnemonic.
void ShowRemoveButton(HWND dialog, bool show) {
  const HWND button = GetDlgItem(dialog, IDC_LOCATIONS_REMOVE);
  if (!show && GetFocus() == button) {
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, IDC_LOCATIONS_LIST)), TRUE);
  }
  EnableWindow(button, show);
  ShowWindow(button, show ? SW_SHOW : SW_HIDE);
}

RECT PlaceInDialog(HWND dialog, int control) {
  RECT place;
  GetWindowRect(GetDlgItem(dialog, control), &place);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

// As the parameter line's static breaks it.
int HeightOfText(HWND text, const std::string& line, int width) {
  const ScopedWindowDc window(text);
  const ScopedSelect font(window.dc(), reinterpret_cast<HFONT>(SendMessageA(text, WM_GETFONT, 0, 0)));
  RECT area{0, 0, width, 0};
  DrawTextA(window.dc(), line.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX);
  return area.bottom;
}

// A line that is too long for the static gets the height that it needs; the list above gives way.
void ShowParameterLine(HWND dialog, const std::string& line) {
  const HWND text = GetDlgItem(dialog, IDC_LOCATIONS_PARAMETERS);
  const RECT list = PlaceInDialog(dialog, IDC_LOCATIONS_LIST);
  const RECT old = PlaceInDialog(dialog, IDC_LOCATIONS_PARAMETERS);
  RECT usual{0, 0, 0, kParameterLineUnits};
  MapDialogRect(dialog, &usual);
  const int width = old.right - old.left;
  const int height = std::max<int>(HeightOfText(text, line, width), usual.bottom);
  const int listHeight = list.bottom - list.top + (old.bottom - old.top) - height;
  MoveWindow(text, old.left, old.bottom - height, width, height, TRUE);
  MoveWindow(GetDlgItem(dialog, IDC_LOCATIONS_LIST), list.left, list.top, list.right - list.left, listHeight, TRUE);
  SetWindowTextA(text, line.c_str());
}

void RefreshParameterLine(HWND dialog) {
  Location location{};
  if (!ReadSelectedName(dialog, location.name)) return;
  const LocationSource source = LookUpLocation(location);
  ShowRemoveButton(dialog, source != LocationSource::kBuiltIn);
  const int32_t elevation = ReadElevation(ElevationPlaceOf(location),
                                          DefaultElevation(location.latitude, location.longitude, location.zoneHours));
  ShowParameterLine(dialog, ParameterLine(location, elevation));
}

HWND DocumentOf(HWND dialog) {
  return reinterpret_cast<HWND>(GetWindowLongPtrA(dialog, DWLP_USER));
}

void FillList(HWND dialog) {
  ListMessage(dialog, WM_SETREDRAW, FALSE);
  ListMessage(dialog, LB_RESETCONTENT);
  AddNames(dialog);
  TakeSettingsOf(DocumentOf(dialog));
  const int index = FindName(dialog, CurrentLocation.name);
  if (index != LB_ERR) ListMessage(dialog, LB_SETCURSEL, static_cast<WPARAM>(index));
  ListMessage(dialog, WM_SETREDRAW, TRUE);
  InvalidateRect(GetDlgItem(dialog, IDC_LOCATIONS_LIST), nullptr, TRUE);
  RefreshParameterLine(dialog);
}

// After a change of the store: the index that was selected stays; one past the end selects nothing.
void RefillList(HWND dialog, int index) {
  FillList(dialog);
  const int count = static_cast<int>(ListMessage(dialog, LB_GETCOUNT));
  ListMessage(dialog, LB_SETCURSEL, static_cast<WPARAM>(index < count ? index : -1));
  RefreshParameterLine(dialog);
}

LRESULT OnInitDialog(HWND dialog, LPARAM document) {
  SetWindowLongPtrA(dialog, DWLP_USER, document);
  FillList(dialog);
  return TRUE;
}

void OnSelect(HWND dialog) {
  char name[kTextSize];
  if (!ReadSelectedName(dialog, name)) return;
  std::strcpy(CurrentLocation.name, name);
  LookUpLocation(CurrentLocation);
  ApplyCandleOverrideRule();
  EndDialog(dialog, 1);
}

void OnEdit(HWND dialog, bool adding) {
  const int index = SelectedIndex(dialog);
  char name[kTextSize] = "";
  if (!adding && !ReadSelectedName(dialog, name)) return;
  RunLocationEditor(dialog, name);
  RefillList(dialog, index);  // after a cancelled save too: a write that failed half-way may have changed the store
}

void OnRemove(HWND dialog) {
  const int index = SelectedIndex(dialog);
  char name[kTextSize];
  if (!ReadSelectedName(dialog, name)) return;
  if (!Ask(dialog, TableString(IDS_REMOVE_CITY), TableString(IDS_TITLE))) return;
  const bool elevation = WriteElevation(ReadElevationPlace(name), 0);
  if (!DeleteUserLocation(name) || !elevation) ShowUnwritableSettings(dialog, kLocationsFile);
  RefillList(dialog, index);
}

LRESULT OnCommand(HWND dialog, int control, int notification) {
  switch (control) {
    case IDOK: OnSelect(dialog); break;
    case IDCANCEL: EndDialog(dialog, 0); break;
    case IDC_LOCATIONS_ADD: OnEdit(dialog, true); break;
    case IDC_LOCATIONS_CHANGE: OnEdit(dialog, false); break;
    case IDC_LOCATIONS_REMOVE: OnRemove(dialog); break;
    case IDC_LOCATIONS_LIST:
      if (notification == LBN_SELCHANGE) RefreshParameterLine(dialog);
      if (notification == LBN_DBLCLK) OnSelect(dialog);
      break;
  }
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, lParam);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

bool RunLocationManager(HWND owner, HWND document) {
  if (!MayEditSettings(owner, kStoreFiles)) return false;
  return RunDialog<Handle>(owner, "SELECTLOCDLG", reinterpret_cast<LPARAM>(document)) == 1;
}
