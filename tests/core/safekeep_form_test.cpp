// Backups of settings: what they say of themselves, what is taken for one, and what is told where it is none.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "libraries/safekeep/backup_form.h"
#include "libraries/safekeep/kept_files.h"
#include "tests/core/safekeep_archives.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using namespace safekeep;
using namespace safekeep_test;

namespace {

std::string FaultIn(const std::string& archive) {
  const BackupReading reading = ReadBackup(archive);
  EXPECT_EQ(reading.backup.has_value(), reading.fault.empty());
  return reading.fault;
}

void ExpectSame(const Backup& backup, const Backup& expected) {
  EXPECT_EQ(backup.version, expected.version);
  EXPECT_EQ(backup.made, expected.made);
  ASSERT_EQ(backup.files.size(), expected.files.size());
  for (size_t i = 0; i < backup.files.size(); ++i) {
    EXPECT_EQ(backup.files[i].name, expected.files[i].name);
    EXPECT_EQ(backup.files[i].changed, expected.files[i].changed);
    EXPECT_EQ(backup.files[i].bytes, expected.files[i].bytes);
  }
}

}  // namespace

TEST(BackupForm, WhatIsBackedUpIsReadAgain) {
  const BackupReading reading = ReadBackup(BackupOf(SomeBackup()));
  EXPECT_EQ(reading.fault, "");
  ASSERT_TRUE(reading.backup);
  ExpectSame(*reading.backup, SomeBackup());
}

TEST(BackupForm, TheFirstEntrySaysWhatTheArchiveIs) {
  const ZipReading zip = ReadZip(BackupOf(SomeBackup()));
  EXPECT_EQ(zip.entries.at(0).name, "about these settings.txt");
  EXPECT_EQ(zip.entries.at(0).changed, kMadeDos);
  EXPECT_EQ(zip.entries.at(0).bytes,
            "Times / Readings: a backup of the settings\r\n\r\nForm: 1\r\nVersion: 6.0.0.0001R\r\n"
            "Made: 2026-11-22 17:33:04\r\nFiles: 3\r\n\r\n"
            "To bring these settings back, choose \"Restore settings...\" in the program's menu \"Settings\".\r\n");
}

TEST(BackupForm, TheSameSettingsMakeTheSameBytes) {
  EXPECT_EQ(BackupOf(SomeBackup()), BackupOf(SomeBackup()));
}

TEST(BackupForm, NoTruncatedBackupIsAccepted) {
  const std::string archive = BackupOf(SomeBackup());
  for (size_t length = 0; length < archive.size(); ++length)
    EXPECT_NE(FaultIn(archive.substr(0, length)), "") << length;
}

TEST(BackupForm, NoFlippedBitIsAcceptedWithOtherContent) {
  const std::string archive = BackupOf(SomeBackup());
  for (size_t at = 0; at < archive.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string flipped = archive;
      flipped[at] = static_cast<char>(flipped[at] ^ 1 << bit);
      const BackupReading reading = ReadBackup(flipped);
      if (reading.backup) ExpectSame(*reading.backup, SomeBackup());
    }
  }
}

TEST(BackupForm, TheOrderOfTheEntriesDoesNotMatter) {
  std::vector<ZipEntry> files = SomeFiles();
  std::reverse(files.begin(), files.end());
  files.push_back({std::string(kAboutName), {}, AboutText()});
  const BackupReading reading = ReadBackup(ZipOf(files));
  ASSERT_TRUE(reading.backup) << reading.fault;
  ExpectSame(*reading.backup, SomeBackup());
}

TEST(BackupForm, WhatIsNoZipIsTold) {
  EXPECT_THAT(FaultIn("[Times]\r\nForm=12\r\n"), HasSubstr("not a zip file"));
}

TEST(BackupForm, AForeignZipIsTold) {
  EXPECT_THAT(FaultIn(ZipOf(SomeFiles())), HasSubstr("not a backup of this program's settings"));
  EXPECT_THAT(FaultIn(ZipOf({})), HasSubstr("not a backup of this program's settings"));
  EXPECT_THAT(FaultIn(BackupWith("Photographs of a summer\r\n", SomeFiles())), HasSubstr("not a backup"));
}

TEST(BackupForm, ANewerFormIsToldWithItsVersionWhateverElseItHolds) {
  std::vector<ZipEntry> files = SomeFiles();
  files.push_back({"of the future.txt", {}, ""});
  const std::string fault = FaultIn(BackupWith(AboutText("Form: 1", "Form: 2"), files));
  EXPECT_THAT(fault, AllOf(HasSubstr("newer version of the program (6.0.0.0001R)"), HasSubstr("Install that version")));
}

