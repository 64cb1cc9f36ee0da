#include "companion/profile.h"

#include <gtest/gtest.h>

#include "tests/contract/profile_behaviour.h"
#include "tests/contract/settings_home.h"

namespace {

using std::string_literals::operator""s;

// The header's promise: how long another program's write may go unseen.
constexpr DWORD kOthersSeenAfterMilliseconds = 50 + 16;

std::string Text(const char* section, const char* key, const char* file, const char* defaultValue = "(default)") {
  char buffer[256];
  const uint32_t count = ProfileGetString(section, key, defaultValue, buffer, sizeof buffer, file);
  return std::string(buffer, count);
}

INSTANTIATE_TEST_SUITE_P(OfTheLibrary, ProfileBehaviour,
                         testing::Values(EmptyFiles([] { return std::make_shared<SettingsHome>(); })));

class ProfileContract : public testing::Test {
 protected:
  SettingsHome home_;
};

TEST_F(ProfileContract, MissingFileAnswersDefaults) {
  EXPECT_EQ(ProfileGetInt("A", "x", -7, "a.ini"), -7);
  EXPECT_EQ(Text("A", "x", "a.ini"), "(default)");
  EXPECT_EQ(Text("A", nullptr, "a.ini", ""), "");
  EXPECT_EQ(Text(nullptr, nullptr, "a.ini"), "");
}

TEST_F(ProfileContract, ReadsAFileOfTheSettingsFolder) {
  home_.Put("a.ini", "[A]\r\nx=\"-12\"\r\nh=0x1F\r\n");
  EXPECT_EQ(ProfileGetInt("a", "X", 0, "a.ini"), -12);
  EXPECT_EQ(ProfileGetInt("A", "h", 0, "a.ini"), 31);
  EXPECT_EQ(Text("A", "x", "a.ini"), "-12");
  EXPECT_EQ(Text("A", nullptr, "a.ini"), "x\0h\0"s);
  EXPECT_EQ(Text(nullptr, nullptr, "a.ini"), "A\0"s);
  EXPECT_EQ(Text(nullptr, "x", "a.ini"), "A\0"s);
}

TEST_F(ProfileContract, FirstWriteMakesTheFolderAndTheFile) {
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
  EXPECT_NE(ProfileWriteString("A", "x", "1", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\n");
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 1);
}

TEST_F(ProfileContract, DeletingWhatIsNotThereIsHarmlessAndMakesNoFile) {
  EXPECT_NE(ProfileWriteString("A", "x", nullptr, "a.ini"), 0);
  EXPECT_NE(ProfileWriteString("A", nullptr, nullptr, "a.ini"), 0);
  EXPECT_NE(ProfileWriteString("", nullptr, nullptr, "a.ini"), 0);
  EXPECT_NE(ProfileWriteString("A", "", nullptr, "a.ini"), 0);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(ProfileContract, WritesTouchNothingElse) {
  home_.Put("a.ini", "; top\n[A]\n; c\nx = 1\nodd\n\n[B]\ny=2");
  EXPECT_NE(ProfileWriteString("A", "x", "5", "a.ini"), 0);
  EXPECT_NE(ProfileWriteString("B", "z", "\xE4", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "; top\n[A]\n; c\nx = 5\nodd\n\n[B]\ny=2\nz=\xE4\n");
  EXPECT_NE(ProfileWriteString("B", "y", nullptr, "a.ini"), 0);
  EXPECT_NE(ProfileWriteString("A", nullptr, nullptr, "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "; top\n[B]\nz=\xE4\n");
}

TEST_F(ProfileContract, OwnWritesAreSeenAtOnceUnderEveryName) {
  const std::string path = home_.Path("a.ini").string();
  EXPECT_EQ(ProfileGetInt("A", "x", 0, path.c_str()), 0);
  for (int value = 1; value <= 20; ++value) {
    ASSERT_NE(ProfileWriteString("A", "x", std::to_string(value).c_str(), "a.ini"), 0);
    ASSERT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), value);
    ASSERT_EQ(ProfileGetInt("A", "x", 0, path.c_str()), value);
  }
}

TEST_F(ProfileContract, AnotherProgramsWriteIsSeen) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 1);
  home_.Put("a.ini", "[A]\r\nx=22\r\n");
  Sleep(kOthersSeenAfterMilliseconds);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 22);
  std::filesystem::remove(home_.Path("a.ini"));
  Sleep(kOthersSeenAfterMilliseconds);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 0);
}

