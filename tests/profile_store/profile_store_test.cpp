#include "libraries/profile/profile_store.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "libraries/profile/profile_answers.h"
#include "libraries/settings_folder/settings_folder_win.h"
#include "tests/contract/settings_home.h"
#include "tests/profile_store/failing_calls.h"

namespace {

using profile::IniDocument;
using profile::Store;

bool Set(Store& store, const char* key, const std::string& value) {
  return store.Edit("a.ini", [&](const IniDocument& document) { return document.WithValue("A", key, value); });
}

int Number(Store& store, const char* key) {
  return profile::IntAnswer(*store.Read("a.ini"), "A", key, -1);
}

std::string KeyOf(int writer, int write) {
  std::string key = "k";
  key.append(std::to_string(writer)).append("-").append(std::to_string(write));
  return key;
}

class ProfileStore : public testing::Test {
 protected:
  ~ProfileStore() override { failing = Failing::kNothing; }

  SettingsHome home_;
  Store store_;
};

TEST_F(ProfileStore, FailingCallLeavesTheOldFileWhole) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  for (const Failing call : {Failing::kLock, Failing::kRead, Failing::kCreate, Failing::kWrite, Failing::kPartOfWrite,
                             Failing::kFlush, Failing::kRename}) {
    SCOPED_TRACE(static_cast<int>(call));
    failing = call;
    EXPECT_FALSE(Set(store_, "x", "2"));
    failing = Failing::kNothing;
    EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\n");
    EXPECT_FALSE(std::filesystem::exists(home_.Path("a.ini.new")));
    EXPECT_EQ(Number(store_, "x"), 1);
  }
  EXPECT_TRUE(Set(store_, "x", "2"));
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=2\r\n");
}

TEST_F(ProfileStore, FailingFirstWriteLeavesNoFile) {
  failing = Failing::kFlush;
  EXPECT_FALSE(Set(store_, "x", "1"));
  EXPECT_FALSE(std::filesystem::exists(home_.Path("a.ini")));
}

TEST_F(ProfileStore, ChangeMadeByAnEditorMeanwhileIsKept) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  doneMeanwhile = [this] { home_.Put("a.ini", "[A]\r\nx=1\r\nedited=7\r\n"); };
  EXPECT_TRUE(Set(store_, "x", "2"));
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=2\r\nedited=7\r\n");
  EXPECT_EQ(Number(store_, "edited"), 7);
  EXPECT_FALSE(std::filesystem::exists(home_.Path("a.ini.new")));
}

TEST_F(ProfileStore, FileMadeByAnotherProgramMeanwhileIsKept) {
  std::filesystem::create_directories(home_.Folder());
  doneMeanwhile = [this] { home_.Put("a.ini", "[A]\r\nedited=7\r\n"); };
  EXPECT_TRUE(Set(store_, "x", "2"));
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nedited=7\r\nx=2\r\n");
}

TEST_F(ProfileStore, FileThatChangesWithoutEndFailsTheWrite) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  std::string bytes = "[A]\r\n";
  std::function<void()> edit = [&] {
    bytes += "; more\r\n";
    home_.Put("a.ini", bytes);
    doneMeanwhile = edit;
  };
  doneMeanwhile = edit;
  EXPECT_FALSE(Set(store_, "x", "2"));
  doneMeanwhile = nullptr;
  EXPECT_EQ(home_.Bytes("a.ini"), bytes);
}

// Some editors take the old file away before they put the new one in its place.
TEST_F(ProfileStore, FileThatAnEditorIsReplacingIsNotBegunAnew) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  EXPECT_EQ(Number(store_, "x"), 1);
  std::filesystem::remove(home_.Path("a.ini"));
  doneAfterMissing = [this] { home_.Put("a.ini", "[A]\r\nx=1\r\nedited=7\r\n"); };
  EXPECT_TRUE(Set(store_, "y", "2"));
  EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=1\r\nedited=7\r\ny=2\r\n");
}

TEST_F(ProfileStore, FileThatAnotherHoldsForAMomentIsWrittenAfterwards) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  for (const char* name : {"a.ini", "a.ini.new"}) {
    SCOPED_TRACE(name);
    home_.Put(name, "[A]\r\nx=1\r\n");
    const HANDLE held = CreateFileW(home_.Path(name).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    std::thread holder([held] {
      Sleep(60);
      CloseHandle(held);
    });
    EXPECT_TRUE(Set(store_, "x", "2"));
    holder.join();
    EXPECT_EQ(home_.Bytes("a.ini"), "[A]\r\nx=2\r\n");
  }
}

