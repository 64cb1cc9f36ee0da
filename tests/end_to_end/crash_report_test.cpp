// What a crash of the finished program leaves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <regex>

#include "resources/ids.h"
#include "tests/end_to_end/command_steps.h"
#include "tests/end_to_end/program_driver.h"

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

// GoogleTest's own regular expressions know no sets on Windows.
MATCHER_P(Matches, pattern, std::string("holds ") + pattern) {
  return std::regex_search(arg, std::regex(pattern));
}

constexpr char kReport[] = "crash report.txt";
constexpr char kPreviousReport[] = "crash report (previous).txt";

// Runs code in the process, in a thread of its own that is not waited for.
void RunThere(HANDLE process, const std::string& code) {
  void* const memory = VirtualAllocEx(process, nullptr, code.size(), MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE);
  ASSERT_TRUE(WriteProcessMemory(process, memory, code.data(), code.size(), nullptr));
  const HANDLE thread =
      CreateRemoteThread(process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(memory), nullptr, 0, nullptr);
  ASSERT_NE(thread, nullptr);
  CloseHandle(thread);
}

// Machine code: xor eax, eax; mov byte [rax + 0x10], 0.
const std::string kWriteToAddress16("\x31\xC0\xC6\x40\x10\x00", 6);
// ud2
const std::string kIllegalInstruction("\x0F\x0B", 2);
// xor eax, eax; call rax
const std::string kCallOfNothing("\x31\xC0\xFF\xD0", 4);

// Crashes the program by such code, reads what the box says, and answers it; the exit code.
DWORD Crash(const fs::path& settings, const std::string& code) {
  ProgramRun program(ProgramFolder(), settings);
  program.WaitForDocuments(1);
  RunThere(program.Process(), code);
  const HWND box = program.WaitForDialog("Times / Readings");
  EXPECT_NE(box, nullptr);
  if (!box) return 0;
  EXPECT_THAT(TextOf(GetDlgItem(box, 0xFFFF)), HasSubstr((settings / kReport).string()));
  Answer(box, IDOK);
  return program.WaitForExit();
}

}  // namespace

// In the window's own thread, in a help library that throws.
TEST(CrashReport, ComesOfAnExceptionThatNobodyCaughtWithTheCallsThatLedThere) {
  TemporaryFolder settings;
  TemporaryFolder folder;
  fs::copy(ProgramFolder(), folder.path(), fs::copy_options::recursive);
  fs::copy_file(FakeLibrariesFolder() / "throwing_guide" / "guide.dll", folder.path() / "guide.dll",
                fs::copy_options::overwrite_existing);
  ProgramRun program(folder.path(), settings.path());
  program.WaitForDocuments(1);
  program.PostCommand(IDM_HELP);
  const HWND box = program.WaitForDialog("Times / Readings");
  ASSERT_NE(box, nullptr);
  Answer(box, IDOK);
  EXPECT_EQ(program.WaitForExit(), 0xE0545201);
  const std::string report = ReadFileText(settings.path() / kReport);
  EXPECT_THAT(report, HasSubstr("What: the program gave up by itself (0xE0545201)\r\n"));
  EXPECT_THAT(report, Matches("\r\n  guide\\.dll \\+ 0x[0-9A-F]+\r\n  shabbat\\.exe \\+ 0x[0-9A-F]+\r\n"));
}

