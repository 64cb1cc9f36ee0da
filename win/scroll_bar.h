// A window's own scroll bars, as panes use them: positions are indexes of the first line or column shown.
#pragma once

#include <windows.h>

#include <optional>

#include "win/core/list_scroll.h"

// What a scroll notification asks for, by its SB_ code; nothing for one that asks for nothing.
std::optional<ScrollRequest> ScrollRequestOf(int code);

// Position and range of a bar, SB_VERT or SB_HORZ; page and thumb are 0.
ScrollState ScrollStateOf(HWND window, int bar);

// Sets a bar's range to 0 .. last; the position stays, lowered to the range's end.
void SetScrollRangeTo(HWND window, int bar, int last);

// The scroll notification that a key stands for.
struct ScrollKey {
  WPARAM key;
  UINT message;  // WM_VSCROLL or WM_HSCROLL
  int code;
};

// Page, End, Home and the arrows up and down.
inline constexpr ScrollKey kVerticalScrollKeys[] = {
    {VK_PRIOR, WM_VSCROLL, SB_PAGEUP}, {VK_NEXT, WM_VSCROLL, SB_PAGEDOWN}, {VK_END, WM_VSCROLL, SB_BOTTOM},
    {VK_HOME, WM_VSCROLL, SB_TOP},     {VK_UP, WM_VSCROLL, SB_LINEUP},     {VK_DOWN, WM_VSCROLL, SB_LINEDOWN},
};

// The arrows to the left and to the right.
inline constexpr ScrollKey kHorizontalScrollKeys[] = {
    {VK_LEFT, WM_HSCROLL, SB_LINELEFT},
    {VK_RIGHT, WM_HSCROLL, SB_LINERIGHT},
};

// Sends a window the notification of a key, when the table has the key.
template <typename Table>
void SendScrollKey(HWND window, const Table& table, WPARAM key) {
  for (const ScrollKey& row : table) {
    if (row.key == key) SendMessageA(window, row.message, MAKEWPARAM(row.code, 0), 0);
  }
}
