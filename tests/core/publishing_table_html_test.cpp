// That browsers and tidy take these pages is what the test "table_files" sees to.
#include "publishing/core/table_html.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "publishing/core/html_text.h"
#include "tests/core/written_files.h"

namespace publishing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using written::HtmlOf;

std::string Escaped(std::string_view text) {
  std::string html;
  AppendHtml(html, text);
  return html;
}

// What stands between the style and the end.
std::string BodyOf(const Table& table) {
  const std::string html = HtmlOf(table);
  const std::size_t begin = html.find("<main>");
  return html.substr(begin, html.find("</main>") - begin);
}

std::string OfCell(const Column& column, const std::string& text, bool rightToLeft = false) {
  const std::string body = BodyOf({.columns = {column}, .rows = ListedTexts({{text}}), .rightToLeft = rightToLeft});
  const std::size_t begin = body.find("<td");
  return body.substr(begin, body.find("</td>") - begin);
}

TEST(TableHtml, APageHasItsLanguageDirectionAndName) {
  EXPECT_THAT(HtmlOf({.title = "שבת & זמנים", .rightToLeft = true, .language = "he"}),
              AllOf(StartsWith("<!DOCTYPE html>\n<html lang=\"he\" dir=\"rtl\">\n<head>\n<meta charset=\"utf-8\">\n"),
                    HasSubstr("<title>שבת &amp; זמנים</title>")));
  EXPECT_THAT(HtmlOf({}), AllOf(HasSubstr("<html dir=\"ltr\">"), HasSubstr("<title>Times / Readings</title>")));
}

TEST(TableHtml, APageRunsNothingAndLoadsNothing) {
  const std::string html = HtmlOf({.title = "T", .columns = {{"H"}}, .rows = ListedTexts({{"x"}})});
  EXPECT_THAT(html, AllOf(Not(HasSubstr("<script")), Not(HasSubstr("http")), Not(HasSubstr("url(")),
                          Not(HasSubstr("<link")), Not(HasSubstr("@import"))));
}

TEST(TableHtml, RowsStandInBodiesByGroup) {
  const Table table = {.title = "T",
                       .remarks = {"R"},
                       .columns = {{"A"}, {"B"}},
                       .rows = Listed({{.cells = {"1", "2"}, .beginsPage = true},
                                       {.cells = {"G"}, .kind = RowKind::kGroup, .beginsPage = true},
                                       {.cells = {"3"}, .isBold = true},
                                       {.cells = {"4", "5"}, .isBold = true, .beginsPage = true}}),
                       .notes = {"N"}};
  EXPECT_EQ(BodyOf(table),
            "<main>\n"
            "<h1><bdi>T</bdi></h1>\n"
            "<p><bdi>R</bdi></p>\n"
            "<div class=\"wide\">\n"
            "<table>\n"
            "<caption>T</caption>\n"
            "<thead>\n"
            "<tr>\n"
            "<th scope=\"col\"><bdi>A</bdi></th>\n"
            "<th scope=\"col\"><bdi>B</bdi></th>\n"
            "</tr>\n"
            "</thead>\n"
            "<tbody>\n"
            "<tr>\n"
            "<td data-label=\"A\"><bdi>1</bdi></td>\n"
            "<td data-label=\"B\"><bdi>2</bdi></td>\n"
            "</tr>\n"
            "</tbody>\n"
            "<tbody>\n"
            "<tr class=\"group page\">\n"
            "<th colspan=\"2\" scope=\"rowgroup\"><bdi>G</bdi></th>\n"
            "</tr>\n"
            "<tr class=\"bold\">\n"
            "<td data-label=\"A\"><bdi>3</bdi></td>\n"
            "<td data-label=\"B\"></td>\n"
            "</tr>\n"
            "<tr class=\"bold page\">\n"
            "<td data-label=\"A\"><bdi>4</bdi></td>\n"
            "<td data-label=\"B\"><bdi>5</bdi></td>\n"
            "</tr>\n"
            "</tbody>\n"
            "</table>\n"
            "</div>\n"
            "<p><bdi>N</bdi></p>\n");
}

TEST(TableHtml, MarkupInTextsIsEscaped) {
  EXPECT_EQ(Escaped("<b a=\"c\" d='e'>&amp;"), "&lt;b a=&quot;c&quot; d=&#39;e&#39;&gt;&amp;amp;");
  EXPECT_THAT(BodyOf({.columns = {{"\"><x>\nB"}}, .rows = ListedTexts({{"y"}})}),
              HasSubstr("<td data-label=\"&quot;&gt;&lt;x&gt; B\"><bdi>y</bdi></td>"));
}

// HTML, 13.2.3.5: control characters and noncharacters are errors.
TEST(TableHtml, CharactersThatHtmlForbidsAreLeftOutOrReplaced) {
  EXPECT_EQ(Escaped(std::string("a\0b\x1B\x7F\xC2\x85\tc", 10)), "ab\tc");
  EXPECT_EQ(Escaped("\xEF\xBF\xBE|\xEF\xB7\x90|\xF0\x9F\xBF\xBF|\xFF"), "\uFFFD|\uFFFD|\uFFFD|\uFFFD");
  EXPECT_EQ(Escaped("שָׂרָה 👪"), "שָׂרָה 👪");
}

