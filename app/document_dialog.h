// What the dialogs "Save as document" and "Print calendar" do alike. They are in UTF-16, for the names of languages and
// of zmanim.
#pragma once

#include <windows.h>

// Dialog: a class with OnInitDialog(HWND), OnCommand(int control, int notification) and OnNotify(const NMHDR&).
template <typename Dialog>
INT_PTR CALLBACK DocumentDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) SetWindowLongPtrW(window, DWLP_USER, lParam);
  auto* const dialog = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
  if (!dialog) return FALSE;
  switch (message) {
    case WM_INITDIALOG: dialog->OnInitDialog(window); return TRUE;
    case WM_COMMAND: dialog->OnCommand(LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_NOTIFY: dialog->OnNotify(*reinterpret_cast<const NMHDR*>(lParam)); return FALSE;
    case WM_HELP:  // answered by the last of the owners
      SendMessageA(GetParent(window), message, wParam, lParam);
      return TRUE;
  }
  return FALSE;
}

template <typename Dialog>
void RunDocumentDialog(HWND frame, const wchar_t* templateName, Dialog& dialog) {
  DialogBoxParamW(GetModuleHandleW(nullptr), templateName, frame, DocumentDialogProc<Dialog>,
                  reinterpret_cast<LPARAM>(&dialog));
}
