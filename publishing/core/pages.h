// Pages that are laid out: the preview shows them, a print job prints them.
#pragma once

#include "publishing/core/page_surface.h"

namespace publishing {

class Pages {
 public:
  Pages() = default;
  Pages(const Pages&) = delete;
  Pages& operator=(const Pages&) = delete;
  virtual ~Pages() = default;

  virtual int Count() const = 0;
  virtual const Sheet& sheet() const = 0;

  // page: from 0. What is measured once is drawn alike on every surface.
  virtual void Draw(PageSurface& surface, int page) const = 0;
};

}  // namespace publishing
