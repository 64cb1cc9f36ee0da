// Expected values are worked out by hand.
#include "locations/core/location_texts.h"

#include <gtest/gtest.h>

TEST(ElevationKey, HasDegreesAndMinutesWithoutHemispheres) {
  const auto keyOf = [](const Location& location) { return ElevationKey(ElevationPlaceOf(location)); };
  EXPECT_EQ(keyOf({"A", 3249, 3459, 2, 0}), "32-49-34-59-2-0");
  EXPECT_EQ(keyOf({"B", -3249, -3459, 2, 0}), "32-49-34-59-2-0");
  EXPECT_EQ(keyOf({"C", 4734, -5243, -3, -30}), "47-34-52-43--3--30");
  EXPECT_EQ(keyOf({"D", -30, 5, 0, 0}), "0-30-0-5-0-0");
  EXPECT_EQ(keyOf({"E", INT32_MIN, INT32_MAX, 0, 0}), "21474836-48-21474836-47-0-0");
}

TEST(ElevationKey, HasAnotherFormWithTheMinutesOtherSign) {
  EXPECT_EQ(OtherElevationKey({47, 34, 52, 43, -3, 30}), "47-34-52-43--3--30");
  EXPECT_EQ(OtherElevationKey({47, 34, 52, 43, -3, -30}), "47-34-52-43--3-30");
  EXPECT_EQ(OtherElevationKey({19, 4, 72, 53, 5, 30}), "19-4-72-53-5--30");
}

TEST(ElevationKey, HasNoOtherFormWhereThatIsTheSameOrAnotherZone) {
  EXPECT_EQ(OtherElevationKey({32, 49, 34, 59, 2, 0}), "");
  EXPECT_EQ(OtherElevationKey({32, 49, 34, 59, 0, 30}), "");
  EXPECT_EQ(OtherElevationKey({32, 49, 34, 59, 1, INT32_MIN}), "");
}

TEST(DefaultElevation, IsKnownForOnePlaceNorthAndEast) {
  EXPECT_EQ(DefaultElevation(4854, 842, 1), 263);
  EXPECT_EQ(DefaultElevation(-4854, -842, 1), 0);
  EXPECT_EQ(DefaultElevation(4854, 842, 2), 0);
  EXPECT_EQ(DefaultElevation(4854, 843, 1), 0);
}

TEST(ParameterLine, TellsCoordinatesZoneAndElevation) {
  EXPECT_EQ(ParameterLine({"Home", 3249, 3459, 2, 0}, 0), "Home: 32,49N  34,59E  GMT+2, no elevation");
  EXPECT_EQ(ParameterLine({"Home", -905, -15112, -3, 30}, 800), "Home:  9,05S  151,12W  GMT-3:30, 800 meters");
  EXPECT_EQ(ParameterLine({"Null", 0, -5, 0, 0}, 1), "Null:  0,00N   0,05W  GMT, 1 meters");
}

TEST(ParameterLine, MinutesOfTheZoneStandWhateverTheHours) {
  EXPECT_EQ(ParameterLine({"Home", 3249, 3459, 0, 30}, 0), "Home: 32,49N  34,59E  GMT:30, no elevation");
  EXPECT_EQ(ParameterLine({"Home", 3249, 3459, 0, -30}, 0), "Home: 32,49N  34,59E  GMT:-30, no elevation");
}

TEST(ParameterLine, MinutesOfTheZoneGoTheWayOfItsHours) {
  EXPECT_EQ(ParameterLine({"Home", 3249, 3459, -3, -30}, 0), "Home: 32,49N  34,59E  GMT-3:30, no elevation");
  EXPECT_EQ(ParameterLine({"Home", 3249, 3459, 5, -30}, 0), "Home: 32,49N  34,59E  GMT+5:30, no elevation");
}

TEST(ParameterLine, HoldsTheLongestName) {
  Location location{};
  for (std::size_t i = 0; i + 1 < kTextSize; ++i) location.name[i] = 'x';
  EXPECT_EQ(ParameterLine(location, 0), std::string(255, 'x') + ":  0,00N   0,00E  GMT, no elevation");
}
