// Printed pages, draw by draw. Expected positions are worked out by hand for a sheet of 2000 by 1000 dots at 254 by 127
// dots per inch (10 by 5 dots to a millimetre) and letters of one width and height in each font.
#include "zmanim/core/zmanim_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "zmanim/core/left_to_right_flow.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

constexpr PrinterPage kPage{.width = 2000, .height = 1000, .dotsPerInchX = 254, .dotsPerInchY = 127};

struct FontSize {
  int letterWidth;
  int averageWidth;
  int lineHeight;
  int textHeight;
};

constexpr FontSize kSizes[] = {{10, 9, 16, 15}, {12, 11, 18, 17}, {14, 13, 24, 22}, {20, 19, 30, 28}};

struct PrintedText {
  PrintFont font;
  int x;
  int y;
  std::string text;
  std::optional<PaneRect> clip = std::nullopt;
  bool operator==(const PrintedText&) const = default;
};

void PrintTo(const PrintedText& text, std::ostream* stream) {
  *stream << "font " << static_cast<int>(text.font) << " at " << text.x << "," << text.y << " '" << text.text << "'"
          << (text.clip ? " clipped" : "");
}

class RecordingSurface : public PageSurface {
 public:
  void UseFont(PrintFont font) override { font_ = font; }
  int LineHeight() override { return Size().lineHeight; }
  int AverageCharacterWidth() override { return Size().averageWidth; }
  TextSize Measure(std::string_view text) override {
    return {static_cast<int>(text.size()) * Size().letterWidth, Size().textHeight};
  }
  void Draw(int x, int y, std::string_view text) override { texts.push_back({font_, x, y, std::string(text)}); }
  void DrawClipped(int x, int y, std::string_view text, const PaneRect& clip) override {
    texts.push_back({font_, x, y, std::string(text), clip});
  }

  std::vector<PrintedText> texts;

 private:
  const FontSize& Size() const { return kSizes[static_cast<std::size_t>(font_)]; }

  PrintFont font_ = PrintFont::kTimes;
};

void Format24(int32_t hour, int32_t minute, char* text) {
  std::snprintf(text, 32, "%02d:%02d", hour, minute);
}

ZmanimExport Data(std::vector<std::string> names) {
  const std::vector<std::string> hebrewNames(names.size(), "ab");
  return {.location = "Haifa",
          .dateTitle = "Date",
          .names = std::move(names),
          .hebrew = false,
          .hebrewNames = hebrewNames,
          .hebrewFont = "DisplayHebrew1",
          .vilnaGaon = "G",
          .magenAvraham = "M",
          .days = {},
          .formatTime = Format24,
          .amPm = false};
}

ZmanimDay Day(uint32_t day) {
  ZmanimDay record{};
  record.date = {day, 1, 2007};
  for (int zman = 0; zman < static_cast<int>(kMostZmanim); ++zman) record.times[zman] = {6, zman};
  return record;
}

std::vector<PrintedText> Heading(const ZmanimExport& data, const IndexRange& zmanim, int height) {
  RecordingSurface surface;
  EXPECT_EQ(PassHeading(surface, kPage, data, zmanim, HeadingPass::kMeasure), height);
  EXPECT_THAT(surface.texts, IsEmpty());
  EXPECT_EQ(PassHeading(surface, kPage, data, zmanim, HeadingPass::kDraw), height);
  return surface.texts;
}

std::vector<PrintedText> Table(const ZmanimExport& data, const PrintedPage& content) {
  RecordingSurface surface;
  ZmanTexts texts(data.formatTime);
  DrawTable(surface, kPage, data, content, texts, 300);
  return surface.texts;
}

}  // namespace

// 4 and 5 millimetres; at 300 dots per inch 300 * 4 * 10 / 254 = 47.2 and 59.05.
TEST(ZmanimPage, MarginsAreMillimetresOfEachAxisWithoutFractions) {
  EXPECT_EQ(kPage.LeftMargin(), 40);
  EXPECT_EQ(kPage.TopMargin(), 20);
  EXPECT_EQ(kPage.HeadingGap(), 25);
  EXPECT_EQ(kPage.Body(), (PaneRect{40, 20, 1920, 960}));
  constexpr PrinterPage kA4{.width = 2480, .height = 3508, .dotsPerInchX = 300, .dotsPerInchY = 600};
  EXPECT_EQ(kA4.LeftMargin(), 47);
  EXPECT_EQ(kA4.TopMargin(), 94);
  EXPECT_EQ(kA4.HeadingGap(), 118);
}

