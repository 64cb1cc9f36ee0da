// Scrolling of panes that show a list by whole lines: what their messages ask for, and how they move.
#pragma once

#include <windows.h>

#include <optional>

#include "win/core/list_scroll.h"

// What a scroll message's code asks for; the codes of both directions are the same numbers. Nothing for a code that
// moves nothing.
std::optional<ScrollRequest> ScrollRequestOf(int code);

// Position and range of a pane's scroll bar (SB_VERT or SB_HORZ); page and thumb 0.
ScrollState ScrollStateOf(HWND pane, int bar);

// Range 0 to last; the position stays, lowered to the range's end.
void SetLastScrollPosition(HWND pane, int bar, int last);

// The answer to a vertical scroll message: lines of linePixels each, page lines to a page.
void ScrollLines(HWND pane, int code, int thumb, int page, int linePixels);

// The answer to a turn of the wheel: the whole pane is painted anew at the new position.
void WheelLines(HWND pane, int16_t delta);

// Sends the pane the vertical scroll message that a key stands for, if it stands for one.
void ScrollByKey(HWND pane, WPARAM key);
