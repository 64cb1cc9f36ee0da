// The files byte for byte, written out by hand.
#include "readings/core/readings_export.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

struct Texts {
  const char* torah[3];
  const char* haftarah[3];
  const char* extra = "";
  bool yizkor = false;
};

ReadingsEntry Entry(const CalendarDate& date, const Texts& texts) {
  ReadingsEntry entry{};
  entry.date = date;
  std::strcpy(entry.torah1, texts.torah[0]);
  std::strcpy(entry.torah2, texts.torah[1]);
  std::strcpy(entry.torah3, texts.torah[2]);
  std::strcpy(entry.haftarah1, texts.haftarah[0]);
  std::strcpy(entry.haftarah2, texts.haftarah[1]);
  std::strcpy(entry.haftarah3, texts.haftarah[2]);
  std::strcpy(entry.extraText, texts.extra);
  entry.isYizkor = texts.yizkor ? 1 : 0;
  return entry;
}

const ReadingsEntry kVayechi = Entry({6, 1, 2007}, {{"Vayechi", "", ""}, {"I Kings 2:1-12", "", ""}});
const ReadingsEntry kPesach = Entry({9, 4, 2007}, {{"P1", "P2", ""}, {"H1", "H2", "H3"}, "Extra {1}", true});
const ReadingsEntry kFull = Entry({10, 4, 2007}, {{"A{\\}'b", "T2", "T3"}, {"", "", ""}, "Extra"});

ReadingsExport Data(const std::vector<ReadingsEntry>& entries, const ExportFont& font = {}) {
  return {.dateTitle = "Date",
          .torahTitle = "Parashioth",
          .haftarahTitle = "Haphtaroth",
          .yizkor = "Yizkor",
          .font = font,
          .entries = entries};
}

const ExportFont kHebrew{true, "David", 14, 177};

std::string Text(const std::vector<ReadingsEntry>& entries, std::size_t torah = 12, std::size_t haftarah = 14) {
  StringSink sink;
  WriteReadingsText(sink, Data(entries), torah, haftarah);
  return sink.text();
}

std::string Wide(const ReadingsExport& data) {
  StringSink sink;
  WriteReadingsRtfWide(sink, data);
  return sink.text();
}

std::string Narrow(const ReadingsExport& data) {
  StringSink sink;
  WriteReadingsRtfNarrow(sink, data);
  return sink.text();
}

constexpr char kTextHead[] =
    "Date        Parashioth    Haphtaroth    \r\n"
    "----------  ------------  --------------\r\n";

#define RTF_TITLES                      \
  "\\b Date\\plain\r\n\\cell\r\n"       \
  "\\b Parashioth\\plain\r\n\\cell\r\n" \
  "\\b Haphtaroth\\plain\r\n\\cell\r\n" \
  "\\row\r\n"                           \
  "\\intbl\r\n"

#define WIDE_CELLS "\\fs24\r\n\\par\r\n\\cellx1300\\cellx4970\\cellx8640\r\n\\intbl\r\n" RTF_TITLES
#define NARROW_CELLS "\\fs24\r\n\\par\r\n\\cellx700\\cellx4800\\cellx9300\r\n\\intbl\r\n" RTF_TITLES "\\fs12\r\n"

#define WIDE_HEAD "{\\rtf1\\ansi\r\n{\\fonttbl {\\f0\\froman Times New Roman;}}\r\n" WIDE_CELLS
#define NARROW_HEAD "{\\rtf1\\ansi\r\n{\\fonttbl {\\f0\\froman Times New Roman;}}\r\n" NARROW_CELLS

}  // namespace

TEST(ReadingsTextExport, AnEntryTakesFourLinesAndAnEmptyOne) {
  EXPECT_EQ(Text({kVayechi}), std::string(kTextHead) +
                                  "06.01.2007  Vayechi       I Kings 2:1-12\r\n"
                                  "                                        \r\n"
                                  "                                        \r\n"
                                  "                                        \r\n"
                                  "\r\n");
}

TEST(ReadingsTextExport, YizkorStandsUnderTheDateAndTheThirdHaftarahTwice) {
  EXPECT_EQ(Text({kPesach}), std::string(kTextHead) +
                                 "09.04.2007  P1            H1            \r\n"
                                 "Yizkor      P2            H2            \r\n"
                                 "            Extra {1}     H3            \r\n"
                                 "                          H3            \r\n"
                                 "\r\n");
}

TEST(ReadingsTextExport, ExtraTextStandsOnTheFourthLineWhenAllTorahTextsAreSet) {
  EXPECT_EQ(Text({kFull}), std::string(kTextHead) +
                               "10.04.2007  A{\\}'b                      \r\n"
                               "            T2                          \r\n"
                               "            T3                          \r\n"
                               "            Extra                       \r\n"
                               "\r\n");
}

