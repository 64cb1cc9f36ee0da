// Stand-ins for the libraries that the program binds by name: a Gregorian calendar by the standard library's, a Jewish
// one that has the same days and months in years of its own, a few places, and a sun that sets when the test says.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "companion/calendar_date.h"
#include "tests/doubles/library_doubles.h"

struct DoubledPlace {
  std::string name;
  int32_t latitude;
  int32_t longitude;
  int32_t zoneHours;
  int32_t zoneMinutes;
};

struct BoundScript {
  std::vector<DoubledPlace> places;
  // Sunset and sunrise of a date; each question is logged.
  std::function<DoubledTime(const CalendarDate&)> sunset;
  std::function<DoubledTime(const CalendarDate&)> sunrise;
  // Applied to every date that the calendar answers.
  std::function<void(CalendarDate&)> spoilDate;
};

// A Gregorian year is the doubled Jewish calendar's year less this: 6.1.2007 is 6.1.5767.
inline constexpr uint32_t kDoubledJewishEpoch = 3760;

BoundScript& Bound();

// Fills the bound entry points with the doubles: places Aachen, Haifa and Jerusalem, sunrise at 05:47 and sunset at
// 19:05 every day.
void ResetBoundLibraries();
