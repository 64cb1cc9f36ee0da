// Start-up and shut-down in order, with the real loader and stand-ins for the bound libraries beside the tests.
#include "app/start_up.h"

#include "app/program.h"
#include "engine/string_table.h"
#include "resources/ids.h"
#include "tests/program/program_fixture.h"
#include "zmanim/zmanim_in_use.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class StartUpTest : public ProgramTest {};

char commandLine[] = "ignored";

}  // namespace

TEST_F(StartUpTest, RunsInOrderFromTheFirstCheckToTheLastRelease) {
  Libraries().settings["shabbat2.ini|Locations|Aachen"] = "";
  PostQuitMessage(7);
  // The classes are the fixture's already; a previous instance is how start-up learns that.
  EXPECT_EQ(RunProgram(GetModuleHandleA(nullptr), GetModuleHandleA(nullptr), commandLine, SW_SHOWNORMAL), 7);
  frame_ = FindWindowExA(nullptr, nullptr, "ShabbatMain", nullptr);
  EXPECT_THAT(CallLog(), ElementsAre("StampCheck ignored 1", "KinshipInit", "load CIVILCAL.DLL", "load LUNARCAL.DLL",
                                     "load SOLAR.DLL", "unload CIVILCAL.DLL", "unload LUNARCAL.DLL", "unload SOLAR.DLL",
                                     "KinshipDone"));
  EXPECT_EQ(GetZmanimCount(), 25u);
  EXPECT_THAT(Program.notice, HasSubstr("without any warranty"));
}

TEST_F(StartUpTest, AMissingJewishLibraryUnloadsTheGregorianOneAndEndsStartUp) {
  System().missingLibrary = "LUNARCAL.DLL";
  EXPECT_EQ(RunProgram(GetModuleHandleA(nullptr), nullptr, commandLine, SW_SHOWNORMAL), 0);
  EXPECT_THAT(
      CallLog(),
      ElementsAre("StampCheck ignored 1", "KinshipInit", "load CIVILCAL.DLL", "load LUNARCAL.DLL failed",
                  "message box 'Library LUNARCAL.DLL was not found' caption 'Times / Readings' type 0x10 owner none",
                  "unload CIVILCAL.DLL"));
}

TEST_F(StartUpTest, AMissingSolarLibraryUnloadsTheJewishAndThenTheGregorianOne) {
  System().missingLibrary = "SOLAR.DLL";
  EXPECT_EQ(RunProgram(GetModuleHandleA(nullptr), nullptr, commandLine, SW_SHOWNORMAL), 0);
  EXPECT_THAT(CallsWith("unload"), ElementsAre("unload LUNARCAL.DLL", "unload CIVILCAL.DLL"));
}

TEST_F(StartUpTest, AMissingGregorianLibraryEndsStartUpAtOnce) {
  System().missingLibrary = "CIVILCAL.DLL";
  EXPECT_EQ(RunProgram(GetModuleHandleA(nullptr), nullptr, commandLine, SW_SHOWNORMAL), 0);
  EXPECT_THAT(CallsWith("load"), ElementsAre("load CIVILCAL.DLL failed"));
  EXPECT_THAT(CallsWith("unload"), IsEmpty());
}

TEST_F(StartUpTest, AClassThatCannotBeRegisteredEndsStartUpWithCodeOneAndAWord) {
  // The fixture has registered the classes already, so registering them again fails.
  EXPECT_EQ(RunProgram(GetModuleHandleA(nullptr), nullptr, commandLine, SW_SHOWNORMAL), 1);
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre("message box 'The program cannot start, because the window class ShabbatMain could not be "
                          "registered.\nPlease close other programs or restart Windows, and start the program again.' "
                          "caption 'Times / Readings' type 0x10 owner none"));
  EXPECT_EQ(FindWindowExA(nullptr, nullptr, "ShabbatMain", nullptr), nullptr);
}

