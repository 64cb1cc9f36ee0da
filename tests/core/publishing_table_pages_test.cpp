#include "publishing/core/table_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "publishing/core/unicode.h"

namespace publishing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::SizeIs;

constexpr int kDotsPerInch = 80;  // gaps of 10 dots between columns, 1 between rows
constexpr Sheet kSheet = {400, 300, {50, 40, 300, 200}};

struct DrawnLine {
  PageBox box;
  std::u16string text;
  LineStyle style;
};

// Characters are 10 wide and 20 high, in headings 12 wide; those of the title are 20 wide and 30 high.
class RecordedPage : public PageSurface {
 public:
  void SetSize(int size) override { size_ = size; }
  int LineHeight(PageFont font) override { return font == PageFont::kTitle ? 30 : 20; }
  int Width(PageFont font, std::u16string_view text) override {
    const auto count = std::count_if(text.begin(), text.end(), [](char16_t unit) { return !IsCombining(unit); });
    return static_cast<int>(count) * (font == PageFont::kTitle ? 20 : font == PageFont::kHeading ? 12 : 10);
  }
  void DrawLine(const PageBox& box, std::u16string_view text, const LineStyle& style) override {
    EXPECT_LE(Width(style.font, text), std::max(box.width, 12));
    lines.push_back({box, std::u16string(text), style});
  }
  void DrawRule(int x, int y, int width, Rule rule) override {
    (rule == Rule::kThin ? rules : hairs).push_back({x, y, width, 1});
  }

  std::vector<std::u16string> Texts() const {
    std::vector<std::u16string> texts;
    for (const DrawnLine& line : lines) texts.push_back(line.text);
    return texts;
  }

  std::vector<DrawnLine> lines;
  std::vector<PageBox> rules;
  std::vector<PageBox> hairs;

 private:
  int size_ = kUsualSize;
};

std::vector<RecordedPage> PagesOf(const Table& table, const Sheet& sheet = kSheet) {
  RecordedPage measuring;
  const TablePages pages(table, sheet, kDotsPerInch, measuring);
  EXPECT_TRUE(measuring.lines.empty());
  std::vector<RecordedPage> drawn(static_cast<std::size_t>(pages.Count()));
  for (int page = 0; page < pages.Count(); ++page) pages.Draw(drawn[static_cast<std::size_t>(page)], page);
  return drawn;
}

// The body has 200 dots; 30 are for the number of the page, 22 for the headings. Rows are 21 high: six have room below
// a title of 40 dots with its gap, and seven without.
Table TableOfRows(int count) {
  Table table = {.title = "T", .columns = {{"N"}, {"Y", Align::kEnd}}};
  std::vector<std::vector<std::string>> rows;
  for (int row = 1; row <= count; ++row) rows.push_back({"r" + std::to_string(row), std::to_string(row)});
  table.rows = ListedTexts(std::move(rows));
  return table;
}

TEST(TablePages, HeadingsAndNumberAreOnEveryPageTheTitleOnTheFirst) {
  const auto pages = PagesOf(TableOfRows(7));
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_THAT(pages[0].Texts(), ElementsAre(u"T", u"N", u"Y", u"r1", u"1", u"r2", u"2", u"r3", u"3", u"r4", u"4", u"r5",
                                            u"5", u"Page 1 of 2"));
  EXPECT_THAT(pages[1].Texts(), ElementsAre(u"N", u"Y", u"r6", u"6", u"r7", u"7", u"Page 2 of 2"));
}

TEST(TablePages, PlacesAreThoseOfTheirColumns) {
  const auto pages = PagesOf(TableOfRows(1));
  const std::vector<DrawnLine>& lines = pages.at(0).lines;
  ASSERT_THAT(lines, SizeIs(6));
  EXPECT_EQ(lines[0].box, (PageBox{50, 40, 300, 30}));
  EXPECT_EQ(lines[0].style, (LineStyle{PageFont::kTitle, Place::kLeft, false}));
  EXPECT_EQ(lines[1].box, (PageBox{50, 80, 20, 20}));
  EXPECT_EQ(lines[2].box, (PageBox{80, 80, 12, 20}));
  EXPECT_EQ(lines[2].style, (LineStyle{PageFont::kHeading, Place::kRight, false}));
  EXPECT_EQ(lines[3].box, (PageBox{50, 102, 20, 20}));
  EXPECT_EQ(lines[4].style, (LineStyle{PageFont::kText, Place::kRight, false}));
  EXPECT_EQ(lines[5].box, (PageBox{50, 220, 300, 20}));
  EXPECT_EQ(lines[5].style, (LineStyle{PageFont::kText, Place::kCenter, false}));
  EXPECT_THAT(pages[0].rules, ElementsAre(PageBox{50, 101, 42, 1}));
}

