// The pages of a table as the preview shows them and the printer gets them.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>

#include "publishing/core/pages.h"
#include "publishing/core/progress.h"
#include "publishing/dc_surface.h"
#include "publishing/preview_window.h"

namespace publishing {

enum class LayingOut : uint8_t {
  kDone,
  kNarrowed,   // done, with columns narrower than their texts
  kNoRoom,     // the one page is too small for all of it
  kCancelled,  // by the user
};

class LaidOutPages {
 public:
  // printed lives as long as the pages.
  explicit LaidOutPages(const PrintedTable& printed);

  // Lays out for a sheet; when that takes long, a dialog tells how far it is. Pages of before stay unless it is done.
  LayingOut LayOut(HWND owner, const Sheet& sheet);

  // After it has been done once.
  const Pages& pages() const { return *pages_; }
  const LOGFONTW& font() const { return font_; }

 private:
  LayingOut LayOutOnSeveral(const Sheet& sheet, const Progress& progress);
  LayingOut LayOutOnOne(const Sheet& sheet, const Progress& progress);

  const PrintedTable& printed_;
  LOGFONTW font_;
  OwnedContext memory_;  // its surface measures, for pages that are drawn too
  DcSurface surface_;
  std::unique_ptr<const Pages> pages_;
};

}  // namespace publishing
