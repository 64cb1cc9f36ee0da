#include "publishing/core/table_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "publishing/core/unicode.h"
#include "tests/core/recorded_page.h"

namespace publishing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::SizeIs;

constexpr int kDotsPerInch = 80;  // gaps of 10 dots between columns, 1 between rows
constexpr Sheet kSheet = {400, 300, {50, 40, 300, 200}};

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

TEST(TablePages, AGroupStandsBoldAcrossTheTableAndKeepsToItsRows) {
  Table table = TableOfRows(0);
  std::vector<Row> rows;
  for (int row = 1; row <= 5; ++row) rows.push_back({.cells = {"r" + std::to_string(row), "1"}});
  rows.push_back({.cells = {"Month"}, .kind = RowKind::kGroup});
  rows.push_back({.cells = {"r6", "2"}, .isBold = true});
  table.rows = Listed(rows);
  const auto pages = PagesOf(table);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_THAT(pages[1].Texts(), ElementsAre(u"N", u"Y", u"Month", u"r6", u"2", u"Page 2 of 2"));
  EXPECT_EQ(pages[1].Line(u"Month").style, (LineStyle{PageFont::kHeading, Place::kLeft, false}));
  EXPECT_EQ(pages[1].Line(u"r6").style.font, PageFont::kHeading);
  EXPECT_EQ(pages[1].Line(u"Month").box, (PageBox{50, 62, 300, 20})) << "below headings of 22, as wide as it needs";
}

TEST(TablePages, ARowCanBeginAPage) {
  Table table = TableOfRows(0);
  table.rows = Listed({{.cells = {"r1", "1"}}, {.cells = {"r2", "2"}, .beginsPage = true}});
  EXPECT_EQ(PagesOf(table).size(), 2u);
}

TEST(TablePages, OtherPagesHaveTheRunningHeadWhereTheFirstHasTheTitle) {
  Table table = TableOfRows(7);
  table.runningHead = "Aachen, 5787";
  const auto pages = PagesOf(table);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_THAT(pages[0].Texts(), testing::Not(Contains(u"Aachen, 5787")));
  EXPECT_EQ(pages[1].Line(u"Aachen, 5787").box, (PageBox{50, 40, 300, 16}));
  EXPECT_EQ(pages[1].Line(u"Aachen, 5787").style.font, PageFont::kSmall);
  EXPECT_EQ(pages[1].Line(u"N").box.y, 40 + 16 + 5) << "half a gap below it";
}

TEST(TablePages, ThePagesNumberIsInTheTablesWords) {
  Table table = TableOfRows(1);
  table.pageText = "עמוד %1 מתוך %2";
  EXPECT_EQ(PagesOf(table)[0].Line(u"עמוד 1 מתוך 1").style, (LineStyle{PageFont::kText, Place::kCenter, true}));
}

// Six rows have room on the first page. A gap of 10 and a line of 20 are more than a row.
TEST(TablePages, NotesStandTogetherBelowTheLastRow) {
  Table table = TableOfRows(2);
  table.notes = {"first note", "הערה"};
  const auto one = PagesOf(table);
  ASSERT_EQ(one.size(), 1u);
  EXPECT_EQ(one[0].Line(u"first note").box.y, 40 + 40 + 22 + 2 * 21 + 10);
  EXPECT_EQ(one[0].Line(u"הערה").style, (LineStyle{PageFont::kText, Place::kRight, true}));
  table.rows = TableOfRows(5).rows;
  const auto two = PagesOf(table);
  ASSERT_EQ(two.size(), 2u);
  EXPECT_THAT(two[1].Texts(), ElementsAre(u"first note", u"הערה", u"Page 2 of 2")) << "no headings without rows";
}

TEST(TablePages, NotesThatNoPageCanHoldGoOnOnTheNext) {
  Table table = TableOfRows(1);
  table.notes.assign(20, "note");
  const auto pages = PagesOf(table);
  EXPECT_EQ(pages.size(), 4u) << "eight lines of 20 to a page of 170";
  std::size_t notes = 0;
  for (const RecordedPage& page : pages) {
    for (const DrawnLine& line : page.lines) notes += line.text == u"note" ? 1 : 0;
  }
  EXPECT_EQ(notes, 20u);
}

