#include <gtest/gtest.h>

#include "libraries/settings_folder/settings_folder.h"

namespace settings_folder {
namespace {

constexpr std::wstring_view kExe = L"D:\\Calendar";
constexpr std::wstring_view kAppData = L"C:\\Users\\Dov\\AppData\\Roaming";

TEST(SettingsFolder, IsTheUsersApplicationDataByDefault) {
  EXPECT_EQ(FolderFor({L"", kExe, false, kAppData}), L"C:\\Users\\Dov\\AppData\\Roaming\\Times Readings");
}

TEST(SettingsFolder, IsBesideTheExeWhenSettingsStandsThere) {
  EXPECT_EQ(FolderFor({L"", kExe, true, kAppData}), L"D:\\Calendar\\settings");
}

TEST(SettingsFolder, IsTheEnvironmentsChoiceBeforeAllElse) {
  EXPECT_EQ(FolderFor({L"E:\\Home", kExe, true, kAppData}), L"E:\\Home");
  EXPECT_EQ(FolderFor({L"\\\\server\\share", kExe, true, kAppData}), L"\\\\server\\share");
  EXPECT_EQ(FolderFor({L"/home", kExe, true, kAppData}), L"/home");
}

TEST(SettingsFolder, RelativeChoiceCountsFromTheExe) {
  EXPECT_EQ(FolderFor({L"mine", kExe, true, kAppData}), L"D:\\Calendar\\mine");
  EXPECT_EQ(FolderFor({L".", kExe, false, kAppData}), L"D:\\Calendar\\.");
}

TEST(SettingsFolder, IsBesideTheExeWhenThereIsNoApplicationData) {
  EXPECT_EQ(FolderFor({L"", kExe, false, L""}), L"D:\\Calendar\\settings");
}

TEST(SettingsFolder, KeepsAUserNameThatNoCodePageCanSpell) {
  EXPECT_EQ(FolderFor({L"", kExe, false, L"C:\\Users\\\x05d3\x05d1\x4e2d"}),
            L"C:\\Users\\\x05d3\x05d1\x4e2d\\Times Readings");
}

TEST(SettingsFolder, ChoiceMayHaveAnySeparatorAtItsEnd) {
  for (const wchar_t* home : {L"E:\\Home\\", L"E:\\Home/", L"E:\\"}) {
    const std::wstring folder = FolderFor({home, kExe, true, kAppData});
    EXPECT_EQ(Joined(folder, L"x.ini"), std::wstring(home) + L"x.ini");
  }
}

TEST(SettingsFolder, QuotesAndBlanksAroundTheChoiceAreNotPartOfIt) {
  // As "set TIMES_READINGS_HOME="E:\My Home" && ..." leaves it in a command prompt.
  EXPECT_EQ(CleanedHome(L"\"E:\\My Home\" "), L"E:\\My Home");
  EXPECT_EQ(CleanedHome(L" \tE:\\My Home\t"), L"E:\\My Home");
  EXPECT_EQ(CleanedHome(L"\"E:\\My Home"), L"E:\\My Home");
  EXPECT_EQ(CleanedHome(L"E:\\\x05d3\x05d1\x4e2d"), L"E:\\\x05d3\x05d1\x4e2d");
  for (const wchar_t* nothing : {L"", L" ", L"\"\"", L" \" \" "}) EXPECT_EQ(CleanedHome(nothing), L"");
}

TEST(SettingsFolder, LongPathsTakeTheirLongForm) {
  const std::wstring name(240, L'n');
  EXPECT_EQ(WithoutLengthLimit(L"C:\\" + name), L"\\\\?\\C:\\" + name);
  EXPECT_EQ(WithoutLengthLimit(L"\\\\server\\share\\" + name), L"\\\\?\\UNC\\server\\share\\" + name);
  for (const std::wstring start : {L"\\\\?\\C:\\", L"\\\\.\\C:\\"}) {
    EXPECT_EQ(WithoutLengthLimit(start + name), start + name);
  }
}

TEST(SettingsFolder, ShortPathsStandAsTheyAre) {
  // Windows takes folders of up to 247 characters and files of up to 259, ".new" included.
  const std::wstring longest = L"C:\\" + std::wstring(237, L'n');
  EXPECT_EQ(WithoutLengthLimit(longest), longest);
  EXPECT_EQ(WithoutLengthLimit(L""), L"");
}

TEST(SettingsFolder, NamesWithAPathAreNotBare) {
  EXPECT_TRUE(IsBareName(L"shabbat2.ini"));
  EXPECT_TRUE(IsBareName(L""));
  EXPECT_FALSE(IsBareName(L"C:\\shabbat2.ini"));
  EXPECT_FALSE(IsBareName(L"C:shabbat2.ini"));
  EXPECT_FALSE(IsBareName(L".\\shabbat2.ini"));
  EXPECT_FALSE(IsBareName(L"sub/shabbat2.ini"));
}

TEST(SettingsFolder, JoinsWithOneSeparator) {
  EXPECT_EQ(Joined(L"C:\\a", L"x.ini"), L"C:\\a\\x.ini");
  EXPECT_EQ(Joined(L"C:\\", L"x.ini"), L"C:\\x.ini");
  EXPECT_EQ(Joined(L"C:/a/", L"x.ini"), L"C:/a/x.ini");
  EXPECT_EQ(Joined(L"", L"x.ini"), L"x.ini");
}

}  // namespace
}  // namespace settings_folder
