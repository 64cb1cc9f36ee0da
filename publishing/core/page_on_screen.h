// How large a page is shown in a window. Lengths of the window are in pixels.
#pragma once

#include <cstdint>

#include "publishing/core/page_surface.h"

namespace publishing {

enum class Zoom : uint8_t { kWholePage, kPageWidth, kThreeQuarters, kActualSize, kOneAndAHalf, kDouble };

struct PixelExtent {
  int width;
  int height;
  friend bool operator==(const PixelExtent&, const PixelExtent&) = default;
};

// The grey around a page.
constexpr int kPageBorder = 12;

struct PageOnScreen {
  double scale;         // pixels for a dot
  PixelExtent page;     // at least a pixel each way
  PixelExtent layout;   // page and border, at least what is seen
  PixelExtent visible;  // what the window shows of the layout beside the scroll bars that it needs

  // Where the page stands in the layout.
  int PageX() const { return (layout.width - page.width) / 2; }
  int PageY() const { return (layout.height - page.height) / 2; }
};

struct ScreenRoom {
  PixelExtent window;  // with its scroll bars
  PixelExtent bars;    // the width of an upright scroll bar and the height of a lying one
  int dotsPerInch;     // of the screen
};

// dotsPerInch: of the sheet's lengths.
PageOnScreen ShowOnScreen(Zoom zoom, const Sheet& sheet, int dotsPerInch, const ScreenRoom& room);

}  // namespace publishing
