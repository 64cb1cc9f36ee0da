// Persons' dates as events of a calendar file.
#pragma once

#include <cstdint>
#include <vector>

#include "libraries/persons/person.h"
#include "publishing/core/icalendar.h"

namespace kinship {

// The days on which the dates are kept in a number of Gregorian years, in the order of the persons. An event that is
// made again has the same uid as long as kind, day, name and title of its person are the same.
std::vector<publishing::Event> EventsOf(const std::vector<persons::Person>& people, persons::AdarCustom ofYahrzeit,
                                        int32_t firstYear, int32_t years);

}  // namespace kinship
