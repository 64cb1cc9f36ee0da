// That word processors show these files right is what the test "word_processor" sees to.
#include "publishing/core/table_rtf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "publishing/core/column_widths.h"
#include "tests/core/written_files.h"

namespace publishing {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using written::RtfOf;

const RtfStyle kFont = {.face = "Times New Roman", .halfPoints = 20};

std::string OfCell(const std::string& text, Align align = Align::kStart) {
  return RtfOf({.columns = {{"H", align}}, .rows = ListedTexts({{text}})}, kFont);
}

// RTF 1.9.1, "Unicode RTF": a signed number of 16 bits and what readers without Unicode show.
TEST(TableRtf, WhatIsNotAsciiIsWrittenByItsNumber) {
  EXPECT_THAT(OfCell("é€\uFFFD"), HasSubstr("\\u233?\\u8364?\\u-3?"));
  EXPECT_THAT(OfCell("👪"), HasSubstr("\\u-10179?\\u-9110?"));  // U+D83D, U+DC6A
  const std::string rtf =
      RtfOf({.title = "é", .remarks = {"è"}, .columns = {{"ê"}}, .rows = ListedTexts({{"ש\x01"}})}, {"Ö;{}", 20});
  EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(),
                          [](char byte) { return (byte >= ' ' && byte < 0x7F) || byte == '\r' || byte == '\n'; }));
  EXPECT_THAT(rtf, HasSubstr("{\\f0\\fnil\\fcharset0 \\u214?\\{\\};}"));
}

// By hand: room is 11906 - 2 * 1134 = 9638 twips upright and 14570 across. A column whose widest word has six bold
// letters, which count as seven, takes 8 * 5.5 * 20 + 216 = 1096 at 10 points, and 876 at 7.5.
TEST(TableRtf, LettersBecomeSmallerWhereColumnsHaveNoRoom) {
  const auto ofTimes = [](std::size_t count) {
    const std::vector<Column> columns(count, Column{"latest time of it"});
    return RtfOf({.columns = columns, .rows = ListedTexts({std::vector<std::string>(count, "10:15")})}, kFont);
  };
  EXPECT_THAT(ofTimes(8), HasSubstr("\\fs20 "));
  EXPECT_THAT(ofTimes(8), Not(HasSubstr("\\landscape")));
  EXPECT_THAT(ofTimes(13), AllOf(HasSubstr("\\landscape"), HasSubstr("\\fs20 ")));
  EXPECT_THAT(ofTimes(16), AllOf(HasSubstr("\\fs15 "), Not(HasSubstr("\\fs20 "))));
  EXPECT_THAT(ofTimes(40), AllOf(HasSubstr("\\fs10 "), HasSubstr("\\trgaph30\\")));
}

TEST(TableRtf, ALongTextIsBrokenRatherThanSmall) {
  const Table table = {.columns = {{"A"}, {"B"}}, .rows = ListedTexts({{"x", std::string(400, 'x')}})};
  EXPECT_THAT(RtfOf(table, kFont), AllOf(HasSubstr("\\landscape"), HasSubstr("\\fs20 ")));
}

TEST(TableRtf, LinesOfATextStayLines) {
  const std::string rtf = OfCell("ab\r\nשם\nc");
  EXPECT_THAT(rtf, HasSubstr(" ab}\\line\r\n{"));
  EXPECT_THAT(rtf, HasSubstr("\\u1513?\\u1501?}\\line\r\n{"));
  EXPECT_THAT(rtf, HasSubstr(" c}\\cell"));
}

TEST(TableRtf, MarkupInTextsIsEscaped) {
  EXPECT_THAT(OfCell("{a}\\b\tc"), HasSubstr(" \\{a\\}\\\\b c}"));
}

TEST(TableRtf, ATextFromRightToLeftBeginsAtTheRight) {
  EXPECT_THAT(OfCell("אב"),
              HasSubstr("\\rtlpar\\qr {\\ltrch\\fcs0\\f0\\fs20\\rtlch\\fcs1\\af0\\afs20 \\u1488?\\u1489?}"));
  EXPECT_THAT(OfCell("ab"), HasSubstr("\\ltrpar\\ql {\\rtlch\\fcs1\\af0\\afs20\\ltrch\\fcs0\\f0\\fs20 ab}"));
  EXPECT_THAT(OfCell("ab", Align::kEnd), HasSubstr("\\ltrpar\\qr "));
}

TEST(TableRtf, PartsOfATextAreEachWrittenTheirWay) {
  EXPECT_THAT(OfCell("a ב"), HasSubstr("\\fs20 a }{\\ltrch\\fcs0\\f0\\fs20\\rtlch\\fcs1\\af0\\afs20 \\u1489?}\\cell"));
}

TEST(TableRtf, HeadingsAreBoldAndRepeated) {
  EXPECT_THAT(OfCell("x"), AllOf(HasSubstr("\\trowd\\trhdr\\trkeep"), HasSubstr("\\fs20\\b H}\\cell\r\n\\row")));
  EXPECT_THAT(RtfOf({.title = "T", .columns = {{"H"}}}, kFont), HasSubstr("\\fs28\\b T}\\par"));
}

