// What is said of a child's coming of age, in UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/lections/reading_texts.h"
#include "libraries/lections/settings.h"
#include "libraries/majority/majority_core.h"
#include "publishing/core/icalendar.h"

namespace majority {

// "Bar mitzvah" or "Bat mitzvah", of the child where it has a name.
std::string TitleOf(const Child& child, std::string_view name);

// The Jewish birthday, the day, the Shabbat on or after it and what is read then, each on a line ended by "\n"; a line
// why not, where the day is none of those that can be reckoned.
std::string FactsOf(const Child& child, const lections::Settings& settings, const lections::OwnReadings* own = nullptr);

// How many days from today are left to learn, or that the Shabbat has passed; a line, empty where there is no day.
std::string TimeLeft(const Child& child, int32_t today);

// The day, and the Shabbat where it is another. None before the Gregorian calendar began.
std::vector<publishing::Event> EventsOf(const Child& child, std::string_view name, const lections::Settings& settings,
                                        const lections::OwnReadings* own = nullptr);

}  // namespace majority