// The title's 15 letters are 210 wide and 22 high; the legend starts at 20 + 44 and takes one line of 18.
TEST(ZmanimPage, TheHeadingHasACentredTitleAndTheNamesOfThePagesZmanim) {
  const auto texts = Heading(Data({"A", "B b", "C"}), {1, 3}, 44 + 18);
  const PrintFont bold = PrintFont::kBold;
  EXPECT_THAT(texts, ElementsAreArray(std::vector<PrintedText>{{PrintFont::kTitle, 1000 - 105, 20, "Zmanim of Haifa"},
                                                               {bold, 40, 64, "2 "},
                                                               {bold, 64, 64, "= "},
                                                               {bold, 88, 64, "B "},
                                                               {bold, 112, 64, "b,     "},
                                                               {bold, 196, 64, "3 "},
                                                               {bold, 220, 64, "= "},
                                                               {bold, 244, 64, "C         "},
                                                               {bold, 364, 64, "G     "},
                                                               {bold, 436, 64, "M"}}));
}

// A letter of a title is 14 wide: 142 fill 1988 dots of 2000, ten of them "Zmanim of ".
TEST(ZmanimPage, APlaceTooLongForTheTitleEndsInAnEllipsis) {
  const auto titleOf = [](const std::string& place) {
    ZmanimExport data = Data({"A"});
    data.location = place;
    return Heading(data, {0, 1}, 44 + 18).front();
  };
  const auto title = [](const std::string& text, int x) { return PrintedText{PrintFont::kTitle, x, 20, text}; };
  const std::string fits(132, 'x');
  EXPECT_EQ(titleOf(fits), title("Zmanim of " + fits, 6));
  const std::string shortened = "Zmanim of " + std::string(129, 'x') + "...";
  EXPECT_EQ(titleOf(fits + "y"), title(shortened, 6));
  EXPECT_EQ(titleOf(std::string(255, 'x')), title(shortened, 6));
  EXPECT_EQ(titleOf(std::string(128, 'x') + " yyyyyyy"),
            title("Zmanim of " + std::string(128, 'x') + "...", 1000 - 987))
      << "no blank before the ellipsis";
}

TEST(ZmanimPage, ATitleOnAPageTooNarrowForAnyOfItsPlaceIsStillAnEllipsis) {
  constexpr PrinterPage kNarrow{.width = 100, .height = 1000, .dotsPerInchX = 254, .dotsPerInchY = 127};
  RecordingSurface surface;
  PassHeading(surface, kNarrow, Data({}), {0, 0}, HeadingPass::kDraw);
  EXPECT_EQ(surface.texts.front().text, "Zmanim of ...");
}

// A name of 155 letters would end beyond 1960; so would what follows it, for its spaces count too.
TEST(ZmanimPage, AWordThatWouldPassTheRightMarginGoesToTheNextLine) {
  const std::string name(155, 'x');
  const auto texts = Heading(Data({name}), {0, 1}, 44 + 3 * 18);
  ASSERT_EQ(texts.size(), 6u);
  EXPECT_EQ(texts[2], (PrintedText{PrintFont::kBold, 64, 64, "= "}));
  EXPECT_EQ(texts[3], (PrintedText{PrintFont::kBold, 40, 82, name + "         "}));
  EXPECT_EQ(texts[4], (PrintedText{PrintFont::kBold, 40, 100, "G     "}));
  EXPECT_EQ(texts[5], (PrintedText{PrintFont::kBold, 112, 100, "M"}));
}

TEST(ZmanimPage, AWordThatEndsAtTheRightMarginStaysInItsLine) {
  const auto measure = [](std::string_view word) { return static_cast<int>(word.size()) * 10; };
  std::vector<std::string> words;
  const auto draw = [&](int x, int y, std::string_view word) {
    words.push_back(std::to_string(x) + "," + std::to_string(y) + " " + std::string(word));
  };
  EXPECT_EQ(FlowLeftToRight({5, 7, 70, 100}, 20, "ab cde f", measure, draw), 2);
  EXPECT_THAT(words, ElementsAre("5,7 ab ", "35,7 cde ", "5,27 f"));
  EXPECT_EQ(FlowLeftToRight({5, 7, 70, 100}, 20, "ab cde", measure, {}), 1);
  EXPECT_EQ(FlowLeftToRight({5, 7, 70, 100}, 20, "", measure, draw), 1);
  EXPECT_EQ(FlowLeftToRight({5, 7, 0, 0}, 20, "a b", measure, {}), 3);
}

