// A later installation: over an earlier version, over a copy in use, elsewhere, where nothing can be written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"
#include "tests/packages/installation.h"

using testing::IsEmpty;
namespace fs = std::filesystem;

namespace {

class UpgradeTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(Install(), kDone); }
  void TearDown() override {
    Uninstall(InstalledFolder());
    fs::remove_all(InstalledFolder());
    fs::remove_all(SettingsFolder());
  }

  // A file in the installed folder, which an earlier version brought when it is listed.
  static fs::path Plant(const char* name, bool listed) {
    const fs::path file = InstalledFolder() / name;
    fs::create_directories(file.parent_path());
    WriteFileText(file, "planted");
    if (listed) AppendToInstalledList(InstalledFolder(), fs::path(name).wstring());
    return file;
  }
};

bool HasWithin(ULONGLONG milliseconds, const std::function<bool()>& condition) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() >= end) return false;
    Sleep(10);
  }
  return true;
}

void WaitUntilItUnpacks() {
  EXPECT_TRUE(HasWithin(kPatienceMilliseconds, [] {
    return std::ranges::any_of(fs::directory_iterator(InstalledFolder()), [](const auto& entry) {
      return entry.path().filename().wstring().starts_with(L"tr-setup-");
    });
  })) << "no files are unpacked";
}

}  // namespace

TEST_F(UpgradeTest, FilesOfTheEarlierVersionGoAndTheUsersStay) {
  const fs::path gone[] = {Plant("old_library.dll", true), Plant("help\\old_page.html", true),
                           Plant("old\\folder\\page.html", true)};
  const fs::path kept[] = {Plant("notes.txt", false), Plant("help\\my notes.txt", false),
                           Plant("settings\\shabbat2.ini", false)};
  WriteFileText(InstalledFolder() / "help" / "index.html", "an earlier version's");
  EXPECT_EQ(Install(), kDone);
  for (const auto& file : gone) EXPECT_FALSE(fs::exists(file)) << file;
  EXPECT_FALSE(fs::exists(InstalledFolder() / "old"));
  for (const auto& file : kept) EXPECT_EQ(ReadFileText(file), "planted") << file;
  EXPECT_EQ(ReadFileText(InstalledFolder() / "help" / "index.html"),
            ReadFileText(ContentsFolder() / "help" / "index.html"));
  for (const auto& file : kept) fs::remove(file);
  fs::remove(InstalledFolder() / "settings");
}

TEST_F(UpgradeTest, AListThatNamesFilesOutsideTheFolderLeadsNowhere) {
  const fs::path outside = InstalledFolder().parent_path() / "outside.txt";
  WriteFileText(outside, "not ours");
  const fs::path alsoOutside = L"C:\\outside.txt";
  WriteFileText(alsoOutside, "not ours");
  for (const wchar_t* name : {L"..\\outside.txt", L"help\\..\\..\\outside.txt", L"C:\\outside.txt", L"\\outside.txt"}) {
    AppendToInstalledList(InstalledFolder(), name);
  }
  EXPECT_EQ(Install(), kDone);
  EXPECT_TRUE(fs::exists(outside));
  EXPECT_TRUE(fs::exists(alsoOutside));
  fs::remove(outside);
  fs::remove(alsoOutside);
}

TEST_F(UpgradeTest, TheUsersPlacesSurviveAndAreNotInTheProgramsFolder) {
  constexpr unsigned kPlaces = 1101;
  constexpr int kList = 101;
  {
    ProgramRun program(InstalledFolder(), "");
    program.WaitForDocuments(1);
    AddHome(program);
    PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForExit(), 0u);
  }
  const auto settings = FilesOf(SettingsFolder());
  EXPECT_TRUE(settings.contains(L"shabloc2.ini"));
  EXPECT_FALSE(fs::exists(InstalledFolder() / "settings"));

  EXPECT_EQ(Install(), kDone);
  EXPECT_TRUE(FilesOf(SettingsFolder()) == settings);
  ProgramRun program(InstalledFolder(), "");
  program.WaitForDocuments(1);
  program.PostCommand(kPlaces);
  const HWND manager = program.WaitForDialog("Select Location");
  EXPECT_GE(SendDlgItemMessageA(manager, kList, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                reinterpret_cast<LPARAM>("Home")),
            0);
  PostMessageA(manager, WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(program.Eventually([&] { return !IsWindow(manager); }));
  PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(UpgradeTest, NothingIsTouchedWhileTheProgramRuns) {
  Plant("old_library.dll", true);
  WriteFileText(InstalledFolder() / "help" / "index.html", "an earlier version's");
  const auto before = FilesOf(InstalledFolder());
  {
    ProgramRun program(InstalledFolder(), "");
    program.WaitForDocuments(1);
    EXPECT_EQ(Install(), kInUse);
    EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
    EXPECT_EQ(UninstallInPlace(InstalledFolder()), kInUse);
    EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
    PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForExit(), 0u);
  }
  EXPECT_EQ(Install(), kDone);
}

