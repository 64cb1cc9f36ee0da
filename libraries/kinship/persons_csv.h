// Persons read in from comma-separated values.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/persons/person.h"

namespace kinship {

// The columns that are read, by their headings; the first three have to be there, all others may, in any order.
enum class CsvField : uint8_t { kName, kOccasion, kDate, kTitle, kCalendar, kAfterSunset, kAdar, kNotes };
constexpr std::array<const char*, 8> kCsvHeadings = {"Name",     "Occasion",     "Date", "Title",
                                                     "Calendar", "After sunset", "Adar", "Notes"};
constexpr size_t kNeededFields = 3;

constexpr char kYes[] = "Yes";  // after sunset
const char* CalendarName(persons::Calendar calendar);

struct Import {
  std::string problem;                 // why nothing can be read at all; empty otherwise
  std::vector<persons::Person> added;  // what is not there yet
  size_t alreadyThere = 0;
  std::vector<std::string> faults;  // "Row 5 (Moshe): ...", the headings being row 1
};

// text: UTF-8. present: the entries that are there.
Import ImportedFrom(std::string_view text, const std::vector<persons::Person>& present);

}  // namespace kinship
