#pragma once

// A rectangle in the client area of a window, in pixels. Left and top edge are part of it, right and bottom edge not.
struct PaneRect {
  int x;
  int y;
  int width;
  int height;
  bool operator==(const PaneRect&) const = default;

  int Right() const { return x + width; }
  int Bottom() const { return y + height; }
};
