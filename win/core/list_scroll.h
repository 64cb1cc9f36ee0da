// Scrolling of a list by whole lines. Positions are indexes of the first line shown.
#pragma once

#include <cstdint>

enum class ScrollRequest { kLineUp, kLineDown, kPageUp, kPageDown, kThumb, kTop, kBottom };

struct ScrollState {
  int position;
  int minimum;
  int maximum;
  int page;   // whole lines that fit
  int thumb;  // where the user holds the thumb
};

// The position that a request leads to, within the range.
int ScrolledPosition(ScrollRequest request, const ScrollState& state);

// The position after a turn of the mouse wheel, within the range. delta is signed, 120 a notch, positive away from the
// user; less than a notch moves nothing.
int WheeledPosition(int16_t delta, const ScrollState& state);

// Whether a wheel message means anything: a delta of exactly -1 does not.
constexpr bool IsWheelDelta(int16_t delta) {
  return delta != -1;
}

// The last position of a list: lineCount lines, of which page fit. Never negative.
int LastScrollPosition(int64_t lineCount, int page);
