// What stands on the printed pages of zmanim, and on which. Expected positions follow from the fonts' own measures and
// from the doubled text library, whose letters are all of one size.
#include <algorithm>
#include <cstring>

#include "resources/ids.h"
#include "tests/program/printing_fixture.h"
#include "win/make_font.h"
#include "win/scoped.h"
#include "win/text_metrics.h"

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Not;
using testing::SizeIs;

namespace {

// 10 and 5 dots a millimetre: margins of 4 mm, and 5 mm below the heading.
constexpr int kLeft = 40;
constexpr int kTop = 20;
constexpr int kGap = 25;

FontMeasure MeasureAtThePrinter(const char* face, int points, int weight) {
  const ScopedGdiObject<HFONT> font(MakeFontAt(Printer().dotsPerInchY, face, points, weight));
  return MeasureFontOnDisplay(font.get());
}
FontMeasure BoldMeasure() {
  return MeasureAtThePrinter("Times New Roman", 10, FW_BOLD);
}
int BoldHeight() {
  return BoldMeasure().lineHeight;
}

class PrintedPagesTest : public PrintingFixture {
 protected:
  // Makes pages so large that they have room for a legend of one line and so many rows.
  static void MakeRoomFor(int rows) {
    const int rowHeight = MeasureAtThePrinter("Times New Roman", 10, FW_NORMAL).lineHeight;
    const int heading = 2 * kDoubledTextHeight + BoldHeight();
    Printer().width = 20000;
    Printer().height = heading + kTop + kGap + BoldHeight() + kTop + (rows + 3) * rowHeight;
  }

  // The first and the last number above the columns.
  static std::string Numbers(std::size_t page) {
    std::vector<std::string> texts = PrintedTexts(page, kPrintedBold);
    texts.erase(texts.begin(), std::find(texts.begin(), texts.end(), "Date") + 1);
    return texts.front() + "-" + texts.back();
  }
};

}  // namespace

TEST_F(PrintedPagesTest, ASmallPageDrawByDraw) {
  UseZmanim(2);
  Libraries().zmanNames[1] = "B";
  ComputeDays(2);
  Print();
  ASSERT_THAT(Printer().pages, SizeIs(1));
  const int w = kDoubledCharacterWidth;
  const int legendY = kTop + 2 * kDoubledTextHeight;
  const int dateX = kLeft + BoldMeasure().averageCharacterWidth;
  const int timesX = dateX + kDoubledDateWidth;
  const int column = (2000 - kDoubledDateWidth) / 16;
  const int numbersY = legendY + BoldHeight() + kGap;
  const int firstY = numbersY + kDoubledTextHeight;
  const int secondY = firstY + BoldHeight();
  std::vector<Draw> expected{{1000 - 16 * w / 2, kTop, "Zmanim of Aachen", kPrintedBold}};
  int x = kLeft;
  for (const char* const word : {"1 ", "= ", "Zman ", "0,     ", "2 ", "= ", "B         ", "GR\"O ", "= ", "Vilna ",
                                 "Gaon     ", "M\"A ", "= ", "Magen ", "Avraham"}) {
    expected.push_back({x, legendY, word, kPrintedBold});
    x += w * static_cast<int>(std::strlen(word));
  }
  expected.push_back({dateX, numbersY, "Date", kPrintedBold});
  expected.push_back({timesX, numbersY, "1", kPrintedBold});
  expected.push_back({timesX + column, numbersY, "2", kPrintedBold});
  expected.push_back({dateX, firstY, "05.01.2007", kPrintedTimes});
  expected.push_back({timesX, firstY, "<6:0>", kPrintedTimes});
  expected.push_back({timesX + column, firstY, "<6:10>", kPrintedTimes});
  expected.push_back({dateX, secondY, "06.01.2007", kPrintedTimes});
  expected.push_back({timesX, secondY, "<6:0>", kPrintedTimes});
  expected.push_back({timesX + column, secondY, "<6:10>", kPrintedTimes});
  EXPECT_THAT(Printer().pages[0], ElementsAreArray(expected));
  const RECT body{kLeft, kTop, 2000 - kLeft, 1000 - kTop};
  EXPECT_TRUE(EqualRect(&Libraries().lastClip, &body));
}

