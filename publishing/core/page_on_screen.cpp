#include "publishing/core/page_on_screen.h"

#include <algorithm>
#include <cmath>

namespace publishing {
namespace {

double ScaleFor(int room, int dots) {
  return std::max(static_cast<double>(room - 2 * kPageBorder) / dots, 1.0 / dots);
}

PixelExtent PageAt(double scale, const Sheet& sheet) {
  return {std::max(static_cast<int>(std::lround(sheet.width * scale)), 1),
          std::max(static_cast<int>(std::lround(sheet.height * scale)), 1)};
}

// The page at this scale, with the scroll bars that it needs; each bar may make the other necessary.
PageOnScreen AtScale(double scale, const Sheet& sheet, const ScreenRoom& room) {
  const PixelExtent page = PageAt(scale, sheet);
  const PixelExtent needed = {page.width + 2 * kPageBorder, page.height + 2 * kPageBorder};
  PixelExtent visible = room.window;
  if (needed.width > visible.width) visible.height -= room.bars.height;
  if (needed.height > visible.height) {
    visible.width -= room.bars.width;
    if (needed.width > visible.width) visible.height = room.window.height - room.bars.height;
  }
  visible = {std::max(visible.width, 1), std::max(visible.height, 1)};
  return {scale, page, {std::max(needed.width, visible.width), std::max(needed.height, visible.height)}, visible};
}

// Of the sheet's own size; 0 where the window says how large it is.
int PercentOf(Zoom zoom) {
  switch (zoom) {
    case Zoom::kThreeQuarters: return 75;
    case Zoom::kActualSize: return 100;
    case Zoom::kOneAndAHalf: return 150;
    case Zoom::kDouble: return 200;
    case Zoom::kWholePage:
    case Zoom::kPageWidth: return 0;
  }
  return 0;
}

}  // namespace

PageOnScreen ShowOnScreen(Zoom zoom, const Sheet& sheet, int dotsPerInch, const ScreenRoom& room) {
  const double byWidth = ScaleFor(room.window.width, sheet.width);
  const double byHeight = ScaleFor(room.window.height, sheet.height);
  if (const int percent = PercentOf(zoom))
    return AtScale(percent / 100.0 * room.dotsPerInch / dotsPerInch, sheet, room);
  if (zoom == Zoom::kWholePage || byWidth <= byHeight) return AtScale(std::min(byWidth, byHeight), sheet, room);
  return AtScale(ScaleFor(room.window.width - room.bars.width, sheet.width), sheet, room);
}

}  // namespace publishing
