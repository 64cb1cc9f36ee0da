// The mean conjunction (molad) by which months begin.
#pragma once

#include <cstdint>

namespace calendar {

// Parts (chalakim), of which an hour has 1080. Days of the molad begin at 18:00.
constexpr int64_t kPartsPerHour = 1080;
constexpr int64_t kPartsPerDay = 24 * kPartsPerHour;

constexpr int64_t Parts(int64_t hours, int64_t parts) {
  return hours * kPartsPerHour + parts;
}

// The month of the calendar: 29 days 12 hours 793 parts.
constexpr int64_t kPartsPerMonth = 29 * kPartsPerDay + Parts(12, 793);

// BaHaRaD: the molad of Tishri of year 1 is Monday, 5 hours 204 parts. That Monday, 1 Tishri 1, is 7 October 3761 BCE
// of the Julian calendar.
constexpr int64_t kBaharad = Parts(5, 204);
constexpr int32_t kEpoch = -1373427;

// Months from Tishri of year 1 to Tishri of the given year, 235 in every 19 years.
constexpr int64_t MonthsBefore(int64_t year) {
  return (235 * year - 234) / 19;
}

// Parts since 18:00 before the absolute day 0, in the mean time of Jerusalem. A month that the year does not have is
// the one after.
int64_t MoladParts(int32_t month, int32_t year);

// Jerusalem's mean time is so far ahead of UTC: 35.235 degrees east of Greenwich, 240 seconds a degree.
constexpr double kJerusalemMeanSeconds = 35.235 * 240;

}  // namespace calendar
