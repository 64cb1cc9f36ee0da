// A table on pages: title and remarks on the first, its headings and "Page 2 of 5" on each. What is measured once is
// drawn alike on every surface.
#pragma once

#include <string>
#include <vector>

#include "publishing/core/page_plan.h"
#include "publishing/core/page_surface.h"
#include "publishing/core/table.h"

namespace publishing {

class TablePages {
 public:
  // surface: measures, and is not needed afterwards.
  // dotsPerInch: of the sheet's lengths.
  TablePages(const Table& table, const Sheet& sheet, int dotsPerInch, PageSurface& surface);

  int Count() const { return static_cast<int>(pages_.size()); }

  // Whether columns had to be made narrower than their texts.
  bool IsNarrowed() const { return isNarrowed_; }

  const Sheet& sheet() const { return sheet_; }

  // page: from 0.
  void Draw(PageSurface& surface, int page) const;

 private:
  // A text in lines.
  struct Block {
    std::vector<std::u16string> lines;
    bool rightToLeft;
  };
  struct ColumnPlace {
    int x;
    int width;
    Align align;
  };
  using Cells = std::vector<Block>;

  void PlaceColumns(const Table& table, PageSurface& surface);
  void WrapHeadings(const Table& table, PageSurface& surface);
  void WrapTitle(const Table& table, PageSurface& surface);
  void WrapRows(const Table& table, PageSurface& surface);
  void Plan();

  int BodyBottom() const;  // of the rows; below stands the number of the page
  int HeadingHeight() const;
  int TitleHeight() const;
  int DrawTitle(PageSurface& surface) const;
  int DrawHeadings(PageSurface& surface, int y) const;
  void DrawCells(PageSurface& surface, const Cells& cells, PageFont font, const RowSlice& slice, int y) const;
  void DrawNumber(PageSurface& surface, int page) const;

  Sheet sheet_;
  int gap_;  // between columns, and between the parts of a page
  int rowGap_;
  int titleLine_;
  int headingLine_;
  int textLine_;
  bool isNarrowed_ = false;
  std::vector<ColumnPlace> columns_;
  Cells title_;  // the title, unless it is empty, and the remarks
  bool hasTitle_;
  Cells headings_;
  std::vector<Cells> rows_;
  std::vector<PlannedPage> pages_;
};

}  // namespace publishing
