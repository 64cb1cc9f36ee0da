#include "publishing/core/one_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "tests/core/recorded_page.h"

namespace publishing {
namespace {

using testing::Contains;
using testing::Each;

// Letters of RecordedPage are 10 points: lines of 20 dots are 11.5.
constexpr int kDotsPerInch = 125;
constexpr int kPoint = kUsualSize / 10;

int Dots(double millimetres) {
  return static_cast<int>(millimetres * kDotsPerInch / 25.4);
}

// With margins of half an inch.
Sheet SheetOf(double width, double height) {
  const int margin = Dots(12.7);
  return {Dots(width), Dots(height), {margin, margin, Dots(width) - 2 * margin, Dots(height) - 2 * margin}};
}

const Sheet kA4 = SheetOf(210, 297);
const Sheet kA4Across = SheetOf(297, 210);
const Sheet kLetter = SheetOf(215.9, 279.4);
const Sheet kLetterAcross = SheetOf(279.4, 215.9);

std::string Clock(int hour, int minute) {
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", hour, minute);
  return text;
}

// The longest names in each of the weeks.
Table YearTable(const std::vector<std::string>& names, bool rightToLeft, int weeks = 55, int months = 13) {
  Table table = {.title = "Shabbat Times 5787 at Some Place of a Long Name",
                 .remarks = {"51 degrees north"},
                 .columns = {{"Date"},
                             {"Portion"},
                             {.heading = "Candle lighting", .align = Align::kEnd, .isLarge = true},
                             {.heading = "End of Shabbat", .align = Align::kEnd, .isLarge = true}},
                 .notes = {"Without warranty."},
                 .rightToLeft = rightToLeft};
  std::vector<Row> rows;
  for (int week = 0; week < weeks; ++week) {
    const int month = week * months / weeks;
    if (week == 0 || month != (week - 1) * months / weeks) {
      rows.push_back({.cells = {"month " + std::to_string(month)}, .kind = RowKind::kGroup});
    }
    const std::string& name = names[static_cast<std::size_t>(week) % names.size()];
    rows.push_back(
        {.cells = {std::to_string(week) + ". December 2026", name, Clock(16, week % 60), Clock(20, week % 60)}});
  }
  table.rows = Listed(std::move(rows));
  return table;
}

const std::vector<std::string> kEnglish = {"Acharei Mot-Kedoshim", "Nitzavim-Vayeilech", "Pesach Shabbat Chol ha-Moed"};
const std::vector<std::string> kHebrew = {"אחרי מות־קדושים", "ניצבים־וילך", "שבת חול המועד פסח"};
const std::vector<std::string> kRussian = {"Ахарей мот-Кдошим", "Ницавим-Ваелех", "Песах, Шаббат Холь а-Моэд"};

PageRecord Drawn(const Table& table, const Sheet& sheet) {
  RecordedPage surface;
  const OnePage page(table, sheet, kDotsPerInch, surface);
  EXPECT_TRUE(surface.lines.empty());
  EXPECT_TRUE(page.Fits());
  EXPECT_EQ(page.Count(), 1);
  page.Draw(surface, 0);
  return surface;
}

bool Overlap(const PageBox& one, const PageBox& other) {
  return one.x < other.Right() && other.x < one.Right() && one.y < other.Bottom() && other.y < one.Bottom();
}

void ExpectInsideAndApart(const PageRecord& page, const Sheet& sheet) {
  for (std::size_t one = 0; one < page.lines.size(); ++one) {
    const PageBox& box = page.lines[one].box;
    EXPECT_GE(box.x, sheet.body.x);
    EXPECT_GE(box.y, sheet.body.y);
    EXPECT_LE(box.Right(), sheet.body.Right());
    EXPECT_LE(box.Bottom(), sheet.body.Bottom());
    for (std::size_t other = 0; other < one; ++other) {
      EXPECT_FALSE(Overlap(box, page.lines[other].box)) << one << " and " << other;
    }
  }
}

int SizeOfRows(const PageRecord& page) {
  for (const DrawnLine& line : page.lines) {
    if (line.style.font == PageFont::kLarge) return line.size;
  }
  return 0;
}

TEST(OnePage, AYearOfTheLongestNamesIsThereWholeOnAnyPaper) {
  for (const auto* names : {&kEnglish, &kHebrew, &kRussian}) {
    for (const Sheet* sheet : {&kA4, &kA4Across, &kLetter, &kLetterAcross}) {
      const Table table = YearTable(*names, names == &kHebrew);
      const PageRecord page = Drawn(table, *sheet);
      ExpectInsideAndApart(page, *sheet);
      EXPECT_GE(SizeOfRows(page), 6 * kPoint) << "six points can be read";
      std::vector<std::u16string> texts = page.Texts();
      ForEachRow(table, [&](const Row& row) {
        for (const std::string& cell : row.cells) {
          const auto found = std::find(texts.begin(), texts.end(), Utf16Of(cell));
          ASSERT_NE(found, texts.end()) << cell;
          texts.erase(found);
        }
      });
      EXPECT_THAT(texts, Contains(u"Without warranty."));
      EXPECT_THAT(texts, Contains(u"51 degrees north"));
    }
  }
}

TEST(OnePage, EveryTimeStandsInTheLineOfItsDate) {
  const PageRecord page = Drawn(YearTable(kEnglish, false), kA4);
  for (int week = 0; week < 55; ++week) {
    const DrawnLine date = page.Line(Utf16Of(std::to_string(week) + ". December 2026"));
    const DrawnLine lighting = page.Line(Utf16Of(Clock(16, week)));
    const DrawnLine end = page.Line(Utf16Of(Clock(20, week)));
    EXPECT_LE(lighting.box.y, date.box.y);
    EXPECT_GE(lighting.box.Bottom(), date.box.Bottom());
    EXPECT_EQ(lighting.box.y, end.box.y);
    EXPECT_LT(date.box.Right(), lighting.box.x);
    EXPECT_LT(lighting.box.Right(), end.box.x);
    EXPECT_LT(lighting.box.x - date.box.x, kA4.body.width / 2) << "in one block";
  }
}

TEST(OnePage, BlocksOfATableFromRightToLeftBeginAtTheRight) {
  const PageRecord page = Drawn(YearTable(kHebrew, true), kA4Across);
  const DrawnLine first = page.Line(u"0. December 2026");
  const DrawnLine last = page.Line(u"54. December 2026");
  EXPECT_GT(first.box.x, last.box.Right());
  EXPECT_GT(first.box.x, page.Line(u"16:00").box.Right());
}

std::vector<DrawnLine> LinesWith(const PageRecord& page, std::u16string_view text) {
  std::vector<DrawnLine> lines;
  std::copy_if(page.lines.begin(), page.lines.end(), std::back_inserter(lines),
               [text](const DrawnLine& line) { return line.text == text; });
  return lines;
}

TEST(OnePage, EachBlockHasItsHeadingsAndARuleBelowThem) {
  const PageRecord page = Drawn(YearTable({"Noach", "Bereshit"}, false), kA4Across);
  const std::vector<DrawnLine> headings = LinesWith(page, u"Date");
  ASSERT_GE(headings.size(), 2u);
  for (const DrawnLine& heading : headings) EXPECT_EQ(heading.box.y, headings[0].box.y);
  EXPECT_EQ(page.rules.size(), 13u) << "below the headings, and above each month that no block begins with";
}

TEST(OnePage, AMonthIsNotDividedWhereThatCostsLittle) {
  const PageRecord page = Drawn(YearTable({"Noach", "Bereshit"}, false), kA4Across);
  for (const DrawnLine& heading : LinesWith(page, u"Date")) {
    const DrawnLine* first = nullptr;
    for (const DrawnLine& line : page.lines) {
      const bool isBelow = line.box.x == heading.box.x && line.box.y > heading.box.y;
      if (isBelow && (!first || line.box.y < first->box.y)) first = &line;
    }
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->text.starts_with(u"month")) << "begins a block";
  }
}

TEST(OnePage, TheTitleIsCentredAndLarger) {
  const PageRecord page = Drawn(YearTable(kEnglish, false, 10, 2), kA4);
  const DrawnLine title = page.lines.front();
  EXPECT_EQ(title.style, (LineStyle{PageFont::kTitle, Place::kCenter, false}));
  EXPECT_EQ(title.box.x, kA4.body.x);
  EXPECT_EQ(title.box.width, kA4.body.width);
}

// 24 points are enough to be read from the other end of a kitchen.
TEST(OnePage, AFewRowsAreNoLargerThanTwentyFourPoints) {
  const Table table = {.columns = {{"A"}}, .rows = ListedTexts({{"a"}, {"b"}})};
  const PageRecord page = Drawn(table, kA4);
  EXPECT_THAT(page.lines, Each(testing::Field(&DrawnLine::size,
                                              testing::AllOf(testing::Gt(23 * kPoint), testing::Le(24 * kPoint)))));
  EXPECT_EQ(page.Line(u"a").box.x, page.Line(u"b").box.x) << "one block";
}

TEST(OnePage, TextsAreWrappedOnlyWhenTheyWouldBeTooSmallToRead) {
  std::string words;
  for (int word = 0; word < 60; ++word) words += "word ";
  const Table table = {.columns = {{"A"}, {"B"}}, .rows = ListedTexts({{"a", words}, {"b", "c"}})};
  const PageRecord page = Drawn(table, kA4);
  ExpectInsideAndApart(page, kA4);
  EXPECT_GE(page.Line(u"a").size, 6 * kPoint);
  EXPECT_GT(page.lines.size(), 6u);
}

TEST(OnePage, ATableThatCannotBeReadDoesNotFit) {
  RecordedPage surface;
  EXPECT_FALSE(OnePage(YearTable(kEnglish, false, 900, 13), kA4, kDotsPerInch, surface).Fits());
  EXPECT_FALSE(OnePage(YearTable(kEnglish, false, 40000, 13), kA4, kDotsPerInch, surface).Fits());
  EXPECT_FALSE(OnePage(YearTable(kEnglish, false), {60, 60, {5, 5, 50, 50}}, kDotsPerInch, surface).Fits());
}

TEST(OnePage, ATableWithoutRowsOrColumnsFits) {
  EXPECT_TRUE(Drawn({}, kA4).lines.empty());
  EXPECT_THAT(Drawn({.title = "T", .columns = {{"A"}}}, kA4).Texts(), testing::ElementsAre(u"T", u"A"));
  const Table group = {.rows = Listed({{.cells = {"g"}, .kind = RowKind::kGroup}, {.cells = {"lost"}}})};
  EXPECT_TRUE(Drawn(group, kA4).lines.empty()) << "nothing to stand across";
}

TEST(OnePage, TheProgressCanEndIt) {
  RecordedPage surface;
  const OnePage page(YearTable(kEnglish, false), kA4, kDotsPerInch, surface,
                     [](std::size_t, std::size_t) { return false; });
  EXPECT_TRUE(page.IsCancelled());
  EXPECT_FALSE(page.Fits());
}

}  // namespace
}  // namespace publishing
