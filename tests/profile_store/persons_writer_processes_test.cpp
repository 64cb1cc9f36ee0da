// The persons' file in writer processes of their own, some of which are ended in the middle of a write.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "libraries/persons/person.h"
#include "tests/contract/settings_home.h"
#include "tests/profile_store/writer_process.h"

namespace {

using std::chrono::microseconds;

constexpr int kNoEnd = 1000000;

class PersonsWriter : public WriterProcess {
 public:
  PersonsWriter(int first, int count) : WriterProcess(L"persons_writer.exe", first, count) {}
};

class PersonsWriterProcesses : public testing::Test {
 protected:
  // The numbers in a file without damage, in their order.
  std::vector<int> NumbersIn(const char* file) const {
    const persons::Persons found = persons::PersonsIn(home_.Bytes(file));
    EXPECT_TRUE(found.damagedLines.empty()) << file;
    std::vector<int> numbers;
    for (const persons::Person& person : found.persons) numbers.push_back(std::stoi(person.notes));
    return numbers;
  }

  bool LeftANewFile() const {
    return std::filesystem::exists(home_.Path("persons.txt.new")) ||
           std::filesystem::exists(home_.Path("persons.txt.1.new"));
  }

  SettingsHome home_;
};

// Whether a version is what the file once was.
bool IsBeginningOf(const std::vector<int>& version, const std::vector<int>& file) {
  return version.size() <= file.size() && std::equal(version.begin(), version.end(), file.begin());
}

TEST_F(PersonsWriterProcesses, EndedWithinAWriteTwoHundredTimesLoseNothing) {
  constexpr int kRounds = 200;
  constexpr int kNumbersPerRound = 1000;
  std::vector<int> expected;
  int withinAWrite = 0;
  for (int round = 0; round < kRounds; ++round) {
    // From at once to some three writes later, in a scattered order: 37 and 100 have no common divisor.
    const microseconds delay(round * 37 % 100 * 100);
    PersonsWriter writer(round * kNumbersPerRound, kNoEnd);
    const int committed = writer.End(delay);
    ASSERT_GT(committed, 0) << "round " << round;
    for (int i = 0; i < committed; ++i) expected.push_back(round * kNumbersPerRound + i);
    const std::vector<int> numbers = NumbersIn("persons.txt");
    // The write that it was ended in may have come through.
    if (numbers != expected) expected.push_back(round * kNumbersPerRound + committed);
    ASSERT_EQ(numbers, expected) << "round " << round;
    for (const char* version : {"persons.txt.1", "persons.txt.2", "persons.txt.3"}) {
      ASSERT_TRUE(IsBeginningOf(NumbersIn(version), expected)) << version << ", round " << round;
    }
    withinAWrite += LeftANewFile();
  }
  EXPECT_GT(withinAWrite, kRounds / 10) << "too few were ended where it hurts";
  EXPECT_EQ(PersonsWriter(kRounds * kNumbersPerRound, 5).ExitCode(), 0u);
  const size_t last = NumbersIn("persons.txt").size();
  EXPECT_EQ(last, expected.size() + 5);
  EXPECT_EQ(NumbersIn("persons.txt.1").size(), last - 1);
  EXPECT_EQ(NumbersIn("persons.txt.2").size(), last - 2);
  EXPECT_EQ(NumbersIn("persons.txt.3").size(), last - 3);
}

TEST_F(PersonsWriterProcesses, TwoAtOnceLoseNothing) {
  constexpr int kCount = 100;
  PersonsWriter one(1000, kCount);
  PersonsWriter other(2000, kCount);
  EXPECT_EQ(one.ExitCode(), 0u);
  EXPECT_EQ(other.ExitCode(), 0u);
  std::vector<int> numbers = NumbersIn("persons.txt");
  std::ranges::sort(numbers);
  std::vector<int> expected;
  for (const int first : {1000, 2000}) {
    for (int i = 0; i < kCount; ++i) expected.push_back(first + i);
  }
  EXPECT_EQ(numbers, expected);
}

}  // namespace
