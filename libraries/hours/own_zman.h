// The zmanim that users make: a form and a number that it takes.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "libraries/hours/zman.h"

namespace hours {

enum class Unit : uint8_t { kDegrees, kMinutes, kProportionalMinutes, kHours };

// A form of zman of which the user gives the amount.
struct OwnForm {
  const char* word;   // ASCII; kept in users' files, never changed
  const char* label;  // UTF-8, all of windows-1252: "degrees before sunrise"
  Unit unit;
  Day day;         // kHours: whose hours are counted; else both bounds are the form's, for a thousandth of the unit
  bool isEvening;  // the bound at the day's end counts, not the one at its start; of no meaning for kHours
};

// Degrees first, then minutes, proportional minutes, and hours of each day that has a name.
std::span<const OwnForm> OwnForms();

// Null when there is none.
const OwnForm* FindOwnForm(std::string_view word);

// The largest amount that a form takes; the least is 0 (a thousandth of a degree for degrees).
int32_t MostThousandths(Unit unit);
bool IsAmount(Unit unit, int32_t thousandths);

struct OwnZman {
  uint32_t number;      // 1 to kMostOwnNumber; the user's n-th has the id "own-n"
  const OwnForm* form;  // one of OwnForms()
  int32_t thousandths;  // of the form's unit; IsAmount
  Rounding rounding;
  std::string description;  // windows-1252, not empty, as CleanDescription leaves it
  std::string hebrew;       // windows-1255 in logical order, likewise; empty: the description serves

  bool operator==(const OwnZman&) const = default;
};

constexpr uint32_t kMostOwnNumber = 999;

std::string OwnId(uint32_t number);
Definition DefinitionOf(const OwnZman& zman);

// The rounding that a form suggests: up in the evening, down in the morning and for hours of a day up to midday.
Rounding SuggestedRounding(const OwnForm& form, int32_t thousandths);

// A line of the users' file (see choice.h), without an end.
std::string OwnLine(const OwnZman& zman);
std::optional<OwnZman> OwnZmanIn(std::string_view line);

// A decimal number of at most 5 digits and 3 places, "." before them, as thousandths; and the shortest way to write it.
std::optional<int32_t> ThousandthsIn(std::string_view number);
std::string NumberText(int32_t thousandths);

}  // namespace hours
