// The one scheme of the program's dialogs. A dialog supplies a handler that answers every message, as a window
// procedure does, and ends in DefaultDialogMessage; the scheme turns its answers into what the dialog manager expects.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

using DialogHandler = LRESULT (*)(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// The system's processing of a message of the dialog, for what a handler does not handle itself.
LRESULT DefaultDialogMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

// What a dialog procedure answers for its handler.
INT_PTR AnswerDialogMessage(DialogHandler handler, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

template <DialogHandler handler>
INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  return AnswerDialogMessage(handler, dialog, message, wParam, lParam);
}

// Runs a dialog of the program's templates until it ends; its result, or -1 when it could not be created. The parameter
// reaches the handler with WM_INITDIALOG.
template <DialogHandler handler>
INT_PTR RunDialog(HWND owner, const char* templateName, LPARAM parameter = 0) {
  return DialogBoxParamA(GetModuleHandleA(nullptr), templateName, owner, DialogProc<handler>, parameter);
}

// The whole number in a field, or nothing when the field holds none.
std::optional<uint32_t> ReadUnsigned(HWND dialog, int field);
std::optional<int32_t> ReadSigned(HWND dialog, int field);

// Shows what is wrong with a field, owned by the dialog, and moves the focus to the field, its text selected.
void ShowFieldError(HWND dialog, int field, const char* text);
