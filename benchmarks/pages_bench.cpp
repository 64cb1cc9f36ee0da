#include "benchmarks/pages_bench.h"

#include <windows.h>

#include <cstdio>
#include <memory>
#include <string>

#include "benchmarks/measured.h"
#include "publishing/core/table_pages.h"
#include "publishing/dc_surface.h"

namespace {

constexpr std::size_t kDays = 36525;
constexpr std::size_t kColumns = 40;
constexpr std::size_t kMinutesInADay = 1440;
constexpr int kPage = 500;

// A4 across with margins of 3/4 inch, in dots.
constexpr publishing::Sheet kSheet = {7015, 4960, {450, 450, 6115, 4060}};

std::string Numbered(const char* form, std::size_t first, std::size_t second) {
  char text[32];
  std::snprintf(text, sizeof text, form, static_cast<unsigned>(first), static_cast<unsigned>(second));
  return text;
}

// A date, and times that move on from day to day.
class CenturyRows : public publishing::Rows {
 public:
  std::size_t Count() const override { return kDays; }
  void Read(std::size_t index, publishing::Row& row) const override {
    row.kind = publishing::RowKind::kRow;
    row.cells.resize(kColumns);
    row.cells[0] = Numbered("%05u-%02u", index, index % 12 + 1);
    for (std::size_t column = 1; column < kColumns; ++column) {
      const std::size_t minute = (column * 36 + index) % kMinutesInADay;
      row.cells[column] = Numbered("%02u:%02u", minute / 60, minute % 60);
    }
  }
};

}  // namespace

void MeasurePages() {
  publishing::Table table = {.title = "A century", .rows = std::make_shared<CenturyRows>()};
  for (std::size_t column = 0; column < kColumns; ++column) table.columns.push_back({"Sunrise"});
  const LOGFONTW font = publishing::PageFontOf({});
  const publishing::OwnedContext memory(CreateCompatibleDC(nullptr));
  publishing::DcSurface surface(memory.get(), font, {});
  const double start = NowMilliseconds();
  const publishing::TablePages pages(table, kSheet, publishing::kDotsPerInch, surface);
  Report("a century of 40 columns laid out on pages, ms", NowMilliseconds() - start);
  Report("a page of it drawn, ms", BestMilliseconds(5, [&] { pages.Draw(surface, kPage); }));
}
