// The dialog that tells how far a long job is, and lets the user cancel it.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
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
  bool ownerWasEnabled_;
  bool isCancelled_ = false;
};

// The dialog of a job that may be short: it comes up once the user has waited for half a second.
class LateProgress {
 public:
  // caption: with static duration.
  LateProgress(HWND owner, const wchar_t* caption) : owner_(owner), caption_(caption) {}

  // Whether to go on: the user has not cancelled. For Progress.
  bool GoesOn(std::size_t done, std::size_t all);

 private:
  HWND owner_;
  const wchar_t* caption_;
  ULONGLONG next_ = GetTickCount64() + kPatience;
  std::optional<ProgressBox> box_;

  static constexpr ULONGLONG kPatience = 500;     // milliseconds
  static constexpr ULONGLONG kBetweenSteps = 50;  // and between what is shown
};

}  // namespace publishing
