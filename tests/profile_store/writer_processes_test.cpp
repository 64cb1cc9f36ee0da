// The finished profile.dll in writer processes of their own, some of which are ended in the middle of a write.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include "tests/contract/settings_home.h"
#include "tests/profile_store/writer_process.h"

namespace {

using std::chrono::microseconds;

constexpr int kNoEnd = 1000000;

class IniWriter : public WriterProcess {
 public:
  IniWriter(int first, int count) : WriterProcess(L"ini_writer.exe", first, count) {}
};

std::string Line(int key) {
  return std::to_string(key) + "=" + std::to_string(key) + "\r\n";
}

bool HoldsLine(std::string_view bytes, int key) {
  return bytes.find("\n" + Line(key)) != std::string_view::npos;
}

class WriterProcesses : public testing::Test {
 protected:
  bool LeftItsNewFile() const { return std::filesystem::exists(home_.Path("written.ini.new")); }
  long FilesInFolder() const {
    return static_cast<long>(std::distance(std::filesystem::directory_iterator(home_.Folder()), {}));
  }

  SettingsHome home_;
};

TEST_F(WriterProcesses, EndedWithinAWriteTwoHundredTimesLoseNothing) {
  constexpr int kRounds = 200;
  constexpr int kKeysPerRound = 1000;
  std::string expected = "[Keys]\r\n";
  int withinAWrite = 0;
  for (int round = 0; round < kRounds; ++round) {
    // From at once to some three writes later, in a scattered order: 37 and 100 have no common divisor.
    const microseconds delay(round * 37 % 100 * 50);
    IniWriter writer(round * kKeysPerRound, kNoEnd);
    const int committed = writer.End(delay);
    ASSERT_GT(committed, 0) << "round " << round;
    for (int i = 0; i < committed; ++i) expected += Line(round * kKeysPerRound + i);
    const std::string bytes = home_.Bytes("written.ini");
    // The write that it was ended in may have come through.
    if (bytes != expected) expected += Line(round * kKeysPerRound + committed);
    ASSERT_EQ(bytes, expected) << "round " << round;
    ASSERT_LE(FilesInFolder(), 2);
    withinAWrite += LeftItsNewFile();
  }
  EXPECT_GT(withinAWrite, kRounds / 10) << "too few were ended where it hurts";
  EXPECT_EQ(IniWriter(kRounds * kKeysPerRound, 1).ExitCode(), 0u);
  EXPECT_EQ(home_.Bytes("written.ini"), expected + Line(kRounds * kKeysPerRound));
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriterProcesses, TwoAtOnceLoseNothing) {
  constexpr int kCount = 200;
  IniWriter one(1000, kCount);
  IniWriter other(2000, kCount);
  EXPECT_EQ(one.ExitCode(), 0u);
  EXPECT_EQ(other.ExitCode(), 0u);
  const std::string bytes = home_.Bytes("written.ini");
  for (int i = 0; i < kCount; ++i) {
    EXPECT_TRUE(HoldsLine(bytes, 1000 + i)) << i;
    EXPECT_TRUE(HoldsLine(bytes, 2000 + i)) << i;
  }
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriterProcesses, OneBesideOthersThatAreEndedLosesNothing) {
  constexpr int kCount = 500;
  constexpr int kRounds = 20;
  constexpr int kFirst = 10000;
  IniWriter steady(kFirst, kCount);
  int committed[kRounds];
  for (int round = 0; round < kRounds; ++round) {
    committed[round] = IniWriter(kFirst * (round + 2), kNoEnd).End(microseconds(round * 150));
    ASSERT_GT(committed[round], 0) << "round " << round;
  }
  EXPECT_EQ(steady.ExitCode(), 0u);
  const std::string bytes = home_.Bytes("written.ini");
  for (int i = 0; i < kCount; ++i) EXPECT_TRUE(HoldsLine(bytes, kFirst + i)) << i;
  for (int round = 0; round < kRounds; ++round) {
    for (int i = 0; i < committed[round]; ++i) EXPECT_TRUE(HoldsLine(bytes, kFirst * (round + 2) + i)) << round;
  }
}

}  // namespace
