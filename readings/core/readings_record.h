// The readings of a document, as the block behind the window property ParashaReadings holds them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/core/records.h"

// One day with readings. Texts are in the 8-bit charset of the readings library's font; extraText is windows-1252.
struct ReadingsEntry {
  CalendarDate date;  // Gregorian
  char torah1[kTextSize];
  char torah2[kTextSize];
  char torah3[kTextSize];
  char haftarah1[kTextSize];
  char haftarah2[kTextSize];
  char haftarah3[kTextSize];
  char extraText[kTextSize];  // shown in the first empty Torah line of the day
  uint32_t isYizkor;          // 1 or 0
};
static_assert(sizeof(ReadingsEntry) == 1808);

// count entries, at least one, in date order.
struct ReadingsList {
  uint32_t count;
  ReadingsEntry entries[1];
};
static_assert(offsetof(ReadingsList, entries) == 4);

// The size in bytes of a block of count entries.
constexpr std::size_t ReadingsBlockSize(uint32_t count) {
  return offsetof(ReadingsList, entries) + std::size_t{count} * sizeof(ReadingsEntry);
}

// Days with readings that one list may have; the day that exceeds them is still taken.
inline constexpr uint32_t kMaximumReadingDays = 32000;