TEST_F(ProfileContract, WriteKeepsWhatAnotherProgramWroteJustBefore) {
  EXPECT_NE(ProfileWriteString("A", "x", "1", "a.ini"), 0);
  home_.Put("a.ini", "[A]\r\nx=1\r\ny=2\r\n");
  EXPECT_NE(ProfileWriteString("A", "x", "3", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=3\r\ny=2\r\n");
}

TEST_F(ProfileContract, AChangedHomeIsSeen) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 1);
  {
    SettingsHome other;
    other.Put("a.ini", "[A]\r\nx=2\r\n");
    EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 2);
  }
  SetHome(home_.Folder().c_str());
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 1);
}

TEST_F(ProfileContract, WithoutAHomeFilesLiveInTheApplicationData) {
  // A user's name that the code page cannot spell.
  const std::filesystem::path appData = home_.Folder() / L"\x05D3\x05D1\x4E2D";
  wchar_t before[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"APPDATA", before, MAX_PATH);
  SetEnvironmentVariableW(L"APPDATA", appData.c_str());
  SetHome(nullptr);
  EXPECT_NE(ProfileWriteString("A", "x", "1", "contract-test.ini"), 0);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "contract-test.ini"), 1);
  SetEnvironmentVariableW(L"APPDATA", before);
  EXPECT_TRUE(std::filesystem::exists(appData / "Times Readings" / "contract-test.ini"));
}

TEST_F(ProfileContract, WithoutAHomeAndApplicationDataFilesLiveBesideTheExe) {
  wchar_t exe[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, exe, MAX_PATH);
  const std::filesystem::path settings = std::filesystem::path(exe).parent_path() / "settings";
  wchar_t before[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"APPDATA", before, MAX_PATH);
  SetEnvironmentVariableW(L"APPDATA", nullptr);
  SetHome(L" \"\" ");
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "nowhere-else.ini"), 7);
  EXPECT_NE(ProfileWriteString("A", "x", "1", "nowhere-else.ini"), 0);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "nowhere-else.ini"), 1);
  SetEnvironmentVariableW(L"APPDATA", before);
  EXPECT_TRUE(std::filesystem::exists(settings / "nowhere-else.ini"));
  std::filesystem::remove_all(settings);
}

TEST_F(ProfileContract, HomeMayBeWrittenInManyWays) {
  const std::wstring folder = (home_.Folder() / L"\x05D3\x05D1 \x4E2D").wstring();
  std::wstring slashes = folder;
  for (wchar_t& c : slashes) c = c == L'\\' ? L'/' : c;
  int value = 0;
  for (const std::wstring& home : {folder, folder + L"\\", folder + L"/", slashes, L"\"" + folder + L"\"",
                                   L"\"" + folder + L"\\\" ", folder + L"\\x\\.."}) {
    SetHome(home.c_str());
    EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), value);
    EXPECT_NE(ProfileWriteString("A", "x", std::to_string(++value).c_str(), "a.ini"), 0) << value;
    EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), value);
  }
  const std::filesystem::directory_iterator files(folder);
  EXPECT_EQ(std::distance(files, {}), 1);
}

TEST_F(ProfileContract, PathsMayBeLongerThanTheSystemsUsualLimit) {
  std::filesystem::path folder = home_.Folder();
  for (int depth = 0; depth < 4; ++depth) folder /= std::wstring(100, L'f');
  SetHome(folder.c_str());
  EXPECT_NE(ProfileWriteString("A", "x", "1", "a.ini"), 0);
  EXPECT_NE(ProfileWriteString("A", "x", "2", "a.ini"), 0);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 2);
  EXPECT_NE(GetFileAttributesW((L"\\\\?\\" + (folder / "a.ini").wstring()).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(ProfileContract, HomeThatCannotBeMadeTakesNoWrite) {
  home_.Put("file", "not a folder");
  SetHome((home_.Path("file") / "sub").c_str());
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 7);
  EXPECT_EQ(ProfileWriteString("A", "x", "1", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("file"), "not a folder");
}

TEST_F(ProfileContract, SettingsBesideTheExeTakeTheApplicationDatasPlace) {
  wchar_t exe[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, exe, MAX_PATH);
  const std::filesystem::path settings = std::filesystem::path(exe).parent_path() / "settings";
  std::filesystem::create_directories(settings);
  SetHome(nullptr);
  EXPECT_NE(ProfileWriteString("A", "x", "1", "beside.ini"), 0);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "beside.ini"), 1);
  EXPECT_TRUE(std::filesystem::exists(settings / "beside.ini"));
  std::filesystem::remove_all(settings);
}

