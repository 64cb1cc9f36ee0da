// The Shabbat times of a document, as the block behind the window property ShabbatTimes holds them.
#pragma once

#include <cstddef>
#include <cstdint>

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
