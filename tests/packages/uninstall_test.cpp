// After uninstalling nothing is left but the user's own data, and these only where they are wanted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/end_to_end/program_driver.h"
#include "tests/packages/installation.h"

using testing::IsEmpty;
namespace fs = std::filesystem;

namespace {

// Runs the installed program until it shows a document, and closes it.
void UseTheProgram() {
  ProgramRun program(InstalledFolder(), "");
  program.WaitForDocuments(1);
  PostMessageA(program.WaitForTopLevel("ShabbatMain"), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0u);
}

std::vector<std::string> Difference(const std::set<std::wstring>& from, const std::set<std::wstring>& without) {
  std::vector<std::wstring> lines;
  std::set_difference(from.begin(), from.end(), without.begin(), without.end(), std::back_inserter(lines));
  std::vector<std::string> texts;
  for (const auto& line : lines) texts.push_back(fs::path(line).string());
  return texts;
}

// What the system keeps: in the temporary folder, which it clears, the running copy of an uninstaller, which cannot
// delete itself; of Wine's own keys what it remembers of a font's looks, and settings of a session.
bool IsTheSystems(const std::string& line) {
  constexpr const char* kWine[] = {"HKCU\\Software\\Wine\\Fonts\\Cache\\DisplayHebrew1",
                                   "HKCU\\Software\\Wine\\Temporary System Parameters"};
  return line.find("\\Temp\\~nsu") != std::string::npos ||
         std::ranges::any_of(kWine, [&](const char* key) { return line.starts_with(key); });
}

}  // namespace

TEST(UninstallTest, NothingIsLeftButTheUsersSettings) {
  ASSERT_EQ(Install(), kDone);
  UseTheProgram();
  fs::create_directories(SettingsFolder());
  WriteFileText(SettingsFolder() / "persons.txt", "the user's");
  Uninstall(InstalledFolder());
  EXPECT_EQ(ReadFileText(SettingsFolder() / "persons.txt"), "the user's");
  fs::remove_all(SettingsFolder());
  const auto after = StateOfTheSystem();
  auto left = Difference(after, FirstState());
  std::erase_if(left, IsTheSystems);
  EXPECT_THAT(left, IsEmpty());
  auto lost = Difference(FirstState(), after);
  std::erase_if(lost, IsTheSystems);
  EXPECT_THAT(lost, IsEmpty());
}

TEST(UninstallTest, TheFirstInstallationLeavesNoTraceOfItself) {
  EXPECT_FALSE(HasUserKey(kUninstallKey));
  ASSERT_EQ(Install(), kDone);
  Uninstall(InstalledFolder());
  EXPECT_FALSE(HasUserKey(kUninstallKey));
  EXPECT_FALSE(HasUserKey(kSetupKey));
  EXPECT_EQ(UserValue(kFontsKey, L"DisplayHebrew1 (TrueType)"), std::nullopt);
  EXPECT_EQ(UserValue(kRunOnceKey, L"Times Readings font"), std::nullopt);
  EXPECT_FALSE(fs::exists(FontFile()));
  EXPECT_FALSE(fs::exists(StartMenuFolder()));
  EXPECT_FALSE(fs::exists(InstalledFolder()));
  EXPECT_FALSE(fs::exists(SettingsFolder()));
}

TEST(UninstallTest, FilesOfTheUsersInTheFolderStay) {
  ASSERT_EQ(Install(), kDone);
  fs::create_directories(InstalledFolder() / "settings");
  WriteFileText(InstalledFolder() / "settings" / "shabbat2.ini", "the user's");
  WriteFileText(InstalledFolder() / "help" / "notes.txt", "the user's");
  Uninstall(InstalledFolder(), L"/REMOVESETTINGS");
  const std::map<std::wstring, std::string> kept = {{L"help\\notes.txt", "the user's"},
                                                    {L"settings\\shabbat2.ini", "the user's"}};
  EXPECT_EQ(FilesOf(InstalledFolder()), kept);
  fs::remove_all(InstalledFolder());
}

