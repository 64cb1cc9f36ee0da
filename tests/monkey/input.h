// Keys, text and mouse as posted messages, which reach the program whatever else the machine's screen does.
#pragma once

#include <windows.h>

#include <string>

#include "tests/monkey/dice.h"

class Input {
 public:
  explicit Input(Dice& dice) : dice_(dice) {}

  // Each posts and answers what it has posted, for the journal.
  std::string Key(HWND window, WPARAM key) const;
  std::string AnyKey(HWND window);
  std::string Characters(HWND window, const std::wstring& text) const;
  std::string AnyCharacter(HWND window);
  std::string Click(HWND window, POINT point, bool twice = false) const;
  std::string ClickButton(HWND button) const;
  std::string AnyMouse(HWND window);
  std::string AnyScroll(HWND window);
  std::string PressScrollBar(HWND window);

  // A text to type into a field: plausible dates, numbers and names, and nonsense.
  std::wstring AnyText();

  // A date of the years that most documents have, day.month.year; ranges of such dates may be the longest that there
  // is.
  std::wstring AnyDate();

 private:
  POINT AnyPoint(HWND window);

  Dice& dice_;
};