TEST_F(UpgradeTest, NothingIsTouchedWhileAnEarlierVersionsFileIsHeld) {
  const fs::path file = Plant("old_library.dll", true);
  const auto before = FilesOf(InstalledFolder());
  const HANDLE held = CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(Install(), kInUse);
  EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
  CloseHandle(held);
}

TEST_F(UpgradeTest, NothingIsTouchedWhileAFileMayBeWrittenButNotReplaced) {
  for (const char* name : {"LICENSE.txt", "help\\index.html"}) Plant(name, false);
  const auto before = FilesOf(InstalledFolder());
  const HANDLE held = CreateFileW((InstalledFolder() / "help" / "index.html").c_str(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(Install(), kInUse);
  EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
  CloseHandle(held);
}

TEST_F(UpgradeTest, AFileThatIsHeldForAMomentIsWaitedFor) {
  // The second is to be replaced right after the first.
  const auto list = InstalledList(InstalledFolder());
  const fs::path first = InstalledFolder() / list[list.size() - 4];
  const fs::path second = InstalledFolder() / list[list.size() - 3];
  for (const auto& file : {first, second}) WriteFileText(file, "an earlier version's");
  const StartedProgram setup(L"\"" + SetupFile().wstring() + L"\" /S");
  WaitUntilItUnpacks();
  const HANDLE held =
      CreateFileW(second.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_TRUE(HasWithin(kPatienceMilliseconds, [&] { return ReadFileText(first) != "an earlier version's"; }));
  constexpr ULONGLONG kMoment = 500;
  EXPECT_FALSE(HasWithin(kMoment, [&] { return ReadFileText(second) != "an earlier version's"; }));
  CloseHandle(held);
  EXPECT_EQ(setup.WaitForExit(), kDone);
  EXPECT_NE(ReadFileText(second), "an earlier version's");
}

TEST_F(UpgradeTest, AFileThatIsHeldOnLeavesTheEarlierVersionWhole) {
  for (const char* name : {"LICENSE.txt", "help\\index.html"}) Plant(name, false);
  fs::remove(InstalledFolder() / "help" / "zmanim.html");
  const auto before = FilesOf(InstalledFolder());
  const auto list = InstalledList(InstalledFolder());
  const StartedProgram setup(L"\"" + SetupFile().wstring() + L"\" /S");
  WaitUntilItUnpacks();
  const HANDLE held = CreateFileW((InstalledFolder() / list[list.size() - 3]).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(setup.WaitForExit(), kCannotWriteFile);
  CloseHandle(held);
  EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
}

TEST_F(UpgradeTest, AProgramElsewhereDoesNotHinder) {
  TemporaryFolder copy;
  CopyFiles(InstalledFolder(), copy.path());
  ProgramRun program(copy.path(), "");
  program.WaitForDocuments(1);
  EXPECT_EQ(Install(), kDone);
}

TEST_F(UpgradeTest, TwoInstallersDoNotWorkAtOnce) {
  const HANDLE other = CreateMutexW(nullptr, FALSE, L"TimesReadingsSetup");
  EXPECT_EQ(Install(), kAlreadyRunning);
  CloseHandle(other);
}

TEST_F(UpgradeTest, AnOlderVersionGoesOverANewerOne) {
  const auto version = UserValue(kUninstallKey, L"DisplayVersion");
  SetUserValue(kUninstallKey, L"DisplayVersion", L"99.0.0.0");
  EXPECT_EQ(Install(), kDone);
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayVersion"), version);
}

TEST_F(UpgradeTest, AnotherFolderBecomesTheInstalledOne) {
  const fs::path elsewhere = L"C:\\Other place\\לוח";
  const fs::path notes = Plant("notes.txt", false);
  EXPECT_EQ(Install(L"/D=" + elsewhere.wstring()), kDone);
  EXPECT_EQ(FilesOf(InstalledFolder()).size(), 1u) << "only the user's notes";
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), elsewhere.wstring());
  fs::remove(notes);
  EXPECT_EQ(Install(), kDone) << "without a folder: where it is";
  EXPECT_TRUE(fs::exists(elsewhere / "shabbat.exe"));
  Uninstall(elsewhere);
  EXPECT_FALSE(fs::exists(elsewhere));
  fs::remove(elsewhere.parent_path());
  EXPECT_EQ(Install(), kDone);
}

TEST_F(UpgradeTest, AFolderThatCannotBeWrittenHasACodeOfItsOwn) {
  EXPECT_EQ(Install(L"/D=Z:\\proc\\Times Readings"), kCannotUseFolder);
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), InstalledFolder().wstring());
}

TEST_F(UpgradeTest, AFileThatCannotBeWrittenIsNoSuccess) {
  const fs::path file = InstalledFolder() / "help" / "zmanim.html";
  fs::remove(file);
  fs::create_directories(file / "in the way");
  SetUserValue(kUninstallKey, L"DisplayVersion", L"1.0");
  EXPECT_EQ(Install(), kCannotWriteFile);
  EXPECT_EQ(UserValue(kUninstallKey, L"DisplayVersion"), L"1.0") << "the new version must not claim to be there";
  EXPECT_FALSE(fs::exists(InstalledFolder() / "setup.tmp"));
  fs::remove_all(file);
  EXPECT_EQ(Install(), kDone);
}
