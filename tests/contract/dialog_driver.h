// Runs a library's modal dialog in a thread of its own and works it from the test's: keys and commands are posted,
// windows waited for, texts asked.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "tests/contract/picker_driver.h"  // Eventually, WindowText

class DialogDriver {
 public:
  // call: what shows the dialog; given a visible owner window.
  explicit DialogDriver(std::function<int32_t(HWND owner)> call);
  // A dialog that is still open then is ended, and the test fails.
  ~DialogDriver();
  DialogDriver(const DialogDriver&) = delete;
  DialogDriver& operator=(const DialogDriver&) = delete;

  // The visible, enabled dialog with the caption; null, and the test fails, when none comes up.
  HWND WaitFor(const std::wstring& caption) const;

  // Waits until the window is gone.
  bool WaitUntilGone(HWND window) const;

  // Waits for the call to end; its answer.
  int32_t Result();

  // Waits for a message box, checks its owner and the icon, presses a button of it and waits until it is gone. Its
  // text.
  std::wstring Answer(const std::wstring& caption, HWND owner, const char* icon, int buttonId) const;

  // The thread's window that has the focus.
  HWND Focus() const;
  bool WaitForFocus(HWND window) const;

  HWND Owner() const { return owner_; }

 private:
  std::vector<HWND> Dialogs() const;
  HWND WaitForDialog(const std::wstring& caption, const std::function<bool(HWND)>& isKind) const;
  void EndDialogs() const;

  DWORD threadId_ = 0;
  HWND owner_ = nullptr;
  int32_t result_ = 0;
  std::thread thread_;
};

// As a button is pressed, without waiting for what it does.
void Press(HWND dialog, int buttonId);

// As a key is pressed in the control that has the focus.
void PressKey(HWND control, WPARAM key);

std::wstring ControlText(HWND dialog, int controlId);
void SetControlText(HWND dialog, int controlId, const std::wstring& text);

// Whether all of an edit control's text is selected.
bool IsAllSelected(HWND edit);

// The process's open handles and the bytes that its heaps hold.
struct Resources {
  DWORD handles = 0;
  size_t heapBytes = 0;
};
Resources ResourcesNow();
