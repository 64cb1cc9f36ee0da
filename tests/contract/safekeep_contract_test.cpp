// Settings are backed up and restored: what is in the file, what is replaced, what stays.
#include <gmock/gmock.h>

#include "companion/profile.h"
#include "tests/contract/safekeep_driver.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAre;

namespace {

TEST_F(SafekeepTest, ABackupBringsTheSettingsBackAsTheyWere) {
  home_.Put("shabbat2.ini", kPlaces);
  home_.Put("stamp.ini", kTwelveHours);
  home_.Put("hours.txt", "");
  EXPECT_THAT(BackUp("mine.zip"), AllOf(HasSubstr(L"3 settings files are backed up"), HasSubstr(L"mine.zip")));
  home_.Put("shabbat2.ini", "");
  home_.Put("stamp.ini", kTwentyFourHours);
  std::filesystem::remove(home_.Path("hours.txt"));
  EXPECT_THAT(Restore("mine.zip"), AllOf(HasSubstr(L"are restored"), HasSubstr(L"\\backups\\Before restoring ")));
  EXPECT_EQ(home_.Bytes("shabbat2.ini"), kPlaces);
  EXPECT_EQ(home_.Bytes("stamp.ini"), kTwelveHours);
  EXPECT_TRUE(IsThere("hours.txt"));
  EXPECT_EQ(home_.Bytes("hours.txt"), "");
}

TEST_F(SafekeepTest, WhatTheBackupDoesNotHaveAndWhatIsNoSettingStays) {
  home_.Put("stamp.ini", kTwelveHours);
  home_.Put("stamp.txt", "mine");
  BackUp("mine.zip");
  home_.Put("stamp.txt", "changed");
  home_.Put("solar.ini", "[SummerTime]\r\nMode=Off\r\n");
  home_.Put("stamp.ini", kTwentyFourHours);
  Restore("mine.zip");
  EXPECT_EQ(home_.Bytes("stamp.txt"), "changed");
  EXPECT_EQ(home_.Bytes("solar.ini"), "[SummerTime]\r\nMode=Off\r\n");
  EXPECT_THAT(NamesIn(""), UnorderedElementsAre("stamp.ini", "stamp.txt", "solar.ini", "mine.zip", "backups"));
}

TEST_F(SafekeepTest, TheSettingsOfBeforeAreKeptAndRestoredByTheSameCommand) {
  home_.Put("stamp.ini", kTwelveHours);
  BackUp("mine.zip");
  home_.Put("stamp.ini", kTwentyFourHours);
  home_.Put("solar.ini", "later");
  Restore("mine.zip");
  std::filesystem::remove(home_.Path("solar.ini"));
  const std::vector<std::string> kept = NamesIn("backups");
  ASSERT_THAT(kept,
              ElementsAre(MatchesRegex("Before restoring \\d\\d\\d\\d-\\d\\d-\\d\\d \\d\\d.\\d\\d.\\d\\d\\.zip")));
  Restore(home_.Path("backups") / kept.front());
  EXPECT_EQ(home_.Bytes("stamp.ini"), kTwentyFourHours);
  EXPECT_EQ(home_.Bytes("solar.ini"), "later");
}

TEST_F(SafekeepTest, NoBackupOfBeforeIsWrittenOver) {
  home_.Put("stamp.ini", kTwelveHours);
  BackUp("mine.zip");
  for (int i = 0; i < 5; ++i) Restore("mine.zip");
  EXPECT_THAT(NamesIn("backups"), SizeIs(5));
}

TEST_F(SafekeepTest, SettingsAreRestoredIntoAFolderThatDoesNotExistYet) {
  home_.Put("stamp.ini", kTwelveHours);
  BackUp("mine.zip");
  // A new computer: a long path with letters that the code page cannot spell.
  const std::filesystem::path fresh =
      home_.Folder() / L"\x5E9\x5DC\x5D5\x5DD" / std::wstring(120, L'a') / std::wstring(120, L'b');
  SetHome(fresh.c_str());
  EXPECT_THAT(Restore(home_.Path("mine.zip")), HasSubstr(L"There were no settings before"));
  char form[8] = "";
  ProfileGetString("Times", "Form", "", form, sizeof form, "stamp.ini");
  EXPECT_STREQ(form, "12");
  EXPECT_THAT(Restore(home_.Path("mine.zip")), HasSubstr(L"\\backups\\"));
  SetHome(home_.Folder().c_str());
}

std::string Form() {
  char text[8] = "";
  ProfileGetString("Times", "Form", "", text, sizeof text, "stamp.ini");
  return text;
}

// The profile library asks for a file at most every 50 ms: settings that it has read just before they were restored are
// not what it answers afterwards, however fast the user is.
TEST_F(SafekeepTest, WhoeverReadsSettingsAfterwardsSeesTheRestoredOnes) {
  home_.Put("stamp.ini", kTwelveHours);
  BackUp("mine.zip");
  for (int i = 0; i < 5; ++i) {
    home_.Put("stamp.ini", kTwentyFourHours);
    WaitUntilSeen();
    std::string afterwards;
    DialogDriver run([&afterwards](HWND owner) {
      const int32_t restored = SafekeepRestore(owner);
      afterwards = Form();
      return restored;
    });
    ChooseFile(run, kChooseTitle, home_.Path("mine.zip"));
    const HWND dialog = run.WaitFor(kRestoreTitle);
    EXPECT_EQ(Form(), "24");
    Press(dialog, IDOK);
    EXPECT_TRUE(Eventually([&] { return !IsWindow(dialog); }));
    // Answers the box the moment it is there.
    while (IsWindow(run.Owner())) PostMessageW(DialogWithCaption(kRestoreTitle), WM_COMMAND, IDOK, 0);
    EXPECT_NE(run.Result(), 0);
    EXPECT_EQ(afterwards, "12");
  }
}

TEST_F(SafekeepTest, TheDialogListsWhatHappensToEachFile) {
  home_.Put("stamp.ini", kTwelveHours);
  home_.Put("hours.txt", "");
  home_.Put("candles.txt", "");
  BackUp("mine.zip");
  home_.Put("stamp.ini", kTwentyFourHours);
  home_.Put("solar.ini", "");
  std::filesystem::remove(home_.Path("hours.txt"));
  DialogDriver run(SafekeepRestore);
  ChooseFile(run, kChooseTitle, home_.Path("mine.zip"));
  const HWND dialog = run.WaitFor(kRestoreTitle);
  const HWND list = GetDlgItem(dialog, IDC_FILES);
  std::vector<std::wstring> rows;
  for (int row = 0; row < 5; ++row) rows.push_back(ListCell(list, row, 2) + L" " + ListCell(list, row, 1));
  EXPECT_THAT(rows, ElementsAre(L"stamp.ini is replaced", L"candles.txt is the same already", L"hours.txt is added",
                                L"solar.ini stays: not in the backup", L" "));
  EXPECT_EQ(ListCell(list, 0, 0), L"Form of times");
  EXPECT_THAT(ListCell(list, 0, 3), testing::StartsWith(L"20"));
  EXPECT_EQ(ListCell(list, 2, 4), L"");
  EXPECT_EQ(ListCell(list, 3, 3), L"");
  EXPECT_THAT(ControlText(dialog, IDC_BACKUP), AllOf(HasSubstr(L"by version 6.0.0.0001R"), HasSubstr(L"mine.zip")));
  EXPECT_THAT(ControlText(dialog, IDC_AFTERWARDS), HasSubstr(home_.Path("backups").wstring()));
  EXPECT_EQ(run.Focus(), list);
  Press(dialog, IDCANCEL);
  EXPECT_EQ(run.Result(), 0);
}

TEST_F(SafekeepTest, EnterCancelsRestoringAndNothingChanges) {
  home_.Put("stamp.ini", kTwelveHours);
  BackUp("mine.zip");
  home_.Put("stamp.ini", kTwentyFourHours);
  DialogDriver run(SafekeepRestore);
  ChooseFile(run, kChooseTitle, home_.Path("mine.zip"));
  const HWND dialog = run.WaitFor(kRestoreTitle);
  PressKey(GetDlgItem(dialog, IDC_FILES), VK_RETURN);
  EXPECT_EQ(run.Result(), 0);
  EXPECT_EQ(home_.Bytes("stamp.ini"), kTwentyFourHours);
  EXPECT_THAT(NamesIn(""), UnorderedElementsAre("stamp.ini", "mine.zip"));
}

TEST_F(SafekeepTest, CancellingTheSystemsDialogsDoesNothing) {
  home_.Put("stamp.ini", kTwelveHours);
  const std::pair<int32_t (*)(HWND), const wchar_t*> calls[] = {{SafekeepBackUp, kBackUpTitle},
                                                                {SafekeepRestore, kChooseTitle}};
  for (const auto& [call, caption] : calls) {
    DialogDriver run(call);
    Press(run.WaitFor(caption), IDCANCEL);
    EXPECT_EQ(run.Result(), 0);
  }
  EXPECT_THAT(NamesIn(""), ElementsAre("stamp.ini"));
}

TEST_F(SafekeepTest, ThatThereAreNoSettingsYetIsTold) {
  DialogDriver run(SafekeepBackUp);
  EXPECT_THAT(run.Answer(kBackUpTitle, run.Owner(), IDI_ASTERISK, IDOK), HasSubstr(L"no settings yet"));
  EXPECT_EQ(run.Result(), 0);
  EXPECT_FALSE(std::filesystem::exists(home_.Folder()));
}

TEST_F(SafekeepTest, TheOfferedNameHasTheDate) {
  home_.Put("stamp.ini", kTwelveHours);
  DialogDriver run(SafekeepBackUp);
  const HWND dialog = run.WaitFor(kBackUpTitle);
  SYSTEMTIME now;
  GetLocalTime(&now);
  wchar_t name[60];
  swprintf(name, 60, L"Times Readings settings %04d-%02d-%02d.zip", now.wYear, now.wMonth, now.wDay);
  EXPECT_EQ(ControlText(dialog, kFileName), name);
  Press(dialog, IDCANCEL);
  EXPECT_EQ(run.Result(), 0);
}

}  // namespace
