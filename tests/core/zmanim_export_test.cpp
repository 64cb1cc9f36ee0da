// The files byte for byte, written out by hand.
#include "zmanim/core/zmanim_export.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

#include "output/text_wrap.h"

namespace {

void Format24(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d", hour, minute);
}
void Format12(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d a.m.", hour, minute);
}

// Zman i is i minutes after six, and a minute later every day, but for the marks.
ZmanimDay Day(uint32_t day) {
  ZmanimDay record{};
  record.date = {day, 1, 2007};
  for (uint32_t zman = 0; zman < kMostZmanim; ++zman) {
    record.times[zman] = {6 + static_cast<int32_t>(zman / 60), static_cast<int32_t>(zman % 60 + day - 5)};
  }
  return record;
}

std::vector<std::string> Names(std::size_t count) {
  std::vector<std::string> names;
  for (std::size_t zman = 0; zman < count; ++zman) names.push_back("Z" + std::to_string(zman + 1));
  return names;
}

ZmanimExport Data(std::size_t zmanim, const std::vector<ZmanimDay>& days, bool amPm = false) {
  return {.location = "Haifa",
          .dateTitle = "Date",
          .names = Names(zmanim),
          .hebrew = false,
          .hebrewNames = std::vector<std::string>(zmanim),
          .hebrewFont = "DisplayHebrew1",
          .vilnaGaon = "GR\"O = Vilna Gaon",
          .magenAvraham = "M\"A = Magen Avraham",
          .days = days,
          .formatTime = amPm ? Format12 : Format24,
          .amPm = amPm};
}

std::string Text(const ZmanimExport& data) {
  StringSink sink;
  WriteZmanimText(sink, data, 70);
  return sink.text();
}

std::string Rtf(const ZmanimExport& data, ZmanimRtfLayout layout) {
  StringSink sink;
  WriteZmanimRtf(sink, data, layout);
  return sink.text();
}

std::string Delimited(const ZmanimExport& data, bool header) {
  StringSink sink;
  WriteZmanimDelimited(sink, data, ";", header);
  return sink.text();
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++count;
  return count;
}

// 35 less half of "Haifa" is 33.
#define TEXT_TITLE                                       \
  "                                 Zmanim of Haifa\r\n" \
  "                                 ---------------\r\n" \
  "\r\n"

#define TEXT_LEGEND_OF_TWO "1 = Z1,  2 = Z2         GR\"O = Vilna Gaon     M\"A = Magen Avraham\r\n\r\n"

#define RTF_HEAD "{\\rtf1\\ansi\r\n\\b Zmanim of Haifa\\plain\\par\r\n\\par\r\n"
#define RTF_LEGEND_OF_TWO "1 = Z1,  2 = Z2         GR\"O = Vilna Gaon     M\"A = Magen Avraham\\par\r\n\\par\r\n"

#define RTF_TABLE_OF_TWO                                                                                         \
  "{\\cellx1440\\cellx2160\\cellx2880\r\n\\intbl\r\n\\b Date\\plain\\cell\r\n\\b 1\\plain\\cell\r\n\\b 2\\plain" \
  "\\cell\r\n\\row\r\n\\intbl\r\n"

}  // namespace

TEST(ZmanimTextExport, TwoZmanimOfTwoDays) {
  EXPECT_EQ(Text(Data(2, {Day(5), Day(6)})), TEXT_TITLE TEXT_LEGEND_OF_TWO
            "Date       1     2    \r\n"
            "---------- ----- -----\r\n"
            "05.01.2007 06:00 06:01\r\n"
            "06.01.2007 06:01 06:02\r\n"
            "\r\n");
}

TEST(ZmanimTextExport, TwelveHourTimesAreTenWide) {
  EXPECT_EQ(Text(Data(2, {Day(5)}, true)), TEXT_TITLE TEXT_LEGEND_OF_TWO
            "Date       1          2         \r\n"
            "---------- ---------- ----------\r\n"
            "05.01.2007 06:00 a.m. 06:01 a.m.\r\n"
            "\r\n");
}

