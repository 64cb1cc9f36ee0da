#include "shabbat/shabbat_list.h"

#include "companion/candles.h"
#include "engine/bound_entries.h"
#include "engine/properties.h"
#include "engine/string_table.h"
#include "engine/sun_times.h"
#include "resources/ids.h"
#include "shabbat/core/shabbat_record.h"
#include "shabbat/core/shabbat_rules.h"
#include "shabbat/shabbat_preferences.h"
#include "win/message_box.h"
#include "win/scoped.h"

namespace {

// A calendar filter that answers such a date is broken, and nothing computed with it can be trusted.
void RequireMonth(const CalendarDate& date, const char* text) {
  if (date.uMonth < 1 || date.uMonth > 12) FatalAppExitA(0, text);
}

int32_t CandleMinutes(const CandleOverrideRecord& candles) {
  return candles.readSetting ? ShabbatPreferences::CandleLightingMinutes() : candles.fixedMinutes;
}

ClockTime EndOfShabbat(const Location& place, const CalendarDate& saturday, ClockTime sunset) {
  if (ShabbatPreferences::EndsByMinutes()) return EndOfShabbatTime(sunset, ShabbatPreferences::EndMinutes());
  const ClockTime nightfall =
      AddTwilightInterval(sunset, TwilightInterval(place, saturday, ShabbatPreferences::DegreesBelowHorizon()));
  return EndOfShabbatTime(nightfall, ShabbatPreferences::MinutesAfterDegrees());
}

void Store(ClockTime time, uint32_t& hour, uint32_t& minute) {
  hour = static_cast<uint32_t>(time.hour);
  minute = static_cast<uint32_t>(time.minute);
}

// The user's own times, if there are any for this Friday. They leave Saturday's sunset unwritten.
bool TakeCustomTimes(const Location& place, const CalendarDate& friday, ShabbatTimeEntry& entry) {
  ClockTime candles{};
  ClockTime end{};
  if (!CandlesGetTime(place.name, friday.uDay, friday.uMonth, friday.uYear, &candles.hour, &candles.minute, &end.hour,
                      &end.minute)) {
    return false;
  }
  Store(candles, entry.candleHour, entry.candleMinute);
  Store(end, entry.endHour, entry.endMinute);
  return true;
}

void ComputeEntry(const Location& place, const CandleOverrideRecord& candles, int32_t fridayNumber,
                  ShabbatTimeEntry& entry) {
  const CalendarDate friday = DateFromAbsolute(fridayNumber);
  const CalendarDate saturday = DateFromAbsolute(fridayNumber + 1);
  entry.day = friday.uDay;
  entry.month = friday.uMonth;
  entry.year = friday.uYear;
  RequireMonth(friday, "CalculateShabbatTimes: dateCurrent.uMonth must be in the range 1-12");
  if (TakeCustomTimes(place, friday, entry)) return;

  const ClockTime lighting = CandleLightingTime(SunEvent(place, friday, SOLAR_SUNSET), CandleMinutes(candles));
  Store(lighting, entry.candleHour, entry.candleMinute);
  RequireMonth(saturday, "CalculateShabbatTimes: dateNext.uMonth must be in the range 1-12");
  const ClockTime sunset = SunEvent(place, saturday, SOLAR_SUNSET);
  Store(sunset, entry.sunsetHour, entry.sunsetMinute);
  Store(EndOfShabbat(place, saturday, sunset), entry.endHour, entry.endMinute);
}

}  // namespace

HGLOBAL MakeShabbatTimes(const Location& place, const DateRange& range, const CandleOverrideRecord& candles) {
  const int32_t firstDay = AbsoluteFromDate(range.start);
  const FridayCount fridays = CountFridays(firstDay, AbsoluteFromDate(range.end));
  if (fridays.tooMany) ShowStop(nullptr, TableString(IDS_TOO_MANY_SHABBAT_TIMES), TableString(IDS_TITLE));
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, ShabbatTimesBlockSize(fridays.count));
  const ScopedGlobalLock<ShabbatTimesList> list(block);
  if (!list) return nullptr;
  list->count = fridays.count;
  uint32_t filled = 0;
  for (int32_t day = firstDay; filled < fridays.count; ++day) {
    if (IsFriday(day)) ComputeEntry(place, candles, day, list->entries[filled++]);
  }
  return block;
}

void ComputeShabbatTimes(HWND document, const Location& place, const DateRange& range,
                         const CandleOverrideRecord& candles) {
  ReplaceBlockProperty(document, property::kShabbatTimes, MakeShabbatTimes(place, range, candles));
}
