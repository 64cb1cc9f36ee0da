#include <gtest/gtest.h>

#include "companion/hours.h"
#include "companion/kinship.h"

TEST(HoursContract, CountIsAtMostTheHundredThatAZmanimRecordHolds) {
  EXPECT_LE(HoursGetCount(), 100u);
}

TEST(KinshipContract, CanBeTakenUpAgainAfterItWasReleased) {
  KinshipInit();
  KinshipDone();
  KinshipInit();
  KinshipDone();
}
