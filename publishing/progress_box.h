// The dialog that tells how far a long job is, and lets the user cancel it.
#pragma once

#include <windows.h>

#include <string>

namespace publishing {

// As long as it is there its owner, which may be null, gets no input; other windows do. One at a time.
class ProgressBox {
 public:
  ProgressBox(HWND owner, const wchar_t* caption);
  ~ProgressBox();
  ProgressBox(const ProgressBox&) = delete;
  ProgressBox& operator=(const ProgressBox&) = delete;

  bool IsCancelled() const { return isCancelled_; }

  // Shows how far the job is, and lets windows work meanwhile.
  void Show(const std::wstring& text);

  // Before a box of the owner's.
  void Close();

  // For the printer's jobs.
  static BOOL CALLBACK AbortProc(HDC printer, int error);

 private:
  void HandleMessages();
  static INT_PTR CALLBACK Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

  static inline ProgressBox* current_ = nullptr;  // the abort procedure is told nothing
  HWND owner_;
  HWND dialog_ = nullptr;
  bool isCancelled_ = false;
};

}  // namespace publishing
