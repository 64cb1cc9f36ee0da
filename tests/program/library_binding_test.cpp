// Binding of libraries by name, with fake libraries found before the real ones.
#include "engine/library_binding.h"

#include "engine/bound_entries.h"
#include "tests/program/program_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LibraryBindingTest : public ProgramTest {
 protected:
  void TearDown() override {
    SetDllDirectoryA(nullptr);
    ProgramTest::TearDown();
  }

  // The fakes stand in folders beside the tests' own.
  static void UseFake(const std::string& name) {
    char path[MAX_PATH];
    GetModuleFileNameA(nullptr, path, sizeof path);
    std::string folder(path);
    folder.erase(folder.rfind('\\'));
    folder.erase(folder.rfind('\\'));
    ASSERT_TRUE(SetDllDirectoryA((folder + "\\fake_libraries\\" + name).c_str()));
  }

  static std::string Box(const std::string& text, const std::string& caption) {
    return "message box '" + text + "' caption '" + caption + "' type 0x10 owner none";
  }
};

}  // namespace

TEST_F(LibraryBindingTest, RealLibrariesAreBoundAndUnloaded) {
  EXPECT_TRUE(BindCivilCalendar());
  EXPECT_TRUE(BindLunarCalendar());
  EXPECT_TRUE(BindSolar());
  EXPECT_THAT(CallLog(), ElementsAre("load CIVILCAL.DLL", "load LUNARCAL.DLL", "load SOLAR.DLL"));
  EXPECT_GE(CivilCalendar.DatefilterGetAPIVersion(), 267u);
  EXPECT_GE(Solar.SolarGetAPIVersion(), 256u);
  EXPECT_EQ(AbsoluteFromDate({1, 1, 1}), 1);
  EXPECT_EQ(DateFromAbsolute(732681).uDay, 5u);  // 5 January 2007
  CalendarDate jewish{};
  LunarCalendar.DatefilterForeignFromAbsolute(732681, &jewish);
  EXPECT_EQ(jewish.uDay, 15u);  // 15 Tevet 5767
  EXPECT_EQ(jewish.uMonth, 10u);
  EXPECT_EQ(jewish.uYear, 5767u);
  UnloadCivilCalendar();
  EXPECT_EQ(CivilCalendar.DatefilterGetAPIVersion, nullptr);
}

TEST_F(LibraryBindingTest, AMissingLibraryIsNamedAndNothingIsUnloaded) {
  for (const auto& [name, bind] : std::vector<std::pair<std::string, bool (*)()>>{
           {"CIVILCAL.DLL", BindCivilCalendar}, {"LUNARCAL.DLL", BindLunarCalendar}, {"SOLAR.DLL", BindSolar}}) {
    System().missingLibrary = name;
    CallLog().clear();
    EXPECT_FALSE(bind());
    EXPECT_THAT(CallLog(),
                ElementsAre("load " + name + " failed", Box("Library " + name + " was not found", "Times / Readings")));
  }
}

TEST_F(LibraryBindingTest, AHandleBelow32IsAnErrorCodeOfOld) {
  System().missingLibrary = "SOLAR.DLL";
  System().missingLibraryHandle = 31;
  EXPECT_FALSE(BindSolar());
  EXPECT_THAT(CallsWith("message box"), ElementsAre(Box("Library SOLAR.DLL was not found", "Times / Readings")));
  EXPECT_THAT(CallsWith("unload"), IsEmpty());
}

TEST_F(LibraryBindingTest, AnOldCalendarIsRefusedAndUnloaded) {
  UseFake("civilcal_266");
  EXPECT_FALSE(BindCivilCalendar());
  EXPECT_THAT(CallLog(), ElementsAre("load CIVILCAL.DLL",
                                     Box("New version of library required", "Error during loading CIVILCAL.DLL"),
                                     "unload CIVILCAL.DLL"));
}

TEST_F(LibraryBindingTest, ASolarLibraryOfVersion255IsRefused) {
  UseFake("solar_255");
  EXPECT_FALSE(BindSolar());
  EXPECT_THAT(CallLog(),
              ElementsAre("load SOLAR.DLL", Box("New version of library required", "Error during loading SOLAR.DLL"),
                          "unload SOLAR.DLL"));
}

TEST_F(LibraryBindingTest, AMissingVersionEntryPointIsNamedFirst) {
  UseFake("civilcal_without_version");
  EXPECT_FALSE(BindCivilCalendar());
  EXPECT_THAT(CallLog(),
              ElementsAre("load CIVILCAL.DLL",
                          Box("Procedure DatefilterGetAPIVersion was not found", "Error during loading CIVILCAL.DLL"),
                          "unload CIVILCAL.DLL"));
}

TEST_F(LibraryBindingTest, AGregorianLibraryWithoutItsLastEntryPointIsUnloaded) {
  UseFake("civilcal_without_holiday_name_ex");
  EXPECT_FALSE(BindCivilCalendar());
  EXPECT_THAT(CallLog(), ElementsAre("load CIVILCAL.DLL",
                                     Box("Procedure DatefilterGetHolidayNameEx was not found",
                                         "Error during loading CIVILCAL.DLL"),
                                     "unload CIVILCAL.DLL"));
  EXPECT_EQ(CivilCalendar.DatefilterGetAPIVersion, nullptr);
}

TEST_F(LibraryBindingTest, OfTwoMissingEntryPointsTheFirstInOrderIsNamedAlone) {
  UseFake("civilcal_without_two");
  EXPECT_FALSE(BindCivilCalendar());
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre(Box("Procedure DatefilterGetMonthName was not found", "Error during loading CIVILCAL.DLL")));
}

TEST_F(LibraryBindingTest, TheJewishLibraryIsNotAskedForAVersion) {
  UseFake("lunarcal_without_month_name_ex");
  EXPECT_FALSE(BindLunarCalendar());
  EXPECT_THAT(CallLog(),
              ElementsAre("load LUNARCAL.DLL",
                          Box("Procedure DatefilterGetMonthNameEx was not found", "Error during loading LUNARCAL.DLL"),
                          "unload LUNARCAL.DLL"));
}

TEST_F(LibraryBindingTest, ASolarLibraryWithoutSunsetIsUnloaded) {
  UseFake("solar_without_sunset");
  EXPECT_FALSE(BindSolar());
  EXPECT_THAT(CallsWith("message box"),
              ElementsAre(Box("Procedure SolarGetSunsetSunrise was not found", "Error during loading SOLAR.DLL")));
}