std::vector<int> RightEdges(const std::string& rtf) {
  std::vector<int> edges;
  for (std::size_t at = rtf.find("\\cellx"); at != std::string::npos; at = rtf.find("\\cellx", at + 1)) {
    edges.push_back(std::atoi(rtf.c_str() + at + 6));
  }
  return edges;
}

// A character of 10 points takes 110 twips, a cell 108 at each side.
TEST(TableRtf, ColumnsAreAsWideAsTheirLongestText) {
  const std::string rtf =
      RtfOf({.columns = {{"abc"}, {"d"}}, .rows = ListedTexts({{"x", std::string(9, 'x')}})}, kFont);
  EXPECT_THAT(RightEdges(rtf), ElementsAre(4 * 110 + 216, 4 * 110 + 216 + 10 * 110 + 216, 656, 1972));
  EXPECT_THAT(rtf, AllOf(HasSubstr("\\paperw11906\\paperh16838"), Not(HasSubstr("landscape"))));
}

// A4 across has 14570 twips between margins of 2 cm.
TEST(TableRtf, WideColumnsLieAcrossTheSheetAndShareIt) {
  const std::string rtf = RtfOf(
      {.columns = {{"abc"}, {"d"}, {"e"}}, .rows = ListedTexts({{"x", std::string(500, 'x'), std::string(90, 'y')}})},
      kFont);
  EXPECT_THAT(rtf, HasSubstr("\\paperw16838\\paperh11906"));
  EXPECT_THAT(rtf, HasSubstr("\\landscape"));
  const std::vector<int> edges = RightEdges(rtf);
  EXPECT_EQ(edges[0], 656);
  EXPECT_NEAR(edges[2], 14570, 3);
}

TEST(TableRtf, ImpossibleSizesAreLimited) {
  EXPECT_THAT(RtfOf({.columns = {{"H"}}}, {"F", 1 << 30}), HasSubstr("\\fs400"));
  EXPECT_THAT(RtfOf({.columns = {{"H"}}}, {"F", -5}), HasSubstr("\\fs2"));
}

TEST(TableRtf, ATableWithoutColumnsIsATextWithoutATable) {
  EXPECT_THAT(RtfOf({.title = "T", .rows = ListedTexts({{"x"}})}, kFont), Not(HasSubstr("\\trowd")));
}

// 100 - 10 leaves 90: an equal share of 33 each and the rest of 24 as 67 to 17, which is 19 and 4.
TEST(ColumnWidths, WideColumnsShareWhatTheOthersLeave) {
  EXPECT_THAT(ColumnWidths({10, 100, 50}, 100), ElementsAre(10, 33 + 67 * 24 / 84, 33 + 17 * 24 / 84));
  EXPECT_THAT(ColumnWidths({10, 20}, 30), ElementsAre(10, 20));
  EXPECT_THAT(ColumnWidths({10, 21}, 30), ElementsAre(10, 20));
  EXPECT_THAT(ColumnWidths({5, 5}, 0), ElementsAre(0, 0));
  EXPECT_THAT(ColumnWidths({}, 10), ElementsAre());
}

TEST(ColumnWidths, NoColumnIsWiderThanItsOwnNorTheTableThanTheRoom) {
  for (int seed = 0; seed < 5000; ++seed) {
    std::vector<int> own;
    for (int column = 0; column <= seed % 9; ++column) own.push_back((seed * 7919 + column * column * 104729) % 1000);
    const int room = (seed * 31) % 3000;
    const std::vector<int> widths = ColumnWidths(own, room);
    int total = 0;
    for (std::size_t column = 0; column < own.size(); ++column) {
      EXPECT_LE(widths[column], own[column]);
      EXPECT_GE(widths[column], std::min(own[column], room / static_cast<int>(own.size())));
      total += widths[column];
    }
    EXPECT_LE(total, room);
  }
}

TEST(TableRtf, PaperAndOrientationAreTheUsersOwn) {
  const auto of = [](PaperSize size, Orientation orientation) {
    return RtfOf({.columns = {{"H"}}}, {.face = "F", .paper = size, .orientation = orientation});
  };
  EXPECT_THAT(of(PaperSize::kLetter, Orientation::kAutomatic), HasSubstr("\\paperw12240\\paperh15840"));
  EXPECT_THAT(of(PaperSize::kLetter, Orientation::kLandscape),
              AllOf(HasSubstr("\\paperw15840\\paperh12240"), HasSubstr("\\lndscpsxn")));
  EXPECT_THAT(of(PaperSize::kA4, Orientation::kLandscape), HasSubstr("\\paperw16838\\paperh11906"));
  EXPECT_THAT(RtfOf({.columns = {{std::string(500, 'x')}}}, {.face = "F", .orientation = Orientation::kPortrait}),
              AllOf(HasSubstr("\\paperw11906\\paperh16838"), Not(HasSubstr("lndscpsxn")), HasSubstr("\\cellx9638")));
}

