// Persons for the tests of kinship.
#pragma once

#include <string>
#include <utility>

#include "libraries/calendar/gregorian.h"
#include "libraries/calendar/jewish.h"
#include "libraries/kinship/person_dates.h"
#include "libraries/kinship/person_rows.h"

namespace kinship {

inline persons::Person Jewish(persons::Kind kind, std::string name, calendar::Date date) {
  return {kind, {persons::Calendar::kJewish, date, false}, {}, std::move(name), {}, {}};
}

inline persons::Person Gregorian(persons::Kind kind, std::string name, calendar::Date date) {
  return {kind, {persons::Calendar::kGregorian, date, false}, {}, std::move(name), {}, {}};
}

// From 1 March 2026 on.
inline Shown In2026() {
  return {2026, calendar::AbsoluteFromGregorian({1, 3, 2026}), persons::AdarCustom::kAdarI};
}

// Letters of ASCII alone, which are all that these tests need.
inline std::string SmallAscii(std::string_view text) {
  std::string small(text);
  for (char& letter : small) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return small;
}
constexpr Letters kAsciiLetters = {SmallAscii, SmallAscii};

}  // namespace kinship
