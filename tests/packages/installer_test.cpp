// What the installer brings: files, entries of the system, the settings' place.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <shlobj.h>

#include "tests/end_to_end/program_driver.h"
#include "tests/packages/installation.h"

using testing::Contains;
using testing::Not;
using testing::StartsWith;
namespace fs = std::filesystem;

namespace {

class InstallerTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(Install(), kDone); }
  void TearDown() override { Uninstall(InstalledFolder()); }
};

struct Shortcut {
  std::wstring target;
  std::wstring folder;
};

Shortcut ReadShortcut(const fs::path& file) {
  Shortcut shortcut;
  IShellLinkW* link = nullptr;
  IPersistFile* stored = nullptr;
  CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, reinterpret_cast<void**>(&link));
  link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&stored));
  if (SUCCEEDED(stored->Load(file.c_str(), STGM_READ))) {
    wchar_t text[MAX_PATH] = L"";
    link->GetPath(text, MAX_PATH, nullptr, 0);
    shortcut.target = text;
    link->GetWorkingDirectory(text, MAX_PATH);
    shortcut.folder = text;
  }
  stored->Release();
  link->Release();
  return shortcut;
}

}  // namespace

TEST_F(InstallerTest, BringsTheContentsByteForByte) {
  auto installed = FilesOf(InstalledFolder());
  EXPECT_EQ(installed.erase(L"uninstall.exe"), 1u);
  EXPECT_EQ(installed.erase(L"installed-files.txt"), 1u);
  EXPECT_TRUE(installed == FilesOf(ContentsFolder()));
  EXPECT_FALSE(fs::exists(InstalledFolder() / "settings"));
}

TEST_F(InstallerTest, ThePortableArchiveHasTheSameFiles) {
  const auto portable = FilesOf(PortableFolder());
  std::size_t same = 0;
  for (const auto& [name, bytes] : FilesOf(ContentsFolder())) {
    const auto found = portable.find(name);
    ASSERT_NE(found, portable.end()) << fs::path(name);
    EXPECT_TRUE(found->second == bytes) << fs::path(name);
    ++same;
  }
  for (const auto& [name, bytes] : portable) {
    if (!name.starts_with(L"settings\\")) --same;
  }
  EXPECT_EQ(same, 0u) << "files are in the portable archive alone";
}

TEST_F(InstallerTest, KeepsAListOfWhatItBrought) {
  std::set<std::wstring> names;
  for (const auto& [name, bytes] : FilesOf(InstalledFolder())) names.insert(name);
  const auto list = InstalledList(InstalledFolder());
  EXPECT_EQ(std::set<std::wstring>(list.begin(), list.end()), names);
}

TEST_F(InstallerTest, EntersItselfInTheListOfPrograms) {
  const std::wstring folder = InstalledFolder().wstring();
  const std::pair<const wchar_t*, std::wstring> texts[] = {
      {L"DisplayName", L"Times / Readings"},
      {L"Publisher", L"Times / Readings"},
      {L"InstallLocation", folder},
      {L"DisplayIcon", folder + L"\\shabbat.exe,0"},
      {L"UninstallString", L"\"" + folder + L"\\uninstall.exe\""},
      {L"QuietUninstallString", L"\"" + folder + L"\\uninstall.exe\" /S"},
      {L"NoModify", L"1"},
      {L"NoRepair", L"1"},
  };
  for (const auto& [name, text] : texts) EXPECT_EQ(UserValue(kUninstallKey, name), text) << fs::path(name);
  const std::wstring version = UserValue(kUninstallKey, L"DisplayVersion").value_or(L"");
  EXPECT_NE(SetupFile().filename().wstring().find(L"-" + version + L"-"), std::wstring::npos) << fs::path(version);

  std::uintmax_t bytes = 0;
  for (const auto& [name, content] : FilesOf(ContentsFolder())) bytes += content.size();
  const unsigned long kilobytes = std::stoul(UserValue(kUninstallKey, L"EstimatedSize").value_or(L"0"));
  EXPECT_GE(kilobytes, bytes / 1024);
  EXPECT_LE(kilobytes, bytes / 1024 + 100);  // every file rounded up
}

