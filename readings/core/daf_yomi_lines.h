// The lines of the Daf Yomi list: one a day, with its date in both calendars and its page of Talmud.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "engine/core/records.h"

// What the lines are made from.
struct DafYomiSource {
  int32_t (*absoluteDay)(const CalendarDate& gregorian);
  CalendarDate (*jewishDate)(int32_t absoluteDay);
  std::string (*monthName)(const CalendarDate& jewish);
  std::string (*page)(const CalendarDate& gregorian);
  uint32_t (*lastDayOfMonth)(uint32_t month, uint32_t year);  // Gregorian
};

// Hands out the lines of a range in the order of its days, "05.01.2020 (8 Tevet 5780): Berachot 2 (cycle 14)". A range
// whose end is before its start is taken the other way round.
void ForEachDafYomiLine(const DateRange& range, const DafYomiSource& source,
                        const std::function<void(const std::string& line)>& take);
