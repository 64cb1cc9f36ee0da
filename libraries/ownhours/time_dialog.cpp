#include "libraries/ownhours/time_dialog.h"

#include <commctrl.h>

#include "libraries/dialogs/dialog_parts.h"
#include "libraries/ownhours/ownhours_ids.h"

namespace ownhours {
namespace {

struct TimeForm {
  const std::wstring& what;
  Time time;
  stamp::Form form;
};

TimeForm& FormOf(HWND dialog) {
  return *reinterpret_cast<TimeForm*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

INT_PTR OnOpen(HWND dialog, LPARAM form) {
  SetWindowLongPtrW(dialog, DWLP_USER, form);
  const TimeForm& shown = FormOf(dialog);
  SetDlgItemTextW(dialog, IDC_WHAT, shown.what.c_str());
  const wchar_t* const format = shown.form == stamp::Form::kTwelveHours ? L"hh':'mm tt" : L"HH':'mm";
  SendDlgItemMessageW(dialog, IDC_TIME, DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(format));
  SYSTEMTIME time;
  GetLocalTime(&time);  // the picker wants a date, any
  time.wHour = static_cast<WORD>(shown.time.hour);
  time.wMinute = static_cast<WORD>(shown.time.minute);
  time.wSecond = time.wMilliseconds = 0;
  SendDlgItemMessageW(dialog, IDC_TIME, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
  return TRUE;
}

INT_PTR OnAccept(HWND dialog) {
  SYSTEMTIME time;
  if (SendDlgItemMessageW(dialog, IDC_TIME, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time)) == GDT_VALID) {
    FormOf(dialog).time = {time.wHour, time.wMinute};
    EndDialog(dialog, IDOK);
  }
  return TRUE;
}

INT_PTR CALLBACK TimeDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnOpen(dialog, lParam);
    case WM_HELP: return dialogs::PassHelpOn(dialog, lParam);
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK) return OnAccept(dialog);
      if (LOWORD(wParam) == IDCANCEL) return EndDialog(dialog, IDCANCEL);
      return FALSE;
  }
  return FALSE;
}

}  // namespace

std::optional<Time> AskForTime(HWND owner, const std::wstring& what, Time now, stamp::Form form) {
  TimeForm asked = {what, now, form};
  if (dialogs::RunDialog(owner, IDD_TIME, TimeDialogProc, &asked) != IDOK) return std::nullopt;
  return asked.time;
}

}  // namespace ownhours
