// The font of the readings: the readings library's own, or the program's.
#pragma once

#include <windows.h>

#include "companion/lections.h"

class ReadingsFont {
 public:
  // Makes the library's font for the display. Where the library has none it is programFont, which stays
  // the caller's.
  ReadingsFont(const LectionsFont& font, HFONT programFont);
  ~ReadingsFont();
  ReadingsFont(const ReadingsFont&) = delete;
  ReadingsFont& operator=(const ReadingsFont&) = delete;
  HFONT get() const { return own_ ? own_ : programFont_; }
  // Texts are bytes of their font's charset: without the font they cannot be drawn.
  bool CanDraw() const { return own_ || !wantsOwn_; }

 private:
  HFONT programFont_;
  bool wantsOwn_;
  HFONT own_ = nullptr;
};
