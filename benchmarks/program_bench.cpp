// The program's own calculation with the real libraries, and the libraries' calls as the program makes them.
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <iterator>

#include "app/compute_document.h"
#include "benchmarks/documents_bench.h"
#include "benchmarks/exports_bench.h"
#include "benchmarks/kinship_bench.h"
#include "benchmarks/languages_bench.h"
#include "benchmarks/measured.h"
#include "benchmarks/occasions_window_bench.h"
#include "benchmarks/pages_bench.h"
#include "benchmarks/start_up_bench.h"
#include "benchmarks/zmanim_bench.h"
#include "companion/profile.h"
#include "companion/stamp.h"
#include "companion/twilight.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/library_binding.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "readings/readings_list.h"
#include "resources/ids.h"
#include "shabbat/core/shabbat_record.h"
#include "tests/contract/settings_home.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"

namespace {

constexpr int kRounds = 5;
constexpr int kCalls = 20000;
constexpr int32_t kFirstDay = 693596;  // 1 January 1900
constexpr int32_t kFridays = 32000;

// A box would wait for ever; what it says is an error of the benchmark, but for the range of the Shabbatot, which has
// more days than zmanim are computed for.
int WINAPI PrintMessage(HWND, LPCSTR text, LPCSTR, UINT) {
  if (std::strcmp(text, TableString(IDS_TOO_MANY_SHABBAT_TIMES)) != 0) std::fprintf(stderr, "%s\n", text);
  return IDOK;
}

// Settings of a usual size: a user's preferences and some places, with the keys asked for among others.
void WriteSettings() {
  const struct {
    const char *section, *key, *value, *file;
  } settings[] = {
      {"Shabbat", "CandleLighting", "18", "shabbat2.ini"},
      {"Shabbat", "DoMinutes", "1", "shabbat2.ini"},
      {"Shabbat", "End", "45", "shabbat2.ini"},
      {"Shabbat", "DegreesBelowHorizon", "8.5", "shabbat2.ini"},
      {"Locations", "Home", "1", "shabbat2.ini"},
      {"Elevation", "47-34-7-34-1-0", "260", "almanacelevation.ini"},
      {"Elevation", "50-47-6-5-1-0", "173", "almanacelevation.ini"},
      {"SummerTime", "Mode", "Automatic", "solar.ini"},
  };
  for (const auto& setting : settings) {
    if (!ProfileWriteString(setting.section, setting.key, setting.value, setting.file)) {
      std::fprintf(stderr, "cannot write %s\n", setting.file);
    }
  }
}

// The milliseconds of many calls are so many microseconds of one.
template <typename Call>
void MeasureCall(const char* name, Call call) {
  const double milliseconds = BestMilliseconds(kRounds, [&call] {
    for (int i = 0; i < kCalls; ++i) call(i);
  });
  Report(name, milliseconds * 1000 / kCalls);
}

void MeasureLibraryCalls() {
  MeasureCall("INI number through profile.dll, us",
              [](int) { ProfileGetInt("Shabbat", "CandleLighting", 18, "shabbat2.ini"); });
  MeasureCall("INI text through profile.dll, us", [](int) {
    char text[kTextSize];
    ProfileGetString("Shabbat", "End", "", text, sizeof text, "shabbat2.ini");
  });
  MeasureCall("missing INI file through profile.dll, us",
              [](int) { ProfileGetInt("Times", "Form", 24, "not-there.ini"); });
  MeasureCall("sunset through SOLAR.DLL, us", [](int i) {
    const CalendarDate date = DateFromAbsolute(kFirstDay + i);
    int32_t hour = 0;
    int32_t minute = 0;
    Solar.SolarGetSunsetSunrise(date.uDay, date.uMonth, date.uYear, SOLAR_SUNSET, 5047, 605, 1, 0, &hour, &minute);
  });
  MeasureCall("twilight interval through twilight.dll, us", [](int i) {
    const CalendarDate date = DateFromAbsolute(kFirstDay + i);
    int32_t hours = 0;
    int32_t minutes = 0;
    TwilightCalculate(date.uDay, date.uMonth, date.uYear, 8.5, 5047, 605, 1, 0, &hours, &minutes);
  });
  MeasureCall("date of a day through CIVILCAL.DLL, us", [](int i) { DateFromAbsolute(kFirstDay + i); });
  MeasureCall("time as text through stamp.dll, us", [](int i) {
    char text[STAMP_TEXT_SIZE];
    StampConvert(i % 24, i % 60, text);
  });
}

// Without the zmanim and the readings of the same document.
void MeasureShabbatTimes(const char* name) {
  const HWND document = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  CurrentLocation = {"Aachen", 5047, 605, 1, 0};
  ApplyCandleOverrideRule();
  CurrentRange = {DateFromAbsolute(kFirstDay), DateFromAbsolute(kFirstDay + 7 * kFridays - 1)};
  const CalendarDate& start = CurrentRange.start;
  const CalendarDate& end = CurrentRange.end;
  const double all = BestMilliseconds(kRounds, [&] {
    CalculateShabbatTimes(document, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  });
  const double zmanim = BestMilliseconds(kRounds, [&] {
    CalculateZmanim(document, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  });
  const double readings = BestMilliseconds(kRounds, [&] {
    BuildReadingsList(document, start.uDay, start.uMonth, start.uYear, end.uDay, end.uMonth, end.uYear);
  });
  const uint32_t count =
      ScopedGlobalLock<const ShabbatTimesList>(GetBlockProperty(document, property::kShabbatTimes))->count;
  if (count != kFridays) std::fprintf(stderr, "%u Fridays instead of %d\n", count, kFridays);
  Report(name, all - zmanim - readings);
  FreeBlockProperty(document, property::kZmanimTimes);
  FreeBlockProperty(document, property::kZmanimLabels);
  FreeBlockProperty(document, property::kParashaReadings);
  FreeBlockProperty(document, property::kReadingsForm);
  FreeBlockProperty(document, property::kShabbatTimes);
  FreeBlockProperty(document, property::kCity);
  RemoveRangeProperties(document);
  DestroyWindow(document);
}

}  // namespace

extern "C" {
decltype(&MessageBoxA) __imp_MessageBoxA = PrintMessage;
}

void Report(const char* name, double figure) {
  std::printf("%s\t%.4g\n", name, figure);
  std::fflush(stdout);
}

double NowMilliseconds() {
  LARGE_INTEGER count;
  LARGE_INTEGER perSecond;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&perSecond);
  return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(perSecond.QuadPart);
}

int main() {
  LoadStringTable(GetModuleHandleA(nullptr));
  LookUpOptionalEntries();
  if (!BindCivilCalendar() || !BindLunarCalendar() || !BindSolar()) return 1;
  LookUpSolarEntries();
  {
    const SettingsHome home;
    WriteSettings();
    MeasureLibraryCalls();
    MeasureShabbatTimes("32,000 Shabbatot by minutes, ms");
    ProfileWriteString("Shabbat", "DoMinutes", "0", "shabbat2.ini");
    MeasureShabbatTimes("32,000 Shabbatot by degrees, ms");
    if (!MeasureZmanim(home)) return 1;
    MeasureExports(home);
    MeasureDocuments(home);
    MeasureLanguages(home);
    MeasureKinship(home);
    MeasureOccasionsWindow();
    MeasurePages();
  }
  return MeasureStartUp() ? 0 : 1;
}
