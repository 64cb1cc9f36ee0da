// The command about the clock of the current place, and what the location editor says about a place's clock.
#include <cstring>

#include "engine/current.h"
#include "engine/optional_entries.h"
#include "resources/ids.h"
#include "tests/program/locations_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// What the doubled library was asked for.
struct Asked {
  HWND owner;
  int32_t latitude, longitude, zoneHours, zoneMinutes;
  bool operator==(const Asked&) const = default;
};
std::vector<Asked> asked;
bool hasStored;

int32_t DoDialog(HWND owner, int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes) {
  asked.push_back({owner, latitude, longitude, zoneHours, zoneMinutes});
  return hasStored ? 1 : 0;
}

uint32_t DescribeZone(int32_t latitude, int32_t longitude, int32_t zoneHours, int32_t zoneMinutes, char* buffer,
                      uint32_t size) {
  return static_cast<uint32_t>(
      std::snprintf(buffer, size, "clock of %d %d zone %d:%d", latitude, longitude, zoneHours, zoneMinutes));
}

class SummerTimeCommandTest : public LocationsTest {
 protected:
  void SetUp() override {
    LocationsTest::SetUp();
    asked.clear();
    hasStored = false;
    OptionalEntries.SolarDoSummerTimeDialog = DoDialog;
    OptionalEntries.SolarDescribeZone = DescribeZone;
  }
  void Run() { SendMessageA(frame_, WM_COMMAND, IDM_SUMMER_TIME, 0); }
  bool IsGrey() {
    const HMENU menu = GetMenu(frame_);
    SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
    return (GetMenuState(menu, IDM_SUMMER_TIME, MF_BYCOMMAND) & MF_GRAYED) != 0;
  }
};

std::string ClockLine(HWND editor) {
  return FieldText(editor, IDC_LOCATION_CLOCK);
}

}  // namespace

TEST_F(SummerTimeCommandTest, IsForTheCurrentPlace) {
  CurrentLocation.zoneMinutes = 30;
  Run();
  EXPECT_THAT(asked, ElementsAre(Asked{frame_, CurrentLocation.latitude, CurrentLocation.longitude,
                                       CurrentLocation.zoneHours, 30}));
  EXPECT_EQ(asked.front().latitude, 5046);  // the doubled Aachen
}

TEST_F(SummerTimeCommandTest, OpensADocumentWhenSomethingWasStored) {
  Run();
  EXPECT_EQ(CountDocuments(), 1);
  hasStored = true;
  Run();
  EXPECT_EQ(CountDocuments(), 2);
}

TEST_F(SummerTimeCommandTest, IsGreyWhereTheLibraryHasNoDialog) {
  EXPECT_FALSE(IsGrey());
  OptionalEntries.SolarDoSummerTimeDialog = nullptr;
  EXPECT_TRUE(IsGrey());
  Run();  // as a shortcut of someone else's might send it
  EXPECT_THAT(asked, IsEmpty());
  EXPECT_EQ(CountDocuments(), 1);
}

TEST_F(SummerTimeCommandTest, TheEditorTellsTheClockAsThePlaceIsTyped) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      EXPECT_EQ(ClockLine(editor), "");
      Fill(editor, {.zoneHours = ""});
      EXPECT_EQ(ClockLine(editor), "");
      SetField(editor, 110, "2");
      EXPECT_EQ(ClockLine(editor), "clock of 3249 3459 zone 2:0");
      Click(editor, 105);
      EXPECT_EQ(ClockLine(editor), "clock of -3249 3459 zone 2:0");
      Click(editor, 109);
      EXPECT_EQ(ClockLine(editor), "clock of -3249 -3459 zone 2:0");
      SetField(editor, 200, "");
      EXPECT_EQ(ClockLine(editor), "clock of -3249 -3459 zone 2:0");
      SetField(editor, 200, "30");
      EXPECT_EQ(ClockLine(editor), "clock of -3249 -3459 zone 2:30");
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}

TEST_F(SummerTimeCommandTest, TheEditorTellsNothingOfFieldsThatAreNoPlace) {
  const std::pair<int, const char*> wrong[] = {{102, ""},    {102, "66"}, {102, "x"},   {103, "60"}, {103, "-1"},
                                               {106, "181"}, {106, ""},   {107, "600"}, {110, "x"},  {200, "3o"}};
  Manage([&](HWND manager) {
    Edit(manager, 102, [&](HWND editor) {
      for (const auto& [field, text] : wrong) {
        Fill(editor, {});
        EXPECT_EQ(ClockLine(editor), "clock of 3249 3459 zone 2:0");
        SetField(editor, field, text);
        EXPECT_EQ(ClockLine(editor), "") << field << text;
      }
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}

TEST_F(SummerTimeCommandTest, TheEditorTellsTheClockOfThePlaceThatItOpensWith) {
  AddUserPlace("Home", {.south = true, .zoneMinutes = "-30"});
  Manage([](HWND manager) {
    Select(manager, 2);
    Edit(manager, 104, [](HWND editor) {
      EXPECT_EQ(ClockLine(editor), "clock of -3249 3459 zone 2:-30");
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}

TEST_F(SummerTimeCommandTest, WithAnOlderLibraryTheEditorsLineStaysEmpty) {
  OptionalEntries.SolarDescribeZone = nullptr;
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      Fill(editor, {});
      EXPECT_EQ(ClockLine(editor), "");
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}
