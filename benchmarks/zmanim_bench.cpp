#include "benchmarks/zmanim_bench.h"

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

#include "app/active_document.h"
#include "app/frame_window.h"
#include "app/program.h"
#include "app/window_classes.h"
#include "benchmarks/core_zmanim.h"
#include "benchmarks/measured.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/zmanim_in_use.h"

namespace {

constexpr int kCalculations = 3;
constexpr int kPaintings = 20;
constexpr int kSteps = 200;
constexpr int32_t kFirstDay = 726468;  // 1 January 1990
constexpr int32_t kDays = 32000;

// Its milliseconds.
double MeasureCalculation(HWND document, const char* name) {
  const CalendarDate start = DateFromAbsolute(kFirstDay);
  const CalendarDate end = DateFromAbsolute(kFirstDay + kDays - 1);
  const double milliseconds = BestMilliseconds(kCalculations, [&] {
    CalculateZmanim(document, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  });
  Report(name, milliseconds);
  const uint32_t count = ScopedGlobalLock<const ZmanimBlock>(GetBlockProperty(document, property::kZmanimTimes))->count;
  if (count != kDays) std::fprintf(stderr, "%u days instead of %d\n", count, kDays);
  return milliseconds;
}

int32_t MinutesOf(const ClockTime& time) {
  return time == kNoTime ? -1 : time.hour * kMinutesPerHour + time.minute;
}

// How many zmanim of a document are not what the cores say.
size_t CountDifferences(HWND document, const std::vector<int32_t>& minutes) {
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  const size_t perDay = minutes.size() / kDays;
  size_t differences = 0;
  for (size_t i = 0; i < minutes.size(); ++i) {
    if (MinutesOf(block->days[i / perDay].times[i % perDay]) != minutes[i]) ++differences;
  }
  return differences;
}

void CompareWithCores(HWND document, const SettingsHome& home, double programMilliseconds) {
  std::vector<int32_t> minutes;
  const double milliseconds = BestMilliseconds(
      kCalculations, [&] { minutes = ZmanimByCore(home.Bytes("hours.txt"), CurrentLocation, kFirstDay, kDays); });
  Report("32,000 days x 100 zmanim by the cores alone, ms", milliseconds);
  Report("32,000 days x 100 zmanim, program to cores, times", programMilliseconds / milliseconds);
  const size_t differences = CountDifferences(document, minutes);
  if (differences != 0) std::fprintf(stderr, "%zu zmanim are not those of the cores\n", differences);
}

void MeasurePainting(HWND pane, const char* name) {
  Report(name, BestMilliseconds(kPaintings, [pane] {
           RedrawWindow(pane, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
           GdiFlush();
         }));
}

// Forth and back again.
void MeasureSteps(HWND table, UINT message, int forth, int back, const char* name) {
  const double milliseconds = BestMilliseconds(3, [=] {
    for (int i = 0; i < kSteps; ++i) SendMessageA(table, message, static_cast<WPARAM>(i % 2 ? back : forth), 0);
    GdiFlush();
  });
  Report(name, milliseconds / kSteps);
}

void MeasureTable(HWND document) {
  const HWND container = GetDlgItem(document, IDC_ZMANIM_PANE);
  const HWND table = GetDlgItem(container, IDC_ZMANIM_TABLE);
  MeasurePainting(table, "a screen of the zmanim table, ms");
  MeasurePainting(GetDlgItem(container, IDC_ZMANIM_LEGEND), "legend of 100 zmanim, ms");
  MeasureSteps(table, WM_VSCROLL, SB_LINEDOWN, SB_LINEUP, "zmanim table, a day down or up, ms");
  MeasureSteps(table, WM_HSCROLL, SB_LINERIGHT, SB_LINELEFT, "zmanim table, a zman right or left, ms");
  MeasureSteps(table, WM_VSCROLL, SB_PAGEDOWN, SB_PAGEUP, "zmanim table, a page down or up, ms");
}

}  // namespace

bool ChooseZmanim(const SettingsHome& home, uint32_t count) {
  std::string text;
  for (uint32_t i = 1; i <= count; ++i) {
    const std::string number = std::to_string(i);
    const std::string degrees = std::to_string(3 + i / 10) + "." + std::to_string(i % 10);
    text += "zman own-" + number + "\nown " + number + " degrees-before-sunrise " + degrees + " up Dawn by " + degrees +
            " degrees|" + number + "\n";
  }
  home.Put("hours.txt", text);
  for (int i = 0; i < 100; ++i) {
    if (GetZmanimCount() == count) return true;
    Sleep(10);
  }
  std::fprintf(stderr, "%u zmanim instead of %u\n", GetZmanimCount(), count);
  return false;
}

bool MeasureZmanim(const SettingsHome& home) {
  Program.instance = GetModuleHandleA(nullptr);
  const HBRUSH tooltipBrush = CreateSolidBrush(RGB(255, 255, 0));
  if (RegisterWindowClasses(Program.instance, tooltipBrush)) return false;
  const HWND frame = CreateFrameWindow(SW_SHOWNORMAL);
  const HWND document = frame ? ActiveDocument() : nullptr;
  if (!document) return false;
  SendMessageA(document, WM_COMMAND, IDB_ZMANIM, 0);
  bool chosen = ChooseZmanim(home, 40);
  if (chosen) MeasureCalculation(document, "32,000 days x 40 zmanim, ms");
  chosen = chosen && ChooseZmanim(home, 100);
  if (chosen) {
    CompareWithCores(document, home, MeasureCalculation(document, "32,000 days x 100 zmanim, ms"));
    MeasureTable(document);
  }
  DestroyWindow(frame);
  DeleteObject(tooltipBrush);
  return chosen;
}