TEST_F(ProfileContract, NameWithAPathIsUsedAsItStands) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  SettingsHome elsewhere;
  const std::string path = home_.Path("a.ini").string();
  EXPECT_EQ(ProfileGetInt("A", "x", 0, path.c_str()), 1);
  EXPECT_NE(ProfileWriteString("A", "x", "2", path.c_str()), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=2\r\n");
}

TEST_F(ProfileContract, FolderOfANameWithAPathIsNotMade) {
  const std::string path = home_.Path("none\\a.ini").string();
  EXPECT_EQ(ProfileWriteString("A", "x", "1", path.c_str()), 0);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(ProfileContract, WriteToAReadOnlyFileFails) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  SetFileAttributesW(home_.Path("a.ini").c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", "a.ini"), 0);
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 1);
  EXPECT_NE(ProfileWriteString("A", "x", "1", "a.ini"), 0);  // it holds that already
  SetFileAttributesW(home_.Path("a.ini").c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\n");
}

TEST_F(ProfileContract, FolderOfTheFilesNameAnswersDefaultsAndTakesNoWrite) {
  std::filesystem::create_directories(home_.Path("a.ini"));
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 7);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", "a.ini"), 0);
  EXPECT_TRUE(std::filesystem::is_directory(home_.Path("a.ini")));
}

TEST_F(ProfileContract, FileThatAnotherHoldsAnswersDefaultsAndTakesNoWrite) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  const HANDLE held =
      CreateFileW(home_.Path("a.ini").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 7);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", "a.ini"), 0);
  CloseHandle(held);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\n");
  Sleep(kOthersSeenAfterMilliseconds);
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 1);
}

TEST_F(ProfileContract, FileOpenForReadingElsewhereDoesNotHinderReading) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  const HANDLE held = CreateFileW(home_.Path("a.ini").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  EXPECT_EQ(ProfileGetInt("A", "x", 7, "a.ini"), 1);
  CloseHandle(held);
}

TEST_F(ProfileContract, LeavesNothingBesideTheFile) {
  home_.Put("a.ini.new", "left by a crash");
  EXPECT_NE(ProfileWriteString("A", "x", "1", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\n");
  EXPECT_FALSE(std::filesystem::exists(home_.Path("a.ini.new")));
}

// As an editor saves it that was asked for "Unicode": a byte order mark, then two bytes a character.
TEST_F(ProfileContract, FileSavedAsUtf16IsReadAndKept) {
  for (const bool isBigEndian : {false, true}) {
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : "[A]\r\nx=12\r\nplace=Z\xFCrich\r\n"s) bytes.append(isBigEndian ? "\0"s + c : c + "\0"s);
    home_.Put("a.ini", bytes);
    Sleep(kOthersSeenAfterMilliseconds);
    EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 12);
    EXPECT_EQ(Text("A", "place", "a.ini"), "Z\xFCrich");
    EXPECT_NE(ProfileWriteString("A", "x", "12", "a.ini"), 0);
    EXPECT_EQ(home_.Bytes("a.ini"), bytes);  // it holds that already
    EXPECT_NE(ProfileWriteString("A", "x", "5", "a.ini"), 0);
    EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=5\r\nplace=Z\xFCrich\r\n");
  }
}

TEST_F(ProfileContract, LettersThatTheCodePageLacksSurviveAWriteToAFileSavedAsUtf16) {
  home_.Put("a.ini", "\xFF\xFE[\0A\0]\0\n\0p\0=\0\x2D\x4E\n\0x\0=\0001\0"s);  // p is U+4E2D
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 1);
  EXPECT_NE(ProfileWriteString("A", "x", "2", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "\xEF\xBB\xBF[A]\np=\xE4\xB8\xAD\nx=2");
  EXPECT_EQ(ProfileGetInt("A", "x", 0, "a.ini"), 2);
}

