// What keeps settings from being backed up or restored is told, and nothing is changed then.
#include <gmock/gmock.h>

#include "tests/contract/held_file.h"
#include "tests/contract/safekeep_driver.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class SafekeepTroubleTest : public SafekeepTest {
 protected:
  // Three settings, all changed since they were backed up.
  void SetUp() override {
    home_.Put("shabbat2.ini", kPlaces);
    home_.Put("stamp.ini", kTwelveHours);
    home_.Put("hours.txt", "old");
    BackUp("mine.zip");
    home_.Put("shabbat2.ini", "[Locations]\r\n");
    home_.Put("stamp.ini", kTwentyFourHours);
    home_.Put("hours.txt", "new");
  }
  void ExpectNothingChanged() const {
    EXPECT_EQ(home_.Bytes("shabbat2.ini"), "[Locations]\r\n");
    EXPECT_EQ(home_.Bytes("hours.txt"), "new");
    EXPECT_THAT(NamesIn("backups"), IsEmpty());
  }
  void ExpectAllUnchanged() const {
    ExpectNothingChanged();
    EXPECT_EQ(home_.Bytes("stamp.ini"), kTwentyFourHours);
  }
  // The error that backing up leads to before a file is asked for.
  static std::wstring BackUpRefusal() {
    DialogDriver run(SafekeepBackUp);
    const std::wstring told = run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK);
    EXPECT_EQ(run.Result(), 0);
    return told;
  }
};

TEST_F(SafekeepTroubleTest, AHeldFileIsNamedAndNoBackupMade) {
  const HeldFile held(home_.Path("stamp.ini"));
  EXPECT_THAT(BackUpRefusal(),
              AllOf(HasSubstr(home_.Path("stamp.ini").wstring()), HasSubstr(L"no other program holds it")));
}

TEST_F(SafekeepTroubleTest, AFileHeldWhileTheBackupsNameIsChosenIsNamedToo) {
  DialogDriver run(SafekeepBackUp);
  const HWND dialog = run.WaitFor(kBackUpTitle);
  const HeldFile held(home_.Path("stamp.ini"));
  SetControlText(dialog, kFileName, home_.Path("other.zip").wstring());
  Press(dialog, IDOK);
  EXPECT_THAT(run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK), HasSubstr(L"stamp.ini"));
  EXPECT_EQ(run.Result(), 0);
  EXPECT_FALSE(IsThere("other.zip"));
}

TEST_F(SafekeepTroubleTest, ASettingThatIsAFolderIsNamed) {
  std::filesystem::create_directory(home_.Path("candles.txt"));
  EXPECT_THAT(BackUpRefusal(), HasSubstr(L"candles.txt"));
  EXPECT_THAT(Refusal("mine.zip"), HasSubstr(L"candles.txt"));
  ExpectAllUnchanged();
}

TEST_F(SafekeepTroubleTest, AnOverlargeSettingIsNamed) {
  home_.Put("candles.txt", std::string((16 << 20) + 1, ' '));
  EXPECT_THAT(BackUpRefusal(), AllOf(HasSubstr(L"candles.txt"), HasSubstr(L"far too large")));
}

TEST_F(SafekeepTroubleTest, ASettingsFileIsNotTakenForTheBackup) {
  DialogDriver run(SafekeepBackUp);
  // It does not exist, so the system does not ask whether to write over it.
  ChooseFile(run, kBackUpTitle, home_.Path("persons.txt"));
  EXPECT_THAT(run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK), HasSubstr(L"one of the settings files themselves"));
  EXPECT_EQ(run.Result(), 0);
  EXPECT_FALSE(IsThere("persons.txt"));
}

TEST_F(SafekeepTroubleTest, ABackupThatCannotBeWrittenIsNamed) {
  ASSERT_TRUE(SetFileAttributesW(home_.Path("mine.zip").c_str(), FILE_ATTRIBUTE_READONLY));
  const std::string before = home_.Bytes("mine.zip");
  std::filesystem::create_directory(home_.Path("other.zip.new"));  // in the way of what is written beside
  DialogDriver run(SafekeepBackUp);
  ChooseFile(run, kBackUpTitle, home_.Path("other.zip"));
  EXPECT_THAT(run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK), HasSubstr(L"other.zip"));
  EXPECT_EQ(run.Result(), 0);
  EXPECT_EQ(home_.Bytes("mine.zip"), before);
  SetFileAttributesW(home_.Path("mine.zip").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SafekeepTroubleTest, AFileHeldOnRestoringIsNamedAndNothingChanged) {
  {
    const HeldFile held(home_.Path("stamp.ini"));
    EXPECT_THAT(Refusal("mine.zip"), HasSubstr(home_.Path("stamp.ini").wstring()));
  }
  ExpectAllUnchanged();
}

