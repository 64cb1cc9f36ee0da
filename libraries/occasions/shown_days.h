// Which days the list of occasions shows: those of the caller's range, or of a year of either calendar.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "libraries/occasions/occasion.h"

namespace occasions {

enum class Span : uint8_t { kRange, kJewishYear, kCivilYear };
constexpr int kSpans = 3;

// Days by Rata Die, both included.
struct Days {
  int32_t first = 0;
  int32_t last = 0;

  bool Contain(int32_t day) const { return day >= first && day <= last; }
  bool operator==(const Days&) const = default;
};

struct YearLimits {
  int32_t first;
  int32_t last;

  bool Contain(int32_t year) const { return year >= first && year <= last; }
};

// The years of a calendar whose days all have occasions. span: no range.
YearLimits YearLimitsOf(Span span);

// year: within the limits. A Jewish year has the day before too, on whose evening it begins.
Days DaysOfYear(Span span, int32_t year);

// The year of a day, or the nearest one within the limits.
int32_t YearOfDay(Span span, int32_t day);

// A moment of a place's own clock.
struct ClockMoment {
  int32_t day = 0;     // Rata Die
  int32_t minute = 0;  // of the day

  bool operator==(const ClockMoment&) const = default;
};

// Whether a row is still to come: whole days are until they are over. What does not occur never is.
bool IsToCome(const Row& row, const ClockMoment& now);

}  // namespace occasions
