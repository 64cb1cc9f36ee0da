// A process that writes and that may be ended in the middle of it.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "tests/profile_store/writer_progress.h"

class WriterProcess {
 public:
  // program: beside the test program, called as writer_progress.h says.
  WriterProcess(const wchar_t* program, int first, int count) {
    static int number;
    const std::wstring name =
        L"times-readings-writer-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++number);
    mapping_ =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(WriterProgress), name.c_str());
    progress_ = static_cast<WriterProgress*>(MapViewOfFile(mapping_, FILE_MAP_WRITE, 0, 0, 0));
    std::wstring commandLine =
        L"\"" + PathOf(program) + L"\" " + name + L" " + std::to_wstring(first) + L" " + std::to_wstring(count);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr,
                               &startup, &process));
    CloseHandle(process.hThread);
    process_ = process.hProcess;
  }
  ~WriterProcess() {
    UnmapViewOfFile(progress_);
    CloseHandle(mapping_);
    CloseHandle(process_);
  }
  WriterProcess(const WriterProcess&) = delete;
  WriterProcess& operator=(const WriterProcess&) = delete;

  int Committed() const { return progress_->committed; }

  // Lets it write for some microseconds after its first success, and ends it. The successes that it had.
  int End(std::chrono::microseconds delay) {
    const ULONGLONG start = GetTickCount64();
    while (Committed() == 0 && GetTickCount64() - start < kMostMilliseconds) SwitchToThread();
    const auto until = std::chrono::steady_clock::now() + delay;
    while (std::chrono::steady_clock::now() < until) SwitchToThread();
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
  static constexpr DWORD kMostMilliseconds = 20000;  // a writer that takes longer hangs

  static std::wstring PathOf(const wchar_t* program) {
    wchar_t exe[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, exe, MAX_PATH);
    return std::filesystem::path(exe).replace_filename(program).wstring();
  }

  HANDLE mapping_;
  WriterProgress* progress_;
  HANDLE process_;
};
