#include "app/taken_document.h"

#include <cstdlib>
#include <span>

#include "app/core/display_hebrew.h"
#include "app/core/document_table.h"
#include "app/document_names.h"
#include "companion/hours.h"
#include "companion/stamp.h"
#include "engine/bound_entries.h"
#include "engine/core/candle_rule.h"
#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "engine/sun_times.h"
#include "readings/readings_list.h"
#include "shabbat/core/shabbat_rules.h"
#include "shabbat/shabbat_list.h"
#include "win/scoped.h"
#include "win/unicode_text.h"
#include "zmanim/calculate_zmanim.h"
#include "zmanim/core/builtin_zmanim.h"
#include "zmanim/core/zmanim_labels.h"

namespace {

constexpr UINT kWestern = 1252;
constexpr int32_t kMinutesPerDay = kMinutesPerHour * kHoursPerDay;
constexpr int32_t kSecondsPerMinute = 60;

std::vector<ShabbatTimeEntry> EntriesOf(HGLOBAL block) {
  const ScopedGlobalLock<const ShabbatTimesList> list(block);
  if (!list) return {};
  return {list->entries, list->entries + list->count};
}

std::vector<ReadingsEntry> ReadingsIn(HGLOBAL block) {
  const ScopedGlobalLock<const ReadingsList> list(block);
  if (!list) return {};
  return {list->entries, list->entries + list->count};
}

std::vector<ZmanimDay> DaysIn(HGLOBAL block) {
  const ScopedGlobalLock<const ZmanimBlock> days(block);
  if (!days) return {};
  return {days->days, days->days + days->count};
}

std::vector<ReadingsEntry> ReadingsFor(const DateRange& range, uint32_t choice) {
  const HGLOBAL block = MakeReadings(range, choice);
  std::vector<ReadingsEntry> readings = ReadingsIn(block);
  if (block) GlobalFree(block);
  return readings;
}

std::string Decoded(std::string_view text, UINT codePage) {
  return Utf8Of(WideOf(text, codePage));
}

// Texts in the program's own font are windows-1252 (glyphs.h).
UINT CodePageOf(const LectionsFont& font) {
  if (font.UseDefaultFont != 0) return kWestern;
  CHARSETINFO info{};
  const DWORD_PTR charset = font.CharSet;
  return TranslateCharsetInfo(reinterpret_cast<DWORD*>(charset), &info, TCI_SRCCHARSET) ? info.ciACP : kWestern;
}

std::vector<DocumentZman> NamesIn(const ZmanimLabels* labels) {
  std::vector<DocumentZman> names;
  for (uint32_t zman = 0; labels && zman < labels->count; ++zman) {
    const ZmanLabel& label = labels->zmanim[zman];
    names.push_back({Decoded(label.english, kWestern), LogicalHebrew(label.hebrew)});
  }
  return names;
}

// The built-in zmanim by degrees have hours below 0 and from 24 on for other days. Where the sun sets after midnight,
// or minutes after it are added, the evening's have small hours.
bool IsBuiltInOfNextDay(uint32_t zman, int32_t hour) {
  constexpr int32_t kMorning = 6;
  if (zman >= kBuiltInZmanim.size() || hour < 0 || hour >= kMorning) return false;
  const BuiltInRule rule = kBuiltInZmanim[zman].rule;
  return rule == BuiltInRule::kMinutesAfterSunset || rule == BuiltInRule::kDegreesAfterSunset;
}

// The standard clock; the hours' sign leads.
int32_t StandardOffsetSeconds(const Location& place) {
  const int32_t hours = std::abs(place.zoneHours) * kMinutesPerHour;
  if (hours == 0) return place.zoneMinutes * kSecondsPerMinute;
  return (hours + std::abs(place.zoneMinutes)) * (place.zoneHours < 0 ? -kSecondsPerMinute : kSecondsPerMinute);
}

}  // namespace

