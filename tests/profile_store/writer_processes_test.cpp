// The finished profile.dll in writer processes of their own, some of which are ended in the middle of a write.
#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include "tests/contract/settings_home.h"
#include "tests/profile_store/ini_writer.h"

namespace {

using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr DWORD kMostMilliseconds = 20000;  // a writer that takes longer hangs
constexpr int kNoEnd = 1000000;

std::wstring WriterPath() {
  wchar_t exe[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, exe, MAX_PATH);
  return std::filesystem::path(exe).replace_filename(L"ini_writer.exe").wstring();
}

// A process that writes the keys first, first + 1 ...
class Writer {
 public:
  Writer(int first, int count) {
    static int number;
    const std::wstring name =
        L"times-readings-writer-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number);
    mapping_ =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(WriterProgress), name.c_str());
    progress_ = static_cast<WriterProgress*>(MapViewOfFile(mapping_, FILE_MAP_WRITE, 0, 0, 0));
    std::wstring commandLine =
        L"\"" + WriterPath() + L"\" " + name + L" " + std::to_wstring(first) + L" " + std::to_wstring(count);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr,
                               &startup, &process));
    CloseHandle(process.hThread);
    process_ = process.hProcess;
  }
  ~Writer() {
    UnmapViewOfFile(progress_);
    CloseHandle(mapping_);
    CloseHandle(process_);
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  int Committed() const { return progress_->committed; }

  // Lets it write for some microseconds after its first success, and ends it. The successes that it had.
  int End(microseconds delay) {
    const ULONGLONG start = GetTickCount64();
    while (Committed() == 0 && GetTickCount64() - start < kMostMilliseconds) SwitchToThread();
    const auto until = steady_clock::now() + delay;
    while (steady_clock::now() < until) SwitchToThread();
    TerminateProcess(process_, 9);
    EXPECT_EQ(WaitForSingleObject(process_, kMostMilliseconds), WAIT_OBJECT_0);
    return Committed();
  }

  DWORD ExitCode() {
    EXPECT_EQ(WaitForSingleObject(process_, kMostMilliseconds), WAIT_OBJECT_0);
    DWORD code = 0;
    GetExitCodeProcess(process_, &code);
    return code;
  }

 private:
  HANDLE mapping_;
  WriterProgress* progress_;
  HANDLE process_;
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
    Writer writer(round * kKeysPerRound, kNoEnd);
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
  EXPECT_EQ(Writer(kRounds * kKeysPerRound, 1).ExitCode(), 0u);
  EXPECT_EQ(home_.Bytes("written.ini"), expected + Line(kRounds * kKeysPerRound));
  EXPECT_EQ(FilesInFolder(), 1);
}

TEST_F(WriterProcesses, TwoAtOnceLoseNothing) {
  constexpr int kCount = 200;
  Writer one(1000, kCount);
  Writer other(2000, kCount);
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
  Writer steady(kFirst, kCount);
  int committed[kRounds];
  for (int round = 0; round < kRounds; ++round) {
    committed[round] = Writer(kFirst * (round + 2), kNoEnd).End(microseconds(round * 150));
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
