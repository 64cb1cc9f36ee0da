// Legends of numbered zmanim: joined in one text, and flowing from right to left. Expected positions are worked out by
// hand for letters ten pixels wide and lines of twenty.
#include "zmanim/core/zmanim_legend.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "zmanim/core/right_to_left_flow.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr LegendSpacing kSpacing{", ", "  ", " "};

struct DrawnWord {
  int x;
  int y;
  std::string text;
  bool operator==(const DrawnWord&) const = default;
};

std::vector<DrawnWord> drawn;

int TenPixelsALetter(std::string_view word) {
  return static_cast<int>(word.size()) * 10;
}

RightToLeftFlow DrawingFlow(const PaneRect& area) {
  drawn.clear();
  return {area, 20, TenPixelsALetter, [](int x, int y, std::string_view word) {
            drawn.push_back({x, y, std::string(word)});
          }};
}

}  // namespace

TEST(ZmanimLegend, JoinsNumbersAndNames) {
  EXPECT_EQ(ZmanimLegend({"Alot", "", "Netz"}, 1, kSpacing, "GR", "MA"), "1 = Alot, 2 = , 3 = Netz  GR MA");
}

TEST(ZmanimLegend, CountsFromTheFirstNumber) {
  EXPECT_EQ(ZmanimLegend({"a", "b"}, 11, kSpacing, "GR", "MA"), "11 = a, 12 = b  GR MA");
}

TEST(ZmanimLegend, OfNoZmanimHasTheAbbreviationsOnly) {
  EXPECT_EQ(ZmanimLegend({}, 1, kSpacing, "GR", "MA"), "  GR MA");
}

TEST(ZmanimLegend, OfAHundredLongNamesIsWhole) {
  const std::string name(48, 'x');
  const std::string legend = ZmanimLegend(std::vector<std::string>(100, name), 1, kSpacing, "GR", "MA");
  EXPECT_GT(legend.size(), 5000u);
  EXPECT_TRUE(legend.ends_with("100 = " + name + "  GR MA"));
}

TEST(RightToLeftFlow, WordsEndAtThePenAndMoveItLeft) {
  RightToLeftFlow flow = DrawingFlow({5, 3, 200, 100});
  flow.Flow("ab c", WordBytes::kAsTheyStand);
  EXPECT_THAT(drawn, ElementsAre(DrawnWord{175, 3, "ab "}, DrawnWord{165, 3, "c"}));
}

TEST(RightToLeftFlow, ReversalTurnsEachWordRoundWithItsSpaces) {
  RightToLeftFlow flow = DrawingFlow({0, 0, 200, 100});
  flow.Flow("abc  de", WordBytes::kReversed);
  EXPECT_THAT(drawn, ElementsAre(DrawnWord{150, 0, "  cba"}, DrawnWord{130, 0, "ed"}));
}

TEST(RightToLeftFlow, AWordThatReachesTheLeftEdgeStillFits) {
  RightToLeftFlow flow = DrawingFlow({10, 0, 60, 100});
  flow.Flow("abc def", WordBytes::kAsTheyStand);
  EXPECT_THAT(drawn, ElementsAre(DrawnWord{30, 0, "abc "}, DrawnWord{40, 20, "def"}));
  flow = DrawingFlow({10, 0, 70, 100});
  flow.Flow("abc def", WordBytes::kAsTheyStand);
  EXPECT_THAT(drawn, ElementsAre(DrawnWord{40, 0, "abc "}, DrawnWord{10, 0, "def"}));
}

TEST(RightToLeftFlow, AWordWiderThanTheAreaHasALineOfItsOwn) {
  RightToLeftFlow flow = DrawingFlow({0, 0, 30, 100});
  flow.Flow("abcdef gh", WordBytes::kAsTheyStand);
  EXPECT_THAT(drawn, ElementsAre(DrawnWord{-40, 20, "abcdef "}, DrawnWord{10, 40, "gh"}));
}

TEST(RightToLeftFlow, MeasuringEndsInTheSameLineAsDrawing) {
  const PaneRect area{0, 7, 110, 100};
  const std::vector<std::string> names = {"abc def", "ghi", "jkl mno pqr", "s"};
  RightToLeftFlow drawing = DrawingFlow(area);
  FlowHebrewLegend(drawing, names);
  RightToLeftFlow measuring(area, 20, TenPixelsALetter, {});
  FlowHebrewLegend(measuring, names);
  EXPECT_EQ(measuring.y(), drawing.y());
  EXPECT_EQ(drawing.y(), drawn.back().y);
  EXPECT_GT(measuring.y(), 7 + 20);
}

TEST(RightToLeftFlow, TheLegendReversesDescriptionsAndCommasButNotNumbers) {
  RightToLeftFlow flow = DrawingFlow({0, 0, 1000, 100});
  FlowHebrewLegend(flow, {"ab", "cd ef"});
  EXPECT_THAT(drawn, ElementsAre(DrawnWord{980, 0, "1 "}, DrawnWord{960, 0, "= "}, DrawnWord{940, 0, "ba"},
                                 DrawnWord{920, 0, " ,"}, DrawnWord{900, 0, "2 "}, DrawnWord{880, 0, "= "},
                                 DrawnWord{850, 0, " dc"}, DrawnWord{830, 0, "fe"}));
}

TEST(RightToLeftFlow, BlankDescriptionsAreLeftOutAndNumbersKept) {
  RightToLeftFlow flow = DrawingFlow({0, 0, 1000, 100});
  FlowHebrewLegend(flow, {" ", "a", "", "b"});
  std::string text;
  for (const DrawnWord& word : drawn) text += word.text;
  EXPECT_EQ(text, "2 = a ,4 = b");
  flow = DrawingFlow({0, 0, 1000, 100});
  FlowHebrewLegend(flow, {"", " "});
  EXPECT_THAT(drawn, IsEmpty());
}
