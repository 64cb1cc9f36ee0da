// A dialog on a screen that is too small for its layout: it gets scroll bars, and the control with the focus is always
// in sight.
#pragma once

#include <windows.h>

namespace dialogs {

class ScrolledArea {
 public:
  ScrolledArea() = default;
  ScrolledArea(const ScrolledArea&) = delete;
  ScrolledArea& operator=(const ScrolledArea&) = delete;

  // least: the client area that the layout needs. The dialog's controls are there already; this lives as long as they.
  void Start(HWND dialog, SIZE least);

  // After a change of the dialog's size: the size that the layout has to fill, no smaller than the least.
  SIZE Fit();

  // What of the layout stands at the client area's corner.
  POINT Position() const { return position_; }

 private:
  static LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                     DWORD_PTR self);
  static LRESULT CALLBACK ControlProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR self);
  void OnScroll(int bar, int request);
  void Show(HWND control);
  void MoveTo(POINT position);

  HWND dialog_ = nullptr;
  SIZE least_ = {};
  SIZE page_ = {};
  POINT position_ = {};
  bool isFitting_ = false;
};

}  // namespace dialogs
