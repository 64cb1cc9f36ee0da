#include "zmanim/core/zmanim_page.h"

#include <functional>
#include <string>
#include <vector>

#include "output/date_text.h"
#include "zmanim/core/left_to_right_flow.h"
#include "zmanim/core/right_to_left_flow.h"
#include "zmanim/core/zmanim_legend.h"

namespace {

constexpr int kMarginMillimetres = 4;
constexpr int kHeadingGapMillimetres = 5;

// Rows that stay free at the bottom, one of which the first page's extra day takes.
constexpr int kSpareRows = 3;

// The legend as a text ends here. Only the measure of a selection of very many zmanim comes to it: a page names ten.
constexpr std::size_t kMostLegendBytes = 2048;

constexpr LegendSpacing kSpacing{
    .betweenZmanim = ",     ", .beforeVilnaGaon = "         ", .beforeMagenAvraham = "     "};

int Dots(int dotsPerInch, int millimetres) {
  constexpr int kTenthsOfAMillimetrePerInch = 254;
  return dotsPerInch * millimetres * 10 / kTenthsOfAMillimetrePerInch;
}

using MeasureWord = std::function<int(std::string_view word)>;
using DrawWord = std::function<void(int x, int y, std::string_view word)>;

MeasureWord MeasureOn(PageSurface& surface) {
  return [&surface](std::string_view word) { return surface.Measure(word).width; };
}

DrawWord DrawOn(PageSurface& surface, HeadingPass pass) {
  if (pass == HeadingPass::kMeasure) return {};
  return [&surface](int x, int y, std::string_view word) { surface.Draw(x, y, word); };
}

// The title, whose place is shortened where the page is too narrow for it.
std::string TitleFor(PageSurface& surface, int width, std::string_view place) {
  const std::string start = "Zmanim of ";
  std::string title = start + std::string(place);
  while (surface.Measure(title).width > width && !place.empty()) {
    place.remove_suffix(1);
    while (place.ends_with(' ')) place.remove_suffix(1);
    title = start + std::string(place) + "...";
  }
  return title;
}

int PassTitle(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data, HeadingPass pass) {
  surface.UseFont(PrintFont::kTitle);
  const std::string title = TitleFor(surface, page.width, data.location);
  const TextSize size = surface.Measure(title);
  if (pass == HeadingPass::kDraw) surface.Draw(page.width / 2 - size.width / 2, page.TopMargin(), title);
  return 2 * size.height;
}

int PassHebrewLegend(PageSurface& surface, const PaneRect& area, const ZmanimExport& data, HeadingPass pass) {
  surface.UseFont(PrintFont::kHebrew);
  const int lineHeight = surface.LineHeight();
  RightToLeftFlow flow(area, lineHeight, MeasureOn(surface), DrawOn(surface, pass));
  FlowHebrewLegend(flow, data.hebrewNames);
  return flow.y() + lineHeight - area.y;
}

int PassEnglishLegend(PageSurface& surface, const PaneRect& area, const ZmanimExport& data, const IndexRange& zmanim,
                      HeadingPass pass) {
  surface.UseFont(PrintFont::kBold);
  const int lineHeight = surface.LineHeight();
  const std::vector<std::string> names(data.names.begin() + zmanim.begin, data.names.begin() + zmanim.end);
  const std::string legend = ZmanimLegend(names, zmanim.begin + 1, kSpacing, data.vilnaGaon, data.magenAvraham);
  return lineHeight * FlowLeftToRight(area, lineHeight, std::string_view(legend).substr(0, kMostLegendBytes),
                                      MeasureOn(surface), DrawOn(surface, pass));
}

// Where the columns of times start, and how wide each is.
struct Columns {
  int dateX;
  int timesX;
  int width;

  int X(uint32_t column) const { return timesX + width * static_cast<int>(column); }
};

// In the font of the numbers, the times too.
Columns ColumnsOf(PageSurface& surface, const PrinterPage& page, bool amPm) {
  const int dateX = page.LeftMargin() + surface.AverageCharacterWidth();
  const int dateWidth = surface.Measure(kWidestDate).width;
  return {.dateX = dateX,
          .timesX = dateX + dateWidth,
          .width = (page.width - dateWidth) / (amPm ? kColumnsOf12HourTimes : kColumnsOf24HourTimes)};
}

}  // namespace

int PrinterPage::LeftMargin() const {
  return Dots(dotsPerInchX, kMarginMillimetres);
}

int PrinterPage::TopMargin() const {
  return Dots(dotsPerInchY, kMarginMillimetres);
}

int PrinterPage::HeadingGap() const {
  return Dots(dotsPerInchY, kHeadingGapMillimetres);
}

PaneRect PrinterPage::Body() const {
  return {LeftMargin(), TopMargin(), width - 2 * LeftMargin(), height - 2 * TopMargin()};
}

int TableTop(const PrinterPage& page, int headingHeight) {
  return headingHeight + page.TopMargin() + page.HeadingGap();
}

int PassHeading(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data, const IndexRange& zmanim,
                HeadingPass pass) {
  const int titleHeight = PassTitle(surface, page, data, pass);
  PaneRect area = page.Body();
  area.y += titleHeight;
  area.height -= titleHeight;
  return titleHeight + (data.hebrew ? PassHebrewLegend(surface, area, data, pass)
                                    : PassEnglishLegend(surface, area, data, zmanim, pass));
}

int RowsPerPage(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data) {
  const IndexRange all{0, static_cast<uint32_t>(data.names.size())};
  const int headingHeight = PassHeading(surface, page, data, all, HeadingPass::kMeasure);
  surface.UseFont(PrintFont::kBold);
  const int firstRowY = TableTop(page, headingHeight) + surface.LineHeight();
  surface.UseFont(PrintFont::kTimes);
  const int rowHeight = surface.LineHeight();
  return rowHeight > 0 ? (page.height - page.TopMargin() - firstRowY) / rowHeight - kSpareRows : 0;
}

void DrawTable(PageSurface& surface, const PrinterPage& page, const ZmanimExport& data, const PrintedPage& content,
               ZmanTexts& texts, int y) {
  surface.UseFont(PrintFont::kBold);
  const Columns columns = ColumnsOf(surface, page, data.amPm);
  const int rowHeight = surface.LineHeight();
  surface.Draw(columns.dateX, y, data.dateTitle);
  int numberHeight = 0;
  for (uint32_t zman = content.zmanim.begin; zman < content.zmanim.end; ++zman) {
    const std::string number = std::to_string(zman + 1);
    surface.DrawClipped(columns.X(zman - content.zmanim.begin), y, number, page.Body());
    numberHeight = surface.Measure(number).height;
  }
  y += numberHeight;
  surface.UseFont(PrintFont::kTimes);
  for (const ZmanimDay& day : data.days.subspan(content.days.begin, content.days.end - content.days.begin)) {
    surface.Draw(columns.dateX, y, DateText(day.date));
    for (uint32_t zman = content.zmanim.begin; zman < content.zmanim.end; ++zman) {
      surface.Draw(columns.X(zman - content.zmanim.begin), y, texts.TextOf(day.times[zman]));
    }
    y += rowHeight;
  }
}
