#include "app/sunset_dialog.h"

#include <optional>

#include "app/core/date_step.h"
#include "app/core/typed_date.h"
#include "companion/stamp.h"
#include "engine/bound_entries.h"
#include "engine/properties.h"
#include "engine/sun_times.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/local_date.h"
#include "win/spin_bar.h"

namespace {

struct DateControl {
  int edit;
  int spin;
  DateField field;
  uint32_t CalendarDate::*member;
  std::optional<uint32_t> TypedDate::*typed;
  const char* upName;  // of the arrows, as a reader of the screen says them
  const char* downName;
};

constexpr DateControl kDateControls[] = {
    {IDC_SUNSET_DAY, IDC_SUNSET_DAY_SPIN, DateField::kDay, &CalendarDate::uDay, &TypedDate::day, "Next day",
     "Previous day"},
    {IDC_SUNSET_MONTH, IDC_SUNSET_MONTH_SPIN, DateField::kMonth, &CalendarDate::uMonth, &TypedDate::month, "Next month",
     "Previous month"},
    {IDC_SUNSET_YEAR, IDC_SUNSET_YEAR_SPIN, DateField::kYear, &CalendarDate::uYear, &TypedDate::year, "Next year",
     "Previous year"},
};

struct SunsetDialog {
  HWND document;      // whose place it is; may be null
  CalendarDate date;  // the last that the fields made: where a step sets out
  bool isWriting;     // the fields change by the dialog's own hand
};

SunsetDialog* StateOf(HWND dialog) {
  return reinterpret_cast<SunsetDialog*>(GetWindowLongPtrA(dialog, DWLP_USER));
}

std::optional<CalendarDate> ReadDate(HWND dialog) {
  TypedDate typed;
  for (const DateControl& control : kDateControls) typed.*control.typed = ReadUnsigned(dialog, control.edit);
  return DateOf(typed, CivilCalendar.DatefilterGetLastDayOfMonth);
}

// Deliberate: while the fields make no date there is no time, and nothing is said about it; the user is still typing.
void CalculateSelectDate(HWND dialog) {
  SunsetDialog& state = *StateOf(dialog);
  const std::optional<CalendarDate> date = ReadDate(dialog);
  if (date) state.date = *date;
  char text[STAMP_TEXT_SIZE] = "";
  if (date && state.document) {
    const ClockTime sunset = SunEvent(GetPlace(state.document), *date, SOLAR_SUNSET);
    StampConvert(sunset.hour, sunset.minute, text);
  }
  SetDlgItemTextA(dialog, IDC_SUNSET_TIME, text);
}

void ShowDate(HWND dialog, const CalendarDate& date) {
  SunsetDialog& state = *StateOf(dialog);
  state.date = date;
  state.isWriting = true;
  for (const DateControl& control : kDateControls) SetDlgItemInt(dialog, control.edit, date.*control.member, FALSE);
  state.isWriting = false;
  CalculateSelectDate(dialog);
}

LRESULT OnInitDialog(HWND dialog, LPARAM state) {
  SetWindowLongPtrA(dialog, DWLP_USER, state);
  for (const DateControl& control : kDateControls) {
    AddSpinKeys(GetDlgItem(dialog, control.spin), GetDlgItem(dialog, control.edit), control.upName, control.downName);
  }
  ShowDate(dialog, LocalDate());
  return TRUE;
}

// An arrow of a spin bar. Every date that was typed has been taken already.
LRESULT OnVerticalScroll(HWND dialog, int code, HWND bar) {
  if (code != SB_LINEUP && code != SB_LINEDOWN) return 0;
  for (const DateControl& control : kDateControls) {
    if (GetDlgItem(dialog, control.spin) != bar) continue;
    ShowDate(dialog, StepDate(StateOf(dialog)->date, control.field, code == SB_LINEUP,
                              CivilCalendar.DatefilterGetLastDayOfMonth));
  }
  return 0;
}

LRESULT OnFieldChanged(HWND dialog) {
  const SunsetDialog* const state = StateOf(dialog);
  if (state && !state->isWriting) CalculateSelectDate(dialog);
  return 0;
}

LRESULT OnCommand(HWND dialog, int control, int notification) {
  if (notification == EN_CHANGE) return OnFieldChanged(dialog);
  if (control == IDOK || control == IDCANCEL) EndDialog(dialog, 0);
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, lParam);
    case WM_VSCROLL: return OnVerticalScroll(dialog, LOWORD(wParam), reinterpret_cast<HWND>(lParam));
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam), HIWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

void RunSunsetDialog(HWND owner, HWND document) {
  SunsetDialog state{document, {}, false};
  RunDialog<Handle>(owner, "SELECTDATE", reinterpret_cast<LPARAM>(&state));
}