TEST(TablePages, TheFirstColumnOfATableFromRightToLeftIsAtTheRight) {
  Table table = {.title = "לוח", .columns = {{"תאריך"}, {"שעה"}, {"סוף", Align::kEnd}}, .rightToLeft = true};
  table.rows = ListedTexts({{"אב", "12:30", "5"}});
  const auto pages = PagesOf(table);
  const DrawnLine date = pages[0].Line(u"אב");
  const DrawnLine time = pages[0].Line(u"12:30");
  EXPECT_EQ(date.box.Right(), kSheet.body.Right());
  EXPECT_EQ(time.box.Right(), date.box.x - 10) << "a gap";
  EXPECT_EQ(time.style, (LineStyle{PageFont::kText, Place::kRight, false}));
  EXPECT_EQ(pages[0].Line(u"5").style.place, Place::kLeft) << "the end is where the table ends";
  EXPECT_EQ(pages[0].rules.at(0).Right(), kSheet.body.Right());
  EXPECT_EQ(pages[0].Line(u"לוח").style.place, Place::kRight);
}

TEST(TablePages, AColumnsDirectionIsThatOfAllItsTexts) {
  const Table table = {.columns = {{.heading = "N", .direction = Direction::kLeftToRight},
                                   {.heading = "S", .direction = Direction::kRightToLeft}},
                       .rows = ListedTexts({{"משה", "12:30"}})};
  const auto pages = PagesOf(table);
  EXPECT_EQ(pages[0].Line(u"משה").style, (LineStyle{PageFont::kText, Place::kLeft, false}));
  EXPECT_EQ(pages[0].Line(u"12:30").style, (LineStyle{PageFont::kText, Place::kRight, true}));
}

// Eight columns of five characters are 400 dots and their gaps 70, of 300: with half the gaps and letters of 62 % all
// words are whole.
TEST(TablePages, LettersGetSmallerBeforeWordsAreBroken) {
  Table table;
  std::vector<std::string> times;
  for (int column = 0; column < 8; ++column) {
    table.columns.push_back({"T"});
    times.push_back("12:3" + std::to_string(column));
  }
  table.rows = ListedTexts({times, times});
  const auto pages = PagesOf(table);
  for (const std::string& time : times) {
    const DrawnLine line = pages[0].Line(Utf16Of(time));
    EXPECT_LT(line.size, kUsualSize);
    EXPECT_GT(line.size, 550);
    EXPECT_LE(line.box.Right(), kSheet.body.Right());
  }
  EXPECT_THAT(pages[0].hairs, SizeIs(1)) << "between the rows";
}

TEST(TablePages, AWordThatNoPageCanHoldDoesNotMakeAllOthersSmall) {
  Table table = TableOfRows(1);
  table.columns.push_back({"Remark"});
  table.rows = ListedTexts({{"r1", "1", std::string(100, 'x')}});
  EXPECT_EQ(PagesOf(table)[0].Line(u"r1").size, kUsualSize);
}

TEST(TablePages, TheProgressCanEndTheLayingOut) {
  const Table table = TableOfRows(500);
  RecordedPage measuring;
  std::size_t last = 0;
  std::size_t all = 0;
  const Progress goOn = [&](std::size_t done, std::size_t total) {
    EXPECT_GE(done, last);
    EXPECT_LE(done, total);
    last = done;
    all = total;
    return true;
  };
  EXPECT_FALSE(TablePages(table, kSheet, kDotsPerInch, measuring, goOn).IsCancelled());
  EXPECT_GT(last, all * 9 / 10);
  for (std::size_t limit = 0; limit < all; limit += 100) {
    const Progress end = [limit](std::size_t done, std::size_t) { return done < limit; };
    EXPECT_TRUE(TablePages(table, kSheet, kDotsPerInch, measuring, end).IsCancelled()) << limit;
  }
}

// Rows that tell how often they are read.
class CountedRows : public Rows {
 public:
  std::size_t Count() const override { return 1000; }
  void Read(std::size_t index, Row& row) const override {
    ++reads;
    row = {.cells = {std::to_string(index)}};
  }
  mutable std::size_t reads = 0;
};

TEST(TablePages, OnlyTheRowsOfAPageAreReadForIt) {
  const auto rows = std::make_shared<CountedRows>();
  const Table table = {.columns = {{"N"}}, .rows = rows};
  RecordedPage measuring;
  const TablePages pages(table, kSheet, kDotsPerInch, measuring);
  EXPECT_LE(rows->reads, 2000u);
  rows->reads = 0;
  RecordedPage page;
  pages.Draw(page, 100);
  EXPECT_EQ(rows->reads, 7u) << "that have room on a page";
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
