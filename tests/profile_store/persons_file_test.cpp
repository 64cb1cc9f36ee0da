#include "libraries/persons/persons_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "libraries/safekeep/kept_files.h"
#include "tests/contract/held_file.h"
#include "tests/contract/settings_home.h"
#include "tests/profile_store/failing_calls.h"

namespace {

using namespace persons;

Person Named(const std::string& name) {
  return {Kind::kBirthday, {Calendar::kGregorian, {1, 2, 2000}, false}, std::nullopt, name, "", ""};
}

std::string Line(const std::string& name) {
  return "birthday|2000-02-01||" + name + "||\r\n";
}

class PersonsFile : public testing::Test {
 protected:
  ~PersonsFile() override { failing = Failing::kNothing; }

  static bool Add(const std::string& name) {
    std::vector<Change> missed;
    return StoreChanges({{std::nullopt, Named(name)}}, &missed) && missed.empty();
  }
  std::string Version(int version) const { return home_.Bytes(("persons.txt." + std::to_string(version)).c_str()); }
  bool HasVersion(int version) const {
    return std::filesystem::exists(home_.Path(("persons.txt." + std::to_string(version)).c_str()));
  }

  SettingsHome home_;
};

TEST_F(PersonsFile, IsMadeWithItsFolderByTheFirstPerson) {
  EXPECT_TRUE(StoredPersons()->persons.empty());
  EXPECT_TRUE(Add("A"));
  EXPECT_EQ(StoredPersons()->persons, std::vector{Named("A")});
  EXPECT_FALSE(HasVersion(1)) << "there was nothing before";
}

TEST_F(PersonsFile, KeepsTheThreeVersionsBefore) {
  home_.Put("persons.txt", Line("A"));
  for (const char* name : {"B", "C", "D", "E"}) ASSERT_TRUE(Add(name));
  EXPECT_EQ(home_.Bytes("persons.txt"), Line("A") + Line("B") + Line("C") + Line("D") + Line("E"));
  EXPECT_EQ(Version(1), Line("A") + Line("B") + Line("C") + Line("D"));
  EXPECT_EQ(Version(2), Line("A") + Line("B") + Line("C"));
  EXPECT_EQ(Version(3), Line("A") + Line("B"));
  EXPECT_FALSE(HasVersion(4));
}

TEST_F(PersonsFile, EveryFileOfItIsKeptInBackups) {
  home_.Put("persons.txt", Line("A"));
  for (const char* name : {"B", "C", "D", "E", "F"}) ASSERT_TRUE(Add(name));
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(home_.Folder())) {
    ++files;
    EXPECT_TRUE(safekeep::FindKeptFile(entry.path().filename().string())) << entry.path();
  }
  EXPECT_EQ(files, 4);
}

TEST_F(PersonsFile, WhatChangesNothingMakesNoVersion) {
  home_.Put("persons.txt", Line("A"));
  std::vector<Change> missed;
  EXPECT_TRUE(StoreChanges({}, &missed));
  EXPECT_TRUE(StoreChanges({{Named("A"), Named("A")}}, &missed));
  EXPECT_FALSE(HasVersion(1));
}

TEST_F(PersonsFile, FailingCallLeavesFileAndVersionsWhole) {
  home_.Put("persons.txt", Line("A"));
  ASSERT_TRUE(Add("B"));
  ASSERT_TRUE(Add("C"));
  const std::string now = home_.Bytes("persons.txt");
  for (const Failing call : {Failing::kLock, Failing::kRead, Failing::kCreate, Failing::kWrite, Failing::kPartOfWrite,
                             Failing::kFlush, Failing::kRename}) {
    SCOPED_TRACE(static_cast<int>(call));
    failing = call;
    EXPECT_FALSE(Add("D"));
    failing = Failing::kNothing;
    EXPECT_EQ(home_.Bytes("persons.txt"), now);
    EXPECT_FALSE(std::filesystem::exists(home_.Path("persons.txt.new")));
    // A version may have moved up before the call failed; none is lost.
    std::string versions;
    for (const int version : {1, 2, 3}) versions += Version(version) + "\n";
    EXPECT_NE(versions.find(Line("A") + Line("B") + "\n"), std::string::npos);
    EXPECT_NE(versions.find(Line("A") + "\n"), std::string::npos);
  }
  EXPECT_TRUE(Add("D"));
  EXPECT_EQ(home_.Bytes("persons.txt"), now + Line("D"));
  EXPECT_EQ(Version(1), now);
  EXPECT_EQ(Version(2), Line("A") + Line("B"));
  EXPECT_EQ(Version(3), Line("A"));
}

TEST_F(PersonsFile, ChangeMadeByAnotherCopyMeanwhileIsKept) {
  home_.Put("persons.txt", Line("A"));
  doneMeanwhile = [this] { home_.Put("persons.txt", Line("A") + Line("theirs")); };
  EXPECT_TRUE(Add("B"));
  EXPECT_EQ(home_.Bytes("persons.txt"), Line("A") + Line("theirs") + Line("B"));
}

TEST_F(PersonsFile, IsUnknownWhileAnotherProgramKeepsIt) {
  home_.Put("persons.txt", Line("A"));
  {
    const HeldFile held(home_.Path("persons.txt"));
    EXPECT_FALSE(StoredPersons());
    EXPECT_FALSE(Add("B"));
  }
  EXPECT_EQ(home_.Bytes("persons.txt"), Line("A"));
  EXPECT_TRUE(Add("B"));
}

// As an editor leaves it: Notepad's "Unicode" is UTF-16 with a mark.
TEST_F(PersonsFile, MayBeUtf16) {
  std::string utf16 = "\xFF\xFE";
  for (const char letter : std::string("birthday|2000-02-01||")) utf16.append(1, letter).append(1, '\0');
  utf16 += std::string("\xE9\x05\xE8\x05\xD4\x05", 6);  // שרה
  for (const char letter : std::string("||\r\n")) utf16.append(1, letter).append(1, '\0');
  home_.Put("persons.txt", utf16);
  EXPECT_EQ(StoredPersons()->persons, std::vector{Named("שרה")});
  EXPECT_TRUE(Add("A"));
  EXPECT_EQ(home_.Bytes("persons.txt"), "\xEF\xBB\xBF" + Line("שרה") + Line("A"));
}

TEST_F(PersonsFile, DamagedLinesAreToldAndKept) {
  home_.Put("persons.txt", Line("A") + "damaged\r\n" + Line("B"));
  EXPECT_EQ(StoredPersons()->damagedLines, std::vector<int32_t>{2});
  EXPECT_TRUE(Add("C"));
  EXPECT_EQ(home_.Bytes("persons.txt"), Line("A") + "damaged\r\n" + Line("B") + Line("C"));
}

}  // namespace
