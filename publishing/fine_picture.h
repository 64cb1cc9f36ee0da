// A picture that is drawn larger than it is shown. Letters of a few pixels have widths that jump from size to size;
// drawn larger and made smaller, they stand as on paper.
#pragma once

#include <windows.h>

#include <cstdint>

#include "publishing/dc_surface.h"
#include "win/scoped.h"

namespace publishing {

class FinePicture {
 public:
  // Of so many pixels, each of which is fineness by fineness dots. White at first.
  FinePicture(int width, int height, int fineness);

  // Where it is drawn; null without memory.
  HDC dc() const { return dots_ ? dc_.get() : nullptr; }

  // Each pixel has the mean colour of its dots. The picture is used up.
  void Show(HDC target, int x, int y);

 private:
  uint32_t MeanOf(const uint32_t* dots) const;

  int width_;
  int height_;
  int fineness_;
  uint32_t* dots_ = nullptr;  // row by row from the top
  OwnedContext dc_;
  ScopedGdiObject<HBITMAP> bitmap_;
  ScopedSelect select_;
};

}  // namespace publishing
