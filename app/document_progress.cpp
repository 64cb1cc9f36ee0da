#include "app/document_progress.h"

#include "app/program.h"
#include "resources/ids.h"
#include "win/dialog.h"

namespace {

constexpr ULONGLONG kPatienceMilliseconds = 500;
constexpr ULONGLONG kBetweenLooksMilliseconds = 50;

// The result is kept with the dialog until it is asked for.
LRESULT OnCommand(HWND dialog, int control) {
  if (control == IDCANCEL) SetWindowLongPtrA(dialog, DWLP_USER, 1);
  return 0;
}

LRESULT Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG: return TRUE;
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
  }
  return DefaultDialogMessage(dialog, message, wParam, lParam);
}

}  // namespace

DocumentProgress::DocumentProgress(HWND owner)
    : owner_(owner), ownerWasEnabled_(!EnableWindow(owner, FALSE)), begun_(GetTickCount64()), looked_(begun_) {}

// The owner takes input again before the dialog goes, so that it, not another program, becomes active.
DocumentProgress::~DocumentProgress() {
  if (ownerWasEnabled_) EnableWindow(owner_, TRUE);
  if (!dialog_) return;
  const bool wasActive = GetActiveWindow() == dialog_;
  DestroyWindow(dialog_);
  if (wasActive) SetActiveWindow(owner_);
}

void DocumentProgress::Open() {
  dialog_ = CreateDialogParamA(GetModuleHandleA(nullptr), "SAVINGDOCUMENT", owner_, DialogProc<Handle>, 0);
  if (dialog_) ShowWindow(dialog_, SW_SHOW);
}

void DocumentProgress::HandleOwnMessages() {
  MSG message;
  while (PeekMessageA(&message, dialog_, 0, 0, PM_REMOVE)) {
    if (IsDialogMessageA(dialog_, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  cancelled_ = GetWindowLongPtrA(dialog_, DWLP_USER) != 0;
}

bool DocumentProgress::Show(std::size_t done, std::size_t all) {
  const ULONGLONG now = GetTickCount64();
  if (now - looked_ < kBetweenLooksMilliseconds) return !cancelled_;
  looked_ = now;
  if (!dialog_ && now - begun_ >= kPatienceMilliseconds) Open();
  if (!dialog_) return true;
  constexpr std::size_t kPercent = 100;
  SetDlgItemInt(dialog_, IDC_SAVING_PERCENT, static_cast<UINT>(all == 0 ? 0 : done * kPercent / all), FALSE);
  HandleOwnMessages();
  return !cancelled_;
}