TEST(TableRtf, EachPageHasItsNumberAndAllButTheFirstTheTitle) {
  const std::string rtf = RtfOf({.title = "T", .remarks = {"R", "S"}, .columns = {{"H"}}}, kFont);
  EXPECT_THAT(rtf, AllOf(HasSubstr("\\titlepg"), HasSubstr("{\\footerf"), HasSubstr("{\\footer\\"),
                         HasSubstr("{\\field{\\*\\fldinst PAGE}"), HasSubstr(" T \\u8211? R}\\par}"),
                         Not(HasSubstr("{\\headerf"))));
  EXPECT_THAT(RtfOf({.columns = {{"H"}}}, kFont), Not(HasSubstr("{\\header")));
}

TEST(TableRtf, AGroupIsOneCellAcrossTheTable) {
  const Table table = {
      .columns = {{"abc"}, {"d"}},
      .rows = Listed({{.cells = {"Group that is longer than all"}, .kind = RowKind::kGroup}, {{"x"}}})};
  const std::string rtf = RtfOf(table, kFont);
  EXPECT_THAT(RightEdges(rtf), ElementsAre(656, 1092, 1092, 656, 1092));
  EXPECT_THAT(rtf, HasSubstr("\\cellx1092\r\n\\pard\\intbl\\keepn\\sb120\\ltrpar\\ql "
                             "{\\rtlch\\fcs1\\af0\\afs20\\ab\\ltrch\\fcs0\\f0\\fs20\\b Group that is longer than all}"
                             "\\cell\r\n\\row"));
}

TEST(TableRtf, BoldRowsAreBold) {
  const Table table = {.columns = {{"H"}}, .rows = Listed({{.cells = {"x"}, .isBold = true}, {.cells = {"y"}}})};
  EXPECT_THAT(RtfOf(table, kFont), AllOf(HasSubstr("\\fs20\\b x}"), HasSubstr("\\fs20 y}")));
}

std::size_t CountOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(TableRtf, APageBeginsWithATableOfItsOwnButNotTheFirst) {
  const Table table = {.columns = {{"H"}},
                       .rows = Listed({{.cells = {"x"}, .beginsPage = true}, {.cells = {"y"}, .beginsPage = true}})};
  const std::string rtf = RtfOf(table, kFont);
  EXPECT_EQ(CountOf(rtf, "\\pagebb"), 1u);
  EXPECT_EQ(CountOf(rtf, "\\trhdr"), 2u);
  EXPECT_THAT(rtf, HasSubstr("\\row\r\n\\pard\\pagebb"));
}

// A4 has 9638 twips between margins of 2 cm.
TEST(TableRtf, ATableFromTheRightReachesFromMarginToMargin) {
  const std::string rtf =
      RtfOf({.columns = {{"א"}, {"ב"}}, .rows = ListedTexts({{"16:05", "x"}}), .rightToLeft = true}, kFont);
  EXPECT_NEAR(RightEdges(rtf)[1], 9638, 1);
  EXPECT_THAT(rtf, AllOf(HasSubstr("\\trowd\\trhdr\\rtlrow\\taprtl"), HasSubstr("\\trowd\\rtlrow\\taprtl")));
  EXPECT_THAT(rtf, HasSubstr("\\rtlpar\\qr {\\rtlch\\fcs1\\af0\\afs20\\ltrch\\fcs0\\f0\\fs20 16:05}"));
  EXPECT_THAT(rtf, HasSubstr("\\ltrpar\\ql {\\rtlch\\fcs1\\af0\\afs20\\ltrch\\fcs0\\f0\\fs20 x}"));
}

TEST(TableRtf, AColumnMayHaveADirection) {
  const auto inColumn = [](Direction direction, Align align, const char* text) {
    return RtfOf({.columns = {{.align = align, .direction = direction}}, .rows = ListedTexts({{text}})}, kFont);
  };
  EXPECT_THAT(inColumn(Direction::kRightToLeft, Align::kStart, "ab"), HasSubstr("\\intbl\\rtlpar\\qr {"));
  EXPECT_THAT(inColumn(Direction::kRightToLeft, Align::kEnd, "ab"), HasSubstr("\\intbl\\rtlpar\\ql {"));
  EXPECT_THAT(inColumn(Direction::kLeftToRight, Align::kEnd, "אב"), HasSubstr("\\intbl\\ltrpar\\qr {"));
}

TEST(TableRtf, NotesStandBelowTheTable) {
  const std::string rtf = RtfOf({.columns = {{"H"}}, .notes = {"N", "O"}}, kFont);
  const std::size_t first = rtf.find(" N}\\par\r\n", rtf.rfind("\\row\r\n"));
  const std::size_t second = rtf.find(" O}\\par\r\n\\pard\\par}");
  ASSERT_NE(first, std::string::npos);
  ASSERT_NE(second, std::string::npos);
  EXPECT_LT(first, second);
}

TEST(TableRtf, SignsThatTurnWhatFollowsAreLeftOut) {
  EXPECT_THAT(OfCell("a\u202Eb\u2067c\u2069"), HasSubstr(" abc}"));
}

}  // namespace
}  // namespace publishing