TEST_F(ProfileStore, FileThatCannotBeReadAnyMoreIsAsItWasLastSeen) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  EXPECT_EQ(Number(store_, "x"), 1);
  home_.Put("a.ini", "[A]\r\nx=22\r\n");
  const HANDLE held =
      CreateFileW(home_.Path("a.ini").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  Sleep(50);
  EXPECT_EQ(Number(store_, "x"), 1);
  CloseHandle(held);
  Sleep(50);
  EXPECT_EQ(Number(store_, "x"), 22);
}

// Two writes within one tick of the file system's clock, and of the same size, differ by their times all the same.
TEST_F(ProfileStore, EveryWriteIsLaterThanTheOneBefore) {
  ASSERT_TRUE(Set(store_, "x", "100"));
  const std::wstring path = settings_folder::PathNow(L"a.ini");
  const FILETIME farFuture = {0, 0x0240'0000};  // in the year 2115
  const HANDLE file =
      CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_TRUE(SetFileTime(file, nullptr, nullptr, &farFuture));
  CloseHandle(file);
  const settings_folder::FileStamp before = settings_folder::StampOf(path);
  Store other;
  ASSERT_TRUE(Set(other, "x", "200"));
  EXPECT_EQ(settings_folder::StampOf(path).lastWriteTime, before.lastWriteTime + 1);
  Sleep(50);
  EXPECT_EQ(Number(store_, "x"), 200);
}

TEST_F(ProfileStore, FileIsAskedAtMostEveryFiftyMilliseconds) {
  home_.Put("a.ini", "[A]\r\nx=1\r\n");
  const auto first = store_.Read("a.ini");
  const ULONGLONG start = GetTickCount64();
  fileTimesAsked = 0;
  while (GetTickCount64() - start < 300) ASSERT_EQ(store_.Read("a.ini"), first);
  const ULONGLONG elapsed = GetTickCount64() - start;
  EXPECT_GE(fileTimesAsked, 1u);
  EXPECT_LE(fileTimesAsked, elapsed / 50 + 1);
}

TEST_F(ProfileStore, WritersInSeveralProcessesLoseNothing) {
  constexpr int kWriters = 4;
  constexpr int kWritesEach = 25;
  std::atomic<int> failures = 0;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([writer, &failures] {
      Store own;
      for (int write = 0; write < kWritesEach; ++write) {
        const std::string key = KeyOf(writer, write);
        if (!Set(own, key.c_str(), std::to_string(write))) ++failures;
      }
    });
  }
  for (std::thread& writer : writers) writer.join();
  EXPECT_EQ(failures, 0);
  for (int writer = 0; writer < kWriters; ++writer) {
    for (int write = 0; write < kWritesEach; ++write) {
      const std::string key = KeyOf(writer, write);
      EXPECT_EQ(Number(store_, key.c_str()), write);
    }
  }
}

TEST_F(ProfileStore, ReadersNeverSeeTheFileMissingWhileItIsReplaced) {
  ASSERT_TRUE(Set(store_, "x", "1"));
  std::atomic<int> failures = 0;
  std::atomic<bool> done = false;
  std::thread writer([&] {
    Store own;
    for (int write = 2; write < 200; ++write) failures += !Set(own, "x", std::to_string(write));
    done = true;
  });
  int reads = 0;
  int defaults = 0;
  for (; !done; ++reads) {
    Store fresh;  // knows nothing yet, so every read goes to the disk
    if (Number(fresh, "x") < 1) ++defaults;
    Sleep(1);
  }
  writer.join();
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(defaults, 0);
  EXPECT_GT(reads, 10);
}

TEST_F(ProfileStore, LockOfAWriterThatDiedIsTakenOver) {
  std::thread([] {
    // Deliberate: never released, as when a process is ended within a write.
    EXPECT_TRUE((new settings_folder::WriterLock)->Held());
  }).join();
  EXPECT_TRUE(Set(store_, "x", "1"));
  EXPECT_EQ(Number(store_, "x"), 1);
}

TEST_F(ProfileStore, LockThatAnotherKeepsFailsTheWrite) {
  std::atomic<bool> locked = false;
  std::atomic<bool> done = false;
  std::thread holder([&] {
    const settings_folder::WriterLock lock;
    locked = lock.Held();
    while (!done) Sleep(1);
  });
  while (!locked) Sleep(1);
  EXPECT_FALSE(Set(store_, "x", "1"));
  done = true;
  holder.join();
  EXPECT_TRUE(Set(store_, "x", "1"));
}

}  // namespace