TEST_F(ProfileContract, LargeFileIsReadAndWritten) {
  std::string bytes = "[A]\r\n";
  for (int key = 0; key < 200000; ++key) bytes += "key"s + std::to_string(key) + "=" + std::to_string(key) + "\r\n";
  home_.Put("a.ini", bytes);  // some 4 MB
  EXPECT_EQ(ProfileGetInt("A", "key199999", 0, "a.ini"), 199999);
  EXPECT_NE(ProfileWriteString("A", "key199999", "x", "a.ini"), 0);
  EXPECT_EQ(Text("A", "key199999", "a.ini"), "x");
  EXPECT_EQ(home_.Bytes("a.ini").size(), bytes.size() - 5);
}

TEST_F(ProfileContract, KeyListLongerThanTheBufferIsCut) {
  constexpr uint32_t kLocationListBytes = 20480;
  std::string bytes = "[Locations]\r\n";
  std::string names;
  for (int place = 1000; names.size() < kLocationListBytes; ++place) {
    bytes += "Place "s + std::to_string(place) + "=Available\r\n";
    names += "Place "s + std::to_string(place) + '\0';
  }
  home_.Put("a.ini", bytes);
  std::string buffer(kLocationListBytes + 1, '#');
  EXPECT_EQ(ProfileGetString("Locations", nullptr, "", buffer.data(), kLocationListBytes, "a.ini"),
            kLocationListBytes - 2);
  EXPECT_EQ(buffer, names.substr(0, kLocationListBytes - 2) + "\0\0#"s);
}

TEST_F(ProfileContract, NullAndEmptyArgumentsAreAnswered) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  char buffer[] = "##";
  EXPECT_EQ(ProfileGetString("A", "x", "d", nullptr, 9, "a.ini"), 0u);
  EXPECT_EQ(ProfileGetString("A", "x", "d", buffer, 0, "a.ini"), 0u);
  EXPECT_STREQ(buffer, "##");
  EXPECT_EQ(Text("A", "y", "a.ini", nullptr), "");
  EXPECT_EQ(Text("A", "x", nullptr), "(default)");
  EXPECT_EQ(Text("A", "x", ""), "(default)");
  EXPECT_EQ(ProfileGetInt(nullptr, "x", 7, "a.ini"), 7);
  EXPECT_EQ(ProfileGetInt("A", nullptr, 7, "a.ini"), 7);
  EXPECT_EQ(ProfileGetInt("A", "x", 7, nullptr), 7);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", nullptr), 0);
  EXPECT_EQ(ProfileWriteString("A", "x", "2", ""), 0);
  EXPECT_EQ(ProfileWriteString(nullptr, "x", "2", "a.ini"), 0);
  EXPECT_EQ(ProfileWriteString(nullptr, nullptr, nullptr, "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\n");
}

TEST_F(ProfileContract, WhatCouldNotBeReadBackIsRefused) {
  home_.Put("a.ini", "[A]\r\na=1\r\n");
  EXPECT_EQ(ProfileWriteString("A", "a=b", "2", "a.ini"), 0);
  EXPECT_EQ(ProfileWriteString("A", "", "2", "a.ini"), 0);
  EXPECT_EQ(ProfileWriteString("A", "a", "2\n[B]", "a.ini"), 0);
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\na=1\r\n");
}

// UTF-8, so that a user's name of any script has its folder.
TEST_F(ProfileContract, NamesTheFolderOfItsFilesInFull) {
  char folder[1024] = "";
  const uint32_t length = ProfileGetFolder(folder, sizeof folder);
  EXPECT_EQ(std::string(folder, length), home_.Folder().string());
  SetEnvironmentVariableW(L"TIMES_READINGS_HOME", L"C:\\\u05D0\u05D1 \u017E");
  EXPECT_EQ(ProfileGetFolder(folder, sizeof folder), 10u);
  EXPECT_STREQ(folder, "C:\\\xD7\x90\xD7\x91 \xC5\xBE");
  EXPECT_EQ(ProfileGetFolder(folder, 11), 10u);
  EXPECT_EQ(ProfileGetFolder(folder, 10), 0u);
  EXPECT_STREQ(folder, "");
  EXPECT_EQ(ProfileGetFolder(folder, 0), 0u);
  EXPECT_EQ(ProfileGetFolder(nullptr, sizeof folder), 0u);
}

}  // namespace
