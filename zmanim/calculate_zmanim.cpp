#include "zmanim/calculate_zmanim.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/bound_entries.h"
#include "app/string_table.h"
#include "companion/hours.h"
#include "document/properties.h"
#include "engine/current.h"
#include "engine/sun_times.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"
#include "zmanim/core/builtin_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/zmanim_count.h"
#include "zmanim/zmanim_names.h"
#include "zmanim/zmanim_panes.h"

namespace {

// What the library is asked with; the same for all days of a calculation.
struct LibraryQuestions {
  HWND document;
  std::string place;
  std::vector<std::string> descriptions;
  ScopedCustomZmanim customTimes;
};

ClockTime LibraryTime(HWND document, const CalendarDate& date, uint32_t zman, const DaySun& sun) {
  const int32_t minutes =
      HoursCalculate2(document, CurrentLocation.latitude, CurrentLocation.longitude, CurrentLocation.zoneHours,
                      CurrentLocation.zoneMinutes, date.uDay, date.uMonth, date.uYear, zman, sun.sunrise.hour,
                      sun.sunrise.minute, sun.sunset.hour, sun.sunset.minute);
  return minutes < 0 ? kNoTime : ClockTime{minutes / kMinutesPerHour, minutes % kMinutesPerHour};
}

void ComputeLibraryDay(LibraryQuestions& questions, const DaySun& sun, ZmanimDay& day) {
  for (uint32_t zman = 0; zman < questions.descriptions.size(); ++zman) {
    if (GetCustomZman(questions.customTimes.get(), day.date, questions.descriptions[zman], questions.place.c_str(),
                      day.times[zman])) {
      continue;
    }
    day.times[zman] = LibraryTime(questions.document, day.date, zman, sun);
  }
}

void ComputeBuiltInDay(const DaySun& sun, ZmanimDay& day) {
  const TwilightQuestion twilight = [&day](double degrees) { return TwilightInterval(day.date, degrees); };
  for (uint32_t zman = 0; zman < kBuiltInZmanimCount; ++zman) {
    day.times[zman] = BuiltInZmanTime(kBuiltInZmanim[zman], sun, twilight);
  }
}

// A day's date, its sun and the marks of the slots that the calculation leaves alone.
DaySun BeginDay(int32_t absoluteDay, uint32_t zmanimCount, ZmanimDay& day) {
  day.date = DateFromAbsolute(absoluteDay);
  std::fill(day.times + zmanimCount, day.times + kMostZmanim, kNoTime);
  return {SunEvent(day.date, SOLAR_SUNRISE), SunEvent(day.date, SOLAR_SUNSET)};
}

void FillBlock(HWND document, int32_t firstDay, ZmanimBlock& block) {
  const ZmanimInUse inUse = GetZmanimInUse();
  const auto dayNumber = [firstDay](uint32_t i) { return firstDay + static_cast<int32_t>(i); };
  if (!inUse.fromLibrary) {
    for (uint32_t i = 0; i < block.count; ++i) {
      ComputeBuiltInDay(BeginDay(dayNumber(i), inUse.count, block.days[i]), block.days[i]);
    }
    return;
  }
  LibraryQuestions questions{document, DocumentPlace(document), ZmanNames(inUse), {}};
  for (uint32_t i = 0; i < block.count; ++i) {
    ComputeLibraryDay(questions, BeginDay(dayNumber(i), inUse.count, block.days[i]), block.days[i]);
  }
}

// Null when there is no memory for it.
HGLOBAL BuildBlock(HWND document, int32_t firstDay, int32_t lastDay) {
  const ZmanimDayCount days = CountZmanimDays(firstDay, lastDay);
  if (days.tooMany) ShowStop(nullptr, TableString(IDS_TOO_MANY_SHABBAT_TIMES), TableString(IDS_TITLE));
  const HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE, ZmanimBlockSize(days.count));
  const ScopedGlobalLock<ZmanimBlock> block(handle);
  if (!block) return nullptr;
  block->count = days.count;
  FillBlock(document, firstDay, *block.get());
  return handle;
}

}  // namespace

void CalculateZmanim(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                     uint32_t endMonth, uint32_t endYear) {
  const int32_t firstDay = AbsoluteFromDate({startDay, startMonth, startYear});
  const int32_t lastDay = AbsoluteFromDate({endDay, endMonth, endYear});
  ReplaceBlockProperty(document, property::kZmanimTimes, BuildBlock(document, firstDay, lastDay));
  RefreshZmanimView(document);
}