TEST_F(SafekeepTroubleTest, AFileHeldWhileTheDialogIsOpenIsNamedAndNothingChanged) {
  {
    DialogDriver run(SafekeepRestore);
    ChooseFile(run, kChooseTitle, home_.Path("mine.zip"));
    const HWND dialog = run.WaitFor(kRestoreTitle);
    const HeldFile held(home_.Path("stamp.ini"));
    Press(dialog, IDOK);
    EXPECT_THAT(run.Answer(L"Error", run.Owner(), IDI_HAND, IDOK), HasSubstr(L"stamp.ini"));
    EXPECT_EQ(run.Result(), 0);
  }
  ExpectAllUnchanged();
}

// It can be read, but not replaced; the file before it has been replaced by then.
TEST_F(SafekeepTroubleTest, WhenAFileCannotBeWrittenThoseBeforeItArePutBack) {
  ASSERT_TRUE(SetFileAttributesW(home_.Path("stamp.ini").c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_THAT(Failure("mine.zip"), AllOf(HasSubstr(home_.Path("stamp.ini").wstring()),
                                         HasSubstr(L"all settings are as they were"), HasSubstr(L"not read-only")));
  ExpectAllUnchanged();
  SetFileAttributesW(home_.Path("stamp.ini").c_str(), FILE_ATTRIBUTE_NORMAL);
  Restore("mine.zip");
  EXPECT_EQ(home_.Bytes("stamp.ini"), kTwelveHours);
}

TEST_F(SafekeepTroubleTest, AFileThatWasAddedBeforeTheFailureIsRemovedAgain) {
  std::filesystem::remove(home_.Path("shabbat2.ini"));
  ASSERT_TRUE(SetFileAttributesW(home_.Path("stamp.ini").c_str(), FILE_ATTRIBUTE_READONLY));
  Failure("mine.zip");
  EXPECT_FALSE(IsThere("shabbat2.ini"));
  EXPECT_EQ(home_.Bytes("stamp.ini"), kTwentyFourHours);
  SetFileAttributesW(home_.Path("stamp.ini").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(SafekeepTroubleTest, WhereTheSettingsOfBeforeCannotBeKeptNothingIsRestored) {
  home_.Put("backups", "a file in the way of the folder");
  EXPECT_THAT(Failure("mine.zip"),
              AllOf(HasSubstr(home_.Path("backups").wstring()), HasSubstr(L"nothing was restored")));
  ExpectAllUnchanged();
}

TEST_F(SafekeepTroubleTest, ACopyThatWritesForLongIsWaitedForAndThenTold) {
  const HANDLE lock = CreateMutexW(nullptr, TRUE, L"Global\\TimesReadings.Files");
  ASSERT_NE(lock, nullptr);
  EXPECT_THAT(BackUpRefusal(), HasSubstr(L"Another copy of the program is writing settings"));
  EXPECT_THAT(Refusal("mine.zip"), HasSubstr(L"Another copy of the program is writing settings"));
  ReleaseMutex(lock);
  CloseHandle(lock);
  ExpectAllUnchanged();
}

TEST_F(SafekeepTroubleTest, WhatIsNoBackupIsNamedWithTheReason) {
  const std::string sound = home_.Bytes("mine.zip");
  std::string damaged = sound;
  damaged.at(damaged.find(kTwelveHours)) = 'x';
  const std::pair<std::string, const wchar_t*> wrong[] = {
      {"", L"not a zip file"},
      {kPlaces, L"not a zip file"},
      {std::string("PK\x05\x06") + std::string(18, '\0'), L"not a backup of this program's settings"},
      {sound.substr(0, sound.size() / 2), L"damaged"},
      {damaged, L"\"stamp.ini\" is damaged"}};
  for (const auto& [bytes, why] : wrong) {
    home_.Put("wrong.zip", bytes);
    EXPECT_THAT(Refusal("wrong.zip"),
                AllOf(HasSubstr(L"wrong.zip"), HasSubstr(why), HasSubstr(L"Nothing was changed")));
  }
  ExpectAllUnchanged();
}

TEST_F(SafekeepTroubleTest, AHugeFileIsNotRead) {
  std::filesystem::resize_file(home_.Path("mine.zip"), (64 << 20) + 1);
  EXPECT_THAT(Refusal("mine.zip"), AllOf(HasSubstr(L"mine.zip"), HasSubstr(L"far too large")));
  ExpectAllUnchanged();
}

TEST_F(SafekeepTroubleTest, AHeldBackupIsNamed) {
  const HeldFile held(home_.Path("mine.zip"));
  EXPECT_THAT(Refusal("mine.zip"), AllOf(HasSubstr(L"mine.zip"), HasSubstr(L"cannot be read")));
  ExpectAllUnchanged();
}

}  // namespace
