// Pages as a real printer got them, and as they stand on the screen.
#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "publishing/core/table_pages.h"
#include "publishing/dc_surface.h"
#include "tests/contract/picker_driver.h"
#include "tests/publishing/preview_fixture.h"
#include "tests/publishing/year_table.h"

using testing::AllOf;
using testing::HasSubstr;
namespace fs = std::filesystem;

namespace {

class PrintedPages : public PreviewTest {
 protected:
  void SetUp() override {
    PreviewTest::SetUp();
    const char* const printed = std::getenv("TIMES_READINGS_PRINTED");
    ASSERT_NE(printed, nullptr) << "this test needs the printer of tools/with_printer";
    printed_ = std::string("Z:") + printed;
    for (const auto& entry : fs::directory_iterator(printed_)) fs::remove(entry.path());
  }

  // The text of the job, once the printer has finished it.
  std::string Printed() const {
    fs::path job;
    EXPECT_TRUE(Eventually([&] {
      for (const auto& entry : fs::directory_iterator(printed_)) {
        if (entry.path().extension() == ".txt") job = entry.path();
      }
      return !job.empty();
    })) << "nothing reached the printer";
    Keep(job);
    std::ostringstream text;
    text << std::ifstream(job, std::ios::binary).rdbuf();
    return text.str();
  }

 private:
  // Leaves the job where people can look at it.
  static void Keep(fs::path job) {
    const char* const folder = std::getenv("TIMES_READINGS_KEEP_PRINTED");
    if (!folder || job.empty()) return;
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    fs::copy_file(job.replace_extension(".pdf"), fs::path(std::string("Z:") + folder) / (name + ".pdf"),
                  fs::copy_options::overwrite_existing);
  }

