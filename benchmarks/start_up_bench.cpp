#include "benchmarks/start_up_bench.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>

#include "benchmarks/measured.h"
#include "tests/contract/settings_home.h"
#include "win/class_names.h"

namespace {

constexpr DWORD kPatienceMilliseconds = 30000;

struct FrameSearch {
  DWORD process;
  HWND frame;
};

BOOL CALLBACK StopAtFrame(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<FrameSearch*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  char name[64] = "";
  GetClassNameA(window, name, sizeof name);
  if (process != search.process || lstrcmpA(name, window_class::kFrame) != 0) return TRUE;
  search.frame = window;
  return FALSE;
}

HWND FindFrame(DWORD process) {
  FrameSearch search = {process, nullptr};
  EnumWindows(StopAtFrame, reinterpret_cast<LPARAM>(&search));
  return search.frame;
}

HWND FindListPane(HWND frame) {
  const HWND client = FindWindowExA(frame, nullptr, "MDICLIENT", nullptr);
  const HWND document = client ? FindWindowExA(client, nullptr, window_class::kDocument, nullptr) : nullptr;
  return document ? FindWindowExA(document, nullptr, window_class::kListPane, nullptr) : nullptr;
}

bool IsPainted(DWORD process) {
  const HWND frame = FindFrame(process);
  if (!frame || !IsWindowVisible(frame)) return false;
  const HWND pane = FindListPane(frame);
  return pane && IsWindowVisible(pane) && !GetUpdateRect(pane, nullptr, FALSE);
}

// A program that waits for input has painted whatever was to be painted.
bool WaitUntilPainted(const PROCESS_INFORMATION& program) {
  if (WaitForInputIdle(program.hProcess, kPatienceMilliseconds) != 0) return false;
  const double start = NowMilliseconds();
  while (!IsPainted(program.dwProcessId)) {
    if (NowMilliseconds() - start > kPatienceMilliseconds) return false;
    Sleep(1);
  }
  return true;
}

void Close(const PROCESS_INFORMATION& program) {
  if (const HWND frame = FindFrame(program.dwProcessId)) PostMessageA(frame, WM_CLOSE, 0, 0);
  if (WaitForSingleObject(program.hProcess, kPatienceMilliseconds) != WAIT_OBJECT_0) {
    TerminateProcess(program.hProcess, 1);
  }
  CloseHandle(program.hThread);
  CloseHandle(program.hProcess);
}

// Milliseconds, below zero when the program did not come up.
double OneStart() {
  const SettingsHome home;
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION program = {};
  char commandLine[] = "shabbat.exe";
  const double start = NowMilliseconds();
  if (!CreateProcessA(nullptr, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &program)) {
    return -1;
  }
  const bool painted = WaitUntilPainted(program);
  const double taken = NowMilliseconds() - start;
  Close(program);
  return painted ? taken : -1;
}

}  // namespace

bool MeasureStartUp() {
  constexpr int kStarts = 7;
  double taken[kStarts];
  for (double& one : taken) {
    one = OneStart();
    if (one < 0) {
      std::fprintf(stderr, "shabbat.exe did not open a document\n");
      return false;
    }
  }
  std::sort(taken, taken + kStarts);
  Report("program start to painted document, median, ms", taken[kStarts / 2]);
  return true;
}