TEST(ZmanimTextExport, MarksStandForTimes) {
  ZmanimDay day = Day(5);
  day.times[0] = {2000, 0};
  day.times[1] = {1000, 17};
  EXPECT_NE(Text(Data(2, {day})).find("05.01.2007 ----  ??:??\r\n"), std::string::npos);
}

TEST(ZmanimTextExport, AnEmptyBlockHasItsHeadings) {
  EXPECT_EQ(Text(Data(2, {})), TEXT_TITLE TEXT_LEGEND_OF_TWO
            "Date       1     2    \r\n"
            "---------- ----- -----\r\n"
            "\r\n");
}

// 19 zmanim: 1 to 10 and 11 to 19; in 12-hour form four tables, the last with 16 to 19.
TEST(ZmanimTextExport, ZmanimAreCutIntoTables) {
  const std::string text = Text(Data(19, {Day(5)}));
  EXPECT_EQ(Count(text, "\r\nDate       "), 2u);
  EXPECT_NE(text.find("\r\nDate       11    12    13    14    15    16    17    18    19   \r\n"), text.npos);
  const std::string amPm = Text(Data(19, {Day(5)}, true));
  EXPECT_EQ(Count(amPm, "\r\nDate       "), 4u);
  EXPECT_NE(amPm.find("\r\nDate       16         17         18         19        \r\n"), amPm.npos);
}

TEST(ZmanimTextExport, GroupBorders) {
  const struct {
    std::size_t zmanim;
    bool amPm;
    std::size_t tables;
  } cases[] = {{0, false, 0}, {1, false, 1},  {5, true, 1},   {6, true, 2},     {10, false, 1},
               {10, true, 2}, {11, false, 2}, {40, false, 4}, {100, false, 10}, {100, true, 20}};
  for (const auto& row : cases) {
    EXPECT_EQ(Count(Text(Data(row.zmanim, {Day(5)}, row.amPm)), "\r\nDate       "), row.tables) << row.zmanim;
  }
}

TEST(ZmanimTextExport, ALongNameHasNoSpacesBeforeIt) {
  ZmanimExport data = Data(2, {});
  data.location = std::string(72, 'n');
  const std::string title = "Zmanim of " + data.location;
  EXPECT_TRUE(Text(data).starts_with(title + "\r\n" + std::string(82, '-') + "\r\n"));
  data.location = std::string(70, 'n');
  EXPECT_TRUE(Text(data).starts_with("Zmanim"));
  data.location = std::string(69, 'n');
  EXPECT_TRUE(Text(data).starts_with(" Zmanim"));
}

TEST(ZmanimTextExport, TheLegendIsWrappedBelowSeventy) {
  ZmanimExport data = Data(0, {});
  data.names = {"Alot HaShachar (Rabbi Moshe Feinstein)", "Earliest Tallit (11 degrees below horizon)"};
  data.hebrewNames = {"", ""};
  // The first line has 69 bytes, 65 before "(11 "; the second 66, and 73 with the last word.
  EXPECT_EQ(Text(data).substr(0, Text(data).find("Date  ")), TEXT_TITLE
            "1 = Alot HaShachar (Rabbi Moshe Feinstein),  2 = Earliest Tallit (11 \r\n"
            "degrees below horizon)         GR\"O = Vilna Gaon     M\"A = Magen \r\n"
            "Avraham\r\n"
            "\r\n");
}

TEST(ZmanimTextExport, AHundredLongNamesAreWrittenWhole) {
  ZmanimExport data = Data(100, {});
  for (std::string& name : data.names) name = std::string(48, 'x');
  const std::string text = Text(data);
  EXPECT_EQ(Count(text, std::string(48, 'x')), 100u);
  EXPECT_NE(text.find("M\"A = Magen"), text.npos);
}

TEST(ZmanimTextExport, TheHebrewLegendIsReversedLineByLine) {
  ZmanimExport data = Data(3, {});
  data.hebrew = true;
  data.hebrewNames = {"\xE0\xE1{", "  ", "\xE2 \xE3"};
  EXPECT_EQ(Text(data).substr(0, Text(data).find("Date  ")), TEXT_TITLE
            "1 = {\xE1\xE0\r\n"
            "3 = \xE3 \xE2\r\n"
            "\r\n");
}

