#include "app/sunset_dialog.h"

#include "app/core/date_step.h"
#include "companion/stamp.h"
#include "engine/bound_entries.h"
#include "engine/properties.h"
#include "engine/sun_times.h"
#include "resources/ids.h"
#include "win/dialog.h"
#include "win/local_date.h"

namespace {

constexpr char kDocumentProperty[] = "SunsetDocument";

struct DateControl {
  int edit;
  int spin;
  DateField field;
  uint32_t CalendarDate::*member;
};

constexpr DateControl kDateControls[] = {
    {IDC_SUNSET_DAY, IDC_SUNSET_DAY_SPIN, DateField::kDay, &CalendarDate::uDay},
    {IDC_SUNSET_MONTH, IDC_SUNSET_MONTH_SPIN, DateField::kMonth, &CalendarDate::uMonth},
    {IDC_SUNSET_YEAR, IDC_SUNSET_YEAR_SPIN, DateField::kYear, &CalendarDate::uYear},
};

void ShowDate(HWND dialog, const CalendarDate& date) {
  for (const DateControl& control : kDateControls) SetDlgItemInt(dialog, control.edit, date.*control.member, FALSE);
}

CalendarDate ReadDate(HWND dialog) {
  CalendarDate date{};
  for (const DateControl& control : kDateControls) {
    date.*control.member = ReadUnsigned(dialog, control.edit).value_or(0);
  }
  return date;
}

void CalculateSelectDate(HWND dialog) {
  const CalendarDate date = ReadDate(dialog);
  const HWND document = static_cast<HWND>(GetPropA(dialog, kDocumentProperty));
  char text[STAMP_TEXT_SIZE] = "";
  if (document) {
    if (date.uMonth < 1 || date.uMonth > 12) {
      FatalAppExitA(0, "CalculateSelectDate: uMonth must be in the range 1-12");
    }
    const ClockTime sunset = SunEvent(GetPlace(document), date, SOLAR_SUNSET);
    StampConvert(sunset.hour, sunset.minute, text);
  }
  SetDlgItemTextA(dialog, IDC_SUNSET_TIME, text);
}

LRESULT OnInitDialog(HWND dialog, LPARAM document) {
  SetPropA(dialog, kDocumentProperty, reinterpret_cast<HANDLE>(document));
  ShowDate(dialog, LocalDate());
  CalculateSelectDate(dialog);
  return TRUE;
}

// The arrows of a spin bar; what was typed into the fields is taken now.
LRESULT OnVerticalScroll(HWND dialog, int code, HWND bar) {
  if (code != SB_LINEUP && code != SB_LINEDOWN) return 0;
  for (const DateControl& control : kDateControls) {
    if (GetDlgItem(dialog, control.spin) != bar) continue;
    ShowDate(dialog,
             StepDate(ReadDate(dialog), control.field, code == SB_LINEUP, CivilCalendar.DatefilterGetLastDayOfMonth));
    CalculateSelectDate(dialog);
  }
  return 0;
}

LRESULT OnCommand(HWND dialog, int control) {
  if (control != IDOK && control != IDCANCEL) return 0;
  EndDialog(dialog, 0);
  return 0;
}

LRESULT OnDestroy(HWND dialog) {
  RemovePropA(dialog, kDocumentProperty);
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog, lParam);
    case WM_DESTROY: return OnDestroy(dialog);
    case WM_VSCROLL: return OnVerticalScroll(dialog, LOWORD(wParam), reinterpret_cast<HWND>(lParam));
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

void RunSunsetDialog(HWND owner, HWND document) {
  RunDialog<Handle>(owner, "SELECTDATE", reinterpret_cast<LPARAM>(document));
}
