#include "libraries/dialogs/scroll_fit.h"

#include <algorithm>

namespace dialogs {

Extent PageIn(const Extent& room, const Extent& layout, const Extent& bars) {
  Extent page = room;
  if (room.width < layout.width) page.height -= bars.height;
  if (page.height < layout.height) page.width -= bars.width;
  if (page.width < layout.width) page.height = room.height - bars.height;
  return page;
}

int PositionShowing(int begin, int end, int position, int page, int layout) {
  const int last = std::max(0, layout - page);
  const int shown = std::min(std::max(position, end - page), begin);
  return std::clamp(shown, 0, last);
}

}  // namespace dialogs
