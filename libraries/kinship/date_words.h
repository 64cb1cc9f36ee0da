// Dates in the words of a table that the user's spreadsheet may have been at.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "libraries/persons/personal_date.h"

namespace kinship {

// As tables have it: "16.02.1950" (which spreadsheets of most countries leave alone), "16 Adar 5710", "16 Adar".
std::string DateWords(const persons::EventDate& event);

// Reads that, and "1950-02-16" and "16 February 1950" or "16 Feb 1950". message says what is wrong where there is no
// date.
struct DateInWords {
  std::optional<calendar::Date> date;
  persons::Calendar calendar = persons::Calendar::kGregorian;
  std::string message;
};
// calendar: the one that the date has to be of; none where its form tells.
DateInWords ReadDateWords(std::string_view words, std::optional<persons::Calendar> calendar);

}  // namespace kinship
