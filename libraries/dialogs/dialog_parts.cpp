#include "libraries/dialogs/dialog_parts.h"

namespace dialogs {
namespace {

HINSTANCE ThisLibrary() {
  HMODULE library = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisLibrary), &library);
  return library;
}

}  // namespace

INT_PTR RunDialog(HWND owner, int dialogId, DLGPROC procedure, void* state) {
  return DialogBoxParamW(ThisLibrary(), MAKEINTRESOURCEW(dialogId), owner, procedure, reinterpret_cast<LPARAM>(state));
}

INT_PTR OnException(HWND dialog, UINT message) {
  if (message == WM_INITDIALOG) {
    EndDialog(dialog, IDCANCEL);
  } else {
    MessageBeep(MB_ICONSTOP);
  }
  return TRUE;
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::wstring WithLineEnds(const std::wstring& text) {
  std::wstring lines;
  for (const wchar_t character : text) {
    if (character == L'\n') lines += L'\r';
    lines += character;
  }
  return lines;
}

void ShowError(HWND dialog, const std::wstring& text) {
  MessageBoxW(dialog, text.c_str(), L"Error", MB_OK | MB_ICONSTOP);
}

void FocusField(HWND dialog, int fieldId) {
  SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, fieldId)), TRUE);
  SendMessageW(GetFocus(), EM_SETSEL, 0, -1);  // the edit control within, where the field is a combo box
}

void ShowFieldError(HWND dialog, int fieldId, const std::wstring& text) {
  ShowError(dialog, text);
  FocusField(dialog, fieldId);
}

INT_PTR PassHelpOn(HWND dialog, LPARAM helpInfo) {
  if (const HWND owner = GetWindow(dialog, GW_OWNER)) SendMessageW(owner, WM_HELP, 0, helpInfo);
  return TRUE;
}

bool IsConfirmed(HWND dialog, const std::wstring& question) {
  const UINT buttons = MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2;
  return MessageBoxW(dialog, question.c_str(), TextOf(dialog).c_str(), buttons) == IDYES;
}

std::optional<bool> Decision(HWND dialog, const std::wstring& question) {
  const int answer = MessageBoxW(dialog, question.c_str(), TextOf(dialog).c_str(), MB_YESNOCANCEL | MB_ICONQUESTION);
  if (answer != IDYES && answer != IDNO) return std::nullopt;
  return answer == IDYES;
}

}  // namespace dialogs