TEST(ReadingsTextExport, ExtraTextTakesATorahTextOfBlanksOnly) {
  const ReadingsEntry blank = Entry({1, 1, 2007}, {{"T1", "  ", "T3"}, {"", "", ""}, "Extra"});
  EXPECT_EQ(Text({blank}), std::string(kTextHead) +
                               "01.01.2007  T1                          \r\n"
                               "            Extra                       \r\n"
                               "            T3                          \r\n"
                               "                                        \r\n"
                               "\r\n");
}

TEST(ReadingsTextExport, TextsLongerThanTheirColumnAreCut) {
  const ReadingsEntry entry =
      Entry({1, 1, 2007}, {{std::string(120, 'a').c_str(), "", ""}, {std::string(120, 'b').c_str(), "", ""}});
  const std::string text = Text({entry}, 95, 95);
  EXPECT_NE(text.find("01.01.2007  " + std::string(95, 'a') + "  " + std::string(95, 'b') + "\r\n"), text.npos);
}

TEST(ReadingsTextExport, ALongYizkorTextPushesTheOtherColumnsToTheRight) {
  ReadingsExport data = Data({});
  const std::vector<ReadingsEntry> entries{kPesach};
  data.entries = entries;
  data.yizkor = "Yizkor is said";
  StringSink sink;
  WriteReadingsText(sink, data, 12, 14);
  EXPECT_NE(sink.text().find("\r\nYizkor is said  P2            H2            \r\n"), std::string::npos);
}

TEST(ReadingsTextExport, AnEmptyListHasItsHeadingOnly) {
  EXPECT_EQ(Text({}), kTextHead);
}

TEST(ReadingsRtfExport, WideLayoutInTheProgramsFont) {
  EXPECT_EQ(Wide(Data({kPesach})), WIDE_HEAD
            "09.04.2007\\par\r\n"
            "Yizkor\r\n"
            "\\plain\r\n\\cell\r\n"
            "P1\\par\r\n"
            "P2\\par\r\n"
            "Extra {1}\\par\r\n"
            "\\plain\r\n\\cell\r\n"
            "H1\\par\r\n"
            "H2\\par\r\n"
            "H3\\par\r\n"
            "\\plain\r\n\\cell\r\n"
            "\\row\r\n"
            "\\intbl\r\n"
            "}\r\n");
}

TEST(ReadingsRtfExport, WideLayoutInAFontOfTheTexts) {
  EXPECT_EQ(Wide(Data({kVayechi}, kHebrew)),
            "{\\rtf1\\ansi\r\n"
            "{\\fonttbl {\\f0\\froman Times New Roman;}{\\f1\\fnil\\fcharset177 David;}}\r\n" WIDE_CELLS
            "06.01.2007\\par\r\n"
            "\\plain\r\n\\cell\r\n"
            "{\\f1\\fs28\r\n"
            "Vayechi\\par\r\n"
            "\\f0\\fs12}{\\f1\\fs28\\par\r\n"
            "\\f0\\fs12}\r\n"
            "\\plain\r\n\\cell\r\n"
            "{\\f1\\fs28\r\n"
            "I Kings 2:1-12\\par\r\n"
            "\\f0\\fs12}\r\n"
            "\\plain\r\n\\cell\r\n"
            "\\row\r\n"
            "\\intbl\r\n"
            "}\r\n");
}

TEST(ReadingsRtfExport, WideLayoutNamesNoCharsetWhereNoneIsGiven) {
  EXPECT_NE(Wide(Data({}, {true, "David", 14, 0})).find("{\\f1\\fnil David;}}\r\n"), std::string::npos);
}

TEST(ReadingsRtfExport, WideLayoutWritesTheExtraTextUnescapedInTheProgramsFont) {
  const std::string text = Wide(Data({kPesach}, kHebrew));
  EXPECT_NE(text.find("P2\\par\r\n\\f0\\fs12}Extra {1}{\\f1\\fs28\\par\r\n\\f0\\fs12}\r\n"), text.npos);
}

TEST(ReadingsRtfExport, WideLayoutEscapesBracesBackslashAndApostrophe) {
  const std::string text = Wide(Data({kFull}));
  EXPECT_NE(text.find("A\\'7B\\'5C\\'7D\\'27b\\par\r\nT2\\par\r\nT3\\par\r\nExtra\\par\r\n\\plain\r\n"), text.npos);
}

