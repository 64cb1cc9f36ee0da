// A row of a list under way with the mouse: it goes where the mouse is, and back where it was when the user thinks
// better of it.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>

#include "libraries/hours/zman_list.h"

namespace hours {

class RowDrag {
 public:
  // move: takes the row from one place to another and shows it there, selected.
  using Move = std::function<void(std::size_t from, std::size_t to)>;

  bool IsUnderWay() const { return move_ != nullptr; }

  // The dialog gets the mouse and a timer, and passes on what it hears of them.
  void Begin(HWND dialog, const ZmanList& list, std::size_t row, Move move);
  void OnMouse(POINT point);  // of the dialog's client area
  void OnTimer();             // beyond the list's ends the row goes on by one a time
  void Drop();
  void Cancel();

 private:
  void MoveTo(std::size_t row);
  void End();

  HWND dialog_ = nullptr;
  const ZmanList* list_ = nullptr;
  Move move_;
  std::size_t start_ = 0;
  std::size_t row_ = 0;
  POINT mouse_ = {};  // of the list's client area
};

}  // namespace hours
