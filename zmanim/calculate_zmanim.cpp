#include "zmanim/calculate_zmanim.h"

#include <algorithm>
#include <string>
#include <vector>

#include "companion/hours.h"
#include "engine/bound_entries.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "engine/sun_times.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"
#include "zmanim/core/builtin_zmanim.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/core/zmanim_labels.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/zmanim_in_use.h"
#include "zmanim/zmanim_panes.h"

namespace {

// What the library is asked with; the same for all days of a calculation.
struct LibraryQuestions {
  HWND document;
  const Location& place;
  std::vector<std::string> descriptions;
  ScopedCustomZmanim customTimes;
};

ClockTime LibraryTime(HWND document, const Location& place, const CalendarDate& date, uint32_t zman,
                      const DaySun& sun) {
  const int32_t minutes = HoursCalculate2(document, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes,
                                          date.uDay, date.uMonth, date.uYear, zman, sun.sunrise.hour,
                                          sun.sunrise.minute, sun.sunset.hour, sun.sunset.minute);
  return minutes < 0 ? kNoTime : ClockTime{minutes / kMinutesPerHour, minutes % kMinutesPerHour};
}

void ComputeLibraryDay(LibraryQuestions& questions, const DaySun& sun, ZmanimDay& day) {
  for (uint32_t zman = 0; zman < questions.descriptions.size(); ++zman) {
    if (GetCustomZman(questions.customTimes.get(), day.date, questions.descriptions[zman], questions.place.name,
                      day.times[zman])) {
      continue;
    }
    day.times[zman] = LibraryTime(questions.document, questions.place, day.date, zman, sun);
  }
}

void ComputeBuiltInDay(const Location& place, const DaySun& sun, ZmanimDay& day) {
  const TwilightQuestion twilight = [&](double degrees) { return TwilightInterval(place, day.date, degrees); };
  for (uint32_t zman = 0; zman < kBuiltInZmanimCount; ++zman) {
    day.times[zman] = BuiltInZmanTime(kBuiltInZmanim[zman], sun, twilight);
  }
}

DaySun SunOfDay(const Location& place, const CalendarDate& date) {
  return {SunEvent(place, date, SOLAR_SUNRISE), SunEvent(place, date, SOLAR_SUNSET)};
}

// A day's date, its sun and the marks of the slots that the calculation leaves alone.
DaySun BeginDay(const Location& place, int32_t absoluteDay, uint32_t zmanimCount, ZmanimDay& day) {
  day.date = DateFromAbsolute(absoluteDay);
  std::fill(day.times + zmanimCount, day.times + kMostZmanim, kNoTime);
  return SunOfDay(place, day.date);
}

void FillBlock(HWND document, const Location& place, int32_t firstDay, const ZmanimLabels& labels, ZmanimBlock& block) {
  const auto dayNumber = [firstDay](uint32_t i) { return firstDay + static_cast<int32_t>(i); };
  if (!labels.fromLibrary) {
    for (uint32_t i = 0; i < block.count; ++i) {
      ZmanimDay& day = block.days[i];
      ComputeBuiltInDay(place, BeginDay(place, dayNumber(i), labels.count, day), day);
    }
    return;
  }
  LibraryQuestions questions{document, place, NamesOf(labels, &ZmanLabel::english), {}};
  for (uint32_t i = 0; i < block.count; ++i) {
    ZmanimDay& day = block.days[i];
    ComputeLibraryDay(questions, BeginDay(place, dayNumber(i), labels.count, day), day);
  }
}

// Null when there is no memory for it.
HGLOBAL BuildBlock(HWND document, const Location& place, const DateRange& range, LongRange longRange,
                   const ZmanimLabels& labels) {
  const int32_t firstDay = AbsoluteFromDate(range.start);
  const ZmanimDayCount days = CountZmanimDays(firstDay, AbsoluteFromDate(range.end));
  if (days.tooMany && longRange == LongRange::kReport) {
    ShowStop(nullptr, TableString(IDS_TOO_MANY_SHABBAT_TIMES), TableString(IDS_TITLE));
  }
  const HGLOBAL handle = GlobalAlloc(GMEM_MOVEABLE, ZmanimBlockSize(days.count));
  const ScopedGlobalLock<ZmanimBlock> block(handle);
  if (!block) return nullptr;
  block->count = days.count;
  FillBlock(document, place, firstDay, labels, *block.get());
  return handle;
}

// Times and the labels that say whose they are; both or none.
struct LabelledTimes {
  HGLOBAL times;
  HGLOBAL labels;
};

LabelledTimes BuildLabelledTimes(HWND document, const Location& place, const DateRange& range, LongRange longRange) {
  LabelledTimes built{nullptr, DescribeZmanimInUse()};
  if (const ScopedGlobalLock<const ZmanimLabels> labels(built.labels); labels) {
    built.times = BuildBlock(document, place, range, longRange, *labels.get());
  }
  if (built.times) return built;
  if (built.labels) GlobalFree(built.labels);
  return {};
}

void Attach(HWND document, const LabelledTimes& built) {
  ReplaceBlockProperty(document, property::kZmanimTimes, built.times);
  ReplaceBlockProperty(document, property::kZmanimLabels, built.labels);
  RefreshZmanimView(document);
}

bool IsOutdated(HWND document) {
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  return labels && !AreInUse(*labels.get());
}

}  // namespace

void ComputeZmanim(HWND document, const Location& place, const DateRange& range, LongRange longRange) {
  Attach(document, BuildLabelledTimes(document, place, range, longRange));
}

void CalculateZmanim(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                     uint32_t endMonth, uint32_t endYear) {
  Location place = CurrentLocation;
  lstrcpynA(place.name, DocumentPlace(document).c_str(), kTextSize);
  ComputeZmanim(document, place, {{startDay, startMonth, startYear}, {endDay, endMonth, endYear}}, LongRange::kReport);
}

std::optional<ClockTime> CalculatedZman(HWND document, const Location& place, const CalendarDate& date,
                                        const std::string& description) {
  const std::optional<uint32_t> zman = LibraryZmanNamed(description);
  if (!zman) return std::nullopt;
  const ClockTime time = LibraryTime(document, place, date, *zman, SunOfDay(place, date));
  if (time == kNoTime) return std::nullopt;
  return time;
}

bool RenewZmanim(HWND document) {
  if (!IsOutdated(document)) return false;
  const ScopedWaitCursor wait;
  // A selection that goes on changing while it is computed is left to the next look.
  constexpr int kMostTries = 3;
  for (int tries = 0; tries < kMostTries && IsOutdated(document); ++tries) {
    const LabelledTimes built =
        BuildLabelledTimes(document, GetPlace(document), GetRangeProperties(document), LongRange::kCutSilently);
    if (!built.times) return tries > 0;
    Attach(document, built);
  }
  if (const ScopedGlobalLock<ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels)); labels) {
    labels->renewedAt = GetTickCount();
  }
  return true;
}
