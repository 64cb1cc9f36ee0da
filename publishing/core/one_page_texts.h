// What stands on the one page, measured once at the letters' usual size; widths and heights at any other size are
// reckoned from that.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "publishing/core/page_surface.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"
#include "publishing/core/wrapped_text.h"

namespace publishing {

// No sheet has room for more rows that can be read.
constexpr std::size_t kMostRowsOnOnePage = 1000;

struct MeasuredText {
  std::u16string text = {};
  int whole = 0;  // its width when it is not wrapped
  int widestWord = 0;
  bool rightToLeft = false;
  Place place = Place::kLeft;
};

struct MeasuredRow {
  std::vector<MeasuredText> cells;  // of a group: one
  PageFont font;                    // of cells whose column has none of its own
  bool isGroup;
};

class OnePageTexts {
 public:
  // What the progress ends stays incomplete.
  OnePageTexts(const Table& table, PageSurface& surface, const Progress& progress);

  bool IsCancelled() const { return isCancelled_; }

  const std::vector<MeasuredText>& title() const { return title_; }  // the title, unless it is empty, and the remarks
  const std::vector<MeasuredText>& notes() const { return notes_; }
  const std::vector<MeasuredText>& headings() const { return headings_; }
  const std::vector<MeasuredRow>& rows() const { return rows_; }
  std::size_t ColumnCount() const { return headings_.size(); }
  PageFont TitleFont(std::size_t line) const { return line == 0 && hasTitle_ ? PageFont::kTitle : PageFont::kText; }
  PageFont FontOf(const MeasuredRow& row, std::size_t column) const;
  bool HasLargeTexts() const;
  bool IsRightToLeft() const { return rightToLeft_; }

  // At a size, rounded up.
  int LineHeight(PageFont font, int size) const;
  MeasureText MeasureAt(PageFont font, int size) const;
  std::vector<std::u16string> Lines(const MeasuredText& text, PageFont font, int size, int width) const;

 private:
  MeasuredText Measured(const std::string& text, PageFont font) const;
  MeasuredText MeasuredLine(const std::string& text, PageFont font) const;
  void ReadRows(const Table& table, const Progress& progress);

  PageSurface& surface_;
  bool rightToLeft_;
  bool hasTitle_;
  bool isCancelled_ = false;
  std::vector<bool> isLarge_;  // of each column
  std::vector<MeasuredText> title_;
  std::vector<MeasuredText> notes_;
  std::vector<MeasuredText> headings_;
  std::vector<MeasuredRow> rows_;
};

// A width or height of the usual size at another one, rounded up.
int AtSize(int length, int size);

// A width at another size with what rounded letters may be wider.
int WidthAtSize(int width, int size);

}  // namespace publishing
