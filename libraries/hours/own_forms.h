// The forms of zmanim that users make, each with a number that it takes.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "libraries/hours/zman.h"

namespace hours {

enum class Unit : uint8_t { kDegrees, kMinutes, kProportionalMinutes, kHours };

// What the amount of a form does.
enum class FormKind : uint8_t {
  kBesideMorning,  // it is the amount of the bound that the day starts with, which the form has for a thousandth
  kBesideEvening,  // likewise of the bound at its end
  kBefore,         // minutes before the hour of the day that the form names
  kAfter,          // minutes after it
  kHours,          // hours of the day
  kHalfDayHours,   // likewise of a day of two halves, which 12:00 of local mean time divides
};

// A form of zman of which the user gives the amount.
struct OwnForm {
  const char* word;   // ASCII; kept in users' files, never changed
  const char* label;  // UTF-8, all of windows-1252: "degrees before sunrise"
  FormKind kind;
  Unit unit;
  Day day;
  int32_t thousandthHours = 0;  // of kBefore and kAfter
};

// Degrees first, then minutes, proportional minutes, and hours of each day that has a name.
std::span<const OwnForm> OwnForms();

// Null when there is none.
const OwnForm* FindOwnForm(std::string_view word);

// The largest amount that a form takes; the least is 0 (a thousandth of a degree for degrees).
int32_t MostThousandths(Unit unit);
bool IsAmount(Unit unit, int32_t thousandths);

// An amount in a form.
Reckoning ReckoningOf(const OwnForm& form, int32_t thousandths);

// The rounding that a form suggests: up after midday and sunset, down in the morning, around midnight and for hours of
// a day up to midday.
Rounding SuggestedRounding(const OwnForm& form, int32_t thousandths);

}  // namespace hours