TEST(TablePages, ATextFromRightToLeftBeginsAtTheRight) {
  const auto pages = PagesOf({.columns = {{"N"}}, .rows = ListedTexts({{"משה 5"}, {"Moshe משה"}})});
  EXPECT_EQ(pages[0].lines[1].style, (LineStyle{PageFont::kText, Place::kRight, true}));
  EXPECT_EQ(pages[0].lines[2].style, (LineStyle{PageFont::kText, Place::kLeft, false}));
}

TEST(TablePages, WideColumnsAreNarrowedAndTheirTextsWrapped) {
  const Table table = {.columns = {{"A"}, {"B"}},
                       .rows = ListedTexts({{"ab", "one two three four five six seven eight"}})};
  RecordedPage measuring;
  EXPECT_TRUE(TablePages(table, kSheet, kDotsPerInch, measuring).IsNarrowed());
  EXPECT_FALSE(TablePages(TableOfRows(3), kSheet, kDotsPerInch, measuring).IsNarrowed());
  const auto pages = PagesOf(table);
  EXPECT_THAT(pages[0].Texts(),
              ElementsAre(u"A", u"B", u"ab", u"one two three four five six", u"seven eight", u"Page 1 of 1"));
  for (const DrawnLine& line : pages[0].lines) EXPECT_LE(line.box.Right(), kSheet.body.Right());
}

TEST(TablePages, ControlCharactersAreBlanksAndLineEndsStay) {
  const auto pages = PagesOf({.columns = {{"A"}}, .rows = ListedTexts({{"a\tb\r\nc\rd\ne"}})});
  EXPECT_THAT(pages[0].Texts(), ElementsAre(u"A", u"a b", u"c", u"d", u"e", u"Page 1 of 1"));
}

TEST(TablePages, TitleAndHeadingsLeaveRoomForRows) {
  const std::string endless(3000, 'x');
  Table table = TableOfRows(3);
  table.title = endless;
  table.remarks = {endless, endless};
  table.columns[0].heading = endless;
  const auto pages = PagesOf(table);
  std::vector<std::u16string> texts;
  for (const RecordedPage& page : pages) {
    for (const DrawnLine& line : page.lines) {
      EXPECT_LE(line.box.Bottom(), kSheet.body.Bottom());
      texts.push_back(line.text);
    }
  }
  for (const char16_t* row : {u"r1", u"r2", u"r3"}) EXPECT_THAT(texts, Contains(std::u16string(row)));
}

TEST(TablePages, ATableWithoutColumnsOrRowsIsAPage) {
  EXPECT_THAT(PagesOf({})[0].Texts(), ElementsAre(u"Page 1 of 1"));
  EXPECT_THAT(PagesOf({.title = "T", .columns = {{"A"}}})[0].Texts(), ElementsAre(u"T", u"A", u"Page 1 of 1"));
}

// Tables of every shape on sheets of every size: each row once and in order, nothing outside the body, no two texts on
// one place.
TEST(TablePages, EveryRowIsThereOnceAndNothingBeyondThePage) {
  for (int shape = 0; shape < 300; ++shape) {
    Table table;
    if (shape % 3) table.title = "Title of many words";
    if (shape % 5 == 0) table.remarks = {"a remark", "הערה"};
    for (int column = 0; column <= shape % 4; ++column) table.columns.push_back({"h" + std::to_string(column)});
    std::vector<std::vector<std::string>> texts;
    for (int row = 0; row < shape % 37; ++row) {
      texts.push_back({"<" + std::to_string(row) + ">"});
      for (int column = 1; column <= shape % 4; ++column) {
        texts.back().push_back(std::string(static_cast<std::size_t>((row * 7 + column * shape) % 40), 'x'));
      }
    }
    table.rows = ListedTexts(std::move(texts));
    const Sheet sheet = {400, 300, {50, 40, 200 + shape % 100, 180 + shape % 90}};
    std::u16string rows;
    const auto pages = PagesOf(table, sheet);
    for (const RecordedPage& page : pages) {
      std::set<std::pair<int, int>> places;
      for (const DrawnLine& line : page.lines) {
        EXPECT_GE(line.box.x, sheet.body.x);
        EXPECT_GE(line.box.y, sheet.body.y);
        EXPECT_LE(line.box.Right(), sheet.body.Right()) << shape;
        EXPECT_LE(line.box.Bottom(), sheet.body.Bottom()) << shape;
        EXPECT_TRUE(places.insert({line.box.x, line.box.y}).second) << shape;
        if (line.box.x == sheet.body.x && line.style.font == PageFont::kText && line.text[0] == u'<') rows += line.text;
      }
    }
    std::u16string expected;
    for (int row = 0; row < shape % 37; ++row) expected += Utf16Of("<" + std::to_string(row) + ">");
    EXPECT_EQ(rows, expected) << shape;
  }
}

}  // namespace
}  // namespace publishing
