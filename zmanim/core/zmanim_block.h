// The block behind the window property ZmanimTimes: the zmanim of every day of a document's range. Panes, exports and
// printing read it and nothing else.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/core/clock_time.h"
#include "engine/core/records.h"

// A day has room for this many zmanim. Those beyond the number of the document's zmanim hold kNoTime.
inline constexpr uint32_t kMostZmanim = 100;

// Hours that are none, to be looked for in this order. The minute beside them means nothing.
inline constexpr int32_t kNoTimeHour = 2000;       // the zman does not occur on that day
inline constexpr int32_t kUnknownTimeHour = 1000;  // the time is not known

inline constexpr ClockTime kNoTime{kNoTimeHour, 0};

struct ZmanimDay {
  CalendarDate date;
  ClockTime times[kMostZmanim];
};
static_assert(offsetof(ZmanimDay, times) == 12);
static_assert(sizeof(ZmanimDay) == 812);

// count days, in date order.
struct ZmanimBlock {
  uint32_t count;
  ZmanimDay days[1];
};
static_assert(offsetof(ZmanimBlock, days) == 4);

// The size in bytes of a block of count days.
constexpr std::size_t ZmanimBlockSize(uint32_t count) {
  return offsetof(ZmanimBlock, days) + count * sizeof(ZmanimDay);
}

// A range of more days than this is too long; the day that exceeds it is still kept.
inline constexpr uint32_t kMostZmanimDays = 32000;

struct ZmanimDayCount {
  uint32_t count;
  bool tooMany;
};

// The days from firstDay to lastDay, absolute day numbers, both included; none when lastDay lies before firstDay.
constexpr ZmanimDayCount CountZmanimDays(int32_t firstDay, int32_t lastDay) {
  const int64_t days = int64_t{lastDay} - firstDay + 1;
  if (days > kMostZmanimDays) return {kMostZmanimDays + 1, true};
  return {days > 0 ? static_cast<uint32_t>(days) : 0, false};
}