TakenDocument::TakenDocument(HWND document)
    : form_{}, readingsCodePage_(kWestern), source_{.services = *this, .formatTime = StampConvert} {
  RenewZmanim(document);
  RenewReadings(document);
  form_ = ReadingsFormOf(document);
  if (form_.language == 0) form_ = ReadingsFormNow(ReadingsChoiceNow());
  readingsCodePage_ = CodePageOf(form_.font);
  shabbatTimes_ = EntriesOf(GetBlockProperty(document, property::kShabbatTimes));
  zmanim_ = DaysIn(GetBlockProperty(document, property::kZmanimTimes));
  readings_ = ReadingsIn(GetBlockProperty(document, property::kParashaReadings));
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  zmanimFromLibrary_ = labels && labels->fromLibrary != 0;
  source_.location = GetPlace(document);
  source_.place = Decoded(DocumentPlace(document), CP_ACP);  // as it was typed
  source_.range = GetRangeProperties(document);
  source_.shabbatTimes = shabbatTimes_;
  source_.zmanimDays = zmanim_;
  source_.readings = readings_;
  source_.zmanim = NamesIn(labels.get());
  source_.hasOccasions = OccasionsOfDocument::AreKnown();
  TakeCustoms();
  TakeNeighbours();
}

void TakenDocument::TakeCustoms() {
  source_.customs.clear();
  char name[kTextSize] = "";
  for (uint32_t custom = 0; OptionalEntries.LectionsGetCustomName; ++custom) {
    if (!OptionalEntries.LectionsGetCustomName(custom, name)) return;
    source_.customs.push_back(Decoded(name, readingsCodePage_));
  }
}

// By the rules in force now: the document itself has nothing of these days.
void TakenDocument::TakeNeighbours() {
  const int32_t dayBefore = AbsoluteFromDate(source_.range.start) - 1;
  const int32_t dayAfter = AbsoluteFromDate(source_.range.end) + 1;
  if (IsFriday(dayBefore))
    source_.fridayBefore = ShabbatTimesFor({DateFromAbsolute(dayBefore), DateFromAbsolute(dayBefore)});
  if (IsFriday(dayAfter - 1)) {
    source_.shabbatAfter = ReadingsFor({DateFromAbsolute(dayAfter), DateFromAbsolute(dayAfter)}, form_.choice);
  }
}

std::vector<ShabbatTimeEntry> TakenDocument::ShabbatTimesFor(const DateRange& range) const {
  const HGLOBAL block = MakeShabbatTimes(source_.location, range, CandleOverrideFor(source_.location.name));
  std::vector<ShabbatTimeEntry> times = EntriesOf(block);
  if (block) GlobalFree(block);
  return times;
}

void TakenDocument::TakeRange(const DateRange& range) {
  const ScopedWaitCursor wait;
  // Each of the two lists may have been cut.
  const auto reaches = [&](DocumentKind kind) {
    return AbsoluteDay(range.end) <= AbsoluteDay(CoveredRange(source_, kind).end);
  };
  const bool isCovered = AbsoluteDay(source_.range.start) <= AbsoluteDay(range.start) &&
                         reaches(DocumentKind::kShabbatTimes) && reaches(DocumentKind::kReadings);
  if (isCovered) {
    CutTo(range);
  } else {
    Calculate(range);
  }
  zmanim_.clear();
  source_.range = range;
  source_.shabbatTimes = shabbatTimes_;
  source_.zmanimDays = zmanim_;
  source_.readings = readings_;
}

// The Shabbat after the last Friday may be the day after the range; its portion is wanted too.
void TakenDocument::CutTo(const DateRange& range) {
  const int32_t first = AbsoluteDay(range.start);
  const int32_t last = AbsoluteDay(range.end);
  shabbatTimes_.insert(shabbatTimes_.begin(), source_.fridayBefore.begin(), source_.fridayBefore.end());
  std::erase_if(shabbatTimes_, [&](const ShabbatTimeEntry& entry) {
    const int32_t day = AbsoluteDay(FridayOf(entry));
    return day < first - 1 || day > last;
  });
  std::erase_if(readings_, [&](const ReadingsEntry& entry) {
    const int32_t day = AbsoluteDay(entry.date);
    return day < first || day > last + 1;
  });
}

void TakenDocument::Calculate(const DateRange& range) {
  shabbatTimes_ = ShabbatTimesFor({Gregorian(AbsoluteDay(range.start) - 1), range.end});
  const uint32_t choice = form_.choice != 0 ? form_.choice : ReadingsChoiceNow();
  form_ = ReadingsFormNow(choice);
  readingsCodePage_ = CodePageOf(form_.font);
  TakeCustoms();
  readings_ = ReadingsFor({range.start, Gregorian(AbsoluteDay(range.end) + 1)}, choice);
}

int32_t TakenDocument::AbsoluteDay(const CalendarDate& gregorian) const {
  return AbsoluteFromDate(gregorian);
}

CalendarDate TakenDocument::Gregorian(int32_t absoluteDay) const {
  return DateFromAbsolute(absoluteDay);
}

