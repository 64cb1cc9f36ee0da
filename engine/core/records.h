// The records that the rooms of the program exchange.
#pragma once

#include <cstddef>
#include <cstdint>

#include "companion/calendar_date.h"

static_assert(sizeof(CalendarDate) == 12);

// Texts of one line (names, descriptions) live in buffers of this many bytes, terminator included.
inline constexpr std::size_t kTextSize = 256;

// A place for which times are computed. Coordinates are packed, degrees x 100 + minutes, negative for south and west;
// the zone's offset from UTC is zoneHours x 60 + zoneMinutes minutes, both signed. The solar library wants them so.
struct LocationRecord {
  char name[kTextSize];
  int32_t latitude;
  int32_t longitude;
  int32_t zoneHours;
  int32_t zoneMinutes;
};

// Both ends are part of the range.
struct DateRange {
  CalendarDate start;
  CalendarDate end;
};

// Where the candle-lighting minutes come from: the preference, or a number fixed for the place.
struct CandleOverrideRecord {
  bool readSetting;
  int32_t fixedMinutes;
};

// One Shabbat. Clock times; hours may reach 24 and more by the degrees method (see shabbat_rules.h).
struct ShabbatTimeEntry {
  uint32_t day;  // Friday's date
  uint32_t month;
  uint32_t year;
  uint32_t candleHour;  // on Friday
  uint32_t candleMinute;
  uint32_t sunsetHour;  // on Saturday; unspecified when the user's own times hold for this Shabbat
  uint32_t sunsetMinute;
  uint32_t endHour;  // on Saturday
  uint32_t endMinute;
};
static_assert(sizeof(ShabbatTimeEntry) == 36);

// The block behind the window property ShabbatTimes: count entries, in date order.
struct ShabbatTimesList {
  uint32_t count;
  ShabbatTimeEntry entries[1];
};
static_assert(offsetof(ShabbatTimesList, entries) == 4);

// The size in bytes of a block of count entries. An empty list keeps room for two entries.
constexpr std::size_t ShabbatTimesBlockSize(uint32_t count) {
  constexpr std::size_t kEmptyListSize = 76;
  return count == 0 ? kEmptyListSize : offsetof(ShabbatTimesList, entries) + count * sizeof(ShabbatTimeEntry);
}
