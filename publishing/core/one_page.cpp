#include "publishing/core/one_page.h"

#include <algorithm>
#include <optional>

#include "publishing/core/one_page_layout.h"
#include "publishing/core/one_page_texts.h"

namespace publishing {
namespace {

constexpr std::size_t kMostBlocks = 4;
constexpr int kPointsInAnInch = 72;

// Of the letters, in points.
constexpr int kLargest = 24;
constexpr int kWrapsBelow = 6;  // rather than that texts are wrapped
constexpr int kSmallest = 4;    // that can be read

// A line is so much higher than its letters, in percent.
constexpr int kLinePercent = 115;

// Months that are not divided are worth a little of the size.
constexpr int kWholeGroupsPercent = 93;

class Search {
 public:
  Search(const OnePageTexts& texts, const OnePageLayout& layout, int dotsPerInch) : layout_(layout) {
    const int line = std::max(texts.LineHeight(PageFont::kText, kUsualSize), 1);
    sizeOfPoint_ = std::max(kUsualSize * dotsPerInch * kLinePercent / 100 / kPointsInAnInch / line, 1);
  }

  std::optional<OnePageForm> Best() const {
    const std::optional<OnePageForm> whole = Largest(false, false);
    if (whole && whole->size >= kWrapsBelow * sizeOfPoint_) {
      const std::optional<OnePageForm> byGroups = Largest(false, true);
      return byGroups && byGroups->size >= whole->size * kWholeGroupsPercent / 100 ? byGroups : whole;
    }
    const std::optional<OnePageForm> wrapped = Largest(true, false);
    return wrapped && (!whole || wrapped->size > whole->size) ? wrapped : whole;
  }

 private:
  std::optional<OnePageForm> Largest(bool wraps, bool keepsGroupsWhole) const {
    std::optional<OnePageForm> best;
    for (std::size_t blocks = 1; blocks <= kMostBlocks; ++blocks) {
      OnePageForm form = {blocks, kSmallest * sizeOfPoint_, wraps, keepsGroupsWhole};
      // What is no larger than the best is not looked at.
      if (best) form.size = best->size + 1;
      if (form.size > kLargest * sizeOfPoint_ || !layout_.Fits(form)) continue;
      int tooLarge = kLargest * sizeOfPoint_ + 1;
      while (tooLarge - form.size > 1) {
        OnePageForm larger = form;
        larger.size = form.size + (tooLarge - form.size) / 2;
        if (layout_.Fits(larger)) {
          form = larger;
        } else {
          tooLarge = larger.size;
        }
      }
      best = form;
    }
    return best;
  }

  const OnePageLayout& layout_;
  int sizeOfPoint_;  // of PageSurface::SetSize
};

}  // namespace

OnePage::OnePage(const Table& table, const Sheet& sheet, int dotsPerInch, PageSurface& surface,
                 const Progress& progress)
    : sheet_(sheet) {
  if (table.rows->Count() > kMostRowsOnOnePage) return;
  const OnePageTexts texts(table, surface, progress);
  isCancelled_ = texts.IsCancelled();
  if (isCancelled_) return;
  const OnePageLayout layout(texts, sheet.body);
  const std::optional<OnePageForm> form = Search(texts, layout, dotsPerInch).Best();
  fits_ = form.has_value();
  if (fits_) page_ = layout.Place(*form);
}

void OnePage::Draw(PageSurface& surface, int) const {
  for (const PlacedRule& rule : page_.rules) surface.DrawRule(rule.x, rule.y, rule.width, rule.rule);
  for (const PlacedLine& line : page_.lines) {
    surface.SetSize(line.size);
    surface.DrawLine(line.box, line.text, line.style);
  }
}

}  // namespace publishing