TEST_F(InstallerTest, StartMenuEntriesLeadToProgramHelpAndUninstaller) {
  CoInitialize(nullptr);
  const std::pair<const char*, const char*> entries[] = {{"Times Readings.lnk", "shabbat.exe"},
                                                         {"Times Readings Help.lnk", "help\\index.html"},
                                                         {"Uninstall Times Readings.lnk", "uninstall.exe"}};
  for (const auto& [name, target] : entries) {
    const Shortcut shortcut = ReadShortcut(StartMenuFolder() / name);
    EXPECT_EQ(fs::path(shortcut.target), InstalledFolder() / target);
    EXPECT_EQ(fs::path(shortcut.folder), InstalledFolder()) << name;
  }
  EXPECT_EQ(FilesOf(StartMenuFolder()).size(), std::size(entries));
  CoUninitialize();
}

TEST_F(InstallerTest, TheDisplayFontIsRegisteredForTheUser) {
  EXPECT_EQ(UserValue(kFontsKey, L"DisplayHebrew1 (TrueType)"), FontFile().wstring());
  const auto installed = FilesOf(FontFile().parent_path());
  const auto font = FilesOf(ContentsFolder() / "fonts").at(L"DisplayHebrew1.ttf");
  EXPECT_TRUE(installed.at(L"DisplayHebrew1.ttf") == font);
}

TEST_F(InstallerTest, AFontInUseStaysUntilTheNextSigningIn) {
  const HANDLE held =
      CreateFileW(FontFile().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  Uninstall(InstalledFolder());
  EXPECT_EQ(UserValue(kFontsKey, L"DisplayHebrew1 (TrueType)"), std::nullopt);
  EXPECT_NE(UserValue(kRunOnceKey, L"Times Readings font").value_or(L"").find(FontFile().wstring()),
            std::wstring::npos);
  EXPECT_EQ(Install(), kDone) << "a font in use is no reason to fail";
  EXPECT_EQ(UserValue(kRunOnceKey, L"Times Readings font"), std::nullopt);
  EXPECT_EQ(UserValue(kFontsKey, L"DisplayHebrew1 (TrueType)"), FontFile().wstring());
  CloseHandle(held);
}

TEST_F(InstallerTest, RemembersFolderAndLanguageUnderOneKey) {
  EXPECT_EQ(UserValue(kSetupKey, L"Folder"), InstalledFolder().wstring());
  EXPECT_NE(UserValue(kSetupKey, L"Language"), std::nullopt);
}

TEST(InstallerFontTest, AFontThatTheUserHasInstalledHimselfStaysHis) {
  const wchar_t* const name = L"DisplayHebrew1 (TrueType)";
  const bool hadFonts = HasUserKey(kFontsKey);
  fs::create_directories(FontFile().parent_path());
  WriteFileText(FontFile(), "the user's");
  SetUserValue(kFontsKey, name, FontFile().wstring());
  EXPECT_EQ(Install(), kDone);
  EXPECT_TRUE(ReadFileText(FontFile()) == "the user's");
  EXPECT_EQ(Install(), kDone) << "nor is it taken the next time";
  Uninstall(InstalledFolder());
  EXPECT_TRUE(ReadFileText(FontFile()) == "the user's");
  EXPECT_EQ(UserValue(kFontsKey, name), FontFile().wstring());
  fs::remove_all(FontFile().parent_path());
  RegDeleteKeyValueW(HKEY_CURRENT_USER, kFontsKey, name);
  if (!hadFonts) RegDeleteKeyW(HKEY_CURRENT_USER, kFontsKey);
}

TEST(InstallerFileTest, IsBelowTenMegabytes) {
  EXPECT_LT(fs::file_size(SetupFile()), 10'000'000u);
}
