// Persons and their dates as a table to read, and as one to be read in again.
#pragma once

#include <vector>

#include "libraries/kinship/person_dates.h"
#include "publishing/core/table.h"

namespace kinship {

// As the list shows them, for paper and texts.
publishing::Table TableOf(const std::vector<persons::Person>& people, const Shown& shown);

// What tells a person wholly, in the columns that ImportedFrom knows, then what the list shows of the dates.
publishing::Table CsvTableOf(const std::vector<persons::Person>& people, const Shown& shown);

}  // namespace kinship
