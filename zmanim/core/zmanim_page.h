// A printed page of zmanim: its heading with title and legend, and its table. What is written on is behind an
// interface, so that the same page is measured, printed and tested.
#pragma once

#include <string_view>

#include "win/core/pane_rect.h"
#include "zmanim/core/zmanim_export.h"
#include "zmanim/core/zmanim_print_plan.h"

// The printable area of a sheet, in dots of the printer.
struct PrinterPage {
  int width;
  int height;
  int dotsPerInchX;
  int dotsPerInchY;

  int LeftMargin() const;
  int TopMargin() const;
  int HeadingGap() const;  // between the heading and the table

  // Everything inside the margins.
  PaneRect Body() const;
};

enum class PrintFont { kTimes, kBold, kTitle, kHebrew };

struct TextSize {
  int width;
  int height;
};

class PageSurface {
 public:
  PageSurface() = default;
  PageSurface(const PageSurface&) = delete;
  PageSurface& operator=(const PageSurface&) = delete;
  virtual ~PageSurface() = default;

  // Everything below measures and draws in the font chosen last.
  virtual void UseFont(PrintFont font) = 0;
  virtual int LineHeight() = 0;
  virtual int AverageCharacterWidth() = 0;
  virtual TextSize Measure(std::string_view text) = 0;
  virtual void Draw(int x, int y, std::string_view text) = 0;
  virtual void DrawClipped(int x, int y, std::string_view text, const PaneRect& clip) = 0;
};

enum class HeadingPass { kMeasure, kDraw };

// The height of the heading below the top margin. An English legend names the zmanim given; a Hebrew one has them all.
int PassHeading(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data, const IndexRange& zmanim,
                HeadingPass pass);

// How many rows of days a page has room for below a heading of all zmanim and the numbers of the columns, and some to
// spare; not positive when it has room for none.
int RowsPerPage(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data);

// The numbers of the columns at y, and the days below them.
void DrawTable(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data, const PrintedPage& content,
               ZmanTexts& texts, int y);

// Where the table of a page stands whose heading is so high.
int TableTop(const PrinterPage& page, int headingHeight);
