// The records that the rooms of the program exchange.
#pragma once

#include <cstddef>
#include <cstdint>

#include "companion/calendar_date.h"

static_assert(sizeof(CalendarDate) == 12);

// Texts of one line (names, descriptions) live in buffers of this many bytes, terminator included.
inline constexpr std::size_t kTextSize = 256;

// A place for which times are computed. Coordinates are packed, degrees x 100 + minutes, negative for south and west;
// the zone's offset from UTC is zoneHours x 60 minutes and zoneMinutes more in the direction of the hours' sign
// (without hours, of their own). The solar library wants them so.
struct Location {
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

// What a calculation does about a range that has more days than its result can hold; it is cut in either case.
enum class LongRange { kReport, kCutSilently };

// Where the candle-lighting minutes come from: the preference, or a number fixed for the place.
struct CandleOverrideRecord {
  bool readSetting;
  int32_t fixedMinutes;
};