  fs::path printed_;
};

std::size_t CountOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

std::string LineWith(const std::string& text, const std::string& part) {
  const std::size_t found = text.find(part);
  if (found == std::string::npos) return {};
  const std::size_t begin = text.rfind('\n', found) + 1;
  return text.substr(begin, text.find('\n', found) - begin);
}

TEST_F(PrintedPages, EveryNameIsPrintedOnceInEveryScript) {
  Open(TableOfNames(300));
  const std::wstring number = Number();
  Press(preview_, IDC_PREVIEW_PRINT);
  Press(run_->WaitFor(L"Print"), IDOK);
  const std::string text = Printed();
  publishing::ForEachRow(table_, [&](const publishing::Row& row) {
    const auto& cells = row.cells;
    const std::string line = LineWith(text, cells[0]);
    EXPECT_THAT(line, AllOf(HasSubstr("ראובן"), HasSubstr(cells[2]), HasSubstr(cells[3])));
    EXPECT_EQ(CountOf(line, cells[0].substr(cells[0].size() - 3)), 4u) << line;
    EXPECT_EQ(CountOf(text, cells[0]), 1u) << cells[0];
  });
  EXPECT_EQ(CountOf(text, "ראובן"), 300u);
  const std::size_t pages = CountOf(text, "\f");
  EXPECT_EQ(number, L"Page 1 of " + std::to_wstring(pages)) << "as the preview said";
  EXPECT_EQ(CountOf(text, "Persons"), 1u);
  EXPECT_EQ(CountOf(text, "Name "), pages);
  for (std::size_t page = 1; page <= pages; ++page) {
    const std::string expected = "Page " + std::to_string(page) + " of " + std::to_string(pages);
    EXPECT_EQ(CountOf(text, expected), 1u) << expected;
  }
}

TEST_F(PrintedPages, TheMarginsHoldForThePrinterToo) {
  setup_.margins = {6000, 6000, 6000, 6000};
  Open(TableOfNames(300));
  const std::wstring number = Number();
  Press(preview_, IDC_PREVIEW_PRINT);
  Press(run_->WaitFor(L"Print"), IDOK);
  const std::string text = Printed();
  EXPECT_EQ(number, L"Page 1 of " + std::to_wstring(CountOf(text, "\f")));
  EXPECT_GT(CountOf(text, "\f"), 6u) << "the pages with the usual margins";
  EXPECT_EQ(CountOf(text, "ראובן"), 300u);
}

// A date, a remark and eighteen times.
publishing::Table WideTable(int days) {
  publishing::Table table = {.title = "Zmanim of Aachen", .remarks = {"1 January 2026 to 1 March 2026"}};
  table.runningHead = "Zmanim of Aachen, 1 January 2026 to 1 March 2026";
  table.columns = {{"Date"}, {"Portion"}};
  const char* const names[] = {"Dawn", "Earliest tallit", "Sunrise", "Latest Shema", "Latest Shacharit", "Midday"};
  for (int column = 0; column < 18; ++column) table.columns.push_back({names[column % 6], publishing::Align::kEnd});
  std::vector<publishing::Row> rows;
  for (int day = 0; day < days; ++day) {
    if (day % 30 == 0) rows.push_back({.cells = {"Month"}, .kind = publishing::RowKind::kGroup});
    rows.push_back({.cells = {std::to_string(1000 + day), day % 7 == 6 ? "Nitzavim-Vayeilech" : ""}});
    rows.back().isBold = day % 7 == 6;
    for (int column = 0; column < 18; ++column) {
      char time[16];
      std::snprintf(time, sizeof time, "%02d:%02d", (5 + column) % 24, (day * 7 + column) % 60);
      rows.back().cells.push_back(time);
    }
  }
  table.rows = publishing::Listed(std::move(rows));
  return table;
}

TEST_F(PrintedPages, AWideTableLiesAcrossWithEveryTimeInTheLineOfItsDay) {
  Open(WideTable(60));
  Press(preview_, IDC_PREVIEW_PRINT);
  Press(run_->WaitFor(L"Print"), IDOK);
  const std::string text = Printed();
  publishing::ForEachRow(table_, [&](const publishing::Row& row) {
    if (row.kind == publishing::RowKind::kGroup) return;
    const std::string line = LineWith(text, row.cells[0] + " ");
    for (const std::string& cell : row.cells) EXPECT_THAT(line, HasSubstr(cell));
  });
  const std::size_t pages = CountOf(text, "\f");
  EXPECT_EQ(CountOf(text, "Zmanim of Aachen"), pages) << "the title, then the running head";
}

// Every week of the year in its own line, on one page.
class PrintedYear : public PrintedPages {
 protected:
  std::string Print(const YearWords& words, publishing::Orientation orientation, int paper) {
    setup_.orientation = orientation;
    setup_.paper = paper;
    Open(YearTable(words), publishing::PaperLayout::kOnePage);
    EXPECT_EQ(Number(), L"Page 1 of 1");
    Press(preview_, IDC_PREVIEW_PRINT);
    Press(run_->WaitFor(L"Print"), IDOK);
    return Printed();
  }

