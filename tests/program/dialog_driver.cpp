#include "tests/program/dialog_driver.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string_view>

namespace {

const std::function<void(HWND)>* pendingDrive = nullptr;
std::string pendingEnd;

bool HasPendingEnd(HWND window) {
  char caption[256] = "";
  GetWindowTextA(window, caption, sizeof caption);
  return std::string_view(caption).ends_with(pendingEnd);
}

BOOL CALLBACK FindDialog(HWND window, LPARAM found) {
  char className[16] = "";
  GetClassNameA(window, className, sizeof className);
  // The owner of a dialog that is just coming up is disabled already.
  if (std::strcmp(className, "#32770") != 0 || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
  if (!HasPendingEnd(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

VOID CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) {
  HWND dialog = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&dialog));
  if (!dialog || !pendingDrive) return;
  KillTimer(nullptr, timer);
  const auto* drive = pendingDrive;
  pendingDrive = nullptr;
  (*drive)(dialog);
  if (IsWindow(dialog) && IsWindowVisible(dialog)) {
    ADD_FAILURE() << "the dialog is still open";
    SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
  }
}

}  // namespace

void WithDialog(const std::function<void()>& open, const std::function<void(HWND)>& drive, const std::string& end) {
  pendingDrive = &drive;
  pendingEnd = end;
  const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer);
  open();
  KillTimer(nullptr, timer);
  EXPECT_EQ(pendingDrive, nullptr) << "no dialog was shown";
  pendingDrive = nullptr;
}

std::string FieldText(HWND dialog, int field) {
  char text[512] = "";
  GetDlgItemTextA(dialog, field, text, sizeof text);
  return text;
}

void SetField(HWND dialog, int field, const char* text) {
  SetDlgItemTextA(dialog, field, text);
}

void Click(HWND dialog, int button) {
  SendDlgItemMessageA(dialog, button, BM_CLICK, 0, 0);
}
