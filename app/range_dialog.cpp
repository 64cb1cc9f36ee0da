#include "app/range_dialog.h"

#include "app/core/range_check.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "output/date_text.h"
#include "resources/ids.h"
#include "win/dialog.h"

namespace {

LRESULT OnInitDialog(HWND dialog) {
  SetDlgItemTextA(dialog, IDC_RANGE_START, DateText(CurrentRange.start).c_str());
  SetDlgItemTextA(dialog, IDC_RANGE_END, DateText(CurrentRange.end).c_str());
  return TRUE;
}

void OnAccept(HWND dialog) {
  char start[kTextSize];
  char end[kTextSize];
  GetDlgItemTextA(dialog, IDC_RANGE_START, start, sizeof start);
  GetDlgItemTextA(dialog, IDC_RANGE_END, end, sizeof end);
  const RangeCheck check = CheckRange(start, end, {CivilCalendar.DatefilterGetLastDayOfMonth, AbsoluteFromDate});
  if (check.fault) {
    MessageBeep(MB_OK);
    ShowFieldError(dialog, check.fault->field == RangeField::kStart ? IDC_RANGE_START : IDC_RANGE_END,
                   check.fault->message.c_str());
    return;
  }
  CurrentRange = check.range;
  EndDialog(dialog, 1);
}

LRESULT OnCommand(HWND dialog, int control) {
  switch (control) {
    case IDOK: OnAccept(dialog); break;
    case IDCANCEL: EndDialog(dialog, 0); break;
  }
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

bool RunRangeDialog(HWND owner) {
  return RunDialog<Handle>(owner, "SELECTRANGEDLG") == 1;
}
