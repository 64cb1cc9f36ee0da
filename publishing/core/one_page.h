// A whole table on a single sheet that is read from afar: title and remarks above, rows in blocks side by side, notes
// at the foot; the letters are as large as there is room for.
#pragma once

#include <string>
#include <vector>

#include "publishing/core/pages.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"

namespace publishing {

// A line of the page where it stands.
struct PlacedLine {
  int size;  // of PageSurface::SetSize
  PageBox box;
  std::u16string text;
  LineStyle style;
};

struct PlacedRule {
  int x;
  int y;
  int width;
  Rule rule;
};

struct PlacedPage {
  std::vector<PlacedLine> lines;
  std::vector<PlacedRule> rules;
};

class OnePage : public Pages {
 public:
  // table and surface, which measures, are not needed afterwards. dotsPerInch: of the sheet's lengths.
  OnePage(const Table& table, const Sheet& sheet, int dotsPerInch, PageSurface& surface, const Progress& progress = {});

  // Whether everything has room in letters that can be read; else there is nothing to draw.
  bool Fits() const { return fits_; }

  // The progress had enough; there is nothing to draw.
  bool IsCancelled() const { return isCancelled_; }

  int Count() const override { return 1; }
  const Sheet& sheet() const override { return sheet_; }
  void Draw(PageSurface& surface, int page) const override;

 private:
  Sheet sheet_;
  PlacedPage page_;
  bool fits_ = false;
  bool isCancelled_ = false;
};

}  // namespace publishing
