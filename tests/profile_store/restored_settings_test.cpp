// Settings that are restored while the disk is full or broken, or another program changes them at the same moment.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "libraries/safekeep/settings_files.h"
#include "tests/contract/settings_home.h"
#include "tests/profile_store/failing_calls.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

using namespace safekeep;

// In the order of the table of settings files.
constexpr const char* kFiles[] = {"shabbat2.ini", "solar.ini", "stamp.ini", "hours.txt"};

constexpr Failing kFailures[] = {Failing::kCreate, Failing::kWrite, Failing::kPartOfWrite, Failing::kFlush,
                                 Failing::kRename};

// Does something at the so-manyth flush from now.
void AtFlush(int number, std::function<void()> deed) {
  doneMeanwhile = [number, deed = std::move(deed)] {
    if (number == 1) {
      deed();
    } else {
      AtFlush(number - 1, deed);
    }
  };
}

class RestoredSettings : public testing::Test {
 protected:
  RestoredSettings() { PutOld(); }
  ~RestoredSettings() override {
    failing = Failing::kNothing;
    doneMeanwhile = nullptr;
    timesAreRounded = false;
  }

  void PutOld() const {
    for (const char* name : kFiles) home_.Put(name, "old");
  }
  static Backup New() {
    Backup backup = {"6", Now(), {}};
    for (const char* name : kFiles) backup.files.push_back({name, {}, "new"});
    return backup;
  }
  std::vector<std::string> Contents() const {
    std::vector<std::string> contents;
    for (const char* name : kFiles) contents.push_back(home_.Bytes(name));
    return contents;
  }
  std::vector<std::filesystem::path> Kept() const {
    std::error_code missing;
    std::vector<std::filesystem::path> kept;
    for (const auto& entry : std::filesystem::directory_iterator(home_.Path("backups"), missing)) {
      kept.push_back(entry.path());
    }
    return kept;
  }

  SettingsHome home_;
};

const std::vector<std::string> kOld(std::size(kFiles), "old");

TEST_F(RestoredSettings, AreAllReplacedWhenNothingFails) {
  const Restoring restoring = RestoreNow(New());
  EXPECT_TRUE(restoring.isDone);
  EXPECT_EQ(Contents(), std::vector<std::string>(std::size(kFiles), "new"));
  EXPECT_EQ(Kept().size(), 1u);
}

TEST_F(RestoredSettings, StayAsTheyWereWhenTheBackupOfBeforeCannotBeWritten) {
  for (const Failing call : kFailures) {
    SCOPED_TRACE(static_cast<int>(call));
    failing = call;
    const Restoring restoring = RestoreNow(New());
    failing = Failing::kNothing;
    EXPECT_FALSE(restoring.isDone);
    EXPECT_THAT(restoring.fault, HasSubstr(L"backups"));
    EXPECT_EQ(Contents(), kOld);
    EXPECT_THAT(Kept(), IsEmpty());
  }
}

TEST_F(RestoredSettings, StayAsTheyWereWhenTheyCannotBeReadOrLocked) {
  for (const Failing call : {Failing::kRead, Failing::kLock}) {
    failing = call;
    const Restoring restoring = RestoreNow(New());
    failing = Failing::kNothing;
    EXPECT_FALSE(restoring.isDone);
    EXPECT_THAT(restoring.fault, HasSubstr(L"Nothing was changed"));
    EXPECT_EQ(Contents(), kOld);
  }
}

// From then on nothing can be written any more, so what was replaced cannot be put back either. The first flush is that
// of the backup of before.
TEST_F(RestoredSettings, AreWholeAndKeptInTheBackupOfBeforeWhenWritingEndsMidway) {
  for (const Failing call : kFailures) {
    SCOPED_TRACE(static_cast<int>(call));
    PutOld();
    std::filesystem::remove_all(home_.Path("backups"));
    // At the second, the second file's own flush has not begun, so its rename is the first that can fail.
    AtFlush(call == Failing::kFlush || call == Failing::kRename ? 3 : 2, [call] { failing = call; });
    const Restoring restoring = RestoreNow(New());
    failing = Failing::kNothing;
    EXPECT_FALSE(restoring.isDone);
    EXPECT_EQ(Contents(), (std::vector<std::string>{"new", "old", "old", "old"}));
    EXPECT_THAT(restoring.fault,
                AllOf(HasSubstr(home_.Path("solar.ini").wstring()), HasSubstr(L"could not be put back"),
                      HasSubstr(home_.Path("shabbat2.ini").wstring()), HasSubstr(restoring.keptBefore),
                      Not(HasSubstr(L"stamp.ini"))));
    ASSERT_THAT(Kept(), testing::ElementsAre(restoring.keptBefore));
    const BackupReading kept = ReadBackup(home_.Bytes(("backups/" + Kept().front().filename().string()).c_str()));
    ASSERT_TRUE(kept.backup) << kept.fault;
    EXPECT_EQ(kept.backup->files.size(), std::size(kFiles));
    for (const ZipEntry& file : kept.backup->files) EXPECT_EQ(file.bytes, "old");
  }
}

TEST_F(RestoredSettings, AreNotWrittenOverWhenAnotherProgramChangesOneAtThatMoment) {
  AtFlush(3, [this] { home_.Put("solar.ini", "theirs"); });
  const Restoring restoring = RestoreNow(New());
  EXPECT_FALSE(restoring.isDone);
  EXPECT_THAT(restoring.fault, HasSubstr(L"all settings are as they were"));
  EXPECT_EQ(Contents(), (std::vector<std::string>{"old", "theirs", "old", "old"}));
}

// What was replaced is known again when it is to be put back.
TEST_F(RestoredSettings, ArePutBackOnADiskThatRoundsTimes) {
  timesAreRounded = true;
  AtFlush(3, [this] { home_.Put("solar.ini", "theirs"); });
  const Restoring restoring = RestoreNow(New());
  EXPECT_FALSE(restoring.isDone);
  EXPECT_THAT(restoring.fault, HasSubstr(L"all settings are as they were"));
  EXPECT_EQ(Contents(), (std::vector<std::string>{"old", "theirs", "old", "old"}));
}

}  // namespace
