#include "benchmarks/exports_bench.h"

#include <windows.h>

#include <commdlg.h>
#include <psapi.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "benchmarks/measured.h"
#include "benchmarks/zmanim_bench.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "readings/core/readings_record.h"
#include "readings/export_dates.h"
#include "readings/export_readings.h"
#include "readings/readings_list.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/export_zmanim.h"

namespace {

constexpr int kRounds = 3;
constexpr int32_t kFirstDay = 726468;  // 1 January 1990
constexpr int32_t kDays = 32001;
constexpr uint32_t kZmanim = 100;
constexpr double kMebibyte = 1024 * 1024;

std::string exportFile;

// Stands in for the save dialog of every export.
BOOL WINAPI ChooseExportFile(OPENFILENAMEA* dialog) {
  dialog->lpstrFile[exportFile.copy(dialog->lpstrFile, dialog->nMaxFile - 1)] = '\0';
  return TRUE;
}

PROCESS_MEMORY_COUNTERS Memory() {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return counters;
}

// What the process takes at its peak beyond what it has now. Ballast fills memory up to the highest mark of before, so
// that the mark moves with any growth.
class PeakGrowth {
 public:
  PeakGrowth() {
    const PROCESS_MEMORY_COUNTERS now = Memory();
    ballast_.assign(now.PeakWorkingSetSize - std::min(now.PeakWorkingSetSize, now.WorkingSetSize), 'x');
    before_ = Memory().PeakWorkingSetSize;
  }
  double Mebibytes() const { return static_cast<double>(Memory().PeakWorkingSetSize - before_) / kMebibyte; }

 private:
  std::vector<char> ballast_;
  SIZE_T before_;
};

// The time of an export, the size of its file, and the memory that it takes.
template <typename Export>
void MeasureExport(const std::string& name, Export run) {
  const PeakGrowth growth;
  Report((name + ", ms").c_str(), BestMilliseconds(kRounds, run));
  Report((name + ", memory beyond the document, MiB").c_str(), growth.Mebibytes());
  const auto size = std::filesystem::file_size(exportFile);
  if (size < 1000) std::fprintf(stderr, "%s: only %u bytes\n", name.c_str(), static_cast<unsigned>(size));
}

void MeasureZmanimExports(HWND document) {
  MeasureExport("32,001 days x 100 zmanim as text", [=] { ExportZmanim(nullptr, document, ExportFormat::kText); });
  MeasureExport("32,001 days x 100 zmanim as RTF", [=] { ExportZmanim(nullptr, document, ExportFormat::kRtf); });
  MeasureExport("32,001 days x 100 zmanim as RTF by day", [=] { ExportZmanimByDay(nullptr, document); });
  MeasureExport("32,001 days x 100 zmanim delimited", [=] { WriteZmanimExport(document, exportFile, ";", true); });
}

void BuildReadings(HWND document, int32_t days) {
  const CalendarDate start = DateFromAbsolute(kFirstDay);
  const CalendarDate end = DateFromAbsolute(kFirstDay + days - 1);
  BuildReadingsList(document, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
}

uint32_t CountOfReadings(HWND document) {
  return ScopedGlobalLock<const ReadingsList>(GetBlockProperty(document, property::kParashaReadings))->count;
}

void MeasureReadings(HWND document) {
  Report("readings of 32,000 days, ms", BestMilliseconds(kRounds, [=] { BuildReadings(document, 32000); }));
  // So many that the list ends before the range.
  constexpr int32_t kYears = 335;
  Report("32,001 entries of readings, ms", BestMilliseconds(1, [=] { BuildReadings(document, 365 * kYears); }));
  if (CountOfReadings(document) != kMaximumReadingDays + 1) std::fprintf(stderr, "fewer than 32,001 entries\n");
  MeasureExport("32,001 entries of readings as text", [=] { ExportReadings(nullptr, document, ExportFormat::kText); });
  MeasureExport("32,001 entries of readings as RTF", [=] { ExportReadings(nullptr, document, ExportFormat::kRtf); });
  MeasureExport("32,001 entries of readings delimited",
                [=] { WriteDatesExport(document, exportFile, ";", true, ", ", 1); });
}

}  // namespace

extern "C" {
decltype(&GetSaveFileNameA) __imp_GetSaveFileNameA = ChooseExportFile;
}

void MeasureExports(const SettingsHome& home) {
  exportFile = (home.Folder() / "export.txt").string();
  if (!ChooseZmanim(home, kZmanim)) return;
  const HWND document = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  const CalendarDate start = DateFromAbsolute(kFirstDay);
  const CalendarDate end = DateFromAbsolute(kFirstDay + kDays - 1);
  CalculateZmanim(document, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  MeasureZmanimExports(document);
  FreeBlockProperty(document, property::kZmanimTimes);
  FreeBlockProperty(document, property::kZmanimLabels);
  MeasureReadings(document);
  FreeBlockProperty(document, property::kParashaReadings);
  FreeBlockProperty(document, property::kReadingsForm);
  DestroyWindow(document);
}