TEST(StringTable, HasTheTextsOfTheProgram) {
  LoadStringTable(GetModuleHandleA(nullptr));
  const struct {
    unsigned id;
    const char* text;
  } expected[] = {
      {1, "Times / Readings"},
      {2, "New version of library required"},
      {3, "Error during loading %s"},
      {4, "Library %s was not found"},
      {5, "Procedure %s was not found"},
      {6, "About %s"},
      {16, "%s of %s"},
      {17, "Too many shabbat times"},
      {18, "Do you want to remove the selected city?"},
      {19, "Do you want to overwrite this city?"},
      {20, "The latitude must be between 65deg north and 65deg south."},
      {21, "Add location"},
      {22, "Change location parameters"},
      {23, "Printing job cancelled successfully"},
      {32, "Date"},
      {33, "Candle Lighting"},
      {34, "End of Shabbat"},
      {35, "Parashioth"},
      {36, "Haphtaroth"},
      {38, "GR\"O = Vilna Gaon"},
      {39, "M\"A = Magen Avraham"},
      {48, "Shabbat Times"},
      {49, "Zmanim"},
      {50, "Parashioth/Haphtaroth"},
      {51, "Go to Almanac"},
      {52, "Select Location"},
      {53, "Export as Text"},
      {54, "Export as RTF"},
      {55, "Print"},
      {56, "Birthdays/Yahrzeit"},
      {57, "Exit"},
      {58, "Help"},
      {59, "Bar/Bat Mitzvah"},
      {60, "Daf Yomi List"},
  };
  for (const auto& row : expected) EXPECT_STREQ(TableString(row.id), row.text) << row.id;
  for (const unsigned id : {0u, 7u, 37u, 40u, 47u, 61u, 5000u}) EXPECT_STREQ(TableString(id), "") << id;
}

TEST_F(StartUpTest, RegistersFourteenClasses) {
  const struct {
    const char* name;
    UINT style;
    int stockBackground;  // -1: the tooltips' own brush
  } expected[] = {
      {"ShabbatMain", 0, WHITE_BRUSH},       {"ShabbatChild", 3, WHITE_BRUSH},
      {"ShabbatToolbar", 0, LTGRAY_BRUSH},   {"ShabbatIconButton", 0, LTGRAY_BRUSH},
      {"ShabbatChildOne", 3, WHITE_BRUSH},   {"ShabbatChildTwo", 3, WHITE_BRUSH},
      {"ShabbatZmanim", 3, WHITE_BRUSH},     {"ShabbatZmanimOne", 3, WHITE_BRUSH},
      {"ShabbatZmanimTwo", 3, WHITE_BRUSH},  {"ShabbatZmanimThree", 3, WHITE_BRUSH},
      {"ShabbatParasha", 3, WHITE_BRUSH},    {"ShabbatParashaOne", 3, WHITE_BRUSH},
      {"ShabbatParashaTwo", 3, WHITE_BRUSH}, {"ShabbatComment", 3, -1},
  };
  for (const auto& row : expected) {
    WNDCLASSA info{};
    ASSERT_TRUE(GetClassInfoA(Program.instance, row.name, &info)) << row.name;
    EXPECT_EQ(info.style, row.style) << row.name;  // 3: CS_VREDRAW | CS_HREDRAW
    EXPECT_EQ(info.cbClsExtra, 0);
    EXPECT_EQ(info.cbWndExtra, 0);
    EXPECT_EQ(info.hCursor, LoadCursor(nullptr, IDC_ARROW)) << row.name;
    EXPECT_EQ(info.lpszMenuName != nullptr, std::string(row.name) == "ShabbatMain");
    LOGBRUSH brush{};
    ASSERT_NE(GetObjectA(info.hbrBackground, sizeof brush, &brush), 0) << row.name;
    const COLORREF expectedColor = row.stockBackground == WHITE_BRUSH    ? RGB(255, 255, 255)
                                   : row.stockBackground == LTGRAY_BRUSH ? RGB(192, 192, 192)
                                                                         : RGB(255, 255, 0);
    EXPECT_EQ(brush.lbColor, expectedColor) << row.name;
  }
}
