// How a layout that may not be made smaller is shown in a window that may have less room. Lengths are in pixels.
#pragma once

namespace dialogs {

struct Extent {
  int width;
  int height;

  bool operator==(const Extent&) const = default;
};

// What the window shows of the layout at a time, beside the scroll bars that it needs: in each direction the layout
// fits just when the page is at least as long.
// room: of the window without scroll bars. bars: the width of an upright bar and the height of a lying one.
Extent PageIn(const Extent& room, const Extent& layout, const Extent& bars);

// The scroll position nearest to the present one at which a page shows what lies from begin to end in the layout; its
// beginning, when it is longer than the page. Always from 0 to the last position that shows a whole page.
int PositionShowing(int begin, int end, int position, int page, int layout);

}  // namespace dialogs
