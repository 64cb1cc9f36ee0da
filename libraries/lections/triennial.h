// The triennial cycle of many Conservative and other congregations: of each weekly portion a third a year, in the week
// in which the others read it whole. It begins at Simchat Torah; 5744 was the first year of its first cycle.
#pragma once

#include <cstdint>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/passage.h"

namespace lections {

// 1 to 3.
int TriennialYear(int32_t jewishYear);

// What is read of the portion in that year, in which it is indeed read so, alone or joined. Which third it is, of
// portions that are joined in some years, depends on all three years of the cycle and on the land.
Passage TriennialOf(const calendar::WeeklyPortion& read, int32_t jewishYear, calendar::Land land);

}  // namespace lections
