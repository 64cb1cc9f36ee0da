#include "publishing/laid_out_pages.h"

#include <utility>

#include "publishing/core/one_page.h"
#include "publishing/core/table_pages.h"
#include "publishing/progress_box.h"
#include "win/scoped.h"

namespace publishing {

LaidOutPages::LaidOutPages(const PrintedTable& printed)
    : printed_(printed),
      font_(PageFontOf(printed.font)),
      memory_(CreateCompatibleDC(nullptr)),
      surface_(memory_.get(), font_, {}) {}

LayingOut LaidOutPages::LayOut(HWND owner, const Sheet& sheet) {
  const ScopedWaitCursor wait;
  LateProgress late(owner, L"Laying Out Pages");
  const Progress progress = [&late](std::size_t done, std::size_t all) { return late.GoesOn(done, all); };
  return printed_.layout == PaperLayout::kOnePage ? LayOutOnOne(sheet, progress) : LayOutOnSeveral(sheet, progress);
}

LayingOut LaidOutPages::LayOutOnSeveral(const Sheet& sheet, const Progress& progress) {
  auto pages = std::make_unique<TablePages>(printed_.table, sheet, kDotsPerInch, surface_, progress);
  if (pages->IsCancelled()) return LayingOut::kCancelled;
  const bool isNarrowed = pages->IsNarrowed();
  pages_ = std::move(pages);
  return isNarrowed ? LayingOut::kNarrowed : LayingOut::kDone;
}

LayingOut LaidOutPages::LayOutOnOne(const Sheet& sheet, const Progress& progress) {
  auto page = std::make_unique<OnePage>(printed_.table, sheet, kDotsPerInch, surface_, progress);
  if (page->IsCancelled()) return LayingOut::kCancelled;
  if (!page->Fits()) return LayingOut::kNoRoom;
  pages_ = std::move(page);
  return LayingOut::kDone;
}

}  // namespace publishing
