// What the dialogs of several libraries do alike.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace dialogs {

// Runs a modal dialog of this library; its procedure gets the state with WM_INITDIALOG. -1 when it cannot be made.
INT_PTR RunDialog(HWND owner, int dialogId, DLGPROC procedure, void* state);

// For a dialog procedure that caught an exception, which can only be want of memory: a dialog that is being opened
// closes, an open one stays and sounds.
INT_PTR OnException(HWND dialog, UINT message);

// The procedure of a dialog that a class is in charge of: RunDialog is given the object as state, Attach(dialog) is its
// first call, Handle(message, wParam, lParam) is each message's.
template <typename Dialog>
INT_PTR CALLBACK ClassDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    reinterpret_cast<Dialog*>(lParam)->Attach(dialog);
  }
  auto* const self = reinterpret_cast<Dialog*>(GetWindowLongPtrW(dialog, DWLP_USER));
  if (!self) return FALSE;
  try {
    return self->Handle(message, wParam, lParam);
  } catch (...) {
    return OnException(dialog, message);
  }
}

std::wstring TextOf(HWND window);

// A text whose lines end in LF as edit controls take it, in CR LF.
std::wstring WithLineEnds(const std::wstring& text);

// An error of the user's or the system's, in words that say how to go on.
void ShowError(HWND dialog, const std::wstring& text);

// Gives a field with text the focus, all the text selected.
void FocusField(HWND dialog, int fieldId);

// An error in a field, which then has the focus.
void ShowFieldError(HWND dialog, int fieldId, const std::wstring& text);

// WM_HELP for a dialog procedure: F1 in any dialog is answered by the last of its owners, see companion/dialog_help.h.
INT_PTR PassHelpOn(HWND dialog, LPARAM helpInfo);

// A question under the dialog's own title; "No" is the default.
bool IsConfirmed(HWND dialog, const std::wstring& question);

// The answer to a question that has Cancel beside Yes and No, under the dialog's own title; nothing for Cancel.
std::optional<bool> Decision(HWND dialog, const std::wstring& question);

}  // namespace dialogs
