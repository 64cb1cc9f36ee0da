#pragma once

#include <windows.h>

// The measures of a font that panes and layouts count in, in pixels of the display.
struct FontMeasure {
  int lineHeight;
  int averageCharacterWidth;
};

// A null font measures the system font.
FontMeasure MeasureFont(HDC dc, HFONT font);
FontMeasure MeasureFontOnDisplay(HFONT font);