TEST_F(PrintedPagesTest, NineteenZmanimTakeTwoPagesForEachGroupOfDays) {
  UseZmanim(19);
  ComputeDays(6);
  MakeRoomFor(2);
  Print();
  ASSERT_THAT(Printer().pages, SizeIs(6));
  for (const std::size_t page : {0u, 1u}) EXPECT_THAT(PrintedDates(page), ElementsAre("05.01", "06.01", "07.01"));
  for (const std::size_t page : {2u, 3u}) EXPECT_THAT(PrintedDates(page), ElementsAre("08.01", "09.01"));
  for (const std::size_t page : {4u, 5u}) EXPECT_THAT(PrintedDates(page), ElementsAre("10.01"));
  for (const std::size_t page : {0u, 2u, 4u}) {
    EXPECT_EQ(Numbers(page), "1-10");
    EXPECT_EQ(Numbers(page + 1), "11-19");
  }
}

TEST_F(PrintedPagesTest, TwelveHourTimesTakeFourPagesForEachGroupOfDays) {
  Libraries().amPm = true;
  UseZmanim(19);
  ComputeDays(4);
  MakeRoomFor(2);
  Print();
  ASSERT_THAT(Printer().pages, SizeIs(8));
  const char* const numbers[] = {"1-5", "6-10", "11-15", "16-19"};
  for (std::size_t page = 0; page < 8; ++page) {
    EXPECT_EQ(Numbers(page), numbers[page % 4]);
    EXPECT_THAT(PrintedDates(page), SizeIs(page < 4 ? 3 : 1));
  }
  const std::vector<Draw>& page = Printer().pages[0];
  EXPECT_EQ(page[page.size() - 1].x - page[page.size() - 2].x, (20000 - kDoubledDateWidth) / 10);
}

TEST_F(PrintedPagesTest, TheHebrewLegendNamesAllZmanimBelowTheTitle) {
  UseZmanim(11);
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  for (uint32_t zman = 0; zman < 11; ++zman) Libraries().hebrewZmanNames[zman] = zman < 2 ? "ab cd" : " ";
  ComputeDays(1);
  Print();
  ASSERT_THAT(Printer().pages, SizeIs(2));
  const int w = kDoubledCharacterWidth;
  const int y = kTop + 2 * kDoubledTextHeight;
  const int right = 2000 - kLeft;
  const char font[] = "Hebrew Face 0";
  const std::vector<Draw> expected{
      {right - 2 * w, y, "1 ", font},  {right - 4 * w, y, "= ", font},   {right - 7 * w, y, " ba", font},
      {right - 9 * w, y, "dc", font},  {right - 11 * w, y, " ,", font},  {right - 13 * w, y, "2 ", font},
      {right - 15 * w, y, "= ", font}, {right - 18 * w, y, " ba", font}, {right - 20 * w, y, "dc", font}};
  const int lineHeight = MeasureAtThePrinter("Hebrew Face", 15, FW_DONTCARE).lineHeight;
  for (const std::vector<Draw>& page : Printer().pages) {
    ASSERT_GT(page.size(), 10u);
    EXPECT_THAT(std::vector<Draw>(page.begin() + 1, page.begin() + 10), ElementsAreArray(expected));
    EXPECT_EQ(page[10].text, "Date");
    EXPECT_EQ(page[10].y, y + lineHeight + kGap);
  }
}

TEST_F(PrintedPagesTest, TheHebrewLegendNamesTheBuiltInZmanimToo) {
  Libraries().settings["shab30.ini|Settings|EnableZmanim"] = "0";
  Libraries().settings["shab30.ini|Zmanim|Hebrew"] = "1";
  ComputeDays(1);
  Print();
  ASSERT_THAT(Printer().pages, SizeIs(2));
  EXPECT_EQ(Printer().pages[0][3].text, " \xFA\xE5\xEC\xF2");  // alot
  EXPECT_EQ(Printer().pages[0][3].font, "Hebrew Face 0");
  EXPECT_THAT(PrintedTexts(1, kPrintedBold), Not(Contains("Shkia,     ")));
}

TEST_F(PrintedPagesTest, MarksArePrintedForTimesThatAreNone) {
  UseZmanim(2);
  Libraries().ownTimes["Aachen|Zman 1|5.1.2007"] = {1000, 0};
  Libraries().zmanMinutes = [](uint32_t, const CalendarDate&) { return -1; };
  ComputeDays(1);
  Print();
  EXPECT_THAT(PrintedTexts(0, kPrintedTimes), ElementsAre("05.01.2007", "----", "??:??"));
}

TEST_F(PrintedPagesTest, APageWithoutRoomPrintsARowAllTheSame) {
  UseZmanim(1);
  ComputeDays(4);
  Printer().width = 0;
  Printer().height = 0;
  Print();
  ASSERT_THAT(Printer().pages, SizeIs(3));
  EXPECT_THAT(PrintedDates(2), ElementsAre("08.01"));
}
