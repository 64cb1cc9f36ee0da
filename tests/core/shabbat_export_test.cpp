// The files byte for byte, written out by hand.
#include "shabbat/core/shabbat_export.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

constexpr ShabbatTimeEntry kEntries[] = {
    {5, 1, 2007, 16, 7, 16, 26, 17, 11},
    {12, 10, 2007, 17, 59, 18, 16, 19, 1},
};

void Format24(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d", hour, minute);
}
void Format12(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d p.m.", hour - 12, minute);
}

ShabbatExport Data(bool amPm, std::span<const ShabbatTimeEntry> entries = kEntries) {
  return {.title = "Times / Readings of Jerusalem",
          .dateTitle = "Date",
          .candleTitle = "Candle Lighting",
          .endTitle = "End of Shabbat",
          .entries = entries,
          .formatTime = amPm ? Format12 : Format24,
          .amPm = amPm};
}

std::string Text(const ShabbatExport& data) {
  StringSink sink;
  WriteShabbatText(sink, data);
  return sink.text();
}

std::string Rtf(const ShabbatExport& data, RtfLayout layout) {
  StringSink sink;
  WriteShabbatRtf(sink, data, layout);
  return sink.text();
}

constexpr char kTextHead[] =
    "Times / Readings of Jerusalem\r\n"
    "\r\n"
    "Date         Candle Lighting   End of Shabbat\r\n"
    "----------   ---------------   --------------\r\n";

#define RTF_HEAD(cells)                               \
  "{\\rtf1\\ansi\r\n"                                 \
  "\\b Times / Readings of Jerusalem\\plain\\par\r\n" \
  "\\par\r\n" cells                                   \
  "\r\n"                                              \
  "\\intbl\r\n"

#define RTF_THREE_TITLES                     \
  "\\b Date\\plain\r\n\\cell\r\n"            \
  "\\b Candle Lighting\\plain\r\n\\cell\r\n" \
  "\\b End of Shabbat\\plain\r\n\\cell\r\n"  \
  "\\row\r\n\\intbl\r\n"

}  // namespace

TEST(ShabbatExport, TextIn24HourForm) {
  EXPECT_EQ(Text(Data(false)), std::string(kTextHead) +
                                   "05.01.2007   16:07             17:11\r\n"
                                   "12.10.2007   17:59             19:01\r\n");
}

TEST(ShabbatExport, TextIn12HourForm) {
  EXPECT_EQ(Text(Data(true)), std::string(kTextHead) +
                                  "05.01.2007   04:07 p.m.        05:11 p.m.\r\n"
                                  "12.10.2007   05:59 p.m.        07:01 p.m.\r\n");
}

TEST(ShabbatExport, TextOfAnEmptyListHasItsHead) {
  EXPECT_EQ(Text(Data(false, {})), kTextHead);
}

TEST(ShabbatExport, TextColumnsAreAsWideAsTheirTimes) {
  ShabbatExport data = Data(true);
  data.dateTitle = "D";
  data.candleTitle = "C";
  data.endTitle = "E";
  data.entries = data.entries.first(1);
  EXPECT_EQ(Text(data),
            "Times / Readings of Jerusalem\r\n\r\n"
            "D            C            E\r\n"
            "----------   ----------   ----------\r\n"
            "05.01.2007   04:07 p.m.   05:11 p.m.\r\n");
}

TEST(ShabbatExport, RtfInTheSameRow) {
  EXPECT_EQ(Rtf(Data(false), RtfLayout::kSameRow), RTF_HEAD("\\cellx2880\\cellx5760\\cellx8640") RTF_THREE_TITLES
            "05.01.2007\\par\r\n12.10.2007\\par\r\n\\cell\r\n"
            "16:07\\par\r\n17:59\\par\r\n\\cell\r\n"
            "17:11\\par\r\n19:01\\par\r\n\\cell\r\n"
            "\\row\r\n"
            "\\pard\r\n}\r\n");
}

TEST(ShabbatExport, RtfInThreeColumns) {
  EXPECT_EQ(Rtf(Data(true), RtfLayout::kThreeColumns), RTF_HEAD("\\cellx2880\\cellx5760\\cellx8640") RTF_THREE_TITLES
            "05.01.2007\\cell\r\n04:07 p.m.\\cell\r\n05:11 p.m.\\cell\r\n\\row\r\n\\intbl\r\n"
            "12.10.2007\\cell\r\n05:59 p.m.\\cell\r\n07:01 p.m.\\cell\r\n\\row\r\n"
            "\\pard\r\n}\r\n");
}

TEST(ShabbatExport, RtfInTwoColumns) {
  EXPECT_EQ(Rtf(Data(false), RtfLayout::kTwoColumns),
            RTF_HEAD("\\cellx2880\\cellx5760")
            "\\b Date\\plain\r\n\\cell\r\n"
            "\\b Candle Lighting - End of Shabbat\\plain\r\n\\cell\r\n"
            "\\row\r\n\\intbl\r\n"
            "05.01.2007\\cell\r\n16:07 - 17:11\\cell\r\n\\row\r\n\\intbl\r\n"
            "12.10.2007\\cell\r\n17:59 - 19:01\\cell\r\n\\row\r\n"
            "\\pard\r\n}\r\n");
}

TEST(ShabbatExport, RtfOfAnEmptyListHasItsHead) {
  const char rows[] = RTF_HEAD("\\cellx2880\\cellx5760\\cellx8640") RTF_THREE_TITLES "\\pard\r\n}\r\n";
  const char sameRow[] = RTF_HEAD("\\cellx2880\\cellx5760\\cellx8640") RTF_THREE_TITLES
      "\\cell\r\n\\cell\r\n\\cell\r\n\\row\r\n\\pard\r\n}\r\n";
  EXPECT_EQ(Rtf(Data(false, {}), RtfLayout::kThreeColumns), rows);
  EXPECT_EQ(Rtf(Data(false, {}), RtfLayout::kSameRow), sameRow);
}

TEST(ShabbatExport, RtfForAllWordProcessorsHasTheMarkOfATableAndNothingElseChanges) {
  for (const RtfLayout layout : {RtfLayout::kSameRow, RtfLayout::kThreeColumns, RtfLayout::kTwoColumns}) {
    ShabbatExport data = Data(false);
    std::string expected = Rtf(data, layout);
    expected.insert(expected.find("\\cellx2880"), "\\trowd");
    data.rtfForm = RtfForm::kForAllWordProcessors;
    EXPECT_EQ(Rtf(data, layout), expected);
  }
}

TEST(ShabbatExport, APlaceWithBracesKeepsTheRtfWhole) {
  ShabbatExport data = Data(false, {});
  data.title = "Times / Readings of {Home}\\1";
  EXPECT_NE(Rtf(data, RtfLayout::kSameRow).find("\\b Times / Readings of \\'7BHome\\'7D\\'5C1\\plain"),
            std::string::npos);
}
