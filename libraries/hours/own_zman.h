// The zmanim that users make: a form and a number that it takes, or the later or earlier of two such times.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "libraries/hours/own_forms.h"
#include "libraries/hours/zman.h"

namespace hours {

// A second time beside the first, of which one counts.
struct OwnOther {
  bool isLater;         // whether the later of both counts, else the earlier
  const OwnForm* form;  // one of OwnForms()
  int32_t thousandths;  // of the form's unit; IsAmount

  bool operator==(const OwnOther&) const = default;
};

struct OwnZman {
  uint32_t number;      // 1 to kMostOwnNumber; the user's n-th has the id "own-n"
  const OwnForm* form;  // one of OwnForms()
  int32_t thousandths;  // of the form's unit; IsAmount
  Rounding rounding;
  std::string description;  // windows-1252, not empty, as CleanDescription leaves it
  std::string hebrew;       // windows-1255 in logical order, likewise; empty: the description serves
  std::optional<OwnOther> other = {};

  bool operator==(const OwnZman&) const = default;
};

constexpr uint32_t kMostOwnNumber = 999;

std::string OwnId(uint32_t number);
Definition DefinitionOf(const OwnZman& zman);

// A line of the users' file (see choice.h), without an end.
std::string OwnLine(const OwnZman& zman);
std::optional<OwnZman> OwnZmanIn(std::string_view line);

// A decimal number of at most 5 digits and 3 places, "." before them, as thousandths; and the shortest way to write it.
std::optional<int32_t> ThousandthsIn(std::string_view number);
std::string NumberText(int32_t thousandths);

}  // namespace hours
