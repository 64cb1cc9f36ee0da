#include "win/list_pane_scroll.h"

namespace {

struct ScrollKey {
  WPARAM key;
  int code;
};

constexpr ScrollKey kScrollKeys[] = {
    {VK_PRIOR, SB_PAGEUP}, {VK_NEXT, SB_PAGEDOWN}, {VK_END, SB_BOTTOM},
    {VK_HOME, SB_TOP},     {VK_UP, SB_LINEUP},     {VK_DOWN, SB_LINEDOWN},
};

}  // namespace

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

ScrollState ScrollStateOf(HWND pane, int bar) {
  ScrollState state{};
  state.position = GetScrollPos(pane, bar);
  GetScrollRange(pane, bar, &state.minimum, &state.maximum);
  return state;
}

void SetLastScrollPosition(HWND pane, int bar, int last) {
  const int position = GetScrollPos(pane, bar);
  SetScrollPos(pane, bar, 0, FALSE);
  SetScrollRange(pane, bar, 0, last, FALSE);
  SetScrollPos(pane, bar, position < last ? position : last, TRUE);
}

void ScrollLines(HWND pane, int code, int thumb, int page, int linePixels) {
  const std::optional<ScrollRequest> request = ScrollRequestOf(code);
  if (!request) return;
  ScrollState state = ScrollStateOf(pane, SB_VERT);
  state.page = page;
  state.thumb = thumb;
  const int position = ScrolledPosition(*request, state);
  if (position == state.position) return;
  ScrollWindow(pane, 0, (state.position - position) * linePixels, nullptr, nullptr);
  SetScrollPos(pane, SB_VERT, position, TRUE);
  UpdateWindow(pane);
}

void WheelLines(HWND pane, int16_t delta) {
  SetScrollPos(pane, SB_VERT, WheeledPosition(delta, ScrollStateOf(pane, SB_VERT)), TRUE);
  InvalidateRect(pane, nullptr, TRUE);
}

void ScrollByKey(HWND pane, WPARAM key) {
  for (const ScrollKey& row : kScrollKeys) {
    if (row.key == key) SendMessageA(pane, WM_VSCROLL, MAKEWPARAM(row.code, 0), 0);
  }
}