CalendarDate TakenDocument::Jewish(int32_t absoluteDay) const {
  return JewishFromAbsolute(absoluteDay);
}

std::string TakenDocument::Weekday(int32_t weekday, uint32_t language) const {
  return WeekdayName(weekday, language);
}

std::string TakenDocument::CivilMonth(const CalendarDate& gregorian, uint32_t language) const {
  return CivilMonthName(gregorian.uMonth, gregorian.uYear, language);
}

std::string TakenDocument::JewishMonth(const CalendarDate& jewish, uint32_t language) const {
  return JewishMonthName(jewish.uMonth, jewish.uYear, language);
}

std::string TakenDocument::OfReadings(std::string_view text) const {
  return Decoded(text, readingsCodePage_);
}

std::string TakenDocument::OfWestern(std::string_view text) const {
  return Decoded(text, kWestern);
}

// Clocks change on few days: on the others one answer serves all times of a date, those of its neighbours too.
int32_t TakenDocument::ClockOffsetSeconds(const CalendarDate& date, int32_t minuteOfDay) const {
  if (!OptionalEntries.SolarGetClockOffset) return StandardOffsetSeconds(source_.location);
  const int32_t day = AbsoluteFromDate(date);
  if (clockDay_ != day) {
    const int32_t before = AskedClockOffset(date, -kMinutesPerDay);
    const bool isSame = before == AskedClockOffset(date, 2 * kMinutesPerDay);
    clockOffset_ = isSame ? std::optional(before) : std::nullopt;
    clockDay_ = day;
  }
  return clockOffset_ ? *clockOffset_ : AskedClockOffset(date, minuteOfDay);
}

int32_t TakenDocument::AskedClockOffset(const CalendarDate& date, int32_t minuteOfDay) const {
  const Location& place = source_.location;
  return OptionalEntries.SolarGetClockOffset(date.uDay, date.uMonth, date.uYear, minuteOfDay, place.latitude,
                                             place.longitude, place.zoneHours, place.zoneMinutes);
}

std::vector<DocumentOccasion> TakenDocument::Occasions(int32_t absoluteDay, uint32_t language) const {
  return occasions_.On(absoluteDay, source_.location, source_.range, language);
}

// Of one day at a time: all its zmanim are asked for in turn.
const DaySun& TakenDocument::SunOf(const CalendarDate& date) const {
  const int32_t day = AbsoluteFromDate(date);
  if (sunDay_ != day) {
    sun_ = {SunEvent(source_.location, date, SOLAR_SUNRISE), SunEvent(source_.location, date, SOLAR_SUNSET)};
    sunDay_ = day;
  }
  return sun_;
}

// A time set by hand is on the day on which it is nearest to the one that would be calculated.
int32_t TakenDocument::ZmanDayOffset(const ZmanimDay& day, uint32_t zman) const {
  if (!zmanimFromLibrary_) return IsBuiltInOfNextDay(zman, day.times[zman].hour) ? 1 : 0;
  if (!OptionalEntries.HoursGetDayOffset) return 0;
  const Location& place = source_.location;
  const CalendarDate& date = day.date;
  const auto& [sunrise, sunset] = SunOf(date);
  const int32_t offset = OptionalEntries.HoursGetDayOffset(place.latitude, place.longitude, place.zoneHours,
                                                           place.zoneMinutes, date.uDay, date.uMonth, date.uYear, zman,
                                                           sunrise.hour, sunrise.minute, sunset.hour, sunset.minute);
  constexpr int32_t kMorning = 6;
  constexpr int32_t kEvening = 18;
  const bool isFarFromMidnight = day.times[zman].hour >= kMorning && day.times[zman].hour < kEvening;
  if (offset == 0 && isFarFromMidnight) return 0;
  const int32_t calculated =
      HoursCalculate2(nullptr, place.latitude, place.longitude, place.zoneHours, place.zoneMinutes, date.uDay,
                      date.uMonth, date.uYear, zman, sunrise.hour, sunrise.minute, sunset.hour, sunset.minute);
  if (calculated < 0) return 0;
  const int32_t shown = day.times[zman].hour * kMinutesPerHour + day.times[zman].minute;
  const int32_t earlier = calculated + offset * kMinutesPerDay - shown;  // than the time on the date itself
  if (earlier > kMinutesPerDay / 2) return 1;
  return earlier < -kMinutesPerDay / 2 ? -1 : 0;
}