TEST(ZmanimRtfExport, TheDaysOfAColumnStandInOneCell) {
  EXPECT_EQ(Rtf(Data(2, {Day(5), Day(6)}), ZmanimRtfLayout::kRowPerColumn), RTF_HEAD RTF_LEGEND_OF_TWO RTF_TABLE_OF_TWO
            "05.01.2007\\par\r\n06.01.2007\\par\r\n\\cell\r\n"
            "06:00\\par\r\n06:01\\par\r\n\\cell\r\n"
            "06:01\\par\r\n06:02\\par\r\n\\cell\r\n"
            "\\row\r\n"
            "\\pard}\r\n\\par\r\n"
            "}\r\n");
}

TEST(ZmanimRtfExport, EachDayHasARow) {
  EXPECT_EQ(Rtf(Data(2, {Day(5), Day(6)}), ZmanimRtfLayout::kRowPerDay), RTF_HEAD RTF_LEGEND_OF_TWO RTF_TABLE_OF_TWO
            "05.01.2007\\cell\r\n06:00\\cell\r\n06:01\\cell\r\n\\row\r\n"
            "\\intbl\r\n"
            "06.01.2007\\cell\r\n06:01\\cell\r\n06:02\\cell\r\n\\row\r\n"
            "\\pard}\r\n\\par\r\n"
            "}\r\n");
}

TEST(ZmanimRtfExport, TwelveHourCellsAreTwiceAsWide) {
  EXPECT_NE(Rtf(Data(2, {}, true), ZmanimRtfLayout::kRowPerDay).find("{\\cellx1440\\cellx2880\\cellx4320\r\n"),
            std::string::npos);
}

TEST(ZmanimRtfExport, AnEmptyBlockHasRowDefinitionHeadingAndClosingLines) {
  EXPECT_EQ(Rtf(Data(2, {}), ZmanimRtfLayout::kRowPerColumn), RTF_HEAD RTF_LEGEND_OF_TWO RTF_TABLE_OF_TWO
            "\\cell\r\n\\cell\r\n\\cell\r\n\\row\r\n"
            "\\pard}\r\n\\par\r\n"
            "}\r\n");
  EXPECT_EQ(Rtf(Data(2, {}), ZmanimRtfLayout::kRowPerDay), RTF_HEAD RTF_LEGEND_OF_TWO RTF_TABLE_OF_TWO
            "\\pard}\r\n\\par\r\n"
            "}\r\n");
}

TEST(ZmanimRtfExport, TheHebrewLegendIsInTheDisplayFontAndEscaped) {
  ZmanimExport data = Data(2, {});
  data.hebrew = true;
  data.hebrewNames = {"\xE0{\\", "\xE2\xE3"};
  const std::string text = Rtf(data, ZmanimRtfLayout::kRowPerDay);
  EXPECT_TRUE(text.starts_with(RTF_HEAD "{\\fonttbl\r\n {\\f1 \\fnil DisplayHebrew1;}\r\n}\r\n{\\f1\r\n"
                                        "1 = \\'5C\\'7B\xE0 \\par\r\n"
                                        "2 = \xE3\xE2 \\par\r\n"
                                        "\\par\r\n}\r\n" RTF_TABLE_OF_TWO))
      << text;
}

TEST(ZmanimRtfExport, PlaceAndEnglishLegendAreNotEscaped) {
  ZmanimExport data = Data(1, {});
  data.location = "A{b}";
  data.names = {"Z {1}"};
  const std::string text = Rtf(data, ZmanimRtfLayout::kRowPerDay);
  EXPECT_NE(text.find("\\b Zmanim of A{b}\\plain\\par\r\n"), text.npos);
  EXPECT_NE(text.find("\r\n1 = Z {1}  "), text.npos);
}

