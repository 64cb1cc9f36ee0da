// A person's date in the years that the list shows.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "libraries/persons/person.h"

namespace kinship {

enum class Column : uint8_t {
  kName,
  kOccasion,
  kJewishDate,
  kNext,
  kDay,
  kYears,
  kYear,
  kSecondYear,
  kThirdYear,
  kNotes
};
constexpr int kColumns = 10;
constexpr int kShownYears = 3;

// What the columns are about.
struct Shown {
  int32_t year = 0;   // the first of the Gregorian years
  int32_t today = 0;  // an absolute day
  persons::AdarCustom ofYahrzeit = persons::AdarCustom::kAdarI;

  friend bool operator==(const Shown&, const Shown&) = default;
};

// "Name" ... "2026" ... "Notes"
std::string HeadingOf(Column column, const Shown& shown);

struct PersonDates {
  calendar::Date jewish = {};
  // From today on in the current year, else from 1 January of the year that is shown.
  std::optional<persons::Observance> next;
  std::array<persons::Observances, kShownYears> inYears;
};
PersonDates Reckoned(const persons::Person& person, const Shown& shown);

std::string CellOf(const persons::Person& person, const PersonDates& dates, Column column);

// What becomes of a date that is being entered: its weekday, and the next days from today on, a line each.
std::string Outlook(const persons::Person& person, const Shown& shown);

}  // namespace kinship
