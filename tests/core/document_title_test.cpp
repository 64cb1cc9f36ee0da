#include "app/core/document_title.h"

#include <gtest/gtest.h>

TEST(DocumentTitle, HasThePlaceAndBothDatesWithoutPadding) {
  EXPECT_EQ(DocumentTitle("Jerusalem", {{1, 3, 2007}, {1, 4, 2007}}), "Jerusalem (1.3.2007 - 1.4.2007)");
  EXPECT_EQ(DocumentTitle("St. John's", {{31, 12, 1583}, {9, 1, 1584}}), "St. John's (31.12.1583 - 9.1.1584)");
}

TEST(DocumentTitle, TakesTheLongestNameAndTheLargestNumbers) {
  const std::string name(255, 'x');
  constexpr uint32_t kMost = 4294967295u;
  EXPECT_EQ(DocumentTitle(name.c_str(), {{kMost, kMost, kMost}, {kMost, kMost, kMost}}),
            name + " (4294967295.4294967295.4294967295 - 4294967295.4294967295.4294967295)");
}

TEST(DocumentTitle, TakesAPercentSignInANameAsItStands) {
  EXPECT_EQ(DocumentTitle("100%s", {{1, 1, 2000}, {2, 1, 2000}}), "100%s (1.1.2000 - 2.1.2000)");
}
