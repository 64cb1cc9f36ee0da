#include <gtest/gtest.h>

#include "companion/kinship.h"

TEST(KinshipContract, CanBeTakenUpAgainAfterItWasReleased) {
  KinshipInit();
  KinshipDone();
  KinshipInit();
  KinshipDone();
}
