// The folder that is chosen: the installed one by another name, one that holds something else, one with the user's own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/end_to_end/program_driver.h"
#include "tests/packages/installation.h"

namespace fs = std::filesystem;

namespace {

class FolderTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(Install(), kDone); }
  void TearDown() override {
    Uninstall(InstalledFolder());
    fs::remove_all(InstalledFolder());
  }
};

}  // namespace

TEST_F(FolderTest, TheInstalledFolderSpeltOtherwiseIsNoOther) {
  const auto before = FilesOf(InstalledFolder());
  const fs::path otherwise = LocalAppData() / "Programs" / ".." / "Programs" / "Times Readings";
  EXPECT_EQ(Install(L"/D=" + otherwise.wstring()), kDone);
  EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), InstalledFolder().wstring());
}

TEST_F(FolderTest, TheInstalledFolderOnAnotherDrivesNameIsNoOther) {
  const auto before = FilesOf(InstalledFolder());
  EXPECT_EQ(Install(L"/D=" + ByAnotherDrive(InstalledFolder()).wstring()), kDone);
  EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
}

TEST_F(FolderTest, ALinkToTheInstalledFolderIsNoOther) {
  const auto before = FilesOf(InstalledFolder());
  const fs::path linked = L"C:\\linked";
  Link(linked, InstalledFolder());
  EXPECT_EQ(Install(L"/D=" + linked.wstring()), kDone);
  EXPECT_TRUE(FilesOf(InstalledFolder()) == before);
  Unlink(linked);
}

TEST(ChosenFolderTest, AFolderWithSomethingElseGetsOneForTheProgram) {
  const fs::path chosen = L"C:\\Tools";
  const fs::path own = chosen / "Times Readings";
  for (const char* name : {"uninstall.exe", "LICENSE.txt", "help\\index.html"}) {
    fs::create_directories((chosen / name).parent_path());
    WriteFileText(chosen / name, "not ours");
  }
  const auto before = FilesOf(chosen);
  EXPECT_EQ(Install(L"/D=" + chosen.wstring()), kDone);
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), own.wstring());
  EXPECT_TRUE(fs::exists(own / "shabbat.exe"));
  EXPECT_EQ(Install(L"/D=" + own.wstring()), kDone) << "that one is the program's";
  EXPECT_EQ(UserValue(kUninstallKey, L"InstallLocation"), own.wstring());
  Uninstall(own);
  EXPECT_TRUE(FilesOf(chosen) == before);
  fs::remove_all(chosen);
}

TEST(ChosenFolderTest, SettingsAloneAreTheProgramsOwn) {
  fs::create_directories(InstalledFolder() / "settings");
  WriteFileText(InstalledFolder() / "settings" / "shabbat2.ini", "the user's");
  EXPECT_EQ(Install(), kDone);
  EXPECT_TRUE(fs::exists(InstalledFolder() / "shabbat.exe"));
  Uninstall(InstalledFolder());
  EXPECT_EQ(ReadFileText(InstalledFolder() / "settings" / "shabbat2.ini"), "the user's");
  fs::remove_all(InstalledFolder());
}

TEST_F(FolderTest, FoldersOfTheUsersNamedLikeTheInstallersOwnStay) {
  const fs::path notes[] = {InstalledFolder() / "setup.tmp" / "notes.txt",
                            InstalledFolder() / "tr-setup-1.tmp" / "notes.txt"};
  for (const auto& file : notes) {
    fs::create_directories(file.parent_path());
    WriteFileText(file, "the user's");
  }
  EXPECT_EQ(Install(), kDone);
  for (const auto& file : notes) EXPECT_EQ(ReadFileText(file), "the user's") << file;
  const fs::path inTheWay = InstalledFolder() / "help" / "zmanim.html";
  fs::remove(inTheWay);
  fs::create_directories(inTheWay / "of the user's");
  EXPECT_EQ(Install(), kCannotWriteFile);
  for (const auto& file : notes) EXPECT_EQ(ReadFileText(file), "the user's") << file;
  EXPECT_FALSE(fs::exists(InstalledFolder() / "tr-setup-2.tmp"));
}
