// A program folder with a library missing, too old or incomplete: the program says which, and ends.
#include <gtest/gtest.h>

#include <cctype>

#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

namespace {

constexpr int kTextControl = 0xFFFF;  // the static text of a message box

struct Breakage {
  const char* fake;  // the folder of the fake library, or null to remove the file
  const char* file;  // the library concerned
  const char* text;
  const char* caption;
};

// Prints the case's name in a failure.
void PrintTo(const Breakage& breakage, std::ostream* out) {
  *out << (breakage.fake ? breakage.fake : breakage.file);
}

std::string CaseName(const testing::TestParamInfo<Breakage>& breakage) {
  std::string name = breakage.param.fake ? breakage.param.fake : std::string("missing_") + breakage.param.file;
  for (char& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name;
}

class BrokenFolderTest : public testing::TestWithParam<Breakage> {};

// On Windows file names have no letter case; where the tests' disk has, the real file may be spelled otherwise.
void RemoveLibrary(const fs::path& folder, const std::string& file) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (lstrcmpiA(entry.path().filename().string().c_str(), file.c_str()) == 0) {
      fs::remove(entry.path());
      return;
    }
  }
  ADD_FAILURE() << "no " << file;
}

}  // namespace

TEST_P(BrokenFolderTest, SaysWhatIsWrongAndEnds) {
  const Breakage& breakage = GetParam();
  TemporaryFolder settings;
  TemporaryFolder folder;
  fs::copy(ProgramFolder(), folder.path(), fs::copy_options::recursive);
  RemoveLibrary(folder.path(), breakage.file);
  if (breakage.fake)
    fs::copy_file(FakeLibrariesFolder() / breakage.fake / breakage.file, folder.path() / breakage.file);

  ProgramRun program(folder.path(), settings.path());
  const HWND box = program.WaitForTopLevel("#32770");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(TextOf(box), breakage.caption);
  EXPECT_EQ(TextOf(GetDlgItem(box, kTextControl)), breakage.text);
  EXPECT_EQ(GetWindow(box, GW_OWNER), nullptr);
  PostMessageA(box, WM_COMMAND, IDOK, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Bound, BrokenFolderTest,
    testing::Values(Breakage{nullptr, "CIVILCAL.DLL", "Library CIVILCAL.DLL was not found", "Times / Readings"},
                    Breakage{nullptr, "LUNARCAL.DLL", "Library LUNARCAL.DLL was not found", "Times / Readings"},
                    Breakage{nullptr, "SOLAR.DLL", "Library SOLAR.DLL was not found", "Times / Readings"},
                    Breakage{"civilcal_266", "CIVILCAL.DLL", "New version of library required",
                             "Error during loading CIVILCAL.DLL"},
                    Breakage{"solar_255", "SOLAR.DLL", "New version of library required",
                             "Error during loading SOLAR.DLL"},
                    Breakage{"civilcal_without_version", "CIVILCAL.DLL",
                             "Procedure DatefilterGetAPIVersion was not found", "Error during loading CIVILCAL.DLL"},
                    Breakage{"civilcal_without_holiday_name_ex", "CIVILCAL.DLL",
                             "Procedure DatefilterGetHolidayNameEx was not found", "Error during loading CIVILCAL.DLL"},
                    Breakage{"lunarcal_without_month_name_ex", "LUNARCAL.DLL",
                             "Procedure DatefilterGetMonthNameEx was not found", "Error during loading LUNARCAL.DLL"},
                    Breakage{"solar_without_sunset", "SOLAR.DLL", "Procedure SolarGetSunsetSunrise was not found",
                             "Error during loading SOLAR.DLL"}),
    CaseName);
