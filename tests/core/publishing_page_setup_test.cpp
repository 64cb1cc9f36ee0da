#include "publishing/core/page_setup.h"

#include <gtest/gtest.h>

namespace publishing {
namespace {

TEST(PageSetup, ItsTextGivesItBack) {
  const PageSetup setup = {Orientation::kLandscape, 9, PageMargins{1500, 1600, 0, 1800}};
  EXPECT_EQ(TextOf(setup), "2 9 1500 1600 0 1800");
  EXPECT_EQ(PageSetupOf(TextOf(setup)), setup);
  EXPECT_EQ(TextOf({.paper = 9}), "0 9");
  EXPECT_EQ(PageSetupOf("0 9"), (PageSetup{.paper = 9}));
  EXPECT_EQ(PageSetupOf(TextOf({})), PageSetup{});
}

TEST(PageSetup, AnyOtherTextIsNoChoice) {
  for (const char* text : {"", "2", "3 9 0 0 0 0", "-1 9 0 0 0 0", "2 9 1500 1500 1500", "2 9 1500 1500 1500 1500 7",
                           "2 9 1500 1500 1500 x", "2 9 1500 1500 1500 20001", "2 65536 1 1 1 1", "2 9 -1 1 1 1",
                           "2,9,1,1,1,1", "2 99999999999 1 1 1 1"}) {
    EXPECT_EQ(PageSetupOf(text), PageSetup{}) << text;
  }
}

TEST(PageSetup, WithoutMarginsTheUsualOnesHold) {
  EXPECT_EQ(MarginsOf({}, kUsualMargins), (PageMargins{1905, 1905, 1905, 1905}));
  EXPECT_EQ(MarginsOf({.margins = PageMargins{0, 0, 0, 500}}, kUsualMargins), (PageMargins{0, 0, 0, 500}));
}

// On paper that can be printed to its edges.
TEST(PageSetup, NoMarginsAreAChoiceToo) {
  const PageSetup setup = {.margins = PageMargins{}};
  EXPECT_EQ(TextOf(setup), "0 0 0 0 0 0");
  EXPECT_EQ(PageSetupOf("0 0 0 0 0 0"), setup);
  EXPECT_EQ(MarginsOf(setup, kUsualMargins), PageMargins{});
}

}  // namespace
}  // namespace publishing