TEST(BackupForm, AnAboutTextThatDoesNotSayWhatItShouldIsTold) {
  const std::pair<const char*, const char*> wrong[] = {{"Form: 1", "Form: 0"},
                                                       {"Files: 3", "Files: 0"},
                                                       {"Files: 3", "Files: three"},
                                                       {"Files: 3\r\n", ""},
                                                       {"Made: 2026-11-22", "Made: 2026-13-22"},
                                                       {"Made: 2026", "Made: 026"},
                                                       {"17:33:04", "17.33.04"},
                                                       {"17:33:04", "17:33:0x"},
                                                       {"Version: 6.0.0.0001R\r\n", ""},
                                                       {"6.0.0.0001R", "6\x07"}};
  for (const auto& [from, to] : wrong) {
    EXPECT_THAT(FaultIn(BackupWith(AboutText(from, to), SomeFiles())), HasSubstr("does not say what it should")) << to;
  }
}

TEST(BackupForm, AMissingFileIsTold) {
  std::vector<ZipEntry> files = SomeFiles();
  files.pop_back();
  EXPECT_THAT(FaultIn(BackupWith(AboutText(), files)), HasSubstr("should hold 3 settings files and holds 2"));
}

TEST(BackupForm, ADoubleFileIsTold) {
  std::vector<ZipEntry> files = SomeFiles();
  files[2] = files[1];
  EXPECT_THAT(FaultIn(BackupWith(AboutText(), files)), HasSubstr("\"stamp.ini\" twice"));
  files = SomeFiles();
  files[2] = {std::string(kAboutName), {}, AboutText()};
  EXPECT_THAT(FaultIn(BackupWith(AboutText(), files)), Not(IsEmpty()));
}

TEST(BackupForm, NamesThatAreNotInTheTableAreTold) {
  for (const char* name : {"../stamp.ini", "..\\stamp.ini", "/stamp.ini", "C:\\stamp.ini", "settings/stamp.ini",
                           "STAMP.INI", "stamp.ini ", "stamp.ini.", "stamp.ini:stream", "shabbat.exe", "settings/"}) {
    std::vector<ZipEntry> files = SomeFiles();
    files[1].name = name;
    EXPECT_THAT(FaultIn(BackupWith(AboutText(), files)), HasSubstr("\"" + std::string(name) + "\" is no settings file"))
        << name;
  }
}

TEST(BackupForm, ANameWithOddLettersIsShownHarmlessly) {
  std::vector<ZipEntry> files = SomeFiles();
  files[1].name = "a\n\xD7\xA9" + std::string(60000, 'x');
  const std::string fault = FaultIn(BackupWith(AboutText(), files));
  EXPECT_THAT(fault, HasSubstr("\"a???xx"));
  EXPECT_LT(fault.size(), 300u);
}

TEST(BackupForm, FaultsOfTheArchiveAreToldInWords) {
  std::string archive = BackupOf(SomeBackup());
  archive.at(archive.find("Form=12")) = 'f';
  EXPECT_THAT(FaultIn(archive), HasSubstr("\"stamp.ini\" is damaged"));
  archive = BackupOf(SomeBackup());
  Poke(archive, Central(archive, 1) + 8, 1, 2);
  EXPECT_THAT(FaultIn(archive), AllOf(HasSubstr("\"shabbat2.ini\" is encrypted"), HasSubstr("plain zip")));
  archive = BackupOf(SomeBackup());
  Poke(archive, Central(archive) + 42, 0xFFFFFFFF, 4);
  EXPECT_THAT(FaultIn(archive), HasSubstr("zip64"));
}

TEST(BackupForm, TimesAreInStepsOfTwoSecondsWithinTheYearsOfArchives) {
  EXPECT_EQ(DosTimeOf(kMade), kMadeDos);
  EXPECT_EQ(MomentOf(kMadeDos), kMade);
  EXPECT_EQ(MomentOf(DosTimeOf({2026, 1, 2, 3, 4, 5})), (Moment{2026, 1, 2, 3, 4, 4}));
  EXPECT_EQ(MomentOf(DosTimeOf({1979, 12, 31, 23, 59, 59})), (Moment{1980, 1, 1, 0, 0, 0}));
  EXPECT_EQ(MomentOf(DosTimeOf({2108, 1, 1, 0, 0, 0})), (Moment{2107, 12, 31, 23, 59, 58}));
}

TEST(BackupForm, NamesThatAreGivenHaveTheDate) {
  EXPECT_EQ(OfferedName(kMade), "Times Readings settings 2026-11-22.zip");
  EXPECT_EQ(BeforeRestoringName({2026, 1, 2, 3, 4, 5}, 1), "Before restoring 2026-01-02 03.04.05.zip");
  EXPECT_EQ(BeforeRestoringName({2026, 1, 2, 3, 4, 5}, 2), "Before restoring 2026-01-02 03.04.05 (2).zip");
}
