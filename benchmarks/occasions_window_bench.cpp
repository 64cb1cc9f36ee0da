#include "benchmarks/occasions_window_bench.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <thread>

#include "benchmarks/measured.h"
#include "companion/occasions.h"
#include "libraries/occasions/occasions_ids.h"

namespace {

constexpr int kRounds = 5;
constexpr DWORD kPatienceMilliseconds = 30000;

struct Years {
  uint32_t first, last;
};
constexpr Years kYear = {2026, 2026};
constexpr Years kCentury = {1951, 2050};

HWND WaitForWindow() {
  const double start = NowMilliseconds();
  while (NowMilliseconds() - start < kPatienceMilliseconds) {
    const HWND window = FindWindowW(L"#32770", L"Occasions of the Year - Aachen");
    if (window && IsWindowVisible(window)) return window;
    Sleep(1);
  }
  return nullptr;
}

// Whether nothing of the window and of its list waits for its paint any more.
bool WaitUntilPainted(HWND window) {
  const HWND list = GetDlgItem(window, IDC_OCCASIONS);
  const double start = NowMilliseconds();
  do {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    if (!GetUpdateRect(window, nullptr, FALSE) && !GetUpdateRect(list, nullptr, FALSE)) return true;
  } while (NowMilliseconds() - start < kPatienceMilliseconds);
  return false;
}

// Milliseconds, below zero when the window does not come up.
double OneOpening(const Years& years) {
  const double start = NowMilliseconds();
  std::thread user(
      [&years] { OccasionsDoDialog(nullptr, "Aachen", 5047, 605, 1, 0, 1, 1, years.first, 31, 12, years.last); });
  const HWND window = WaitForWindow();
  const double taken = window && WaitUntilPainted(window) ? NowMilliseconds() - start : -1;
  if (window) PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
  user.join();
  return taken;
}

void MeasureOpening(const char* name, const Years& years) {
  double taken[kRounds];
  for (double& one : taken) {
    one = OneOpening(years);
    if (one < 0) {
      std::fprintf(stderr, "the window of occasions does not open\n");
      return;
    }
  }
  std::sort(taken, taken + kRounds);
  Report(name, taken[kRounds / 2]);
}

}  // namespace

void MeasureOccasionsWindow() {
  MeasureOpening("window of a year's occasions, median, ms", kYear);
  MeasureOpening("window of a century's occasions, median, ms", kCentury);
}