TEST(TableHtml, LinesOfATextEndInLineFeeds) {
  EXPECT_EQ(Escaped("a\r\nb\nc\rd\n\ne"), "a\nb\nc\nd\n\ne");
}

TEST(TableHtml, ATextBeginsAtTheSideOfItsDirection) {
  EXPECT_EQ(OfCell({}, "אב"), "<td class=\"end\"><bdi>אב</bdi>");
  EXPECT_EQ(OfCell({}, "ab"), "<td><bdi>ab</bdi>");
  EXPECT_EQ(OfCell({}, "16:05", true), "<td><bdi>16:05</bdi>");
  EXPECT_EQ(OfCell({}, "ab", true), "<td class=\"end\"><bdi>ab</bdi>");
  EXPECT_EQ(OfCell({.align = Align::kEnd}, "16:05", true), "<td class=\"end\"><bdi>16:05</bdi>");
  EXPECT_EQ(OfCell({.align = Align::kEnd}, "אב"), "<td><bdi>אב</bdi>");
  EXPECT_EQ(OfCell({.direction = Direction::kRightToLeft}, "a"), "<td class=\"end\"><bdi dir=\"rtl\">a</bdi>");
  EXPECT_EQ(OfCell({.direction = Direction::kLeftToRight}, "א", true), "<td class=\"end\"><bdi dir=\"ltr\">א</bdi>");
}

TEST(TableHtml, SignsOfDirectionStayWithinTheirText) {
  const Table table = {.title = "a\u202Eb", .columns = {{"c\u202Ed"}}, .rows = ListedTexts({{"e\u202Ef"}})};
  EXPECT_THAT(HtmlOf(table), AllOf(HasSubstr("<title>ab</title>"), HasSubstr("<h1><bdi>a\u202Eb</bdi></h1>"),
                                   HasSubstr("<td data-label=\"cd\"><bdi>e\u202Ef</bdi></td>")));
}

TEST(TableHtml, ATableWithoutColumnsIsAPageWithoutATable) {
  EXPECT_EQ(BodyOf({.title = "T", .rows = ListedTexts({{"x"}}), .notes = {"N"}}),
            "<main>\n<h1><bdi>T</bdi></h1>\n<p><bdi>N</bdi></p>\n");
}

// RFC 5646.
TEST(TableHtml, OnlyNamesOfLanguagesAreLanguages) {
  for (const char* tag : {"he", "en-GB", "zh-Hant-TW", "x-123"}) EXPECT_TRUE(IsLanguageTag(tag)) << tag;
  for (const char* text : {"", "-", "he-", "-he", "e\"n", "a b", "abcdefghi", "he--il"}) {
    EXPECT_FALSE(IsLanguageTag(text)) << text;
  }
}

// Empty elements are warnings of tidy's, and rows of a card that say nothing.
TEST(TableHtml, WhereThereIsNothingToShowThereIsNoElement) {
  EXPECT_EQ(BodyOf({.title = "\x01", .remarks = {"", "\x02"}}), "<main>\n");
  EXPECT_EQ(OfCell({}, "\x1B"), "<td>");
}

TEST(TableHtml, DatesAndTimesAreNotBrokenOverLines) {
  EXPECT_EQ(OfCell({}, "2026-03-09"), "<td class=\"whole\"><bdi>2026-03-09</bdi>");
  EXPECT_EQ(OfCell({.align = Align::kEnd}, "9. 3."), "<td class=\"end whole\"><bdi>9. 3.</bdi>");
  EXPECT_EQ(OfCell({}, "08:02 a.m."), "<td class=\"whole\"><bdi>08:02 a.m.</bdi>");
  EXPECT_EQ(OfCell({}, "17 Cheshvan 5787"), "<td class=\"whole\"><bdi>17 Cheshvan 5787</bdi>");
  EXPECT_EQ(OfCell({}, "Bereshit"), "<td><bdi>Bereshit</bdi>");
  const std::string hyphens(19, '-');
  EXPECT_EQ(OfCell({}, hyphens), "<td><bdi>" + hyphens + "</bdi>");
}

TEST(TableHtml, ManyColumnsArePrintedAcrossTheSheetInSmallLetters) {
  const auto of = [](std::size_t columns) { return HtmlOf({.columns = std::vector<Column>(columns, {"H"})}); };
  EXPECT_THAT(of(8), HasSubstr("<main>\n"));
  EXPECT_THAT(of(9), HasSubstr("<main class=\"many\">\n"));
  EXPECT_THAT(of(16), HasSubstr("<main class=\"many\">\n"));
  EXPECT_THAT(of(17), HasSubstr("<main class=\"most\">\n"));
}

}  // namespace
}  // namespace publishing