TEST(CrashReport, SaysWhatHappenedWhereAndWithWhat) {
  TemporaryFolder settings;
  EXPECT_EQ(Crash(settings.path(), kWriteToAddress16), DWORD{EXCEPTION_ACCESS_VIOLATION});
  const std::string report = ReadFileText(settings.path() / kReport);
  EXPECT_THAT(report, StartsWith("Crash report of Times / Readings 6.0.0.0001R\r\nWindows "));
  EXPECT_THAT(report, Matches("\r\nWindows [0-9]+\\.[0-9]+\\.[0-9]+, 20[0-9][0-9]-[01][0-9]-[0-3][0-9] "));
  EXPECT_THAT(report, HasSubstr("\r\nWhat: access violation (0xC0000005), writing 0x10\r\nAt: 0x"));
  EXPECT_THAT(report, Matches("\r\nAt: 0x[0-9A-F]+2\r\nWhere: 0x[0-9A-F]+2, in no module\r\n"));
  EXPECT_THAT(report, Matches("\r\n  shabbat\\.exe 6\\.0\\.0\\.1, from 0x[0-9A-F]+ on\r\n"));
  EXPECT_THAT(report, Matches("\r\n  profile\\.dll 6\\.0\\.0\\.1, from 0x[0-9A-F]+ on\r\n"));
  EXPECT_THAT(report, HasSubstr("\r\nCalls, the innermost first:\r\n  0x"));
  EXPECT_LT(report.size(), 32u * 1024);
}

// The calls lead to where threads begin, in a module with a name.
TEST(CrashReport, NamesNoFolderAndNoUser) {
  TemporaryFolder settings;
  Crash(settings.path(), kIllegalInstruction);
  const std::string report = ReadFileText(settings.path() / kReport);
  EXPECT_THAT(report, HasSubstr("What: illegal instruction (0xC000001D)\r\n"));
  char user[256] = "";
  DWORD size = sizeof user;
  ASSERT_TRUE(GetUserNameA(user, &size));
  EXPECT_THAT(report, AllOf(Not(HasSubstr("\\")), Not(HasSubstr(settings.path().filename().string())),
                            Not(HasSubstr(std::string(" ") + user))));
}

// The likeliest crash of a program that looks its entries up by name: who called tells.
TEST(CrashReport, OfACallOfNothingHasWhoCalled) {
  TemporaryFolder settings;
  Crash(settings.path(), kCallOfNothing);
  EXPECT_THAT(ReadFileText(settings.path() / kReport),
              Matches("Calls, the innermost first:\r\n  0x0, in no module\r\n  0x[0-9A-F]+4, in no module\r\n"));
}

TEST(CrashReport, ThatIsThereAlreadyIsKeptAsThePreviousOne) {
  TemporaryFolder settings;
  Crash(settings.path(), kIllegalInstruction);
  const std::string first = ReadFileText(settings.path() / kReport);
  Crash(settings.path(), kWriteToAddress16);
  EXPECT_EQ(ReadFileText(settings.path() / kPreviousReport), first);
  EXPECT_THAT(ReadFileText(settings.path() / kReport), HasSubstr("access violation"));
}

TEST(CrashReport, FirstThingInAFolderThatIsNotThereYet) {
  TemporaryFolder settings;
  const fs::path folder = settings.path() / "new";
  Crash(folder, kIllegalInstruction);
  EXPECT_TRUE(fs::exists(folder / kReport));
}

// Abort is what an exception ends in that nobody catches.
TEST(CrashReport, ComesOfAnAbortToo) {
  TemporaryFolder settings;
  ProgramRun program(ProgramFolder(), settings.path());
  program.WaitForDocuments(1);
  // sub rsp, 40; mov ecx, SIGABRT; mov rax, raise; call rax. The system's libraries have the same addresses everywhere.
  const auto raise =
      reinterpret_cast<uint64_t>(reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("msvcrt.dll"), "raise")));
  std::string code("\x48\x83\xEC\x28\xB9\x16\x00\x00\x00\x48\xB8", 11);
  code.append(reinterpret_cast<const char*>(&raise), sizeof raise).append("\xFF\xD0", 2);
  RunThere(program.Process(), code);
  const HWND box = program.WaitForDialog("Times / Readings");
  ASSERT_NE(box, nullptr);
  Answer(box, IDOK);
  EXPECT_EQ(program.WaitForExit(), 0xE0545201);
  const std::string report = ReadFileText(settings.path() / kReport);
  EXPECT_THAT(report, HasSubstr("What: the program gave up by itself (0xE0545201)\r\n"));
  EXPECT_THAT(report, Matches("Calls, the innermost first:\r\n.*\r\n  msvcrt\\.dll \\+ 0x"));
}
