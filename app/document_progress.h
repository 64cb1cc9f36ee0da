// What the user sees while a long document is written.
#pragma once

#include <windows.h>

#include <cstddef>

// Shown over its owner once half a second has gone by. Until it ends the owner takes no input, and no other message
// than those of its own windows is handled, so that what is written cannot change.
class DocumentProgress {
 public:
  explicit DocumentProgress(HWND owner);
  ~DocumentProgress();
  DocumentProgress(const DocumentProgress&) = delete;
  DocumentProgress& operator=(const DocumentProgress&) = delete;

  // Whether to go on: the user has not cancelled.
  bool Show(std::size_t done, std::size_t all);

 private:
  void Open();
  void HandleOwnMessages();

  HWND owner_;
  bool ownerWasEnabled_;
  ULONGLONG begun_;
  ULONGLONG looked_;
  HWND dialog_ = nullptr;
  bool cancelled_ = false;
};
