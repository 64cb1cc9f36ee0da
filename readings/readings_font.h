// The font of the readings: the readings library's own, or the program's.
#pragma once

#include <windows.h>

#include "companion/lections.h"

class ReadingsFont {
 public:
  // Makes the library's font for the display. Where the library has none, or it cannot be made, it is programFont,
  // which stays the caller's.
  ReadingsFont(const LectionsFont& font, HFONT programFont);
  ~ReadingsFont();
  ReadingsFont(const ReadingsFont&) = delete;
  ReadingsFont& operator=(const ReadingsFont&) = delete;
  HFONT get() const { return own_ ? own_ : programFont_; }

 private:
  HFONT programFont_;
  HFONT own_ = nullptr;
};
