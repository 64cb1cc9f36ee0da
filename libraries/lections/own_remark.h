// What the dialog says of a text as it is written. Texts are UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "libraries/calendar/portion_schedule.h"
#include "libraries/lections/own_text.h"
#include "libraries/lections/settings.h"

namespace lections {

std::string WithoutBlanksAround(std::string_view text);

// What is wrong with the text and how to go on; where nothing is, how long it is and where it does not hold, will be
// divided or cut. before: how many characters of the program's it follows.
std::string RemarkOn(const OwnEntry& entry, size_t before = 0);

// How many characters a text has.
size_t LengthOf(std::string_view utf8);

// What the program itself puts into a slot on a day.
std::string TextInSlot(Slot slot, int32_t day, const Settings& settings);

// Where a new text is offered to hold: the first text of the day, for all lands, customs and languages; for the customs
// that are listed now only where the texts of the next such day depend on which are.
OwnPlace OfferedPlaceOf(const When& when, const Settings& settings, int32_t today);

// "line 3", "lines 3, 7", "lines 1, 2, 3, 4, 5 and 8 more".
std::string LinesText(const std::vector<int>& lines);

// In place of a preview.
std::string NoDaysText(calendar::Land land);

}  // namespace lections
