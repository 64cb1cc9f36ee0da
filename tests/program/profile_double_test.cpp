// The double of the profile library passes the contract of the library itself.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "companion/profile.h"
#include "tests/contract/profile_behaviour.h"
#include "tests/doubles/library_doubles.h"

INSTANTIATE_TEST_SUITE_P(OfTheDouble, ProfileBehaviour, testing::Values(EmptyFiles([] {
                           ResetLibraries();
                           Libraries().unknownSettingsAreMissing = true;
                           return nullptr;
                         })));

TEST(ProfileDouble, FailsATestThatReadsWhatNoScriptForesees) {
  ResetLibraries();
  EXPECT_NONFATAL_FAILURE(ProfileGetInt("A", "x", 1, "a.ini"), "unscripted setting a.ini|A|x");
  Libraries().missingSettings.insert("a.ini|A|x");
  EXPECT_EQ(ProfileGetInt("A", "x", 1, "a.ini"), 1);
}

TEST(ProfileDouble, TakesNoWriteWhileWritesFail) {
  ResetLibraries();
  Libraries().settings["a.ini|A|x"] = "1";
  Libraries().writesFail = true;
  EXPECT_EQ(ProfileWriteString("A", "x", "2", "a.ini"), 0);
  EXPECT_EQ(ProfileWriteString("A", "x", nullptr, "a.ini"), 0);
  EXPECT_EQ(Libraries().settings.Stored("a.ini|A|x"), "1");
}
