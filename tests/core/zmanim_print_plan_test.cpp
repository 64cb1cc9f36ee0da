// Which days and zmanim stand on which page; worked out by hand.
#include "zmanim/core/zmanim_print_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

void PrintTo(const PrintedPage& page, std::ostream* stream) {
  *stream << "days " << page.days.begin << "-" << page.days.end << " zmanim " << page.zmanim.begin << "-"
          << page.zmanim.end;
}

TEST(ZmanimPrintPlan, NineteenZmanimTakeTwoPagesForEachGroupOfDays) {
  EXPECT_THAT(PlanZmanimPages(60, 19, 40, false),
              ElementsAre(PrintedPage{{0, 41}, {0, 10}}, PrintedPage{{0, 41}, {10, 19}}, PrintedPage{{41, 60}, {0, 10}},
                          PrintedPage{{41, 60}, {10, 19}}));
}

TEST(ZmanimPrintPlan, TwelveHourTimesStandFiveByFive) {
  EXPECT_THAT(PlanZmanimPages(5, 19, 40, true),
              ElementsAre(PrintedPage{{0, 5}, {0, 5}}, PrintedPage{{0, 5}, {5, 10}}, PrintedPage{{0, 5}, {10, 15}},
                          PrintedPage{{0, 5}, {15, 19}}));
}

TEST(ZmanimPrintPlan, TheFirstGroupOfDaysHasOneMoreThanThereAreRows) {
  EXPECT_THAT(PlanZmanimPages(11, 1, 10, false), ElementsAre(PrintedPage{{0, 11}, {0, 1}}));
  EXPECT_THAT(PlanZmanimPages(12, 1, 10, false),
              ElementsAre(PrintedPage{{0, 11}, {0, 1}}, PrintedPage{{11, 12}, {0, 1}}));
}

TEST(ZmanimPrintPlan, FurtherGroupsHaveAsManyDaysAsRowsAndTheLastOneFewer) {
  EXPECT_THAT(PlanZmanimPages(25, 1, 10, false),
              ElementsAre(PrintedPage{{0, 11}, {0, 1}}, PrintedPage{{11, 21}, {0, 1}}, PrintedPage{{21, 25}, {0, 1}}));
}

TEST(ZmanimPrintPlan, AFullGroupOfZmanimIsFollowedByNoEmptyOne) {
  EXPECT_THAT(PlanZmanimPages(1, 10, 40, false), ElementsAre(PrintedPage{{0, 1}, {0, 10}}));
  EXPECT_THAT(PlanZmanimPages(1, 100, 40, false), SizeIs(10));
  EXPECT_THAT(PlanZmanimPages(1, 100, 40, true), SizeIs(20));
}

TEST(ZmanimPrintPlan, APageWithoutRoomForARowTakesOneAllTheSame) {
  for (const int rows : {1, 0, -1, -2147483647 - 1}) {
    EXPECT_THAT(PlanZmanimPages(4, 1, rows, false),
                ElementsAre(PrintedPage{{0, 2}, {0, 1}}, PrintedPage{{2, 3}, {0, 1}}, PrintedPage{{3, 4}, {0, 1}}))
        << rows;
  }
}

TEST(ZmanimPrintPlan, MoreRowsThanDaysMakeOneGroup) {
  EXPECT_THAT(PlanZmanimPages(3, 1, 2147483647, false), ElementsAre(PrintedPage{{0, 3}, {0, 1}}));
}

TEST(ZmanimPrintPlan, WithoutDaysOrZmanimThereIsNoPage) {
  EXPECT_THAT(PlanZmanimPages(0, 19, 40, false), IsEmpty());
  EXPECT_THAT(PlanZmanimPages(5, 0, 40, false), IsEmpty());
}