TEST(ZmanimRtfForAllWordProcessors, EveryTableBeginsWithItsMarkAndNothingElseChanges) {
  const std::vector<ZmanimDay> days = {Day(5), Day(6)};
  for (const bool amPm : {false, true}) {
    for (const ZmanimRtfLayout layout : {ZmanimRtfLayout::kRowPerColumn, ZmanimRtfLayout::kRowPerDay}) {
      ZmanimExport data = Data(25, days, amPm);
      std::string expected = Rtf(data, layout);
      int tables = 0;
      for (std::size_t at = expected.find("{\\cellx"); at != expected.npos; at = expected.find("{\\cellx", at)) {
        expected.insert(at + 1, "\\trowd");
        ++tables;
      }
      EXPECT_EQ(tables, amPm ? 5 : 3);
      data.rtfForm = RtfForm::kForAllWordProcessors;
      EXPECT_EQ(Rtf(data, layout), expected);
    }
  }
}

TEST(ZmanimRtfForAllWordProcessors, NoBlankStandsBeforeTheFontOfTheHebrewLegend) {
  ZmanimExport data = Data(1, {});
  data.hebrew = true;
  data.hebrewNames = {"ab"};
  data.rtfForm = RtfForm::kForAllWordProcessors;
  EXPECT_NE(
      Rtf(data, ZmanimRtfLayout::kRowPerDay)
          .find("\r\n{\\fonttbl\r\n{\\f1 \\fnil DisplayHebrew1;}\r\n}\r\n{\\f1\r\n1 = ba \\par\r\n\\par\r\n}\r\n"),
      std::string::npos);
}

TEST(ZmanimRtfForAllWordProcessors, PlaceAndEnglishLegendAreEscaped) {
  ZmanimExport data = Data(1, {});
  data.location = "{Haifa}";
  data.names = {"a\\b"};
  data.rtfForm = RtfForm::kForAllWordProcessors;
  const std::string text = Rtf(data, ZmanimRtfLayout::kRowPerDay);
  EXPECT_NE(text.find("\\b Zmanim of \\'7BHaifa\\'7D\\plain\\par\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("1 = a\\'5Cb         GR\"O = "), std::string::npos) << text;
}

TEST(ZmanimDelimitedExport, ALineADayBelowTheNames) {
  EXPECT_EQ(Delimited(Data(2, {Day(5), Day(6)}), true),
            "Gregorian date;Z1;Z2\r\n"
            "05.01.2007;06:00;06:01\r\n"
            "06.01.2007;06:01;06:02\r\n");
}

TEST(ZmanimDelimitedExport, WithoutHeaderTheFileStartsWithTheFirstDay) {
  ZmanimDay day = Day(5);
  day.times[0] = {2000, 0};
  day.times[1] = {1000, 0};
  EXPECT_EQ(Delimited(Data(2, {day}), false), "05.01.2007;----;??:??\r\n");
}

TEST(ZmanimDelimitedExport, AHundredLongNamesAreWrittenWhole) {
  ZmanimExport data = Data(100, {});
  for (std::string& name : data.names) name = std::string(48, 'x');
  EXPECT_EQ(Delimited(data, true).size(), std::string("Gregorian date\r\n").size() + 100 * 49);
}

TEST(ZmanTexts, TimesThatAreNoneOfTheDayAreFormattedAsTheyStand) {
  ZmanTexts texts(Format24);
  EXPECT_EQ(texts.TextOf({6, 5}), "06:05");
  EXPECT_EQ(texts.TextOf({6, 5}), "06:05");
  EXPECT_EQ(texts.TextOf({71582788, 3}), "71582788:03");
  EXPECT_EQ(texts.TextOf({-1, -30}), "-1:-30");
  EXPECT_EQ(texts.TextOf({2000, 5}), "----");
  EXPECT_EQ(texts.TextOf({1000, 5}), "??:??");
}

TEST(WrapText, BeginsALineBeforeAWordThatWouldFillIt) {
  EXPECT_EQ(WrapText("aa bb cc", 5), (std::vector<std::string>{"aa ", "bb ", "cc"}));
  EXPECT_EQ(WrapText("aa bb cc", 7), (std::vector<std::string>{"aa bb ", "cc"}));
  EXPECT_EQ(WrapText("", 7), std::vector<std::string>());
}

TEST(WrapText, AWordAsLongAsTheWidthLeavesAnEmptyLineBeforeIt) {
  EXPECT_EQ(WrapText("aaaaaaa b", 7), (std::vector<std::string>{"", "aaaaaaa ", "b"}));
}