// The legend starts below the title, at 64, and from the right margin, 1960.
TEST(ZmanimPage, TheHebrewLegendNamesAllZmanimFromRightToLeftOnEveryPage) {
  ZmanimExport data = Data({"A", "B", "C"});
  data.hebrew = true;
  data.hebrewNames[1] = "  ";
  const auto texts = Heading(data, {0, 1}, 44 + 30);
  const PrintFont font = PrintFont::kHebrew;
  EXPECT_THAT(texts, ElementsAreArray(std::vector<PrintedText>{{PrintFont::kTitle, 1000 - 105, 20, "Zmanim of Haifa"},
                                                               {font, 1920, 64, "1 "},
                                                               {font, 1880, 64, "= "},
                                                               {font, 1840, 64, "ba"},
                                                               {font, 1800, 64, " ,"},
                                                               {font, 1760, 64, "3 "},
                                                               {font, 1720, 64, "= "},
                                                               {font, 1680, 64, "ba"}}));
}

// Ninety letters fill a line of 1920 dots but for 120, in which the number and the sign of the first name stand.
TEST(ZmanimPage, AHebrewLegendOfTwoLinesMakesTheHeadingALineHigher) {
  ZmanimExport data = Data({"A"});
  data.hebrew = true;
  data.hebrewNames[0] = std::string(92, 'x');
  Heading(data, {0, 1}, 44 + 30);
  data.hebrewNames[0] = std::string(93, 'x');
  Heading(data, {0, 1}, 44 + 2 * 30);
}

// Dates are 120 wide and stand at 40 + 11; a column is (2000 - 120) / 16 wide.
TEST(ZmanimPage, TheTableHasNumbersAboveTheTimesOfItsDays) {
  ZmanimExport data = Data(std::vector<std::string>(19, "x"));
  std::vector<ZmanimDay> days{Day(1), Day(2), Day(3), Day(4)};
  days[1].times[11] = {kUnknownTimeHour, 0};
  days[2].times[10] = kNoTime;
  data.days = days;
  const auto texts = Table(data, {{1, 3}, {10, 12}});
  const PrintFont bold = PrintFont::kBold;
  const PrintFont times = PrintFont::kTimes;
  EXPECT_THAT(texts, ElementsAreArray(std::vector<PrintedText>{{bold, 51, 300, "Date"},
                                                               {bold, 171, 300, "11", kPage.Body()},
                                                               {bold, 288, 300, "12", kPage.Body()},
                                                               {times, 51, 317, "02.01.2007"},
                                                               {times, 171, 317, "06:10"},
                                                               {times, 288, 317, "??:??"},
                                                               {times, 51, 335, "03.01.2007"},
                                                               {times, 171, 335, "----"},
                                                               {times, 288, 335, "06:11"}}));
}

TEST(ZmanimPage, TwelveHourTimesHaveATenthOfTheWidth) {
  ZmanimExport data = Data({"A", "B"});
  data.amPm = true;
  const auto texts = Table(data, {{0, 0}, {0, 2}});
  EXPECT_EQ(texts[2].x - texts[1].x, 188);
}

// A heading of 62, margin, gap and numbers end at 62 + 20 + 25 + 18; (1000 - 20 - 125) / 16 - 3.
TEST(ZmanimPage, RowsFillThePageButForThree) {
  RecordingSurface surface;
  EXPECT_EQ(TableTop(kPage, 62), 107);
  EXPECT_EQ(RowsPerPage(surface, kPage, Data({"A"})), 50);
  EXPECT_THAT(surface.texts, IsEmpty());
}

TEST(ZmanimPage, RowsAreCountedBelowALegendOfAllZmanimUpToALimit) {
  const auto rows = [](std::size_t zmanim) {
    RecordingSurface surface;
    return RowsPerPage(surface, kPage, Data(std::vector<std::string>(zmanim, std::string(48, 'x'))));
  };
  EXPECT_LT(rows(20), rows(1));
  EXPECT_LT(rows(40), rows(20));
  EXPECT_EQ(rows(100), rows(40));  // 2048 bytes are full with the 35th
}

TEST(ZmanimPage, APageTooSmallForItsHeadingHasNoRoomForRows) {
  RecordingSurface surface;
  EXPECT_LE(RowsPerPage(surface, {100, 60, 254, 127}, Data({"A"})), 0);
  EXPECT_LE(RowsPerPage(surface, {0, 0, 0, 0}, Data({"A"})), 0);
}