  void ExpectTheYear(const std::string& text) {
    EXPECT_EQ(CountOf(text, "\f"), 1u) << "pages";
    publishing::ForEachRow(table_, [&](const publishing::Row& row) {
      const auto& cells = row.cells;
      if (row.kind == publishing::RowKind::kGroup) return;
      EXPECT_EQ(CountOf(text, cells[2]), 1u) << cells[2];
      EXPECT_THAT(LineWith(text, cells[2]), AllOf(HasSubstr(cells[0]), HasSubstr(cells[3])));
    });
  }
};

TEST_F(PrintedYear, EnglishOnA4) {
  const std::string text = Print(EnglishYear(), publishing::Orientation::kPortrait, DMPAPER_A4);
  ExpectTheYear(text);
  EXPECT_THAT(LineWith(text, "16:01"), HasSubstr("Pesach Shabbat Chol ha-Moed"));
}

TEST_F(PrintedYear, EnglishOnLetterAcross) {
  const std::string text = Print(EnglishYear(), publishing::Orientation::kLandscape, DMPAPER_LETTER);
  ExpectTheYear(text);
  EXPECT_THAT(LineWith(text, "16:02"), HasSubstr("Acharei Mot-Kedoshim"));
}

TEST_F(PrintedYear, HebrewOnLetter) {
  const std::string text = Print(HebrewYear(), publishing::Orientation::kPortrait, DMPAPER_LETTER);
  ExpectTheYear(text);
  EXPECT_THAT(LineWith(text, "16:05"), HasSubstr("חיי שרה"));
}

TEST_F(PrintedYear, HebrewOnA4Across) {
  const std::string text = Print(HebrewYear(), publishing::Orientation::kLandscape, DMPAPER_A4);
  ExpectTheYear(text);
}

TEST_F(PrintedYear, RussianOnA4) {
  const std::string text = Print(RussianYear(), publishing::Orientation::kPortrait, DMPAPER_A4);
  ExpectTheYear(text);
  EXPECT_THAT(LineWith(text, "16:01"), HasSubstr("Песах, Шаббат Холь а-Моэд"));
}

TEST_F(PrintedYear, HebrewOnSeveralPages) {
  publishing::Table table = YearTable(HebrewYear());
  table.runningHead = "ירושלים תשפ״ז";
  table.pageText = "עמוד %1 מתוך %2";
  Open(std::move(table));
  EXPECT_EQ(Number(), L"Page 1 of 2");
  Press(preview_, IDC_PREVIEW_PRINT);
  Press(run_->WaitFor(L"Print"), IDOK);
  const std::string text = Printed();
  EXPECT_EQ(CountOf(text, "\f"), 2u);
  EXPECT_EQ(CountOf(text, "הדלקת נרות"), 3u) << "headings and the note";
}

// A picture of dots, white at first.
class Picture {
 public:
  Picture(int width, int height) : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* dots = nullptr;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &dots, nullptr, 0);
    dots_ = static_cast<const uint32_t*>(dots);
    old_ = SelectObject(dc_, bitmap_);
    PatBlt(dc_, 0, 0, width, height, WHITENESS);
  }
  ~Picture() {
    SelectObject(dc_, old_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  HDC dc() const { return dc_; }

  // Whether anything is drawn from left to right in all lines from top to bottom.
  bool IsDrawn(int left, int top, int right, int bottom) const {
    GdiFlush();
    for (int y = std::max(top, 0); y < std::min(bottom, height_); ++y) {
      for (int x = std::max(left, 0); x < std::min(right, width_); ++x) {
        if ((dots_[y * width_ + x] & 0xFFFFFF) != 0xFFFFFF) return true;
      }
    }
    return false;
  }

 private:
  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_;
  HGDIOBJ old_;
  const uint32_t* dots_;
};

class ShownPages : public testing::Test {
 protected:
  ShownPages() {
    LOGFONTW font = {};
    wcscpy(font.lfFaceName, L"Times New Roman");
    font_ = publishing::PageFontOf(font);
    measuring_ = std::make_unique<publishing::DcSurface>(memory_.get(), font_, publishing::DeviceScale{});
  }
  publishing::TablePages LaidOut(const publishing::Table& table) {
    return publishing::TablePages(table, kSheet, publishing::kDotsPerInch, *measuring_);
  }
  // A4 with margins of 3/4 inch.
  static constexpr publishing::Sheet kSheet = {4960, 7015, {450, 450, 4060, 6115}};
  LOGFONTW font_ = {};
  const publishing::OwnedContext memory_{CreateCompatibleDC(nullptr)};
  std::unique_ptr<publishing::DcSurface> measuring_;
};

// However small the page is shown and however its letters are rounded.
TEST_F(ShownPages, NothingStandsInTheMarginsAtAnySize) {
  publishing::Table table = TableOfNames(100);
  std::vector<publishing::Row> rows;
  publishing::ForEachRow(table, [&](const publishing::Row& row) {
    rows.push_back(row);
    rows.back().cells.push_back("Blessed and remembered, with a remark that goes on for more than a line, " +
                                row.cells[0]);
  });
  table.rows = publishing::Listed(std::move(rows));
  table.columns.push_back({"Remark"});
  const publishing::TablePages pages = LaidOut(table);
  EXPECT_TRUE(pages.IsNarrowed());
  for (const double scale : {0.05, 0.08, 0.11, 0.16, 0.25}) {
    const int width = static_cast<int>(kSheet.width * scale);
    const int height = static_cast<int>(kSheet.height * scale);
    const Picture picture(width, height);
    publishing::DcSurface surface(picture.dc(), font_, {scale, scale, {}});
    pages.Draw(surface, 0);
    // Slack: a third of the gap between columns, and a dot.
    const int left = static_cast<int>(425 * scale) - 2;
    const int right = static_cast<int>((450 + 4060 + 25) * scale) + 2;
    EXPECT_FALSE(picture.IsDrawn(0, 0, left, height)) << scale;
    EXPECT_FALSE(picture.IsDrawn(right, 0, width, height)) << scale;
    EXPECT_FALSE(picture.IsDrawn(0, 0, width, static_cast<int>(440 * scale))) << scale;
    EXPECT_FALSE(picture.IsDrawn(0, static_cast<int>(6585 * scale), width, height)) << scale;
    EXPECT_TRUE(picture.IsDrawn(left, static_cast<int>(450 * scale), right, static_cast<int>(900 * scale))) << scale;
  }
}

// The last column ends at the right of what a table of one column needs.
TEST_F(ShownPages, AHebrewTextStandsAtTheRightOfItsColumn) {
  const publishing::Table table = {.columns = {{"A long heading over short texts"}},
                                   .rows = publishing::ListedTexts({{"אב"}, {"ab"}})};
  const publishing::TablePages pages = LaidOut(table);
  constexpr double kScale = 0.2;
  const Picture picture(static_cast<int>(kSheet.width * kScale), static_cast<int>(kSheet.height * kScale));
  publishing::DcSurface surface(picture.dc(), font_, {kScale, kScale, {}});
  pages.Draw(surface, 0);
  const int line = static_cast<int>(surface.LineHeight(publishing::PageFont::kText) * kScale);
  const int hebrew = static_cast<int>(450 * kScale) + line + 6;
  const int heading = static_cast<int>(
      (450 + surface.Width(publishing::PageFont::kHeading, u"A long heading over short texts")) * kScale);
  const int left = static_cast<int>(450 * kScale);
  const int middle = (left + heading) / 2;
  EXPECT_FALSE(picture.IsDrawn(left, hebrew, middle, hebrew + line - 3));
  EXPECT_TRUE(picture.IsDrawn(middle, hebrew, heading + 6, hebrew + line - 3));
  EXPECT_TRUE(picture.IsDrawn(left, hebrew + line, middle, hebrew + 2 * line));
  EXPECT_FALSE(picture.IsDrawn(middle, hebrew + line + 4, heading + 6, hebrew + 2 * line));
}

// Rounded letters would be wider than the place that was measured for them.
TEST_F(ShownPages, ALineKeepsToItsBoxAtAnySize) {
  const std::u16string text = u"iiilllfffttt,,,...iiilllfffttt,,,...iiilllfffttt";
  for (double scale = 0.05; scale < 0.3; scale += 0.005) {
    const Picture picture(800, 60);
    const publishing::OwnedContext memory(CreateCompatibleDC(nullptr));
    const int width = publishing::DcSurface(memory.get(), font_, {}).Width(publishing::PageFont::kText, text);
    publishing::DcSurface surface(picture.dc(), font_, {scale, scale, {}});
    surface.DrawLine({0, 0, width, 100}, text, {publishing::PageFont::kText, publishing::Place::kLeft, false});
    // Slack, and what Wine draws wider than it measures.
    const int end = static_cast<int>((width + 25) * scale * 1.06) + 2;
    EXPECT_FALSE(picture.IsDrawn(end, 0, 800, 60)) << scale;
    EXPECT_TRUE(picture.IsDrawn(end / 3, 0, end, 60)) << scale << ": not smaller than it must be";
  }
}

TEST_F(ShownPages, FontsOfTheScreenKeepTheirSize) {
  const publishing::OwnedContext screen(CreateCompatibleDC(nullptr));
  const int dotsPerInch = GetDeviceCaps(screen.get(), LOGPIXELSY);
  LOGFONTW font = {};
  EXPECT_EQ(publishing::PageFontOf(font).lfHeight, -83) << "10 points of 600/72 dots";
  font.lfHeight = -dotsPerInch / 4;  // 18 points
  EXPECT_EQ(publishing::PageFontOf(font).lfHeight, -150);
  font.lfHeight = dotsPerInch / 4;  // of the whole cell
  EXPECT_EQ(publishing::PageFontOf(font).lfHeight, 150);
  font.lfHeight = -1;
  EXPECT_EQ(publishing::PageFontOf(font).lfHeight, -33) << "no smaller than 4 points";
  font.lfHeight = -30000;
  EXPECT_EQ(publishing::PageFontOf(font).lfHeight, -600) << "no larger than 72 points";
}

}  // namespace
