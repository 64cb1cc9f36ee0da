// Counts that a companion library cannot mean: the program goes on as if there were none.
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "locations/location_lookup.h"
#include "tests/program/locations_fixture.h"
#include "zmanim/zmanim_in_use.h"

using testing::ElementsAre;

namespace {

using LibraryCountsTest = LocationsTest;

}  // namespace

TEST_F(LibraryCountsTest, OfZmanim) {
  const struct {
    uint32_t answered;
    uint32_t counted;
  } rows[] = {{100, 100}, {101, 100}, {100000, 100}, {100001, 0}, {static_cast<uint32_t>(-1), 0}, {0x80000000, 0}};
  for (const auto& row : rows) {
    Libraries().zmanimCount = row.answered;
    EXPECT_EQ(GetZmanimCount(), row.counted) << row.answered;
  }
}

TEST_F(LibraryCountsTest, OfBuiltInPlaces) {
  AddUserPlace("Home", {});
  Solar.SolarGetCountOfBuiltInLocations = [] { return static_cast<uint32_t>(-1); };
  Location place{"Haifa", 0, 0, 0, 0};
  EXPECT_EQ(LookUpLocation(place), LocationSource::kNowhere);
  Manage([](HWND manager) {
    EXPECT_THAT(Names(manager), ElementsAre("Home"));
    Click(manager, IDCANCEL);
  });
}

// The start looks the default place up among the built-in ones, and shows zmanim.
TEST_F(LibraryCountsTest, AFrameOpensAllTheSame) {
  DestroyWindow(frame_);
  DispatchPendingMessages();
  Solar.SolarGetCountOfBuiltInLocations = [] { return static_cast<uint32_t>(-1); };
  Libraries().zmanimCount = static_cast<uint32_t>(-1);
  OpenFrame();
  EXPECT_EQ(CountDocuments(), 1);
  EXPECT_STREQ(CurrentLocation.name, "Aachen");
}
