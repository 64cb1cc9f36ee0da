// Moments as clocks show them.
#pragma once

#include <cstdint>

#include "libraries/sun/place_settings.h"

namespace sun {

// The offset from UTC, in seconds, of the clock in force at a place and moment (seconds since 1970-01-01 00:00 UTC):
// its zone's from 1970 on, the standard offset before and where there is no zone.
int32_t ClockOffsetSeconds(const PlaceClock& clock, double utcSeconds);

// The offset from UTC, in seconds, of the clock in force when it shows a time, counted in seconds since its own
// 1970-01-01 00:00. Of a time that it shows twice, as it is put back, the first; one that is left out, as it is put
// forward, is told by the clock as it was before.
int32_t ClockOffsetShowing(const PlaceClock& clock, int64_t clockSeconds);

// The minute, counted since 1970-01-01 00:00 of a clock so many seconds ahead of UTC, that is nearest to a moment (half
// a minute goes up) or the first that is not before it.
int64_t NearestMinute(double utcSeconds, int32_t offsetSeconds);
int64_t MinuteNotBefore(double utcSeconds, int32_t offsetSeconds);

struct HourAndMinute {
  int32_t hour;    // 0 to 23
  int32_t minute;  // 0 to 59
};

// The time of day of a minute counted since some midnight.
HourAndMinute TimeOfDay(int64_t minutes);

}  // namespace sun
