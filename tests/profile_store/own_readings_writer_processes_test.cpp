// The file of own texts of readings in writer processes of their own, some of which are ended in the middle of a write.
#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <string>

#include "libraries/lections/own_text.h"
#include "tests/contract/settings_home.h"
#include "tests/profile_store/writer_process.h"

namespace {

using std::chrono::microseconds;

constexpr int kNoEnd = 1000000;

class OwnReadingsWriter : public WriterProcess {
 public:
  OwnReadingsWriter(int first, int count) : WriterProcess(L"own_readings_writer.exe", first, count) {}
};

class OwnReadingsWriterProcesses : public testing::Test {
 protected:
  // The numbers in the file, which is without damage.
  std::set<int> Numbers() const {
    const lections::OwnFile file = lections::OwnFileIn(home_.Bytes("readings.txt"));
    EXPECT_TRUE(file.damagedLines.empty());
    std::set<int> numbers;
    for (const auto& [place, text] : file.texts) numbers.insert(std::stoi(text.text));
    return numbers;
  }

  SettingsHome home_;
};

TEST_F(OwnReadingsWriterProcesses, EndedWithinAWriteFiftyTimesLoseNothing) {
  constexpr int kRounds = 50;
  constexpr int kNumbersPerRound = 1000;
  std::set<int> expected;
  for (int round = 0; round < kRounds; ++round) {
    // From at once to some three writes later, in a scattered order: 37 and 100 have no common divisor.
    const microseconds delay(round * 37 % 100 * 100);
    OwnReadingsWriter writer(round * kNumbersPerRound, kNoEnd);
    const int committed = writer.End(delay);
    ASSERT_GT(committed, 0) << "round " << round;
    for (int i = 0; i < committed; ++i) expected.insert(round * kNumbersPerRound + i);
    const std::set<int> numbers = Numbers();
    // The write that it was ended in may have come through.
    if (numbers != expected) expected.insert(round * kNumbersPerRound + committed);
    ASSERT_EQ(numbers, expected) << "round " << round;
  }
  EXPECT_EQ(OwnReadingsWriter(kRounds * kNumbersPerRound, 5).ExitCode(), 0u);
  EXPECT_EQ(Numbers().size(), expected.size() + 5);
}

TEST_F(OwnReadingsWriterProcesses, TwoAtOnceLoseNothing) {
  constexpr int kCount = 50;
  OwnReadingsWriter one(1000, kCount);
  OwnReadingsWriter other(2000, kCount);
  EXPECT_EQ(one.ExitCode(), 0u);
  EXPECT_EQ(other.ExitCode(), 0u);
  std::set<int> expected;
  for (const int first : {1000, 2000}) {
    for (int i = 0; i < kCount; ++i) expected.insert(first + i);
  }
  EXPECT_EQ(Numbers(), expected);
}

}  // namespace
