#include "locations/location_manager.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

#include "engine/bound_entries.h"
#include "engine/core/library_count.h"
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

namespace {

LRESULT ListMessage(HWND dialog, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendDlgItemMessageA(dialog, IDC_LOCATIONS_LIST, message, wParam, lParam);
}

LRESULT ListMessage(HWND dialog, UINT message, WPARAM wParam, const char* text) {
  return ListMessage(dialog, message, wParam, reinterpret_cast<LPARAM>(text));
}

int SelectedIndex(HWND dialog) {
  return static_cast<int>(ListMessage(dialog, LB_GETCURSEL));
}

bool ReadSelectedName(HWND dialog, char (&name)[kTextSize]) {
  const int index = SelectedIndex(dialog);
  if (index == LB_ERR || ListMessage(dialog, LB_GETTEXTLEN, static_cast<WPARAM>(index)) >= LRESULT{kTextSize}) {
    return false;
  }
  return ListMessage(dialog, LB_GETTEXT, static_cast<WPARAM>(index), name) != LB_ERR;
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
  std::set<std::string> builtIn;
  const uint32_t count = LibraryCount(Solar.SolarGetCountOfBuiltInLocations());
  for (uint32_t index = 0; index < count; ++index) {
    Location place{};
    Solar.SolarGetBuiltInLocation(index, place.name, &place.latitude, &place.longitude, &place.zoneHours,
                                  &place.zoneMinutes);
    builtIn.insert(place.name);
    ListMessage(dialog, LB_ADDSTRING, 0, place.name);
  }
  for (const std::string& name : UserLocationNames()) {
    if (!builtIn.contains(name)) ListMessage(dialog, LB_ADDSTRING, 0, name.c_str());
  }
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

void RefreshParameterLine(HWND dialog) {
  Location location{};
  if (!ReadSelectedName(dialog, location.name)) return;
  const LocationSource source = LookUpLocation(location);
  ShowRemoveButton(dialog, source != LocationSource::kBuiltIn);
  const int32_t elevation = ReadElevation(ElevationKey(location),
                                          DefaultElevation(location.latitude, location.longitude, location.zoneHours));
  SetDlgItemTextA(dialog, IDC_LOCATIONS_PARAMETERS, ParameterLine(location, elevation).c_str());
}

HWND DocumentOf(HWND dialog) {
  return reinterpret_cast<HWND>(GetWindowLongPtrA(dialog, DWLP_USER));
}

void FillList(HWND dialog) {
  ListMessage(dialog, WM_SETREDRAW, FALSE);
  ListMessage(dialog, LB_RESETCONTENT);
  AddNames(dialog);
  TakeSettingsOf(DocumentOf(dialog));
  const LRESULT index = ListMessage(dialog, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), CurrentLocation.name);
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
  Location location{};
  if (!ReadSelectedName(dialog, location.name)) return;
  if (!Ask(dialog, TableString(IDS_REMOVE_CITY), TableString(IDS_TITLE))) return;
  ReadUserLocation(location.name, location);
  const bool elevation = WriteElevation(ElevationKey(location), 0);
  if (!DeleteUserLocation(location.name) || !elevation) ShowUnwritableSettings(dialog, kLocationsFile);
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
