#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "publishing/core/csv.h"
#include "tests/core/written_files.h"

namespace publishing {
namespace {

using testing::ElementsAre;
using testing::Optional;
using written::CsvOf;
using Records = std::vector<std::vector<std::string>>;

const Table kTable = {
    .title = "Not in the file",
    .remarks = {"nor this"},
    .columns = {{"Name"}, {"Years", Align::kEnd}},
    .rows = ListedTexts({{"Cohen, \"Moshe\"", "80"}, {"כהן"}, {"a\r\nb", " 1"}, {"", ""}, {"x;y", "z\t"}})};

// RFC 4180, 2.5-2.7.
TEST(Csv, TextsWithCommasQuotesAndLineEndsAreQuoted) {
  EXPECT_EQ(CsvOf(kTable),
            "\xEF\xBB\xBF"
            "Name,Years\r\n"
            "\"Cohen, \"\"Moshe\"\"\",80\r\n"
            "כהן,\r\n"
            "\"a\r\nb\",\" 1\"\r\n"
            ",\r\n"
            "\"x;y\",\"z\t\"\r\n");
}

TEST(Csv, WhatIsWrittenIsRead) {
  const Records expected = {{"Name", "Years"}, {"Cohen, \"Moshe\"", "80"}, {"כהן", ""}, {"a\r\nb", " 1"}, {"", ""},
                            {"x;y", "z\t"}};
  EXPECT_EQ(CsvIn(CsvOf(kTable)), expected);
}

TEST(Csv, TheOnlyTextOfARowMayBeEmpty) {
  const Table table = {.columns = {{""}}, .rows = ListedTexts({{""}, {"a;b"}})};
  EXPECT_EQ(CsvIn(CsvOf(table)), (Records{{""}, {""}, {"a;b"}}));
}

TEST(Csv, LinesEndInAnyWay) {
  const Records expected = {{"a", "b"}, {"c", "d"}};
  for (const char* const text : {"a,b\r\nc,d\r\n", "a,b\nc,d", "a,b\rc,d\r", "\xEF\xBB\xBF\r\n\na,b\n\n\nc,d\n\n"}) {
    EXPECT_EQ(CsvIn(text), expected) << text;
  }
}

TEST(Csv, LastFieldMayBeEmpty) {
  EXPECT_EQ(CsvIn("a,"), (Records{{"a", ""}}));
  EXPECT_EQ(CsvIn(",\r\n"), (Records{{"", ""}}));
}

TEST(Csv, NothingHasNoRecords) {
  EXPECT_EQ(CsvIn(""), Records{});
  EXPECT_EQ(CsvIn("\xEF\xBB\xBF\r\n"), Records{});
}

// Spreadsheets write them where the comma is the decimal sign.
TEST(Csv, SemicolonsOrTabsSeparateWhereTheFirstRecordHasNoComma) {
  EXPECT_EQ(CsvIn("a;\"b,c\"\r\n1,5;d\r\n"), (Records{{"a", "b,c"}, {"1,5", "d"}}));
  EXPECT_EQ(CsvIn("a\tb\nc;d\te"), (Records{{"a", "b"}, {"c;d", "e"}}));
  EXPECT_EQ(CsvIn("a;b,c\n"), (Records{{"a;b", "c"}}));
  EXPECT_EQ(CsvIn("a\nb;c,d"), (Records{{"a"}, {"b;c", "d"}}));
}

TEST(Csv, QuotesWithinAnUnquotedFieldStand) {
  EXPECT_EQ(CsvIn("ד\"ר,b\"\"c"), (Records{{"ד\"ר", "b\"\"c"}}));
}

TEST(Csv, AQuoteThatIsNotClosedIsAnError) {
  for (const char* const text : {"\"", "a,\"b", "\"a\"\"", "\"a\nb,c\n"}) EXPECT_EQ(CsvIn(text), std::nullopt) << text;
}

TEST(Csv, TextAfterAClosingQuoteIsAnError) {
  for (const char* const text : {"\"a\"b", "\"a\" ,b", "x\r\n\"a\"b\r\n"}) EXPECT_EQ(CsvIn(text), std::nullopt) << text;
}

TEST(Csv, AMegabyteOfAnythingIsRead) {
  constexpr std::size_t kMegabyte = 1 << 20;
  EXPECT_EQ(CsvIn(std::string(kMegabyte, 'x')), (Records{{std::string(kMegabyte, 'x')}}));
  EXPECT_EQ(CsvIn(std::string(kMegabyte, ','))->front().size(), kMegabyte + 1);
  EXPECT_EQ(CsvIn(std::string(kMegabyte, '\n')), Records{});
  EXPECT_EQ(CsvIn(std::string(kMegabyte, '"')), (Records{{std::string(kMegabyte / 2 - 1, '"')}}));
  EXPECT_EQ(CsvIn(std::string(kMegabyte - 1, '"')), std::nullopt);
  std::string rubbish;
  for (uint32_t dice = 1; rubbish.size() < kMegabyte; dice = dice * 1664525 + 1013904223) {
    rubbish += static_cast<char>(dice >> 24);
  }
  const auto read = CsvIn(rubbish);
  EXPECT_TRUE(!read || !read->empty());
}

std::string Written(const std::string& text) {
  const std::string mark = "\xEF\xBB\xBF,\r\n";
  const std::string csv = CsvOf({.columns = {{}, {}}, .rows = ListedTexts({{text, ""}})});
  return csv.substr(mark.size(), csv.size() - mark.size() - 3);
}

TEST(Csv, WhatASpreadsheetWouldRunHasAnApostropheBeforeIt) {
  for (const char* const text : {"=cmd|' /C calc'!A0", "+1+1", "-1-1", "@SUM(A1)", "'=1", "''=1", "-", "\uFF1D1",
                                 "\uFF0B1", "\uFF0D1", "\uFF201", "-a", "+", "-3:4", "--3"}) {
    const bool isRun = std::string_view(text) != "-";
    EXPECT_EQ(Written(text), (isRun ? "'" : "") + std::string(text));
  }
  EXPECT_EQ(Written("\tx"), "\"'\tx\"");
  EXPECT_EQ(Written("\rx"), "\"'\rx\"");
  EXPECT_EQ(Written("=\"a\",b"), "\"'=\"\"a\"\",b\"");
}

TEST(Csv, NumbersHyphensAndOtherTextsStandAsTheyAre) {
  for (const char* const text : {"-3", "+2", "-1.500", "-3.14", "---", "a=b", "'tis", "'", "''", "5-3", "16:05"}) {
    EXPECT_EQ(Written(text), text);
  }
  EXPECT_EQ(Written("-3,5"), "\"-3,5\"");
}

TEST(Csv, HeadingsAreGuardedToo) {
  EXPECT_EQ(CsvOf({.columns = {{"=a"}, {"b"}}}), "\xEF\xBB\xBF'=a,b\r\n");
}

TEST(Csv, OnlyAnApostropheOfTheGuardIsTakenOff) {
  EXPECT_EQ(CsvIn("'=a,'tis,''+b,\"'@c\",'-3,'\r\n"), (Records{{"=a", "'tis", "'+b", "@c", "'-3", "'"}}));
}

TEST(Csv, GroupsAreNoRecords) {
  const Table table = {.columns = {{"H"}},
                       .rows = Listed({{.cells = {"G"}, .kind = RowKind::kGroup}, {.cells = {"x"}, .isBold = true}}),
                       .notes = {"N"}};
  EXPECT_EQ(CsvOf(table), "\xEF\xBB\xBFH\r\nx\r\n");
}

TEST(Csv, WhatIsNoTextIsReplaced) {
  EXPECT_EQ(Written(std::string("a\0b\xFF\xC3", 5)), "ab\uFFFD\uFFFD");
  EXPECT_EQ(Written(std::string("\0=1", 3)), "'=1");
}

}  // namespace
}  // namespace publishing
