#include "engine/shabbat_times.h"

#include <cstring>

#include "app/bound_entries.h"
#include "app/string_table.h"
#include "companion/candles.h"
#include "document/properties.h"
#include "engine/core/shabbat_rules.h"
#include "engine/current.h"
#include "engine/shabbat_preferences.h"
#include "engine/sun_times.h"
#include "readings/readings_list.h"
#include "resources/ids.h"
#include "win/message_box.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"

namespace {

void SetCity(HWND document) {
  const HGLOBAL city = GlobalAlloc(GMEM_MOVEABLE, kTextSize);
  std::memcpy(ScopedGlobalLock<char>(city).get(), CurrentLocation.name, kTextSize);
  ReplaceBlockProperty(document, property::kCity, city);
}

void SetPlaceProperties(HWND document) {
  SetIntegerProperty(document, property::kLatitude, CurrentLocation.latitude);
  SetIntegerProperty(document, property::kLongitude, CurrentLocation.longitude);
  SetIntegerProperty(document, property::kTimeZone, CurrentLocation.zoneHours);
  SetIntegerProperty(document, property::kTimeZoneMin, CurrentLocation.zoneMinutes);
}

// A calendar filter that answers such a date is broken, and nothing computed with it can be trusted.
void RequireMonth(const CalendarDate& date, const char* text) {
  if (date.uMonth < 1 || date.uMonth > 12) FatalAppExitA(0, text);
}

int32_t CandleMinutes() {
  return CandleOverride.readSetting ? ShabbatPreferences::CandleLightingMinutes() : CandleOverride.fixedMinutes;
}

ClockTime EndOfShabbat(const CalendarDate& saturday, ClockTime sunset) {
  if (ShabbatPreferences::EndsByMinutes()) return EndOfShabbatTime(sunset, ShabbatPreferences::EndMinutes());
  const ClockTime nightfall =
      AddTwilightInterval(sunset, TwilightInterval(saturday, ShabbatPreferences::DegreesBelowHorizon()));
  return EndOfShabbatTime(nightfall, ShabbatPreferences::MinutesAfterDegrees());
}

void Store(ClockTime time, uint32_t& hour, uint32_t& minute) {
  hour = static_cast<uint32_t>(time.hour);
  minute = static_cast<uint32_t>(time.minute);
}

// The user's own times, if there are any for this Friday. They leave Saturday's sunset unwritten.
bool TakeCustomTimes(const CalendarDate& friday, ShabbatTimeEntry& entry) {
  ClockTime candles{};
  ClockTime end{};
  if (!CandlesGetTime(CurrentLocation.name, friday.uDay, friday.uMonth, friday.uYear, &candles.hour, &candles.minute,
                      &end.hour, &end.minute)) {
    return false;
  }
  Store(candles, entry.candleHour, entry.candleMinute);
  Store(end, entry.endHour, entry.endMinute);
  return true;
}

void ComputeEntry(int32_t fridayNumber, ShabbatTimeEntry& entry) {
  const CalendarDate friday = DateFromAbsolute(fridayNumber);
  const CalendarDate saturday = DateFromAbsolute(fridayNumber + 1);
  entry.day = friday.uDay;
  entry.month = friday.uMonth;
  entry.year = friday.uYear;
  RequireMonth(friday, "CalculateShabbatTimes: dateCurrent.uMonth must be in the range 1-12");
  if (TakeCustomTimes(friday, entry)) return;

  Store(CandleLightingTime(SunEvent(friday, SOLAR_SUNSET), CandleMinutes()), entry.candleHour, entry.candleMinute);
  RequireMonth(saturday, "CalculateShabbatTimes: dateNext.uMonth must be in the range 1-12");
  const ClockTime sunset = SunEvent(saturday, SOLAR_SUNSET);
  Store(sunset, entry.sunsetHour, entry.sunsetMinute);
  Store(EndOfShabbat(saturday, sunset), entry.endHour, entry.endMinute);
}

HGLOBAL BuildList(int32_t firstDay, int32_t lastDay) {
  const FridayCount fridays = CountFridays(firstDay, lastDay);
  if (fridays.tooMany) ShowStop(nullptr, TableString(IDS_TOO_MANY_SHABBAT_TIMES), TableString(IDS_TITLE));
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, ShabbatTimesBlockSize(fridays.count));
  const ScopedGlobalLock<ShabbatTimesList> list(block);
  list->count = fridays.count;
  uint32_t filled = 0;
  for (int32_t day = firstDay; filled < fridays.count; ++day) {
    if (IsFriday(day)) ComputeEntry(day, list->entries[filled++]);
  }
  return block;
}

}  // namespace

void CalculateShabbatTimes(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                           uint32_t endMonth, uint32_t endYear) {
  const ScopedWaitCursor wait;
  SetCity(document);
  SetRangeProperties(document, CurrentRange);
  CalculateZmanim(document, startDay, startMonth, startYear, endDay, endMonth, endYear);
  BuildReadingsList(document, startDay, startMonth, startYear, endDay, endMonth, endYear);
  SetPlaceProperties(document);
  const int32_t firstDay = AbsoluteFromDate({startDay, startMonth, startYear});
  const int32_t lastDay = AbsoluteFromDate({endDay, endMonth, endYear});
  ReplaceBlockProperty(document, property::kShabbatTimes, BuildList(firstDay, lastDay));
}
