// What is loaded and started comes from the program's folder and the system's, whatever lies elsewhere.
#include <gtest/gtest.h>
#include <windows.h>

#include <psapi.h>

#include <set>
#include <vector>

#include "resources/ids.h"
#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

namespace {

// A copy of the program's folder, and the two folders in which others may lay files: the current one and that of the
// settings.
class LoadingTest : public testing::Test {
 protected:
  void SetUp() override { fs::copy(ProgramFolder(), program_.path(), fs::copy_options::recursive); }

  // Lays a library of a folder into both.
  void Plant(const fs::path& library, const std::string& name) {
    for (const TemporaryFolder* folder : {&settings_, &current_}) fs::copy_file(library, folder->path() / name);
  }

  TemporaryFolder program_;
  TemporaryFolder settings_;
  TemporaryFolder current_;
};

bool IsLibrary(const fs::path& file) {
  return lstrcmpiW(file.extension().c_str(), L".dll") == 0;
}

// The files that are loaded into the process, with their folders in small letters.
std::vector<std::string> LoadedFiles(HANDLE process) {
  HMODULE modules[512];
  DWORD bytes = 0;
  EXPECT_TRUE(EnumProcessModules(process, modules, sizeof modules, &bytes));
  std::vector<std::string> files;
  for (std::size_t i = 0; i < bytes / sizeof modules[0]; ++i) {
    char file[MAX_PATH] = "";
    GetModuleFileNameExA(process, modules[i], file, sizeof file);
    CharLowerA(file);
    files.emplace_back(file);
  }
  return files;
}

// What LoadLibrary answers in the process for a bare name, cut to 32 bits.
DWORD LoadLibraryThere(HANDLE process, const std::string& name) {
  void* const text = VirtualAllocEx(process, nullptr, name.size() + 1, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
  EXPECT_TRUE(WriteProcessMemory(process, text, name.c_str(), name.size() + 1, nullptr));
  // The system's libraries have the same addresses in all processes.
  const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "LoadLibraryA")));
  const HANDLE thread = CreateRemoteThread(process, nullptr, 0, load, text, 0, nullptr);
  EXPECT_EQ(WaitForSingleObject(thread, kPatienceMilliseconds), DWORD{WAIT_OBJECT_0});
  DWORD answer = 0;
  GetExitCodeThread(thread, &answer);
  CloseHandle(thread);
  return answer;
}

}  // namespace

TEST_F(LoadingTest, PlantedLibrariesAreNotTakenWhenTheProgramsOwnAreThere) {
  std::size_t planted = 0;
  for (const auto& entry : fs::directory_iterator(ProgramFolder())) {
    if (!IsLibrary(entry.path())) continue;
    ++planted;
    Plant(entry.path(), entry.path().filename().string());
  }
  const ProgramRun program(program_.path(), settings_.path(), current_.path());
  program.WaitForDocuments(1);
  std::string folder = program_.path().string() + "\\";
  CharLowerA(folder.data());
  std::size_t own = 0;
  for (const std::string& file : LoadedFiles(program.Process())) {
    if (file.starts_with(folder)) ++own;
    EXPECT_TRUE(file.starts_with(folder) || file.starts_with("c:\\windows\\")) << file;
  }
  EXPECT_EQ(own, planted + 1);  // and the executable
}

// The loader refuses to start the program, with a box of its own or without.
TEST_F(LoadingTest, LibraryThatIsMissingIsNotTakenFromElsewhere) {
  const std::set<std::string> bound = {"solar.dll", "CIVILCAL.DLL", "LUNARCAL.DLL", "occasions.dll"};
  for (const auto& entry : fs::directory_iterator(ProgramFolder())) {
    const std::string name = entry.path().filename().string();
    if (!IsLibrary(entry.path()) || bound.contains(name)) continue;
    SCOPED_TRACE(name);
    Plant(entry.path(), name);
    fs::remove(program_.path() / name);
    {
      ProgramRun program(program_.path(), settings_.path(), current_.path());
      EXPECT_NE(program.WaitForExit(), 0u);
    }
    fs::copy_file(entry.path(), program_.path() / name);
  }
}

TEST_F(LoadingTest, LibraryBoundByNameIsNotTakenFromElsewhere) {
  for (const std::string name : {"CIVILCAL.DLL", "LUNARCAL.DLL", "solar.dll"}) {
    SCOPED_TRACE(name);
    Plant(ProgramFolder() / name, name);
    fs::remove(program_.path() / name);
    ProgramRun program(program_.path(), settings_.path(), current_.path());
    const HWND box = program.WaitForTopLevel("#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(box), "Times / Readings");
    Answer(box, IDOK);
    EXPECT_EQ(program.WaitForExit(), 0u);
    fs::copy_file(ProgramFolder() / name, program_.path() / name);
  }
}

TEST_F(LoadingTest, LibraryThatTheProgramCanDoWithoutIsNotTakenFromElsewhere) {
  Plant(ProgramFolder() / "occasions.dll", "occasions.dll");
  fs::remove(program_.path() / "occasions.dll");
  const ProgramRun program(program_.path(), settings_.path(), current_.path());
  program.WaitForDocuments(1);
  for (const std::string& file : LoadedFiles(program.Process())) EXPECT_FALSE(file.ends_with("occasions.dll")) << file;
}

// As the system's own libraries load others at their time, which no manifest of ours can name.
TEST_F(LoadingTest, NoOtherLibraryIsTakenFromTheCurrentFolder) {
  Plant(ProgramFolder() / "folio.dll", "planted.dll");
  fs::copy_file(ProgramFolder() / "folio.dll", program_.path() / "own.dll");
  const ProgramRun program(program_.path(), settings_.path(), current_.path());
  program.WaitForDocuments(1);
  EXPECT_EQ(LoadLibraryThere(program.Process(), "planted.dll"), 0u);
  EXPECT_NE(LoadLibraryThere(program.Process(), "own.dll"), 0u);
}

TEST_F(LoadingTest, AlmanacIsNotStartedFromElsewhere) {
  Plant(fs::path("C:\\windows\\system32\\notepad.exe"), "ALMANAC.EXE");
  const ProgramRun program(program_.path(), settings_.path(), current_.path());
  const auto documents = program.WaitForDocuments(1);
  PostMessageA(documents[0], WM_COMMAND, IDB_ALMANAC, 0);
  const HWND box = program.WaitForDialog("Times / Readings");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), "Could not launch ALMANAC.EXE");
  Answer(box, IDOK);
}
