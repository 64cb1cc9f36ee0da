// A table on pages: title and remarks on the first, running head on the others, its headings and "Page 2 of 5" on each,
// notes behind the last row. Of each row only its lines are kept; rows are read again when their page is drawn.
#pragma once

#include <string>
#include <vector>

#include "publishing/core/page_plan.h"
#include "publishing/core/pages.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"
#include "publishing/core/text_widths.h"

namespace publishing {

class TablePages : public Pages {
 public:
  // table and surface, which measures, live as long as the pages. dotsPerInch: of the sheet's lengths.
  TablePages(const Table& table, const Sheet& sheet, int dotsPerInch, PageSurface& surface,
             const Progress& progress = {});

  int Count() const override { return static_cast<int>(pages_.size()) + static_cast<int>(notePages_.size()); }
  const Sheet& sheet() const override { return sheet_; }
  void Draw(PageSurface& surface, int page) const override;

  // The progress had enough; there are no pages to draw.
  bool IsCancelled() const { return isCancelled_; }

  // Whether columns had to be made narrower than their texts.
  bool IsNarrowed() const { return isNarrowed_; }

 private:
  // A text in lines.
  struct Block {
    std::vector<std::u16string> lines;
    bool rightToLeft;
    Place place;
  };
  struct ColumnPlace {
    int x;
    int width;
  };
  using Cells = std::vector<Block>;
  // Lines of the notes on a page.
  struct NoteLines {
    std::size_t first;
    std::size_t count;
  };

  bool GoesOn(const Progress& progress, std::size_t step, std::size_t row);
  void MeasureRows(const Progress& progress, std::size_t step);
  int WidthOf(const std::vector<int>& columns) const;
  void MakeRoomForWords(const Progress& progress);
  void PlaceColumns();
  void WrapHeadings();
  void WrapTitle();
  void WrapNotes();
  void CountLines(const Progress& progress);
  void Plan();
  void PlanNotes();

  PageRoom Room() const;
  int BodyTop(int page) const;
  int BodyBottom() const;  // of the rows; below stands the number of the page
  int HeadingHeight() const;
  int TitleHeight() const;
  int TableWidth() const;
  int GroupWidth(const std::string& text) const;
  bool IsBold(const Row& row) const { return row.isBold || row.kind == RowKind::kGroup; }
  Block Wrapped(const std::string& text, PageFont font, int width, std::size_t mostLines) const;
  Cells CellsOf(const Row& row) const;
  int LinesOf(const Row& row);

  void DrawTitle(PageSurface& surface) const;
  void DrawRunningHead(PageSurface& surface) const;
  int DrawHeadings(PageSurface& surface, int y) const;
  int DrawRows(PageSurface& surface, const PlannedPage& page, int y) const;
  void DrawCells(PageSurface& surface, const Cells& cells, PageFont font, const RowSlice& slice, int y) const;
  void DrawBlock(PageSurface& surface, const Block& block, PageFont font, const RowSlice& slice, PageBox box) const;
  void DrawNotes(PageSurface& surface, const NoteLines& lines, int y) const;
  void DrawNumber(PageSurface& surface, int page) const;

  const Table& table_;
  PageSurface& measuring_;
  mutable TextWidths textWidths_;
  mutable TextWidths boldWidths_;
  Sheet sheet_;
  int dotsPerInch_;
  int size_ = kUsualSize;  // of the letters
  int gap_;                // between columns, and between the parts of a page
  int rowGap_;
  int titleLine_ = 1;
  int textLine_ = 1;  // and of headings
  int smallLine_ = 1;
  bool isCancelled_ = false;
  bool isNarrowed_ = false;
  bool haveLineEnds_ = false;  // texts of rows
  std::vector<int> own_;       // the columns' widths by their texts
  std::vector<int> least_;     // by their words
  std::vector<ColumnPlace> columns_;
  Cells title_;  // the title, unless it is empty, and the remarks
  bool hasTitle_;
  Cells headings_;
  Cells notes_;  // of a line each
  std::vector<RowToPlan> rows_;
  std::vector<PlannedPage> pages_;
  NoteLines lastNotes_ = {0, 0};      // on the last page that has rows
  std::vector<NoteLines> notePages_;  // pages more, for notes alone
};

}  // namespace publishing
