#include "win/scroll_bar.h"

std::optional<ScrollRequest> ScrollRequestOf(int code) {
  switch (code) {
    case SB_LINEUP: return ScrollRequest::kLineUp;
    case SB_LINEDOWN: return ScrollRequest::kLineDown;
    case SB_PAGEUP: return ScrollRequest::kPageUp;
    case SB_PAGEDOWN: return ScrollRequest::kPageDown;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK: return ScrollRequest::kThumb;
    case SB_TOP: return ScrollRequest::kTop;
    case SB_BOTTOM: return ScrollRequest::kBottom;
  }
  return std::nullopt;
}

ScrollState ScrollStateOf(HWND window, int bar) {
  ScrollState state{};
  state.position = GetScrollPos(window, bar);
  GetScrollRange(window, bar, &state.minimum, &state.maximum);
  return state;
}

void SetScrollRangeTo(HWND window, int bar, int last) {
  const int position = GetScrollPos(window, bar);
  SetScrollPos(window, bar, 0, FALSE);
  SetScrollRange(window, bar, 0, last, FALSE);
  SetScrollPos(window, bar, position < last ? position : last, TRUE);
}
