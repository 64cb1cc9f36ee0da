#include "publishing/progress_box.h"

#include "publishing/module.h"
#include "publishing/preview_ids.h"

namespace publishing {

// The help key opens the page of the owner's: the box has no other.
ProgressBox::ProgressBox(HWND owner, const wchar_t* caption)
    : owner_(owner), ownerWasEnabled_(owner && !EnableWindow(owner, FALSE)) {
  current_ = this;
  dialog_ = CreateDialogParamW(ThisModule(), MAKEINTRESOURCEW(IDD_PRINTING), owner_, Handle, 0);
  SetWindowTextW(dialog_, caption);
  if (owner_) SetWindowContextHelpId(dialog_, GetWindowContextHelpId(owner_));
}

ProgressBox::~ProgressBox() {
  Close();
  current_ = nullptr;
}

void ProgressBox::Show(const std::wstring& text) {
  SetDlgItemTextW(dialog_, IDC_PRINTING_PAGE, text.c_str());
  HandleMessages();
}

// The owner first, lest another program's window comes to the front.
void ProgressBox::Close() {
  if (ownerWasEnabled_) EnableWindow(owner_, TRUE);
  if (dialog_) DestroyWindow(dialog_);
  dialog_ = nullptr;
}

BOOL CALLBACK ProgressBox::AbortProc(HDC, int) {
  if (current_) current_->HandleMessages();
  return !current_ || !current_->isCancelled_;
}

void ProgressBox::HandleMessages() {
  MSG message;
  while (!isCancelled_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // The program ends: the loops around this one are to see that too.
      PostQuitMessage(static_cast<int>(message.wParam));
      isCancelled_ = true;
    } else if (!dialog_ || !IsDialogMessageW(dialog_, &message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

INT_PTR CALLBACK ProgressBox::Handle(HWND, UINT message, WPARAM wParam, LPARAM) {
  if (message == WM_INITDIALOG) return TRUE;
  if (message != WM_COMMAND || LOWORD(wParam) != IDCANCEL) return FALSE;
  if (current_) current_->isCancelled_ = true;
  return TRUE;
}

bool LateProgress::GoesOn(std::size_t done, std::size_t all) {
  const ULONGLONG now = GetTickCount64();
  if (now < next_) return !box_ || !box_->IsCancelled();
  next_ = now + kBetweenSteps;
  if (!box_) box_.emplace(owner_, caption_);
  constexpr std::size_t kPercent = 100;
  box_->Show(std::to_wstring(all == 0 ? 0 : done * kPercent / all) + L" %");
  return !box_->IsCancelled();
}

}  // namespace publishing