TEST(UninstallTest, SettingsGoWhenThatIsAskedFor) {
  ASSERT_EQ(Install(), kDone);
  fs::create_directories(SettingsFolder() / "backup");
  WriteFileText(SettingsFolder() / "persons.txt", "the user's");
  WriteFileText(SettingsFolder() / "backup" / "persons.txt", "the user's");
  SetFileAttributesW((SettingsFolder() / "persons.txt").c_str(), FILE_ATTRIBUTE_READONLY);
  Uninstall(InstalledFolder(), L"/REMOVESETTINGS");
  EXPECT_FALSE(fs::exists(SettingsFolder()));
}

TEST(UninstallTest, WhatALinkLeadsToStays) {
  ASSERT_EQ(Install(), kDone);
  const fs::path elsewhere = L"C:\\elsewhere";
  fs::create_directories(elsewhere);
  fs::create_directories(SettingsFolder());
  for (const char* name : {"index.html", "persons.txt"}) WriteFileText(elsewhere / name, "not ours");
  fs::remove_all(InstalledFolder() / "help");
  Link(InstalledFolder() / "help", elsewhere);
  Link(SettingsFolder() / "linked", elsewhere);
  Uninstall(InstalledFolder(), L"/REMOVESETTINGS");
  EXPECT_FALSE(fs::exists(InstalledFolder() / "shabbat.exe"));
  EXPECT_EQ(FilesOf(elsewhere).size(), 2u);
  Unlink(InstalledFolder() / "help");
  if (fs::exists(SettingsFolder() / "linked")) Unlink(SettingsFolder() / "linked");  // Wine does not remove links
  for (const auto& folder : {InstalledFolder(), SettingsFolder(), elsewhere}) fs::remove_all(folder);
}

TEST(UninstallTest, WhereAFileStaysItCanBeRunAgain) {
  ASSERT_EQ(Install(), kDone);
  // A file that others may delete is there until the last of them lets go of it.
  const HANDLE held =
      CreateFileW((InstalledFolder() / "solar.dll").c_str(), GENERIC_READ,
                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(UninstallInPlace(InstalledFolder()), kCannotWriteFile);
  EXPECT_TRUE(fs::exists(InstalledFolder() / "installed-files.txt"));
  EXPECT_TRUE(fs::exists(InstalledFolder() / "uninstall.exe"));
  EXPECT_TRUE(HasUserKey(kUninstallKey));
  EXPECT_TRUE(fs::exists(StartMenuFolder()));
  CloseHandle(held);
  Uninstall(InstalledFolder());
  EXPECT_FALSE(fs::exists(InstalledFolder()));
  EXPECT_FALSE(HasUserKey(kUninstallKey));
}

TEST(UninstallTest, AnUninstallerWithoutItsProgramRemovesNothing) {
  ASSERT_EQ(Install(), kDone);
  TemporaryFolder elsewhere;
  fs::copy_file(InstalledFolder() / "uninstall.exe", elsewhere.path() / "uninstall.exe");
  fs::create_directories(elsewhere.path() / "help");
  WriteFileText(elsewhere.path() / "help" / "index.html", "not ours");
  EXPECT_EQ(UninstallInPlace(elsewhere.path()), 6u);
  EXPECT_EQ(ReadFileText(elsewhere.path() / "help" / "index.html"), "not ours");
  EXPECT_TRUE(HasUserKey(kUninstallKey));
  Uninstall(InstalledFolder());
}

TEST(UninstallTest, AnotherInstalledCopyKeepsItsEntries) {
  ASSERT_EQ(Install(), kDone);
  TemporaryFolder copy;
  CopyFiles(InstalledFolder(), copy.path());
  Uninstall(copy.path());
  EXPECT_FALSE(fs::exists(copy.path() / "shabbat.exe"));
  EXPECT_TRUE(fs::exists(InstalledFolder() / "shabbat.exe"));
  EXPECT_TRUE(HasUserKey(kUninstallKey));
  EXPECT_TRUE(fs::exists(StartMenuFolder()));
  EXPECT_TRUE(fs::exists(FontFile()));
  Uninstall(InstalledFolder());
}
