#include "publishing/core/table_text.h"

#include <gtest/gtest.h>

#include "tests/core/written_files.h"

namespace publishing {
namespace {

using written::TextOf;

const std::string kMark = "\xEF\xBB\xBF";

TEST(TableText, ColumnsArePaddedByCharacters) {
  const Table table = {.title = "Persons",
                       .remarks = {"of 2026"},
                       .columns = {{"Name"}, {"Age", Align::kEnd}, {"Place"}},
                       .rows = ListedTexts({{"שָׂרָה", "7", "Aachen"}, {"Соломон", "120", ""}, {"Li"}})};
  EXPECT_EQ(TextOf(table), kMark +
                               "Persons\r\n"
                               "of 2026\r\n"
                               "\r\n"
                               "Name     Age  Place\r\n"
                               "-------  ---  ------\r\n"
                               "שָׂרָה        7  Aachen\r\n"
                               "Соломон  120\r\n"
                               "Li\r\n");
}

TEST(TableText, BreaksOutsideOfCellsAreBlanks) {
  const Table table = {
      .title = "a\nb", .remarks = {"c\td"}, .columns = {{"e\r\nf"}}, .rows = ListedTexts({{"g\nh\ti"}})};
  EXPECT_EQ(TextOf(table), kMark + "a b\r\nc d\r\n\r\ne f\r\n---\r\ng\r\nh i\r\n");
}

TEST(TableText, LinesOfACellStandBelowEachOther) {
  const Table table = {.columns = {{"A"}, {"B", Align::kEnd}, {"C"}},
                       .rows = ListedTexts({{"a\nbcd", "1\r22\r\n333", "x"}, {"e\n", "", "y"}})};
  EXPECT_EQ(TextOf(table), kMark +
                               "A      B  C\r\n"
                               "---  ---  -\r\n"
                               "a      1  x\r\n"
                               "bcd   22\r\n"
                               "     333\r\n"
                               "e         y\r\n");
}

TEST(TableText, WithoutTitleItBeginsWithTheHeadings) {
  const Table table = {
      .columns = {{"a"}, {"b"}},
  };
  EXPECT_EQ(TextOf(table), kMark + "a  b\r\n-  -\r\n");
}

TEST(TableText, GroupsStandInLinesOfTheirOwnAndNotesBelow) {
  const Table table = {.columns = {{"a"}, {"b"}},
                       .rows = Listed({{.cells = {"January of a year"}, .kind = RowKind::kGroup},
                                       {.cells = {"1", "22"}, .isBold = true},
                                       {.cells = {"February"}, .kind = RowKind::kGroup, .beginsPage = true},
                                       {.cells = {"3"}}}),
                       .notes = {"n", "o\np"}};
  EXPECT_EQ(TextOf(table), kMark +
                               "a  b\r\n"
                               "-  --\r\n"
                               "\r\n"
                               "January of a year\r\n"
                               "1  22\r\n"
                               "\r\n"
                               "February\r\n"
                               "3\r\n"
                               "\r\n"
                               "n\r\n"
                               "o p\r\n");
}

TEST(TableText, TheFirstColumnIsTheFirstInALineWhicheverSideATableBeginsAt) {
  EXPECT_EQ(TextOf({.columns = {{"א"}, {"ב"}}, .rows = ListedTexts({{"ג", "16:05"}}), .rightToLeft = true}),
            kMark + "א  ב\r\n-  -----\r\nג  16:05\r\n");
}

TEST(TableText, SignsThatTurnWhatFollowsAndControlCharactersAreLeftOut) {
  const Table table = {.title = "\u202Ea\u2066", .columns = {{"b\x1B[1m"}}, .rows = ListedTexts({{"c\u2028d\xFF"}})};
  EXPECT_EQ(TextOf(table), kMark + "a\r\n\r\nb[1m\r\n----\r\nc d\uFFFD\r\n");
}

TEST(TableText, MarksOfASingleCharacterStay) {
  EXPECT_EQ(TextOf({.columns = {{"\u200Fa\u200E"}}}), kMark + "\u200Fa\u200E\r\n-\r\n");
}

}  // namespace
}  // namespace publishing
