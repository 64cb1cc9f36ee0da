#include "zmanim/print_abort_dialog.h"

#include "win/dialog.h"

PrintAbortState PrintAbort;

namespace {

// The dialog can only be left by its Cancel button.
LRESULT OnInitDialog(HWND dialog) {
  PrintAbort.dialog = dialog;
  EnableMenuItem(GetSystemMenu(dialog, FALSE), SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
  return TRUE;
}

LRESULT OnCommand(HWND dialog, int control) {
  if (control != IDCANCEL) return 0;
  PrintAbort.aborted = true;
  EnableWindow(PrintAbort.owner, TRUE);
  DestroyWindow(dialog);
  return 0;
}

LRESULT OnDestroy() {
  PrintAbort.dialog = nullptr;
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return OnInitDialog(dialog);
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
    case WM_DESTROY: return OnDestroy();
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

HWND OpenPrintAbortDialog(HWND owner) {
  PrintAbort = {.owner = owner, .dialog = nullptr, .aborted = false};
  EnableWindow(owner, FALSE);
  return CreateDialogParamA(GetModuleHandleA(nullptr), "ABORTDLG", owner, DialogProc<Handle>, 0);
}

void ClosePrintAbortDialog() {
  EnableWindow(PrintAbort.owner, TRUE);
  if (PrintAbort.dialog) DestroyWindow(PrintAbort.dialog);
}