TEST(ReadingsRtfExport, WideLayoutKeepsTheFirstHaftarahsParagraphWhenItIsEmpty) {
  const std::string text = Wide(Data({kFull}));
  EXPECT_NE(text.find("\\cell\r\n\\par\r\n\\plain\r\n\\cell\r\n\\row\r\n\\intbl\r\n}\r\n"), text.npos);
}

TEST(ReadingsRtfExport, TheWideLastRowIsFollowedByATableMark) {
  const std::string text = Wide(Data({kVayechi, kPesach}));
  EXPECT_TRUE(text.ends_with("\\row\r\n\\intbl\r\n}\r\n"));
}

TEST(ReadingsRtfExport, NarrowLayoutWritesEmptyTextsAndEscapesNothing) {
  EXPECT_EQ(Narrow(Data({kPesach, kFull})), NARROW_HEAD
            "09.04.2007\\par\r\n"
            "Yizkor\r\n"
            "\\cell\r\n"
            "P1\\par\r\nP2\\par\r\n\\par\r\n"
            "\\par\r\n"
            "\\cell\r\n"
            "H1\\par\r\nH2\\par\r\nH3\\par\r\n"
            "\\par\r\n"
            "\\cell\r\n"
            "\\row\r\n"
            "\\intbl\r\n"
            "10.04.2007\\par\r\n"
            "\r\n"
            "\\cell\r\n"
            "A{\\}'b\\par\r\nT2\\par\r\nT3\\par\r\n"
            "\\par\r\n"
            "\\cell\r\n"
            "\\par\r\n\\par\r\n\\par\r\n"
            "\\par\r\n"
            "\\cell\r\n"
            "\\row\r\n"
            "\\pard\r\n"
            "}\r\n");
}

TEST(ReadingsRtfExport, NarrowLayoutInAFontOfTheTexts) {
  EXPECT_EQ(Narrow(Data({kVayechi}, kHebrew)),
            "{\\rtf1\\ansi\r\n"
            "{\\fonttbl {\\f0\\froman Times New Roman;}{\\f1\\fnil David;}}\r\n" NARROW_CELLS
            "06.01.2007\\par\r\n"
            "\r\n"
            "\\cell\r\n"
            "{\\f1\\fs28\r\n"
            "Vayechi\\par\r\n\\par\r\n\\par\r\n"
            "\\f0\\fs12}\r\n"
            "\\par\r\n"
            "\\cell\r\n"
            "{\\f1\\fs28\r\n"
            "I Kings 2:1-12\\par\r\n\\par\r\n\\par\r\n"
            "\\par\r\n"
            "\\f0\\fs12}\r\n"
            "\\cell\r\n"
            "\\row\r\n"
            "\\pard\r\n"
            "}\r\n");
}

TEST(ReadingsRtfExport, ForAllWordProcessorsTableAndCharsetAreToldAndNothingElseChanges) {
  for (const ExportFont& font : {ExportFont(), kHebrew}) {
    const std::vector<ReadingsEntry> entries = {kVayechi, kPesach, kFull};
    ReadingsExport data = Data(entries, font);
    std::string wide = Wide(data);
    wide.insert(wide.find("\\cellx1300"), "\\trowd");
    std::string narrow = Narrow(data);
    narrow.insert(narrow.find("\\cellx700"), "\\trowd");
    if (font.ownFont) narrow.insert(narrow.find(" David;"), "\\fcharset177");
    data.rtfForm = RtfForm::kForAllWordProcessors;
    EXPECT_EQ(Wide(data), wide);
    EXPECT_EQ(Narrow(data), narrow);
  }
}

TEST(ReadingsRtfExport, ForAllWordProcessorsNoCharsetIsNamedWhereNoneIsGiven) {
  const std::vector<ReadingsEntry> entries = {kVayechi};
  ReadingsExport data = Data(entries, {true, "Arial", 9, 0});
  data.rtfForm = RtfForm::kForAllWordProcessors;
  EXPECT_NE(Narrow(data).find("{\\f1\\fnil Arial;}"), std::string::npos);
}

TEST(ReadingsRtfExport, NoGroupOfAFontWhereTheProgramsOwnIsUsed) {
  for (const std::string& text : {Wide(Data({kVayechi, kFull})), Narrow(Data({kVayechi, kFull}))}) {
    EXPECT_EQ(text.find("\\f1"), text.npos);
  }
}

TEST(ReadingsRtfExport, AnEmptyListHasItsHeadingOnly) {
  EXPECT_EQ(Wide(Data({})), WIDE_HEAD "}\r\n");
  EXPECT_EQ(Narrow(Data({})), NARROW_HEAD "\\pard\r\n}\r\n");
}
