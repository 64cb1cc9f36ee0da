// Southern and western places in the location editor and in the store.
#include <algorithm>

#include "tests/program/locations_fixture.h"

using testing::ElementsAre;

namespace {

constexpr int kNorth = 104;
constexpr int kSouth = 105;
constexpr int kEast = 108;
constexpr int kWest = 109;

class LocationHemispheresTest : public LocationsTest {
 protected:
  static std::vector<int> Checked(HWND editor) {
    std::vector<int> checked;
    for (const int button : {kNorth, kSouth, kEast, kWest}) {
      if (IsDlgButtonChecked(editor, button) == BST_CHECKED) checked.push_back(button);
    }
    return checked;
  }
  // Changes the place of a name in the editor.
  void Change(const std::string& name, const std::function<void(HWND)>& drive) {
    Manage([&](HWND manager) {
      const auto names = Names(manager);
      Select(manager, static_cast<int>(std::find(names.begin(), names.end(), name) - names.begin()));
      Edit(manager, 104, drive);
      Click(manager, IDCANCEL);
    });
  }
  static std::string Flags(const std::string& name) {
    return Stored("shabloc2.ini|" + name + "|LatitudeFlag") + " " + Stored("shabloc2.ini|" + name + "|LongitudeFlag");
  }
};

}  // namespace

TEST_F(LocationHemispheresTest, AUserPlaceOpensWithItsHemispheresAndKeepsThem) {
  const struct {
    bool south;
    bool west;
    std::vector<int> checked;
    const char* flags;
  } cases[] = {{true, true, {kSouth, kWest}, "1 1"},
               {true, false, {kSouth, kEast}, "1 0"},
               {false, true, {kNorth, kWest}, "0 1"},
               {false, false, {kNorth, kEast}, "0 0"}};
  for (const auto& row : cases) {
    AddUserPlace("Home", {.south = row.south, .west = row.west});
    Change("Home", [&](HWND editor) {
      EXPECT_EQ(Checked(editor), row.checked) << row.flags;
      Click(editor, IDOK);
    });
    EXPECT_EQ(Flags("Home"), row.flags);
  }
}

TEST_F(LocationHemispheresTest, AnyFlagButZeroIsSouthOrWest) {
  AddUserPlace("Home", {});
  Libraries().settings["shabloc2.ini|Home|LatitudeFlag"] = "-1";
  Libraries().settings["shabloc2.ini|Home|LongitudeFlag"] = "2";
  Change("Home", [](HWND editor) {
    EXPECT_THAT(Checked(editor), ElementsAre(kSouth, kWest));
    Click(editor, IDOK);
  });
  EXPECT_EQ(Flags("Home"), "1 1");
}

TEST_F(LocationHemispheresTest, NorthAndEastAreStoredWhenTheUserChoosesThem) {
  AddUserPlace("Home", {.south = true, .west = true});
  Change("Home", [](HWND editor) {
    Click(editor, kNorth);
    Click(editor, kEast);
    EXPECT_THAT(Checked(editor), ElementsAre(kNorth, kEast));
    Click(editor, IDOK);
  });
  EXPECT_EQ(Flags("Home"), "0 0");
}

TEST_F(LocationHemispheresTest, OneHemisphereChangesWithoutTheOther) {
  AddUserPlace("Home", {});
  Change("Home", [](HWND editor) {
    Click(editor, kSouth);
    Click(editor, IDOK);
  });
  EXPECT_EQ(Flags("Home"), "1 0");
  Change("Home", [](HWND editor) {
    Click(editor, kNorth);
    Click(editor, kWest);
    Click(editor, IDOK);
  });
  EXPECT_EQ(Flags("Home"), "0 1");
}

TEST_F(LocationHemispheresTest, ABuiltInPlaceOpensWithTheHemispheresOfItsSignsAndKeepsThem) {
  Bound().places.push_back({"Lima", -1203, -7703, -5, 0});
  Bound().places.push_back({"Quito", -13, -7831, -5, 0});  // less than a degree south
  Bound().places.push_back({"Sydney", -3352, 15112, 10, 0});
  Bound().places.push_back({"Toronto", 4340, -7924, -5, 0});
  const struct {
    const char* name;
    std::vector<int> checked;
    std::vector<std::string> fields;  // degrees and minutes of latitude and longitude, without signs
    const char* flags;
  } cases[] = {{"Lima", {kSouth, kWest}, {"12", "3", "77", "3"}, "1 1"},
               {"Quito", {kSouth, kWest}, {"0", "13", "78", "31"}, "1 1"},
               {"Sydney", {kSouth, kEast}, {"33", "52", "151", "12"}, "1 0"},
               {"Toronto", {kNorth, kWest}, {"43", "40", "79", "24"}, "0 1"},
               {"Haifa", {kNorth, kEast}, {"32", "49", "34", "59"}, "0 0"}};
  for (const auto& row : cases) {
    Change(row.name, [&](HWND editor) {
      EXPECT_EQ(Checked(editor), row.checked) << row.name;
      EXPECT_EQ(
          (std::vector{FieldText(editor, 102), FieldText(editor, 103), FieldText(editor, 106), FieldText(editor, 107)}),
          row.fields)
          << row.name;
      Click(editor, IDOK);
    });
    EXPECT_EQ(Flags(row.name), row.flags) << row.name;
  }
}
